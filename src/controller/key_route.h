// The one route of a key, whichever window it comes from: the menus' accelerators first, then
// the program's key-down handling, then the character the key types, and only what the
// program leaves goes to the field's own handling.
#pragma once

namespace lex {

struct Form;

enum class Champ { Txt, Rtb };

// What the front end does once the program has seen the key.
struct SuiteTouche {
  bool auChamp = false;    // let the field handle the key as it would
  char32_t caractere = 0;  // the character the field may type (0: none)
};

// A key whose character is known when it goes down: its key code, its modifier bits and the
// Unicode character it would type (0 for none).
SuiteTouche RouteTouche(Form& f, Champ champ, int code, int modificateurs, char32_t caractere);

// Where the toolkit gives the character in an event of its own, the two halves of the same
// route: key down (true when the program used the key), then the character.
bool ToucheBas(Form& f, Champ champ, int code, int modificateurs);
SuiteTouche Caractere(Form& f, Champ champ, int modificateurs, char32_t caractere);

}  // namespace lex
