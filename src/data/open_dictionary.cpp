#include "data/open_dictionary.h"

#include "base/error.h"

namespace lex {

void ListeAffichee::MontreResultats(std::vector<EntreeTrouvee> entrees, std::string titre) {
  resultats_ = true;
  entrees_ = std::move(entrees);
  titre_ = std::move(titre);
}

void ListeAffichee::MontreIndex() {
  resultats_ = false;
  entrees_.clear();
  titre_.clear();
}

std::int32_t ListeAffichee::Nombre() const {
  return resultats_ ? static_cast<std::int32_t>(entrees_.size()) : dico_.TableIndex.NombreArticle();
}

const EntreeTrouvee& ListeAffichee::Trouvee(std::int32_t i) const {
  if (i < 1 || i > Nombre()) Erreur(9);
  return entrees_[static_cast<std::size_t>(i - 1)];
}

std::int32_t ListeAffichee::NumeroDictio(std::int32_t i) const { return resultats_ ? Trouvee(i).numero : i; }

std::string_view ListeAffichee::Texte(std::int32_t i) const { return dico_.TableIndex.texte(NumeroDictio(i)); }

Etendue ListeAffichee::EtendueArticle(std::int32_t i) const {
  const std::int32_t n = Nombre();
  if (i < 1 || i > n) Erreur(9);
  const IndexTable& t = dico_.TableIndex;
  if (resultats_) {
    const EntreeTrouvee& e = Trouvee(i);
    return {e.debut, e.fin, e.numero >= t.NombreArticle()};
  }
  // The first article starts at the top of the file, so that lines before it belong to it.
  return {i == 1 ? 0 : t.position(i), t.position(i + 1), i >= n};
}

std::string ListeAffichee::Lit(std::int32_t i) const {
  ErrorTrap trap(" sur LitDictio");
  return LireArticle(dico_.fichiers.dictio, EtendueArticle(i));
}

}  // namespace lex
