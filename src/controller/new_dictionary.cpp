#include "controller/new_dictionary.h"

#include "base/error.h"
#include "catalogue/opening.h"
#include "controller/form.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/opening.h"
#include "data/files.h"
#include "data/safe_write.h"
#include "data/typed_article.h"

namespace lex {

void CreationDictio(Form& f) {
  ErrorTrap trap(" sur CreationDictio");
  const Mode m = f.fenetre.ModeCourant();
  const int d = m == Mode::ListeDictionnaires || m == Mode::ListeHistoire ? f.EntreeSousCurseur() : 0;
  // Rows that are no dictionary (the group, the notepad) and dictionaries that exist have
  // nothing to create.
  if (d == 0 || d == 9 || d == f.catalogue.NombreDictio() ||
      FichierExistant(FichierALire(f.catalogue, f.reglages.DossierDictio, d))) {
    message(f, "choisissez d'abord le dictionnaire");
    return;
  }
  if (m == Mode::ListeHistoire) f.catalogue[9].PositionDictio = d - 9;
  EntrerCreationDictio(f, d);
}

void SauveCreationDictio(Form& f) {
  ErrorTrap trap(" sur SauveCreationDictio");
  const std::vector<std::string> lignes = LignesSaisies(f.ui.GetLineText());
  if (lignes.empty()) {
    message(f, "index vide");
    return;
  }
  const int d = f.fenetre.DictioCourant;
  const std::string fichier = NomDictionnaire(f.catalogue, f.reglages.DossierDictio, d);
  // Written elsewhere meanwhile: the user's file is not replaced.
  if (FichierExistant(fichier)) {
    f.dlg.MessageBox("fichier d\xE9ja existant", Boutons::OK, Icone::Exclamation, kTitreBoites);
    return;
  }
  EcrireLignesSur(fichier, lignes, Donnees::Utilisateur);
  f.catalogue[d].DicModifie = false;
  OuvreEtMontre(f, fichier, 1);
}

}  // namespace lex
