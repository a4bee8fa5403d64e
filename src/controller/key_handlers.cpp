#include "controller/key_handlers.h"

#include "controller/article_view.h"
#include "controller/buttons.h"
#include "controller/commands.h"
#include "controller/comparison.h"
#include "controller/form.h"
#include "controller/navigation.h"
#include "controller/opening.h"
#include "controller/limits.h"
#include "controller/paragraphs.h"
#include "controller/place.h"
#include "view/keys.h"

namespace lex {

bool txt_KeyDown(Form& f, int code, int shift) {
  const Mode m = f.fenetre.ModeCourant();
  const bool ctrl = (shift & kCtrl) != 0;
  if (code == Touche::F1 && shift == 0) {
    ToucheAide(f);
    return true;
  }
  // The guide and the about text are read with the field's own keys.
  if (m == Mode::Aide) return code == Touche::Suppr || ToucheAuBord(f, code, shift);
  switch (code) {
    case Touche::Espace:
      if (ctrl) {
        ExecuteMenu(f, MenuId::MnuDeSelection);
        return true;
      }
      return false;
    case Touche::Suppr: return m != Mode::BlocNote && m != Mode::CreationDictio && !SaisieArticle(m);
    case Touche::Haut:
      if (!ctrl) return FlecheHaut(f) || ToucheAuBord(f, code, shift);
      if (!LectureParParagraphes(m)) return false;
      ParagraphePrecedent(f);
      return true;
    case Touche::Bas:
      if (!ctrl) return FlecheBas(f) || ToucheAuBord(f, code, shift);
      if (LectureParParagraphes(m)) ParagrapheSuivant(f);
      else ExecuteMenu(f, MenuId::MnuSelection);
      return true;
    case Touche::PagePrec: return Indexprecedent(f) || ToucheAuBord(f, code, shift);
    case Touche::PageSuiv: return Indexsuivant(f) || ToucheAuBord(f, code, shift);
    case Touche::Debut:
      f.fenetre.DebutIndexCherche.clear();
      return (ctrl && AppelDebutIndex(f)) || ToucheAuBord(f, code, shift);
    case Touche::Fin:
      f.fenetre.DebutIndexCherche.clear();
      return (ctrl && AppelFinIndex(f)) || ToucheAuBord(f, code, shift);
    case Touche::Gauche:
    case Touche::Droite: return ToucheAuBord(f, code, shift);
    case 'I':
      // In the index the letter I is a typed beginning like any other; in an article being
      // read it tells which entry it is.
      if (!ctrl && m == Mode::Article) {
        parlerIndex(f);
        return true;
      }
      return false;
    default: return false;
  }
}

bool txt_KeyPress(Form& f, char c) {
  const Mode m = f.fenetre.ModeCourant();
  if (c == 27) {
    RetourIndex(f);
    return true;
  }
  // The guide is only read; Tab leaves it for its button, as it leaves any other text.
  if (m == Mode::Aide) return c != '\t';
  // In the notepad and a new article every other character is typed.
  if (m == Mode::BlocNote || m == Mode::CreationDictio || SaisieArticle(m)) return false;
  if (c == 8) {
    if (SurUneListe(m)) BakSpaceIndex(f);
    else if (m == Mode::Article) RetourSuiteIndex(f);
    else f.ui.Beep();  // a list of the catalogue keeps no typed letters to erase
    return true;
  }
  if (c == 13) {
    if (SurUneListe(m)) dictionnaire(f);
    else if (m == Mode::Article) SuiteIndex(f);
    else if (m == Mode::ChoixComparaison) ValideChoixComparaison(f);
    else AppelDictionnaire(f);
    return true;
  }
  if (static_cast<unsigned char>(c) < 32) return false;
  if (m != Mode::Article) TapeCaractere(f, c);
  return true;
}

bool Rtb_KeyDown(Form& f, int code, int shift) {
  if (code == Touche::F1 && shift == 0) {
    ToucheAide(f);
    return true;
  }
  if ((shift & kCtrl) == 0 || !LectureParParagraphes(f.fenetre.ModeCourant())) return ToucheAuBord(f, code, shift);
  if (code == Touche::Haut) ParagraphePrecedent(f);
  else if (code == Touche::Bas) ParagrapheSuivant(f);
  else return ToucheAuBord(f, code, shift);
  return true;
}

bool Rtb_KeyPress(Form& f, char c) {
  if (c == 27) {
    RetourIndex(f);
    return true;
  }
  if (f.fenetre.ModeCourant() == Mode::Article) {
    if (c == 8) {
      RetourSuiteIndex(f);
      return true;
    }
    if (c == 13) {
      SuiteIndex(f);
      return true;
    }
  }
  return true;
}

}  // namespace lex
