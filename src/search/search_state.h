// Search settings and the result list that searches and reports show in place of the index.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace lex {

// One entry of a result list: the dictionary's own entry number (its text comes from the
// dictionary's table), where its article starts and where the next one starts.
struct EntreeTrouvee {
  std::int32_t numero = 0;
  std::int32_t debut = 0;
  std::int32_t fin = 0;
};

struct EtatRecherche {
  bool RespectCasse = false;
  bool RechercheDansIndex = false;
  std::string ChaineRecherche;
  bool ListeEnCours = false;
  std::vector<EntreeTrouvee> ListeTrouvee;
  // The heading of the list in the title ("index contenant ...", "comparaison ...").
  std::string TitreListe;
};

}  // namespace lex
