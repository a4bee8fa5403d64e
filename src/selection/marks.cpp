#include "selection/marks.h"

#include <algorithm>

#include "base/error.h"

namespace lex {
namespace {
// A marked line stays short enough to be shown and spoken whole.
constexpr std::size_t kLongueurMarquee = 63;
constexpr std::string_view kAjoute = " ajout\xE9";
constexpr std::string_view kSelectionne = " s\xE9lectionn\xE9";
constexpr std::string_view kSelect = " s\xE9lect";
constexpr std::string_view kSelAjo = " SelAjo";

bool FinitPar(std::string_view texte, std::string_view fin) {
  return texte.size() >= fin.size() && texte.substr(texte.size() - fin.size()) == fin;
}
}  // namespace

Marque MarqueSelection(std::string_view texte) {
  if (texte.size() <= kLongueurMarquee) return {texte.size(), kSelectionne};
  // A long line has room for one word only: selected and added say so together.
  if (FinitPar(texte, kAjoute)) return {texte.size() - kAjoute.size(), kSelAjo};
  return {kLongueurMarquee, kSelect};
}

Marque MarqueAjout(std::string_view texte) { return {std::min(texte.size(), kLongueurMarquee), kAjoute}; }

Marque SansMarqueSelection(std::string_view texte) {
  // Only the last word is a mark: an entry may hold "sélect" of its own ("sélection (n.f.)").
  if (FinitPar(texte, kSelAjo)) return {texte.size() - kSelAjo.size(), kAjoute};
  if (FinitPar(texte, kSelectionne)) return {texte.size() - kSelectionne.size(), {}};
  if (FinitPar(texte, kSelect)) return {texte.size() - kSelect.size(), {}};
  return {texte.size(), {}};
}

void Applique(IndexTable& t, std::int32_t n, Marque m) {
  const std::string_view texte = t.texte(n);
  t.ChangerTexte(n, texte.substr(0, std::min(m.garde, texte.size())), m.mot);
}

namespace {
const std::vector<std::int32_t>& Numeros(const std::map<int, std::vector<std::int32_t>>& table, int dictio) {
  static const std::vector<std::int32_t> aucun;
  auto it = table.find(dictio);
  return it == table.end() ? aucun : it->second;
}
}  // namespace

void TestAjout(IndexTable& t, const Selections& s, int dictio) {
  ErrorTrap trap(" sur TestAjout");
  for (std::int32_t n : Numeros(s.TableAjout, dictio))
    if (n >= 1 && n <= t.NombreArticle()) Applique(t, n, MarqueAjout(t.texte(n)));
}

void TestSelection(IndexTable& t, const Selections& s, int dictio) {
  ErrorTrap trap(" sur TestSelection");
  for (std::int32_t n : Numeros(s.TableSelection, dictio))
    if (n >= 1 && n <= t.NombreArticle()) Applique(t, n, MarqueSelection(t.texte(n)));
}

void MarqueEntrees(IndexTable& t, const Selections& s, int dictio, const std::vector<std::int32_t>& numeros) {
  const auto marque = [&](const std::vector<std::int32_t>& liste, std::int32_t n) {
    return std::find(liste.begin(), liste.end(), n) != liste.end();
  };
  const std::vector<std::int32_t>& ajouts = Numeros(s.TableAjout, dictio);
  const std::vector<std::int32_t>& selection = Numeros(s.TableSelection, dictio);
  for (std::int32_t n : numeros) {
    if (n < 1 || n > t.NombreArticle()) continue;
    if (marque(ajouts, n)) Applique(t, n, MarqueAjout(t.texte(n)));
    if (marque(selection, n)) Applique(t, n, MarqueSelection(t.texte(n)));
  }
}

}  // namespace lex
