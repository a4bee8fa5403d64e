#include "controller/zoom.h"

#include <algorithm>
#include <array>
#include <string>

#include "controller/form.h"
#include "controller/message.h"
#include "controller/options.h"
#include "view/keys.h"

namespace lex {
namespace {

// The sizes a word processor's size list offers: small steps where they show, larger ones
// where a point more is no longer seen.
constexpr std::array<int, 13> kTailles{8, 10, 12, 14, 16, 18, 20, 24, 28, 32, 36, 48, 72};

}  // namespace

int SensZoom(int code, int modificateurs) {
  // Shift is allowed: on many keyboards "+" is Shift with the "=" key.
  if ((modificateurs & kCtrl) == 0 || (modificateurs & kAlt) != 0) return 0;
  if (code == Touche::Plus || code == Touche::PavePlus) return 1;
  if (code == Touche::Moins || code == Touche::PaveMoins) return -1;
  return 0;
}

int TailleVoisine(int taille, int sens) {
  // A size chosen in the font dialog between two steps goes to the next step that way.
  if (sens > 0) {
    const auto it = std::upper_bound(kTailles.begin(), kTailles.end(), taille);
    return it == kTailles.end() ? 0 : *it;
  }
  const auto it = std::lower_bound(kTailles.begin(), kTailles.end(), taille);
  return it == kTailles.begin() ? 0 : *(it - 1);
}

void Zoom(Form& f, int sens) {
  Reglages& r = f.reglages;
  Police p = PoliceReglee(r);
  const int taille = TailleVoisine(p.taille, sens);
  if (taille == 0) {
    f.ui.Beep();
    message(f, sens > 0 ? "taille maximale" : "taille minimale");
    return;
  }
  p.taille = taille;
  f.ui.SetFont(p);
  r.PoliceTaille = std::to_string(taille);
  message(f, "taille des caract\xE8res " + std::to_string(taille));
}

bool MoletteZoom(Form& f, int rotation, int cran, int modificateurs) {
  if ((modificateurs & kCtrl) == 0 || (modificateurs & kAlt) != 0 || cran <= 0) return false;
  int& reste = f.fenetre.MoletteZoom;
  // A turn the other way starts again from nothing.
  if ((reste > 0 && rotation < 0) || (reste < 0 && rotation > 0)) reste = 0;
  reste += rotation;
  while (reste >= cran) {
    reste -= cran;
    Zoom(f, 1);
  }
  while (reste <= -cran) {
    reste += cran;
    Zoom(f, -1);
  }
  return true;
}

}  // namespace lex
