#include "controller/limits.h"

#include <algorithm>
#include <string>

#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "view/keys.h"

namespace lex {
namespace {

// What the user is in, as its limits name it.
const char* Quoi(const Form& f) {
  switch (f.fenetre.ModeCourant()) {
    case Mode::Index: return "du dictionnaire";
    case Mode::BlocNote: return "du bloc note";
    case Mode::Article:
    case Mode::CreationDictio:
    case Mode::CreationIndex:
    case Mode::ModificationIndex: return "de l'article";
    case Mode::Aide: return f.fenetre.GuideAffiche ? "du guide" : "du texte";
    case Mode::ListeResultats:
    case Mode::ListeDictionnaires:
    case Mode::ListeHistoire:
    case Mode::ChoixComparaison: break;
  }
  return "de la liste";
}

// The pages turn by the program; every other text is one piece in the field.
bool EnPages(Mode m) { return SurUneListe(m) || m == Mode::BlocNote; }

}  // namespace

void AuBord(Form& f, Bord b, bool bip) {
  if (bip) f.ui.Beep();
  switch (b) {
    case Bord::Debut: message(f, std::string("d\xE9" "but ") + Quoi(f)); break;
    case Bord::Fin: message(f, std::string("fin ") + Quoi(f)); break;
    case Bord::HautDePage: message(f, "haut de la page"); break;
    case Bord::BasDePage: message(f, "bas de la page"); break;
    case Bord::DebutLigne: message(f, "d\xE9" "but de la ligne"); break;
    case Bord::FinLigne: message(f, "fin de la ligne"); break;
  }
}

bool ToucheAuBord(Form& f, int code, int shift) {
  // Shift extends a selection and Alt is the menus': those keys stay the field's.
  if ((shift & (kShift | kAlt)) != 0) return false;
  const bool ctrl = (shift & kCtrl) != 0;
  const bool enPages = EnPages(f.fenetre.ModeCourant());
  const std::string texte = TexteChamp(f);
  const std::size_t curseur = std::min(CurseurChamp(f), texte.size());
  std::size_t debutLigne = curseur;
  extraitLigne(texte, debutLigne);
  std::size_t finLigne = texte.find("\r\n", debutLigne);
  if (finLigne == std::string::npos) finLigne = texte.size();
  // Rows, not lines: a wrapped line is gone through row by row before its end is a limit.
  const bool premiereLigne = f.ui.CaretOnFirstRow(), derniereLigne = f.ui.CaretOnLastRow();
  Bord bord = Bord::Debut;
  bool auBord = false;
  switch (code) {
    case Touche::Debut:
      if (ctrl && enPages) return false;
      auBord = ctrl ? curseur == 0 : curseur == debutLigne;
      bord = ctrl ? Bord::Debut : Bord::DebutLigne;
      break;
    case Touche::Fin:
      if (ctrl && enPages) return false;
      auBord = ctrl ? curseur == texte.size() : curseur == finLigne;
      bord = ctrl ? Bord::Fin : Bord::FinLigne;
      break;
    case Touche::Haut:
    case Touche::PagePrec:
      if (enPages || (ctrl && code == Touche::Haut)) return false;
      auBord = premiereLigne;
      bord = Bord::Debut;
      break;
    case Touche::Bas:
    case Touche::PageSuiv:
      if (enPages || (ctrl && code == Touche::Bas)) return false;
      auBord = derniereLigne;
      bord = Bord::Fin;
      break;
    case Touche::Gauche:
      if (enPages) return false;
      auBord = curseur == 0;
      bord = Bord::Debut;
      break;
    case Touche::Droite:
      if (enPages) return false;
      auBord = curseur == texte.size();
      bord = Bord::Fin;
      break;
    default: return false;
  }
  if (auBord) AuBord(f, bord);
  return auBord;
}

}  // namespace lex
