#include "data/index_table.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/error.h"
#include "data/huge_pages.h"

namespace lex {

void IndexTable::Vider() { *this = IndexTable(); }

void IndexTable::Reserver(std::size_t entrees) {
  refs_.reserve(entrees);
  positions_.reserve(entrees + 1);
  ConseilleGrandesPages(refs_.data(), refs_.capacity() * sizeof(Ref));
  ConseilleGrandesPages(positions_.data(), positions_.capacity() * sizeof(std::int32_t));
}

char* IndexTable::Place(std::size_t n) {
  // An empty first entry still needs a block to point into.
  if (n > libre_ || blocs_.empty()) {
    tailleBloc_ = std::max(kBloc, n);
    blocs_.emplace_back(new char[tailleBloc_]);
    ConseilleGrandesPages(blocs_.back().get(), tailleBloc_);
    libre_ = tailleBloc_;
  }
  return blocs_.back().get() + (tailleBloc_ - libre_);
}

void IndexTable::Inscrire(std::size_t longTexte, std::size_t longCle, std::int32_t position) {
  refs_.push_back({static_cast<std::uint32_t>(blocs_.size() - 1), static_cast<std::uint32_t>(tailleBloc_ - libre_),
                   static_cast<std::uint32_t>(longTexte), static_cast<std::uint32_t>(longCle)});
  libre_ -= longTexte + longCle;
  positions_.push_back(position);
}

void IndexTable::Ajouter(std::string_view texte, std::string_view cle, std::int32_t position) {
  char* p = Place(texte.size() + cle.size());
  if (!texte.empty()) std::memcpy(p, texte.data(), texte.size());
  if (!cle.empty()) std::memcpy(p + texte.size(), cle.data(), cle.size());
  Inscrire(texte.size(), cle.size(), position);
}

void IndexTable::Terminer(std::int32_t tailleDictio) {
  taille_ = tailleDictio;
  // Capacity reserved from an estimate and never written costs address space, not memory:
  // giving it back would copy the whole table.
  positions_.push_back(tailleDictio);
}

IndexTable::Ancien IndexTable::Recomposer(const std::vector<Morceau>& morceaux, std::int32_t tailleDictio,
                                          std::size_t (*plier)(std::string_view texte, char* destination)) {
  std::size_t nombre = 0;
  for (const Morceau& m : morceaux) nombre += m.dernier >= m.premier ? static_cast<std::size_t>(m.dernier - m.premier + 1) : 1;
  std::vector<Ref> refs;
  std::vector<std::int32_t> positions;
  refs.reserve(nombre);
  positions.reserve(nombre + 1);
  for (const Morceau& m : morceaux) {
    if (m.dernier >= m.premier) {
      Verifier(m.premier, false);
      Verifier(m.dernier, false);
      refs.insert(refs.end(), refs_.begin() + (m.premier - 1), refs_.begin() + m.dernier);
      for (std::int32_t i = m.premier; i <= m.dernier; ++i)
        positions.push_back(static_cast<std::int32_t>(positions_[static_cast<std::size_t>(i - 1)] + m.decalage));
      continue;
    }
    char* p = Place(3 * m.texte.size());
    if (!m.texte.empty()) std::memcpy(p, m.texte.data(), m.texte.size());
    const std::size_t longCle = plier(m.texte, p + m.texte.size());
    refs.push_back({static_cast<std::uint32_t>(blocs_.size() - 1), static_cast<std::uint32_t>(tailleBloc_ - libre_),
                    static_cast<std::uint32_t>(m.texte.size()), static_cast<std::uint32_t>(longCle)});
    libre_ -= m.texte.size() + longCle;
    positions.push_back(m.position);
  }
  Ancien ancien;
  ancien.refs_ = std::exchange(refs_, std::move(refs));
  ancien.positions_ = std::exchange(positions_, std::move(positions));
  ancien.taille_ = taille_;
  ancien.plein_ = true;
  Terminer(tailleDictio);
  return ancien;
}

void IndexTable::Restaurer(Ancien&& ancien) {
  if (!ancien.plein_) return;
  // The new entries' texts stay in the blocks, unreferenced, until the table is rebuilt.
  refs_ = std::move(ancien.refs_);
  positions_ = std::move(ancien.positions_);
  taille_ = ancien.taille_;
  ancien.plein_ = false;
}

void IndexTable::Verifier(std::int32_t i, bool sentinelle) const {
  if (i < 1 || i > NombreArticle() + (sentinelle ? 1 : 0)) Erreur(9);
}

std::string_view IndexTable::texte(std::int32_t i) const {
  Verifier(i, true);
  if (i == NombreArticle() + 1) return {};
  const Ref& r = refs_[i - 1];
  return {blocs_[r.bloc].get() + r.debut, r.longTexte};
}

std::string_view IndexTable::cle(std::int32_t i) const {
  Verifier(i, false);
  const Ref& r = refs_[i - 1];
  return {blocs_[r.bloc].get() + r.debut + r.longTexte, r.longCle};
}

std::int32_t IndexTable::position(std::int32_t i) const {
  Verifier(i, true);
  return static_cast<std::size_t>(i) <= positions_.size() ? positions_[i - 1] : taille_;
}

void IndexTable::ChangerTexte(std::int32_t i, std::string_view debut, std::string_view suite) {
  Verifier(i, false);
  // `debut` may lie in the blocks (the old text): blocks never move, and the new text is
  // written past everything already placed.
  const std::string_view c = cle(i);
  const std::size_t longTexte = debut.size() + suite.size();
  char* p = Place(longTexte + c.size());
  if (!debut.empty()) std::memcpy(p, debut.data(), debut.size());
  if (!suite.empty()) std::memcpy(p + debut.size(), suite.data(), suite.size());
  if (!c.empty()) std::memcpy(p + longTexte, c.data(), c.size());
  Ref& r = refs_[static_cast<std::size_t>(i - 1)];
  r = {static_cast<std::uint32_t>(blocs_.size() - 1), static_cast<std::uint32_t>(tailleBloc_ - libre_),
       static_cast<std::uint32_t>(longTexte), r.longCle};
  libre_ -= longTexte + c.size();
}

}  // namespace lex
