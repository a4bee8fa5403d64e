#include "reports/commands.h"

#include "reports/list_commands.h"
#include "reports/spoken.h"

namespace lex {

void InscrireCommandesRapports(RegistreCommandes& registre, PartiesRapports p) {
  InscrireCommandes<PartiesRapports>(registre, p,
                                     {{MenuId::mnucomparaisonIndex, mnucomparaisonIndex},
                                      {MenuId::mnuSansDefinition, mnuSansDefinition},
                                      {MenuId::mnuXY, mnuXY},
                                      {MenuId::mnuNombreIndex, mnuNombreIndex},
                                      {MenuId::mnuCodeIso, mnuCodeIso}});
}

}  // namespace lex
