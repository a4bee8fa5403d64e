#include "controller/article_view.h"

#include "base/error.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/modes.h"

namespace lex {

void dictionnaire(Form& f) {
  ErrorTrap trap(" sur Dictionnaire");
  if (!SurUneListe(f.fenetre.ModeCourant())) return;
  OublieDebutTape(f);
  // An empty dictionary has no article to show.
  if (f.liste.Nombre() == 0) {
    f.ui.Beep();
    return;
  }
  const std::int32_t n = IndexAbsolu(f);
  EntrerArticle(f, n, f.liste.Lit(n));
}

}  // namespace lex
