#include "selection/marks.h"

#include "ui/error_trap.h"
#include "ui/form.h"

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

void TestAjout(Form& f) {
  ErrorTrap trap(" sur TestAjout");
  IndexTable& t = f.dico.TableIndex;
  for (std::int32_t n : f.selections.TableAjout[f.fenetre.DictioCourant])
    if (n >= 1 && n <= t.NombreArticle()) t.ChangerTexte(n, AvecMarqueAjout(t.texte(n)));
}

void TestSelection(Form& f) {
  ErrorTrap trap(" sur TestSelection");
  IndexTable& t = f.dico.TableIndex;
  for (std::int32_t n : f.selections.TableSelection[f.fenetre.DictioCourant])
    if (n >= 1 && n <= t.NombreArticle()) t.ChangerTexte(n, AvecMarqueSelection(t.texte(n)));
}

}  // namespace lex
