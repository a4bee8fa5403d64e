#include "app/wx/menu_keys.h"

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

namespace lex::wx {

#ifdef __WXGTK__

namespace {

bool EstAlt(guint keyval) { return keyval == GDK_KEY_Alt_L || keyval == GDK_KEY_Alt_R || keyval == GDK_KEY_Meta_L; }

// Whether the Alt key now pressed is alone: no other key or button came since.
bool altSeul = false;

// The key the desktop opens the menu bar with (F10 unless the user set another), sent to the
// window as if typed: the menu bar then opens as it does for that key, ready for the arrows.
void OuvreMenus(GtkWidget* fenetre, const GdkEventKey* alt) {
  gchar* accel = nullptr;
  g_object_get(gtk_widget_get_settings(fenetre), "gtk-menu-bar-accel", &accel, nullptr);
  guint keyval = GDK_KEY_F10;
  GdkModifierType mods = static_cast<GdkModifierType>(0);
  if (accel && *accel) gtk_accelerator_parse(accel, &keyval, &mods);
  g_free(accel);
  if (keyval == 0) return;  // the desktop turned the key off

  GdkEvent* ev = gdk_event_new(GDK_KEY_PRESS);
  ev->key.window = GDK_WINDOW(g_object_ref(alt->window));
  ev->key.send_event = TRUE;
  ev->key.time = alt->time;
  ev->key.state = mods;
  ev->key.keyval = keyval;
  GdkKeymapKey* touches = nullptr;
  gint n = 0;
  GdkKeymap* clavier = gdk_keymap_get_for_display(gtk_widget_get_display(fenetre));
  if (gdk_keymap_get_entries_for_keyval(clavier, keyval, &touches, &n) && n > 0) {
    ev->key.hardware_keycode = static_cast<guint16>(touches[0].keycode);
    ev->key.group = static_cast<guint8>(touches[0].group);
  }
  g_free(touches);
  gdk_event_set_device(ev, gdk_event_get_device(reinterpret_cast<const GdkEvent*>(alt)));
  gboolean traite = FALSE;
  g_signal_emit_by_name(fenetre, "key-press-event", ev, &traite);
  gdk_event_free(ev);
}

// Every event of the window passes here before the toolkit's own handlers, which keep the
// key presses to themselves.
gboolean Evenement(GtkWidget* fenetre, GdkEvent* e, gpointer) {
  switch (e->type) {
    case GDK_KEY_PRESS:
      altSeul = EstAlt(e->key.keyval) && (e->key.state & GDK_MODIFIER_MASK & ~GDK_MOD1_MASK) == 0;
      break;
    case GDK_KEY_RELEASE:
      if (EstAlt(e->key.keyval) && altSeul) {
        altSeul = false;
        OuvreMenus(fenetre, &e->key);
      }
      break;
    case GDK_BUTTON_PRESS:
      altSeul = false;  // Alt with the mouse is the window manager's
      break;
    default:
      break;
  }
  return FALSE;
}

}  // namespace

void OuvreMenusParAlt(wxFrame* fenetre) {
  GtkWidget* w = fenetre->GetHandle();
  g_signal_connect(w, "event", G_CALLBACK(Evenement), nullptr);
}

#else

// Windows opens the menus with Alt by itself; macOS has its menu bar apart.
void OuvreMenusParAlt(wxFrame*) {}

#endif

}  // namespace lex::wx
