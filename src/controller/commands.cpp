#include "controller/commands.h"

#include "catalogue/management_commands.h"
#include "catalogue/saving.h"
#include "controller/buttons.h"
#include "controller/comparison.h"
#include "controller/form.h"
#include "controller/message.h"
#include "controller/navigation.h"
#include "controller/new_dictionary.h"
#include "controller/options.h"
#include "controller/place.h"
#include "controller/startup.h"
#include "editing/commands.h"
#include "notepad/notepad.h"
#include "reports/commands.h"
#include "search/commands.h"
#include "selection/commands.h"

namespace lex {

void InscrireCommandes(Form& f) {
  RegistreCommandes& r = f.commandes;
  r.Inscrire(MenuId::mnuQuitter, [&f] { quitter(f); });
  r.Inscrire(MenuId::mnuRetourIndexItem, [&f] { RetourIndex(f); });
  r.Inscrire(MenuId::mnuParlerIndexItem, [&f] { parlerIndex(f); });
  r.Inscrire(MenuId::mnuPoliceEcran, [&f] { mnuPoliceEcran_Click(f); });
  r.Inscrire(MenuId::mnuAideTxt, [&f] { mnuAideTxt_Click(f); });
  r.Inscrire(MenuId::mnuApropos, [&f] { mnuApropos_Click(f); });
  // Ctrl+S keeps what the user is working on: the notepad, or the dictionary.
  r.Inscrire(MenuId::mnuEnregistrer, [&f] {
    if (BlocNoteEnCours(f)) {
      PartiesBlocNote p = f.PartiesNote();
      EnregistreBlocNote(p);
    } else {
      EnregistreDictionnaire({f, f.catalogue, f.reglages, f.dico, f.selections, f.fenetre.DictioCourant});
    }
  });
  InscrireCommandesGestion(r, {f, f.dlg, f.catalogue, f.selections, f.reglages});
  InscrireCommandesSelection(r, {f, f.dlg, f.selections, f.dico, f.fenetre.DictioCourant, f.reglages.DossierDictio});
  InscrireCommandesRecherche(r, {f, f.dlg, f.recherche});
  InscrireCommandesBlocNote(r, f.PartiesNote());
  InscrireCommandesEdition(r, f.PartiesEdition());
  // On a list, Ctrl+N types the first article of a dictionary not made yet; in a dictionary,
  // a new article of it.
  r.Inscrire(MenuId::mnuCreationIndex, [&f] {
    if (SurLeCatalogue(f.fenetre.ModeCourant())) {
      CreationDictio(f);
    } else {
      PartiesEdition p = f.PartiesEdition();
      mnuCreationIndex(p);
    }
  });
  InscrireCommandesRapports(r, PartiesRapportsDe(f));
}

namespace {

// While an article is typed, a command that would take the field away would lose it: only
// those that leave the text where it is run, and "OK" or "Annuler" end the typing.
bool PermiseEnSaisie(MenuId id) {
  switch (id) {
    case MenuId::mnuQuitter:
    case MenuId::mnuRetourIndexItem:
    case MenuId::mnuPoliceEcran:
    case MenuId::mnuXY:
    case MenuId::mnuCodeIso: return true;
    default: return false;
  }
}

}  // namespace

void TerminezDAbordLaSaisie(Form& f) {
  f.ui.Beep();
  message(f, "terminez d'abord la saisie : OK ou Annuler");
}

void ExecuteMenu(Form& f, MenuId id) {
  const Mode m = f.fenetre.ModeCourant();
  const Commande* c = f.commandes.Trouve(id);
  if ((SaisieArticle(m) || m == Mode::CreationDictio) && !PermiseEnSaisie(id)) TerminezDAbordLaSaisie(f);
  // The notepad under the guide is still being edited: reading it again from its file would
  // lose what was typed.
  else if (id == MenuId::mnuBlocNote && m == Mode::Aide && BlocNoteEnCours(f)) RetourDuGuide(f);
  else if (!c) message(f, "commande non disponible dans cette version");
  else if (!c->actif || c->actif()) c->executer();
}

bool MenuActif(const Form& f, MenuId id) {
  auto it = f.menusInactifs.find(id);
  return it == f.menusInactifs.end() || !it->second;
}

void ActiveMenu(Form& f, MenuId id, bool actif) {
  f.menusInactifs[id] = !actif;
  f.ui.SetMenuEnabled(id, actif);
}

}  // namespace lex
