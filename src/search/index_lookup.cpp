#include "search/index_lookup.h"

#include <algorithm>

#include "data/folding.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {
namespace {

// Keys of a sorted dictionary are only roughly in key order (notes in brackets and commas
// are sorted apart), so a scan stops after this many keys in a row beyond the wanted one.
constexpr int kMargeTri = 64;

bool EstAZ(char c) { return c >= 'A' && c <= 'Z'; }

std::size_t Commun(std::string_view a, std::string_view b) {
  const std::size_t n = std::min(a.size(), b.size());
  std::size_t i = 0;
  while (i < n && a[i] == b[i]) ++i;
  return i;
}

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
  Parcours(const Form& f, std::string_view plie) : f_(f), liste_(f.recherche.ListeEnCours) {
    trie_ = !liste_ && f.dico.OrdreAlpha;
    if (trie_ && !plie.empty()) debut_ = std::max(1, PremiereTete(f.dico.TableIndex, TeteTri(plie)) - kMargeTri);
  }
  std::int32_t debut() const { return debut_; }
  bool trie() const { return trie_; }
  std::string_view Cle(std::int32_t i) {
    if (!liste_) return f_.dico.TableIndex.cle(i);
    tampon_ = SansaccentEpure(TexteIndex(f_, i));
    return tampon_;
  }

 private:
  const Form& f_;
  bool liste_;
  bool trie_ = false;
  std::int32_t debut_ = 1;
  std::string tampon_;
};

}  // namespace

Trouve MeilleureEntree(const Form& f, std::string_view plie) {
  Parcours p(f, plie);
  const std::int32_t n = NombreArticle(f);
  if (p.trie()) {
    // The keys that share the most with `plie` stand together in a sorted dictionary, from
    // the first that begins with that much of it; an equal key comes first among them.
    for (std::size_t k = plie.size(); k >= 1; --k) {
      const std::int32_t i = PremierCommencantPar(f, plie.substr(0, k));
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
    const std::size_t c = Commun(cle, plie);
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

std::int32_t PremierCommencantPar(const Form& f, std::string_view prefixe) {
  Parcours p(f, prefixe);
  const std::int32_t n = NombreArticle(f);
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

void PositionCatalogue(Form& f) {
  EtatFenetre& w = f.fenetre;
  const Catalogue& c = f.catalogue;
  // The rows shown: entry of each row of the list on screen.
  std::vector<int> entrees;
  if (w.ListeHistoire) {
    for (int i = 10; i <= 9 + c.NombreHistoire; ++i) entrees.push_back(i);
  } else {
    for (int i = 1; i <= 9; ++i) entrees.push_back(i);
    for (int i = 10 + c.NombreHistoire; i <= c.NombreDictio(); ++i) entrees.push_back(i);
  }
  const std::string tape = w.DebutIndexTape;
  const std::string plie = Sansaccent(w.DebutIndexCherche);
  w.DebutIndexCherche.clear();
  w.DebutIndexTape.clear();
  // A call letter is compared as typed, so that É reaches "Écrivains" and E "ENCYCLOPEDIE".
  if (tape.size() == 1) {
    for (std::size_t r = 0; r < entrees.size(); ++r)
      if (c[entrees[r]].LettreAppel == tape) {
        SurNumero(f, static_cast<std::int32_t>(r) + 3);
        return;
      }
  }
  std::size_t meilleur = 0;
  std::size_t rang = 0;
  for (std::size_t r = 0; r < entrees.size() && !plie.empty(); ++r) {
    const std::size_t commun = Commun(Sansaccent(c[entrees[r]].NomDictio), plie);
    if (commun > meilleur) {
      meilleur = commun;
      rang = r;
    }
  }
  if (meilleur == 0) message(f, "introuvable");
  else SurNumero(f, static_cast<std::int32_t>(rang) + 3);
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
