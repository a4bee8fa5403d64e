#include "ui/article_view.h"

#include "base/blanks.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {

void MontreArticle(Form& f, std::int32_t numero, const std::string& article, std::size_t curseur) {
  EtatFenetre& w = f.fenetre;
  w.IndexCourant = numero;
  w.TexteIndexCourant = SansBlancs(TexteIndex(f, numero));
  if (article.size() <= kLongueurMaxTxt) {
    MontreDansTxt(f, article);
    f.ui.FocusLine();
  } else {
    f.ui.SetPaneText(article);
    f.ui.SetPaneVisible(true);
    f.ui.FocusPane();
  }
  w.ModeCourant = 3;
  f.ui.SetButtonCaption(Bouton::CmdDic, "Index");
  f.ui.SetButtonVisible(Bouton::CmdDivers, false);
  if (curseur == std::string::npos) SurNumero(f, 2);
  else PoseCurseur(f, curseur);
  AfficheStatus(f);
}

void dictionnaire(Form& f) {
  ErrorTrap trap(" sur Dictionnaire");
  EtatFenetre& w = f.fenetre;
  if (w.ModeCourant != 2) return;
  w.DebutIndexCherche.clear();
  w.DebutIndexTape.clear();
  // An empty dictionary has no article to show.
  if (NombreArticle(f) == 0) {
    f.ui.Beep();
    return;
  }
  const std::int32_t n = IndexAbsolu(f);
  const std::string article = LitDictio(f, n);
  MontreArticle(f, n, article);
}

}  // namespace lex
