// The window's frame kept from one run to the next: its place, its size and whether it was
// maximised, in a small file of its own beside the configuration ("fenetre.ini"), whose
// fixed layout has no room for it.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "view/window.h"

namespace lex {

struct Form;

inline constexpr const char* kFichierCadre = "fenetre.ini";
// The smallest window a frame read back may ask for: anything less is a damaged file.
inline constexpr int kLargeurMin = 320, kHauteurMin = 240;
// The first window, and one that had gone off the desktop, is at least this large when the
// desktop allows it.
inline constexpr int kLargeurDefaut = 1024, kHauteurDefaut = 768;

// The file's lines: x, y, width, height, 1 when maximised.
std::vector<std::string> LignesCadre(const Cadre& c);
// The frame those lines give, or nothing for a file that is not one (short, not numbers,
// a size too small or absurd).
std::optional<Cadre> CadreDeLignes(const std::vector<std::string>& lignes);

// Where a window asking for `voulu` stands on a desktop whose usable area is `ecran`: a frame
// with no place yet, or mostly off the desktop, is centred and made at least the default size;
// otherwise it keeps its place and size, shrunk to the desktop and moved just inside it.
Cadre CadreVisible(const Cadre& voulu, const Cadre& ecran);

// At start: the frame of last time, or the default one when the file is missing or damaged
// (never a message: the window simply opens at its default place).
void ChargeCadre(Form& f);
// At the end: the frame written back. A failed write is said, and the program still ends.
void GardeCadre(Form& f);

}  // namespace lex
