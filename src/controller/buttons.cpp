#include "controller/buttons.h"

#include <algorithm>

#include "base/error.h"
#include "controller/article_view.h"
#include "controller/comparison.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/new_dictionary.h"
#include "controller/opening.h"
#include "controller/paging.h"
#include "controller/place.h"
#include "controller/startup.h"
#include "editing/commands.h"

namespace lex {
namespace {

// Back to the page, with the caret on the entry that was being read.
void RetourDeLArticle(Form& f) {
  EtatFenetre& w = f.fenetre;
  const std::int32_t lu = w.IndexCourant;
  std::int32_t premier = w.PremierIndexAffiche;
  if (lu < premier || lu >= premier + kLignesPage) premier = lu;
  EntrerPage(f, premier, Annonce::ApresLeTitre, lu - premier + 1);
}

}  // namespace

void RetourIndex(Form& f) {
  ErrorTrap trap(" sur RetourIndex");
  EtatFenetre& w = f.fenetre;
  message(f, " ");
  switch (w.ModeCourant()) {
    case Mode::Aide:
      // F1 gave the guide over what the user was doing; the menu's guide gives way to the list.
      if (!RetourDuGuide(f)) EntrerListeDictio(f);
      break;
    case Mode::ListeHistoire:
      // Escape in the history list goes back to the main list, on the row "Histoire".
      w.ListeHistoire = false;
      w.DictioCourant = 9;
      EntrerListeDictio(f);
      break;
    case Mode::ListeDictionnaires:
      if (RangSousCurseur(f) >= 1) w.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(f.catalogue, RangSousCurseur(f)));
      EntrerListeDictio(f);
      break;
    case Mode::ChoixComparaison: AbandonneChoixComparaison(f); break;
    case Mode::ListeResultats: {
      // A result list gives way to the dictionary's own index, on the entry it was on.
      EntrerIndex(f, std::max(f.EntreeDictio(), 1), Annonce::ApresLeTitre);
      break;
    }
    case Mode::Index:
      GardePosition(f);
      EntrerListeDictio(f);
      break;
    case Mode::Article:
    case Mode::CreationIndex:
    case Mode::ModificationIndex: RetourDeLArticle(f); break;
    case Mode::CreationDictio:
      if (w.AvantSaisie == Mode::ListeHistoire) EntrerListeHistoire(f);
      else EntrerListeDictio(f);
      break;
    case Mode::BlocNote:
      // Left as it was on disk: back where the notepad was opened from.
      if (DansUnDictionnaire(w.AvantSaisie)) EntrerIndex(f, w.EntreeAvantSaisie, Annonce::ApresLeTitre);
      else EntrerListeDictio(f);
      break;
  }
}

void CmdDic_Click(Form& f) {
  const Mode m = f.fenetre.ModeCourant();
  if (m == Mode::ChoixComparaison) ValideChoixComparaison(f);
  else if (m == Mode::CreationDictio) SauveCreationDictio(f);
  else if (SaisieArticle(m)) {
    PartiesEdition p = f.PartiesEdition();
    SauveCreationIndex(p);
  }
  else if (m == Mode::BlocNote) {
    PartiesBlocNote p = f.PartiesNote();
    SauveBlocNote(p);
  }
  else if (SurLeCatalogue(m)) AppelDictionnaire(f);
  else if (SurUneListe(m)) dictionnaire(f);
  else RetourIndex(f);
  FocusChamp(f);
}

void CmdDivers_Click(Form& f) {
  // "Liste": back from the page to the list, or from the article to its page; "Annuler": no
  // comparison after all.
  const Mode m = f.fenetre.ModeCourant();
  if (DansUnDictionnaire(m) || m == Mode::ChoixComparaison || m == Mode::CreationDictio || SaisieArticle(m))
    RetourIndex(f);
  FocusChamp(f);
}

void CmdQuitter_Click(Form& f) {
  // "Annuler" while the notepad is edited.
  if (f.fenetre.ModeCourant() == Mode::BlocNote) {
    RetourIndex(f);
    FocusChamp(f);
  } else {
    quitter(f);
  }
}

}  // namespace lex
