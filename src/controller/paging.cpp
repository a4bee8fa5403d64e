#include "controller/paging.h"

#include <algorithm>

#include "controller/form.h"
#include "controller/line_helpers.h"

namespace lex {

std::string TextePage(const ListeAffichee& liste, std::int32_t premier) {
  std::string page;
  const std::int32_t dernier = std::min(liste.Nombre(), premier + kLignesPage - 1);
  const std::int32_t debut = std::max(premier, 1);
  for (std::int32_t i = debut; i <= dernier; ++i) {
    if (i > debut) page += "\r\n";
    page += liste.Texte(i);
  }
  return page;
}

std::int32_t DebutDernierePage(std::int32_t nombre) { return std::max(1, nombre - (kLignesPage - 1)); }

void InitTableIndex(Form& f) {
  std::int32_t& premier = f.fenetre.PremierIndexAffiche;
  premier = std::clamp(premier, 1, std::max(1, f.liste.Nombre()));
  MontreDansTxt(f, TextePage(f.liste, premier));
}

}  // namespace lex
