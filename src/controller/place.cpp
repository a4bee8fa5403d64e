#include "controller/place.h"

#include "controller/commands.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/options.h"

namespace lex {

std::int32_t EntreeDuDictionnaire(const Form& f) {
  const EtatFenetre& w = f.fenetre;
  const Mode m = w.ModeCourant();
  if (DansUnDictionnaire(m)) return f.EntreeDictio();
  switch (m) {
    case Mode::CreationIndex:
    case Mode::ModificationIndex: return w.EntreeAvantSaisie;
    case Mode::BlocNote: return DansUnDictionnaire(w.AvantSaisie) ? w.EntreeAvantSaisie : 0;
    case Mode::Aide: return w.AvantGuide.entree;
    case Mode::ChoixComparaison: return f.avantComparaison.numero;
    default: return 0;
  }
}

void GardePosition(Form& f) {
  const std::int32_t n = EntreeDuDictionnaire(f);
  const int d = f.fenetre.DictioCourant;
  // Row 9 is the history group and the last entry the notepad: neither is a dictionary.
  if (n > 0 && d >= 1 && d != 9 && d < f.catalogue.NombreDictio()) f.catalogue[d].PositionDictio = n;
}

bool BlocNoteEnCours(const Form& f) {
  const EtatFenetre& w = f.fenetre;
  if (w.ModeCourant() == Mode::BlocNote) return true;
  return w.ModeCourant() == Mode::Aide && w.AvantGuide.gardee && w.AvantGuide.mode == Mode::BlocNote;
}

void ToucheAide(Form& f) {
  EtatFenetre& w = f.fenetre;
  const Mode m = w.ModeCourant();
  // The typed text would be lost under the guide: the typing ends first.
  if (m == Mode::CreationDictio || SaisieArticle(m)) {
    TerminezDAbordLaSaisie(f);
    return;
  }
  if (m == Mode::Aide && w.GuideAffiche) {
    message(f, "vous \xEAtes dans le guide");
    return;
  }
  // Over the about text, the guide gives way to what the about text covered.
  PlaceAvantGuide avant = w.AvantGuide;
  if (m != Mode::Aide) {
    // The notepad's page as the user changed it goes into its lines, to come back to.
    f.GardePage();
    avant = {true, m, w.PremierIndexAffiche, CurseurChamp(f), LigneCurseur(f), EntreeDuDictionnaire(f)};
    GardePosition(f);
  }
  EntrerAide(f, TexteGuide(f), true, avant);
}

bool RetourDuGuide(Form& f) {
  EtatFenetre& w = f.fenetre;
  const PlaceAvantGuide avant = w.AvantGuide;
  if (w.ModeCourant() != Mode::Aide || !avant.gardee) return false;
  switch (avant.mode) {
    // A list of the catalogue is given back on the same row, which entering it announces.
    case Mode::ListeDictionnaires:
    case Mode::ListeHistoire:
    case Mode::ChoixComparaison:
      if (avant.mode == Mode::ListeDictionnaires) EntrerListeDictio(f, avant.ligne);
      else if (avant.mode == Mode::ListeHistoire) EntrerListeHistoire(f, avant.ligne);
      else MontreChoixComparaison(f, avant.ligne);
      PoseCurseur(f, avant.curseur);
      return true;
    case Mode::Index:
    case Mode::ListeResultats: EntrerPage(f, avant.premier, Annonce::Non); break;
    case Mode::Article: EntrerArticle(f, w.IndexCourant, f.liste.Lit(w.IndexCourant), avant.curseur); break;
    case Mode::BlocNote: RevenirAuBlocNote(f, avant.premier, avant.curseur); return true;
    default: EntrerListeDictio(f); return true;
  }
  PoseCurseur(f, avant.curseur);
  AnnonceLigneCourante(f);
  return true;
}

}  // namespace lex
