// What the window shows and where the user is.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "view/mode.h"

namespace lex {

// What F1 keeps of the screen it covers with the guide, to give it back as it was.
struct PlaceAvantGuide {
  bool gardee = false;  // false: the guide came from the menu, and gives way to the list
  Mode mode = Mode::ListeDictionnaires;
  std::int32_t premier = 1;  // the page's first line (index, result list, notepad)
  std::size_t curseur = 0;   // the caret in the shown field
  std::int32_t ligne = 1;    // its line
  std::int32_t entree = 0;   // the dictionary's own entry the user was on; 0 for none
};

class EtatFenetre {
 public:
  // Only the mode-entering functions change the mode.
  Mode ModeCourant() const { return mode_; }

  std::int16_t DictioCourant = 1;
  // The dictionary being read was opened from the history list, which Escape brings back.
  bool ListeHistoire = false;

  std::string MessagePrecedent;
  // Typed beginning of an index word, folded, and the same in capitals as typed.
  std::string DebutIndexCherche;
  std::string DebutIndexTape;

  std::int32_t PremierIndexAffiche = 1;
  std::int32_t IndexCourant = 0;
  std::string TexteIndexCourant;

  // An arrow at the top (bottom) line of a page turns the page only when pressed again there.
  bool FlecheHautArmee = false;
  bool FlecheBasArmee = false;
  // Articles from which a word was followed (Enter in an article); Backspace goes back.
  std::vector<std::int32_t> PileSuite;

  // Where the notepad or a new dictionary was asked for, to go back there: the mode, and the
  // dictionary's own entry the user was on.
  Mode AvantSaisie = Mode::ListeDictionnaires;
  std::int32_t EntreeAvantSaisie = 1;
  // How many of the notepad's lines the page in the field stands for.
  std::size_t LignesPageBlocNote = 0;

  // While the guide or the about text is shown: which, and what it covers. Entering any other
  // mode forgets it.
  bool GuideAffiche = false;
  PlaceAvantGuide AvantGuide;

  // What the mouse wheel turned under Ctrl short of a whole step of the font size.
  int MoletteZoom = 0;

  bool Termine = false;
  // The user chose, on leaving, to go on typing their article: the close box leaves the
  // window open this once.
  bool SaisieGardee = false;

 private:
  friend void PoseMode(EtatFenetre& w, Mode m);
  Mode mode_ = Mode::ListeDictionnaires;
};

}  // namespace lex
