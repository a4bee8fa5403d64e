#include "controller/key_route.h"

#include "base/encoding.h"
#include "controller/commands.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_handlers.h"
#include "controller/menus.h"
#include "controller/zoom.h"
#include "view/keys.h"

namespace lex {
namespace {

// Runs a handler as an event; a key reaching a program that has ended is used up.
bool Utilise(Form& f, const std::function<bool()>& gestion) {
  bool utilise = false;
  const Issue issue = Evenement(f, [&] { utilise = gestion(); });
  return utilise || issue != Issue::Faite;
}

// Ctrl and Alt combinations are commands, not characters; Ctrl+Alt together is AltGr on
// Windows, which does type characters.
char32_t CaractereTape(int modificateurs, char32_t c) {
  const bool ctrl = (modificateurs & kCtrl) != 0, alt = (modificateurs & kAlt) != 0;
  if (c == 0 || c == 127 || ((ctrl || alt) && !(ctrl && alt && c >= 32))) return 0;
  return c;
}

}  // namespace

bool ToucheBas(Form& f, Champ champ, int code, int modificateurs) {
  if (f.fenetre.Termine) return true;
  // A menu's shortcut wins over the field, as in any window: Ctrl+A is a command, not the
  // field's select-all.
  if (const MenuItem* m = MenuParRaccourci(code, modificateurs); m && MenuActif(f, m->id)) {
    Evenement(f, [&] { ExecuteMenu(f, m->id); });
    return true;
  }
  // The font size keys, which no menu holds, work wherever the user is.
  if (const int sens = SensZoom(code, modificateurs)) {
    Evenement(f, [&] { Zoom(f, sens); });
    return true;
  }
  return Utilise(f, [&] {
    return champ == Champ::Rtb ? Rtb_KeyDown(f, code, modificateurs) : txt_KeyDown(f, code, modificateurs);
  });
}

SuiteTouche Caractere(Form& f, Champ champ, int modificateurs, char32_t caractere) {
  if (f.fenetre.Termine) return {};
  const char32_t c = CaractereTape(modificateurs, caractere);
  const char ansi = AnsiDeUnicode(c);
  // A character that Windows-1252 cannot hold is left to the field.
  if (c != 0 && (ansi != '?' || c == '?') &&
      Utilise(f, [&] { return champ == Champ::Rtb ? Rtb_KeyPress(f, ansi) : txt_KeyPress(f, ansi); }))
    return {};
  return {true, c};
}

SuiteTouche RouteTouche(Form& f, Champ champ, int code, int modificateurs, char32_t caractere) {
  if (ToucheBas(f, champ, code, modificateurs)) return {};
  return Caractere(f, champ, modificateurs, caractere);
}

}  // namespace lex
