#include "controller/options.h"

#include "base/blanks.h"
#include "base/error.h"
#include "base/numbers.h"
#include "controller/form.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/notepad_screen.h"
#include "controller/place.h"
#include "data/files.h"

namespace lex {

Police PoliceReglee(const Reglages& r) {
  const std::int32_t taille = Val(r.PoliceTaille);
  return {r.PoliceNom, taille > 0 && taille <= 200 ? taille : 10};
}

void mnuPoliceEcran_Click(Form& f) {
  ErrorTrap trap(" sur mnuPoliceEcran_Click");
  Reglages& r = f.reglages;
  f.dlg.MessageBox("police " + r.PoliceNom + " Taille " + r.PoliceTaille, Boutons::OK, Icone::Information,
                   kTitreBoites);
  if (f.dlg.MessageBox("Voulez vous modifier la police de l'\xE9" "cran", Boutons::YesNo, Icone::Question,
                       kTitreBoites) != Reponse::Yes)
    return;
  const auto choix = f.dlg.FontDialog(PoliceReglee(r));
  if (!choix) {
    message(f, "Vous n'avez s\xE9lectionn\xE9 aucune police.");
    return;
  }
  f.ui.SetFont(*choix);
  r.PoliceNom = SansBlancs(choix->nom);
  r.PoliceTaille = std::to_string(choix->taille);
}

std::string TexteGuide(const Form& f) {
  std::string texte;
  for (const std::string& l : LireLignes(f.reglages.DossierProgramme + "aide.txt")) texte += l + "\r\n";
  if (!texte.empty()) texte.resize(texte.size() - 2);
  return texte;
}

namespace {

// The guide or the about text from the menu gives way to the list of dictionaries, whatever it
// covers; the dictionary left reopens where the user was.
PlaceAvantGuide PlaceDuMenu(Form& f) {
  PlaceAvantGuide avant;
  avant.mode = f.fenetre.ModeCourant();
  avant.entree = EntreeDuDictionnaire(f);
  GardePosition(f);
  return avant;
}

}  // namespace

void mnuAideTxt_Click(Form& f) {
  ErrorTrap trap(" sur mnuAideTxt_Click");
  if (!LaisseBlocNote(f)) return;
  const PlaceAvantGuide avant = PlaceDuMenu(f);
  f.ui.SetLineText("");
  EntrerAide(f, TexteGuide(f), true, avant);
}

void mnuApropos_Click(Form& f) {
  if (!LaisseBlocNote(f)) return;
  EntrerAide(f,
             "LEX Version 4.00\r\nJanvier 2008\r\nLes d\xE9veloppeurs de LEX\r\n"
             "Contact : le d\xE9p\xF4t du projet LEX",
             false, PlaceDuMenu(f));
}

}  // namespace lex
