// The Edition menu's commands on the entries of the open dictionary: an article typed or
// changed, entries deleted, duplicate articles removed, articles copied.
#pragma once

#include "editing/edit_screen.h"
#include "view/commands.h"

namespace lex {

// Ctrl+N in a dictionary: the empty field for a new article.
void mnuCreationIndex(PartiesEdition& p);
void mnuModifIndex(PartiesEdition& p);
// "OK" while an article is typed: it is written in its place.
void SauveCreationIndex(PartiesEdition& p);
void mnuEffaceIndex(PartiesEdition& p);
void mnuEffaceIndexSelection(PartiesEdition& p);
void mnuEffaceArticleDouble(PartiesEdition& p);
void MnuCopieIndex(PartiesEdition& p);
void MnuCopieIndexSelection(PartiesEdition& p);

// Every command above but the first, which the lists of dictionaries share with the making
// of a new dictionary.
void InscrireCommandesEdition(RegistreCommandes& registre, PartiesEdition p);

}  // namespace lex
