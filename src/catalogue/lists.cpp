#include "catalogue/lists.h"

#include "ui/form.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {
namespace {

// What every list display shares: mode 1, no result list, no typed beginning, the buttons.
void EntreeListe(Form& f) {
  f.fenetre.ModeCourant = 1;
  f.recherche.ListeEnCours = false;
  f.recherche.ListeTrouvee.clear();
  f.fenetre.DebutIndexCherche.clear();
  f.fenetre.DebutIndexTape.clear();
  f.ui.SetButtonCaption(Bouton::CmdDic, "Index");
  f.ui.SetButtonVisible(Bouton::CmdDivers, false);
}

}  // namespace

void AfficheListeDictio(Form& f) {
  if (f.fenetre.ListeHistoire) {
    AfficheListeHistoire(f);
    return;
  }
  const Catalogue& c = f.catalogue;
  std::string texte = "        LISTE DES DICTIONNAIRES\r\n\r\n";
  for (int i = 1; i <= 9; ++i) texte += c[i].LigneListe + "\r\n";
  for (int i = 10 + c.NombreHistoire; i <= c.NombreDictio() - 1; ++i) texte += c[i].LigneListe + "\r\n";
  texte += c[c.NombreDictio()].LigneListe;
  MontreDansTxt(f, texte);
  EntreeListe(f);
  NumeroLigneDictio(f);
  AfficheStatus(f);
}

void AfficheListeHistoire(Form& f) {
  f.fenetre.ListeHistoire = true;
  const Catalogue& c = f.catalogue;
  std::string texte = "LISTE DES DICTIONNAIRES sans ordre alphab\xE9tique\r\n\r\n";
  for (int i = 10; i <= 8 + c.NombreHistoire; ++i) texte += c[i].LigneListe + "\r\n";
  if (c.NombreHistoire >= 1) texte += c[9 + c.NombreHistoire].LigneListe;
  MontreDansTxt(f, texte);
  EntreeListe(f);
  SurNumero(f, c[9].PositionDictio + 2);
  AfficheStatus(f);
}

void NumeroLigneDictio(Form& f) { SurNumero(f, LigneDeEntree(f.catalogue, f.fenetre.DictioCourant) + 2); }

int RangSousCurseur(const Form& f) {
  const int l = LigneCurseur(f);
  return l < 3 ? 0 : l - 2;
}

}  // namespace lex
