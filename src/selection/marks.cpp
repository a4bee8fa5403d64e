#include "selection/marks.h"

#include <algorithm>

#include "base/error.h"

namespace lex {
namespace {
// A marked line stays short enough to be shown and spoken whole.
constexpr std::size_t kLongueurMarquee = 63;
constexpr std::string_view kAjoute = " ajout\xE9";
}  // namespace

std::string AvecMarqueSelection(std::string_view texte) {
  if (texte.size() <= kLongueurMarquee) return std::string(texte) + " s\xE9lectionn\xE9";
  auto p = texte.find(kAjoute);
  if (p != std::string_view::npos) return std::string(texte.substr(0, p)) + " SelAjo";
  return std::string(texte.substr(0, kLongueurMarquee)) + " s\xE9lect";
}

std::string AvecMarqueAjout(std::string_view texte) {
  return std::string(texte.substr(0, std::min(texte.size(), kLongueurMarquee))) + std::string(kAjoute);
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
    if (n >= 1 && n <= t.NombreArticle()) t.ChangerTexte(n, AvecMarqueAjout(t.texte(n)));
}

void TestSelection(IndexTable& t, const Selections& s, int dictio) {
  ErrorTrap trap(" sur TestSelection");
  for (std::int32_t n : Numeros(s.TableSelection, dictio))
    if (n >= 1 && n <= t.NombreArticle()) t.ChangerTexte(n, AvecMarqueSelection(t.texte(n)));
}

}  // namespace lex
