// The Recherche menu, as the search subsystem serves it.
#pragma once

#include "search/search_state.h"
#include "view/commands.h"

namespace lex {

void InscrireCommandesRecherche(RegistreCommandes& registre, PartiesRecherche p);

}  // namespace lex
