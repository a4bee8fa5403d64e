// Alt pressed and released alone opens the menu bar, as it does on the desktop most users of
// a screen reader come from; GTK opens it with F10 only. A user who pressed Alt and heard
// nothing would walk the index with the arrows believing to be in the menus.
#pragma once
#include <wx/wx.h>

namespace lex::wx {

// Watches the window's keys for a lone Alt; lives as long as the window.
void OuvreMenusParAlt(wxFrame* fenetre);

}  // namespace lex::wx
