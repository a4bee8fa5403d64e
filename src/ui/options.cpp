#include "ui/options.h"

#include "base/blanks.h"
#include "data/files.h"
#include "base/numbers.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {
namespace {

void MontreTexteAide(Form& f, const std::string& texte) {
  MontreDansTxt(f, texte);
  f.ui.FocusLine();
  f.ui.SetButtonCaption(Bouton::CmdDic, "OK");
  f.ui.SetButtonVisible(Bouton::CmdDic, true);
  f.fenetre.TexteAideAffiche = true;
  AnnonceLigneCourante(f);
}

}  // namespace

void mnuPoliceEcran_Click(Form& f) {
  ErrorTrap trap(" sur mnuPoliceEcran_Click");
  Reglages& r = f.reglages;
  f.ui.MessageBox("police " + r.PoliceNom + " Taille " + r.PoliceTaille, Boutons::OK, Icone::Information,
                  "Dictionnaires");
  if (f.ui.MessageBox("Voulez vous modifier la police de l'\xE9" "cran", Boutons::YesNo, Icone::Question,
                      "Dictionnaires") != Reponse::Yes)
    return;
  const std::int32_t taille = Val(r.PoliceTaille);
  const auto choix = f.ui.FontDialog({r.PoliceNom, taille > 0 ? taille : 10});
  if (!choix) {
    message(f, "Vous n'avez s\xE9lectionn\xE9 aucune police.");
    return;
  }
  f.ui.SetLineFont(*choix);
  r.PoliceNom = SansBlancs(choix->nom);
  r.PoliceTaille = std::to_string(choix->taille);
}

void mnuAideTxt_Click(Form& f) {
  ErrorTrap trap(" sur mnuAideTxt_Click");
  f.ui.SetLineText("");
  std::string texte;
  for (const std::string& l : LireLignes(f.reglages.DossierProgramme + "aide.txt")) texte += l + "\r\n";
  if (!texte.empty()) texte.resize(texte.size() - 2);
  MontreTexteAide(f, texte);
}

void mnuApropos_Click(Form& f) {
  MontreTexteAide(f, "LEX Version 4.00\r\nJanvier 2008\r\nLes d\xE9veloppeurs de LEX\r\n"
                     "Contact : le d\xE9p\xF4t du projet LEX");
}

}  // namespace lex
