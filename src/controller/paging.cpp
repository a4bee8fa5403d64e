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

std::int32_t NombreLignes(const Form& f) {
  if (f.fenetre.ModeCourant() != Mode::BlocNote) return f.liste.Nombre();
  return static_cast<std::int32_t>(std::min<std::size_t>(f.blocnote.lignes.size(), INT32_MAX));
}

void InitTableIndex(Form& f) {
  std::int32_t& premier = f.fenetre.PremierIndexAffiche;
  premier = std::clamp(premier, 1, std::max(1, NombreLignes(f)));
  if (f.fenetre.ModeCourant() != Mode::BlocNote) {
    MontreDansTxt(f, TextePage(f.liste, premier));
    return;
  }
  const std::vector<std::string>& lignes = f.blocnote.lignes;
  const std::size_t debut = std::min(static_cast<std::size_t>(premier - 1), lignes.size());
  const std::size_t fin = std::min(debut + kLignesPage, lignes.size());
  std::string page;
  for (std::size_t i = debut; i < fin; ++i) page.append(i > debut ? "\r\n" : "").append(lignes[i]);
  f.fenetre.LignesPageBlocNote = fin - debut;
  MontreDansTxt(f, page);
}

}  // namespace lex
