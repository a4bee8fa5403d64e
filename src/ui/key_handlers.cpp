#include "ui/key_handlers.h"

#include "catalogue/opening.h"
#include "data/folding.h"
#include "base/encoding.h"
#include "ui/article_view.h"
#include "ui/buttons.h"
#include "ui/commands.h"
#include "ui/form.h"
#include "ui/keys.h"
#include "ui/navigation.h"

namespace lex {
namespace {

bool Edition(const Form& f) {
  const EtatFenetre& w = f.fenetre;
  return w.EditionBlocNote || w.ModificationEnCours || w.CreationIndexEnCours || w.CreationDictioEnCours;
}

bool EditionArticle(const Form& f) { return f.fenetre.ModificationEnCours || f.fenetre.CreationIndexEnCours; }

}  // namespace

bool txt_KeyDown(Form& f, int code, int shift) {
  EtatFenetre& w = f.fenetre;
  const bool ctrl = (shift & kCtrl) != 0;
  // The guide and the about text are read with the field's own keys.
  if (w.TexteAideAffiche) return code == Touche::Suppr;
  switch (code) {
    case Touche::Espace:
      if (ctrl) {
        ExecuteMenu(f, MenuId::MnuDeSelection);
        return true;
      }
      return false;
    case Touche::Suppr:
      if (w.EditionBlocNote) w.ToucheInterrompue = true;
      return !Edition(f);
    case Touche::Haut:
      if (!ctrl) return FlecheHaut(f);
      return false;  // paragraph reading is left to the field
    case Touche::Bas:
      if (!ctrl) return FlecheBas(f);
      if (w.ModeCourant == 3) return false;
      ExecuteMenu(f, MenuId::MnuSelection);
      return true;
    case Touche::PagePrec:
      return Indexprecedent(f);
    case Touche::PageSuiv:
      return Indexsuivant(f);
    case Touche::Debut:
      w.DebutIndexCherche.clear();
      return ctrl && AppelDebutIndex(f);
    case Touche::Fin:
      w.DebutIndexCherche.clear();
      return ctrl && AppelFinIndex(f);
    case 'I':
      // In mode 2 the letter I is a typed beginning like any other; in an article being
      // read it tells which entry it is.
      if (!ctrl && w.ModeCourant == 3 && !Edition(f)) {
        parlerIndex(f);
        return true;
      }
      return false;
    default:
      return false;
  }
}

bool txt_KeyPress(Form& f, char c) {
  EtatFenetre& w = f.fenetre;
  if (c == 27) {
    RetourIndex(f);
    return true;
  }
  if (w.EditionBlocNote) {
    w.ToucheInterrompue = true;
    return false;
  }
  if (w.TexteAideAffiche) return true;
  if (c == 8) {
    if (w.ModeCourant == 2) BakSpaceIndex(f);
    else if (w.ModeCourant == 3 && !EditionArticle(f)) RetourSuiteIndex(f);
    return !Edition(f);
  }
  if (c == 13) {
    if (w.ModeCourant == 2) dictionnaire(f);
    else if (w.ModeCourant == 3 && !EditionArticle(f)) SuiteIndex(f);
    else if (w.ModeCourant == 1) {
      if (w.ComparaisonEnCours) ExecuteMenu(f, MenuId::mnucomparaisonIndex);
      else AppelDictionnaire(f);
    }
    return !Edition(f);
  }
  if (static_cast<unsigned char>(c) < 32) return false;
  if (w.ModeCourant == 1 || w.ModeCourant == 2) {
    // In the list each letter is a call letter of its own; in the index the letters add up.
    if (w.ModeCourant == 1) {
      w.DebutIndexCherche.clear();
      w.DebutIndexTape.clear();
    }
    w.DebutIndexCherche += SansAccentSeul(std::string(1, c));
    w.DebutIndexTape += MajusculeAnsi(c);
    PositionIndex(f);
    return true;
  }
  return !Edition(f);
}

bool Rtb_KeyDown(Form&, int, int) {
  // Paragraph reading with Ctrl+Up and Ctrl+Down is left to the pane itself.
  return false;
}

bool Rtb_KeyPress(Form& f, char c) {
  EtatFenetre& w = f.fenetre;
  if (c == 27) {
    RetourIndex(f);
    return true;
  }
  if (w.ModeCourant == 3 && !EditionArticle(f)) {
    if (c == 8) {
      RetourSuiteIndex(f);
      return true;
    }
    if (c == 13) {
      SuiteIndex(f);
      return true;
    }
  }
  return !Edition(f);
}

}  // namespace lex
