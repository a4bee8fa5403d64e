// Key codes and modifier bits as the key handlers receive them (the classic virtual key codes).
#pragma once

namespace lex {

namespace Touche {
inline constexpr int Retour = 8, Tab = 9, Entree = 13, Echap = 27, Espace = 32, PagePrec = 33, PageSuiv = 34, Fin = 35,
                     Debut = 36, Gauche = 37, Haut = 38, Droite = 39, Bas = 40, Suppr = 46, F1 = 112;
inline constexpr int F(int n) { return F1 + n - 1; }
// Plus and minus of the keypad, and the main keyboard's keys of "+" (with "=") and "-".
inline constexpr int PavePlus = 107, PaveMoins = 109, Plus = 187, Moins = 189;
}  // namespace Touche

// Modifier bits.
inline constexpr int kShift = 1, kCtrl = 2, kAlt = 4;

}  // namespace lex
