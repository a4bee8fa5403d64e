// The Recherche menu's commands for strings in the definitions: asking, the case switch and
// the three repeat keys (F3 through all articles, Ctrl+F3 in the article, Shift+F3 backwards).
#pragma once

#include "search/search_state.h"

namespace lex {

void mnuRechercheAvant(PartiesRecherche& p);
void mnuRechercheBrute(PartiesRecherche& p);
void mnuRechercheSuivant(PartiesRecherche& p);
void mnuRechercheSuivantTout(PartiesRecherche& p);
void mnuRecherchePrecedent(PartiesRecherche& p);

}  // namespace lex
