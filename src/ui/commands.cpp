#include "ui/commands.h"

#include "catalogue/saving.h"
#include "catalogue/startup.h"
#include "notepad/notepad.h"
#include "ui/buttons.h"
#include "ui/form.h"
#include "ui/message.h"
#include "ui/navigation.h"
#include "ui/options.h"

namespace lex {
namespace {

const TableCommandes& Table() {
  static const TableCommandes t = [] {
    TableCommandes t;
    InscrireCommandesFenetre(t);
    InscrireCommandesRecherche(t);
    return t;
  }();
  return t;
}

void mnuEnregistrer_Click(Form& f) {
  if (f.fenetre.ModeCourant == 1) return;
  SauvegardeDic(f, f.fenetre.DictioCourant);
  message(f, "enregistrer");
}

}  // namespace

void InscrireCommandesFenetre(TableCommandes& t) {
  t[MenuId::mnuQuitter] = quitter;
  t[MenuId::mnuBlocNote] = blocnote;
  t[MenuId::mnuEnregistrer] = mnuEnregistrer_Click;
  t[MenuId::mnuRetourIndexItem] = RetourIndex;
  t[MenuId::mnuParlerIndexItem] = parlerIndex;
  t[MenuId::mnuPoliceEcran] = mnuPoliceEcran_Click;
  t[MenuId::mnuAideTxt] = mnuAideTxt_Click;
  t[MenuId::mnuApropos] = mnuApropos_Click;
}

void ExecuteMenu(Form& f, MenuId id) {
  auto it = Table().find(id);
  if (it == Table().end()) message(f, "commande non disponible dans cette version");
  else it->second(f);
}

}  // namespace lex
