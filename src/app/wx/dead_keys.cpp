#include "app/wx/dead_keys.h"

#ifdef __WXGTK__
#include <gdk/gdk.h>
#include <glib.h>
#endif

namespace lex::wx {

bool TouchesMortes::Retient(unsigned keyval) {
#ifdef __WXGTK__
  // The accents of the French keyboards and their neighbours: combining mark, spacing form.
  struct Accent {
    unsigned keyval;
    char32_t marque, espacement;
  };
  static constexpr Accent kAccents[] = {
      {GDK_KEY_dead_grave, 0x300, '`'},       {GDK_KEY_dead_acute, 0x301, 0xB4},
      {GDK_KEY_dead_circumflex, 0x302, '^'},  {GDK_KEY_dead_tilde, 0x303, '~'},
      {GDK_KEY_dead_diaeresis, 0x308, 0xA8},  {GDK_KEY_dead_abovering, 0x30A, 0xB0},
      {GDK_KEY_dead_caron, 0x30C, 0x2C7},     {GDK_KEY_dead_cedilla, 0x327, 0xB8},
  };
  for (const Accent& a : kAccents)
    if (a.keyval == keyval) {
      marque_ = a.marque;
      espacement_ = a.espacement;
      return true;
    }
#else
  (void)keyval;
#endif
  return false;
}

char32_t TouchesMortes::Compose(char32_t c) {
  const char32_t marque = marque_;
  marque_ = 0;
  if (marque == 0) return c;
  if (c == ' ') return espacement_;
#ifdef __WXGTK__
  gunichar compose = 0;
  if (g_unichar_compose(c, marque, &compose)) return compose;
#endif
  return c;
}

}  // namespace lex::wx
