// The reports on the open dictionary: what another dictionary lacks, the entries without
// definition, the caret's place, the count of entries, the code of a character.
#pragma once
#include <cstdint>

#include "catalogue/catalogue.h"
#include "catalogue/settings.h"
#include "search/search_screen.h"
#include "view/commands.h"

namespace lex {

struct PartiesRapports {
  EcranRecherche& ecran;
  const Catalogue& catalogue;
  const Reglages& reglages;
  // The catalogue entry of the dictionary the user is in.
  const std::int16_t& dictioCourant;
};
void InscrireCommandesRapports(RegistreCommandes& registre, PartiesRapports p);

}  // namespace lex
