// The line of the caret shown across the whole width of a multi-line text control, in a
// tint of the desktop theme's selection colour that keeps the text readable, and moved with
// the caret. Only what is drawn changes: the text, the caret and what a screen reader is told
// stay as they were.
#pragma once
#include <wx/textctrl.h>

namespace lex::wx {

void SurligneLigneDuCurseur(wxTextCtrl* champ);

}  // namespace lex::wx
