#include "reports/commands.h"

#include "reports/list_commands.h"
#include "reports/spoken.h"

namespace lex {

void InscrireCommandesRapports(RegistreCommandes& registre, PartiesRapports p) {
  const auto inscrire = [&registre, &p](MenuId id, void (*executer)(PartiesRapports&)) {
    registre.Inscrire(id, [p, executer]() mutable { executer(p); });
  };
  inscrire(MenuId::mnucomparaisonIndex, mnucomparaisonIndex);
  inscrire(MenuId::mnuSansDefinition, mnuSansDefinition);
  inscrire(MenuId::mnuXY, mnuXY);
  inscrire(MenuId::mnuNombreIndex, mnuNombreIndex);
  inscrire(MenuId::mnuCodeIso, mnuCodeIso);
}

}  // namespace lex
