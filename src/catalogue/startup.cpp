#include "catalogue/startup.h"

#include "catalogue/config.h"
#include "catalogue/lists.h"
#include "catalogue/saving.h"
#include "data/files.h"
#include "base/numbers.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/menus.h"

namespace lex {

void Chargement(Form& f, const std::string& dossierProgramme) {
  ErrorTrap trap(" sur load");
  f.ui.SetMenuEnabled(MenuId::mnuEffaceArticleDouble, true);
  f.ui.SetMenuEnabled(MenuId::mnuImporterAjout, false);
  f.ui.SetMenuEnabled(MenuId::mnuExporterAjout, false);
  f.recherche.RespectCasse = false;

  Reglages& r = f.reglages;
  r.DossierProgramme = ajoutbackslash(dossierProgramme);
  r.FichierConfig = r.DossierProgramme + "lex301.INI";
  r.FichierTravail = r.DossierProgramme + "travail.txt";
  r.DossierDictio = r.DossierProgramme;
  r.FichierBlocNote = r.DossierProgramme + "blocnote.txt";
  r.PoliceNom = "Courier";
  r.PoliceTaille = "10";
  f.fenetre.DictioCourant = 1;

  InitDictio(f.catalogue, r.DossierDictio);
  if (!FichierExistant(r.FichierConfig)) EcrireLignes(r.FichierConfig, LignesUsine(r.DossierProgramme));
  LireConfig(f);
  AjoutLettreAppelDictio(f.catalogue);

  const std::int32_t taille = Val(r.PoliceTaille);
  f.ui.SetLineFont({r.PoliceNom, taille > 0 && taille <= 200 ? taille : 10});
  f.ui.SetButtonVisible(Bouton::CmdDivers, false);
  f.ui.SetLineEditable(false);

  if (f.fenetre.DictioCourant == 9) {
    AfficheListeHistoire(f);
  } else {
    // The configuration keeps the row of the main list; the window works with entries.
    f.fenetre.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(f.catalogue, f.fenetre.DictioCourant));
    AfficheListeDictio(f);
  }
}

void quitter(Form& f) {
  Catalogue& c = f.catalogue;
  for (int i = 1; i <= c.NombreDictio() - 1; ++i) {
    if (!c[i].DicModifie) continue;
    switch (f.ui.MessageBox("Souhaitez vous sauvegarder le dictionnaire " + c[i].NomDictio, Boutons::YesNoCancel,
                            Icone::Question, "Dictionnaires")) {
      case Reponse::Yes:
        SauvegardeDic(f, i);
        break;
      case Reponse::No: {
        const std::string selection =
            f.reglages.DossierDictio + "s\xE9lection" + NomFichSeul(NomDictionnaire(c, f.reglages.DossierDictio, i));
        if (FichierExistant(selection)) SupprimerFichier(selection);
        break;
      }
      default:
        return;
    }
  }
  if (f.fenetre.ModeCourant == 2 && NombreArticle(f) > 0)
    c[f.fenetre.DictioCourant].PositionDictio = NumeroDictio(f, IndexAbsolu(f));
  EcrireLignes(f.reglages.FichierConfig, LignesConfig(f));
  f.fenetre.Termine = true;
  f.ui.Quit();
  throw ProgrammeTermine{};
}

}  // namespace lex
