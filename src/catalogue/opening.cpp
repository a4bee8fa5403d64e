#include "catalogue/opening.h"

#include "catalogue/lists.h"
#include "data/files.h"
#include "notepad/notepad.h"
#include "selection/marks.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/line_helpers.h"
#include "ui/message.h"
#include "ui/paging.h"

namespace lex {

void InitIndex(Form& f) {
  ConstruireIndex(f.dico.fichiers, f.dico.OrdreAlpha, f.dico.TableIndex, f.dico.Lettres, [&f] { f.ui.Beep(); });
  TestAjout(f);
  TestSelection(f);
}

void AppelDictionnaire(Form& f) {
  ErrorTrap trap(" sur AppelDictionnaire");
  EtatFenetre& w = f.fenetre;
  Catalogue& c = f.catalogue;
  if (w.ModeCourant != 1) return;
  const int r = RangSousCurseur(f);
  if (r < 1) return;
  if (w.ListeHistoire) {
    if (r > c.NombreHistoire) return;
    w.DictioCourant = static_cast<std::int16_t>(r + 9);
    c[9].PositionDictio = r;
  } else {
    w.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(c, r));
    if (w.DictioCourant > c.NombreDictio()) return;
    if (w.DictioCourant == c.NombreDictio()) {
      blocnote(f);
      return;
    }
    if (w.DictioCourant == 9) {
      AfficheListeHistoire(f);
      return;
    }
  }
  const int d = w.DictioCourant;
  std::string nomfic = NomDictionnaire(c, f.reglages.DossierDictio, d);
  if (c[d].DicModifie) nomfic += ".bak";
  if (!FichierExistant(nomfic)) {
    f.ui.MessageBox("dictionnaire " + nomfic + " absent, Ctrl-n pour cr\xE9" "er le premier index ", Boutons::OK,
                    Icone::Exclamation, "Dictionnaires");
    return;
  }
  DictionnaireOuvert& dico = f.dico;
  dico.fichiers = {nomfic, NomIndex(c, f.reglages.DossierDictio, d), NomLettre(c, f.reglages.DossierDictio, d)};
  dico.OrdreAlpha = c[d].OrdreAlpha;
  f.recherche.ListeEnCours = false;
  f.recherche.ListeTrouvee.clear();

  std::string installation = "Installation de l'index  pour " + c[d].NomDictio;
  if (FichierExistant(dico.fichiers.index) && FichierExistant(dico.fichiers.lettre)) {
    switch (LireIndex(dico.fichiers, LongueurFichier(nomfic), dico.TableIndex, dico.Lettres)) {
      case EtatIndex::Charge:
        TestAjout(f);
        TestSelection(f);
        break;
      case EtatIndex::Version:
        InitIndex(f);
        break;
      case EtatIndex::Perime:
        message(f, installation);
        InitIndex(f);
        break;
    }
  } else {
    message(f, installation);
    InitIndex(f);
  }

  w.ModeCourant = 2;
  f.ui.SetButtonCaption(Bouton::CmdDic, "D\xE9" "finition");
  f.ui.SetButtonCaption(Bouton::CmdDivers, "Liste");
  f.ui.SetButtonVisible(Bouton::CmdDivers, true);
  w.PremierIndexAffiche = c[d].PositionDictio;
  w.DebutIndexCherche.clear();
  w.DebutIndexTape.clear();
  w.PileSuite.clear();
  InitTableIndex(f);
  AnnonceLigneCourante(f);
  AfficheStatus(f);
}

}  // namespace lex
