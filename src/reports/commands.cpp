#include "reports/commands.h"

namespace lex {

void InscrireCommandesRapports(RegistreCommandes&, PartiesRapports) {}

}  // namespace lex
