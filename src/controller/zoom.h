// Enlarging and reducing the screen font from the keyboard (Ctrl+Plus, Ctrl+Minus, on the
// main keys or the keypad) and with the mouse wheel under Ctrl, as partially sighted users
// do in every other program. The size reached is the one the configuration keeps.
#pragma once

namespace lex {

struct Form;

// +1 for a key that enlarges, -1 for one that reduces, 0 for any other key.
int SensZoom(int code, int modificateurs);
// The size one step away from `taille` in the direction `sens`, or 0 when `taille` is already
// at that end of the steps.
int TailleVoisine(int taille, int sens);
// One step bigger (sens > 0) or smaller, said on the message line; a beep and a word at
// either end.
void Zoom(Form& f, int sens);
// The wheel turned by `rotation` (a notch being `cran`) under `modificateurs`: whether it was
// the program's (Ctrl held). Part notches of a fine wheel add up to whole steps.
bool MoletteZoom(Form& f, int rotation, int cran, int modificateurs);

}  // namespace lex
