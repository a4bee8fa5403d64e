// The reports on the open dictionary: what another dictionary lacks, the entries without
// definition, the caret's place, the count of entries, the code of a character.
#pragma once
#include <cstdint>
#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/settings.h"
#include "reports/report_screen.h"
#include "view/commands.h"
#include "view/dialogs.h"

namespace lex {

struct PartiesRapports {
  EcranRapports& ecran;
  Dialogues& dialogues;
  const Catalogue& catalogue;
  const Reglages& reglages;
  // The catalogue entry of the dictionary the user is in.
  const std::int16_t& dictioCourant;
  // The file catalogue entry i is read from: its working copy while it holds unsaved changes,
  // which is what its index file was made from.
  std::function<std::string(int)> fichierDictio;
};
void InscrireCommandesRapports(RegistreCommandes& registre, PartiesRapports p);

}  // namespace lex
