#include "ui/commands.h"

namespace lex {

// The search commands of the Recherche menu.
void InscrireCommandesRecherche(TableCommandes&) {}

}  // namespace lex
