// lex: the program in its real window.
#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/wx.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/wx/language.h"
#include "app/wx/main_frame.h"

namespace {

bool demarre = false;  // the toolkit came up and the program was started
std::string langue;    // of the toolkit's own texts, chosen before it starts

class LexApp final : public wxApp {
 public:
  bool OnInit() override {
    // The program takes no command-line options, so wxApp's own parsing is not called.
    demarre = true;
    if (langue.empty()) langue = lex::wx::ChoisitLangue();
    lex::wx::ChargeTraductions(langue);
    // The program folder is the executable's: the guide, the dictionaries and the
    // configuration live next to it.
    const wxFileName exe(wxStandardPaths::Get().GetExecutablePath());
    auto* form = new lex::wx::Form1();
    // When the program ends while loading (an error was reported), the window is already
    // going away, and with it the program, as soon as the event loop runs.
    // The folder stays the system's own path, in UTF-8.
    if (form->Charger(exe.GetPath().ToStdString(wxConvUTF8))) form->Show();
    return true;
  }
};

}  // namespace

#ifdef __WXGTK__
wxIMPLEMENT_APP_NO_MAIN(LexApp);

int main(int argc, char** argv) {
  const char* x = std::getenv("DISPLAY");
  const char* w = std::getenv("WAYLAND_DISPLAY");
  if ((!x || !*x) && (!w || !*w)) {
    std::fputs("lex: no graphical display (DISPLAY and WAYLAND_DISPLAY are not set); "
               "LEX needs a desktop session.\n", stderr);
    return 1;
  }
  langue = lex::wx::ChoisitLangue();
  const int code = wxEntry(argc, argv);
  if (!demarre) std::fputs("lex: the graphical display could not be opened.\n", stderr);
  return code;
}
#else
wxIMPLEMENT_APP(LexApp);
#endif
