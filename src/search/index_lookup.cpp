#include "search/index_lookup.h"

#include <algorithm>

#include "data/folding.h"

namespace lex {
namespace {

// Keys of a sorted dictionary are only roughly in key order (notes in brackets and commas
// are sorted apart), so a scan stops after this many keys in a row beyond the wanted one.
constexpr int kMargeTri = 64;

bool EstAZ(char c) { return c >= 'A' && c <= 'Z'; }

// A key's head as a sorted dictionary is ordered by it: the part before the first "(", "["
// or ",", less the "+", ")" and "]" that the order's folding drops and the key's keeps.
std::string TeteTri(std::string_view cle) {
  std::string t;
  for (char c : cle) {
    if (c == '(' || c == '[' || c == ',') break;
    if (c != '+' && c != ')' && c != ']') t += c;
  }
  return t;
}

// The first entry whose head is not below `tete` (NombreArticle + 1 when none): every key
// that begins with a beginning whose head is `tete` stands there or after.
std::int32_t PremiereTete(const IndexTable& t, const std::string& tete) {
  std::int32_t bas = 1, haut = t.NombreArticle() + 1;
  while (bas < haut) {
    const std::int32_t milieu = bas + (haut - bas) / 2;
    if (TeteTri(t.cle(milieu)) < tete) bas = milieu + 1;
    else haut = milieu;
  }
  return bas;
}

// Walks the keys of the shown list from the best starting place.
class Parcours {
 public:
  Parcours(const ListeAffichee& l, std::string_view plie) : l_(l), resultats_(l.EstResultats()) {
    const DictionnaireOuvert& d = l.Dictionnaire();
    trie_ = !resultats_ && d.OrdreAlpha;
    if (trie_ && !plie.empty()) debut_ = std::max(1, PremiereTete(d.TableIndex, TeteTri(plie)) - kMargeTri);
  }
  std::int32_t debut() const { return debut_; }
  bool trie() const { return trie_; }
  std::string_view Cle(std::int32_t i) {
    if (!resultats_) return l_.Dictionnaire().TableIndex.cle(i);
    tampon_ = SansaccentEpure(l_.Texte(i));
    return tampon_;
  }

 private:
  const ListeAffichee& l_;
  bool resultats_;
  bool trie_ = false;
  std::int32_t debut_ = 1;
  std::string tampon_;
};

}  // namespace

Trouve MeilleureEntree(const ListeAffichee& l, std::string_view plie) {
  Parcours p(l, plie);
  const std::int32_t n = l.Nombre();
  if (p.trie()) {
    // The keys that share the most with `plie` stand together in a sorted dictionary, from
    // the first that begins with that much of it; an equal key comes first among them.
    for (std::size_t k = plie.size(); k >= 1; --k) {
      const std::int32_t i = PremierCommencantPar(l, plie.substr(0, k));
      if (i == 0) continue;
      if (k == plie.size())
        for (std::int32_t j = i; j <= std::min(n, i + kMargeTri); ++j)
          if (p.Cle(j) == plie) return {j, true};
      return {i, false};
    }
    return {1, false};
  }
  std::size_t meilleur = 0;
  std::int32_t choisi = 1;
  int audela = 0;
  for (std::int32_t i = p.debut(); i <= n; ++i) {
    const std::string_view cle = p.Cle(i);
    if (cle == plie) return {i, true};
    const std::size_t c = PrefixeCommun(cle, plie);
    if (c > meilleur) {
      meilleur = c;
      choisi = i;
    }
    if (p.trie()) {
      audela = cle.substr(0, plie.size()) > plie ? audela + 1 : 0;
      if (audela > kMargeTri) break;
    }
  }
  return {meilleur > 0 ? choisi : 1, false};
}

std::int32_t PremierCommencantPar(const ListeAffichee& l, std::string_view prefixe) {
  Parcours p(l, prefixe);
  const std::int32_t n = l.Nombre();
  int audela = 0;
  for (std::int32_t i = p.debut(); i <= n; ++i) {
    const std::string_view debut = p.Cle(i).substr(0, prefixe.size());
    if (debut == prefixe) return i;
    if (p.trie()) {
      audela = debut > prefixe ? audela + 1 : 0;
      if (audela > kMargeTri) break;
    }
  }
  return 0;
}

std::string MotSousCurseur(const std::string& texte, std::size_t position) {
  auto lettre = [&](std::size_t i) {
    if (i >= texte.size()) return false;
    const std::string p = Sansaccent(std::string_view(&texte[i], 1));
    return !p.empty() && std::all_of(p.begin(), p.end(), EstAZ);
  };
  if (!lettre(position) && position > 0 && lettre(position - 1)) --position;
  if (!lettre(position)) return {};
  std::size_t debut = position, fin = position;
  while (debut > 0 && lettre(debut - 1)) --debut;
  while (lettre(fin)) ++fin;
  return texte.substr(debut, fin - debut);
}

}  // namespace lex
