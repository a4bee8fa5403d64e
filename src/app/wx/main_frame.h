// The program's one window, Form1: its controls, its menu bar built from the menu table, and
// the forwarding of every key, menu, button and close event to the program.
#pragma once
#include <wx/wx.h>

#include <memory>
#include <string>

#include "app/wx/dead_keys.h"
#include "app/wx/wx_window.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"

namespace lex::wx {

class Form1 final : public wxFrame {
 public:
  Form1();
  // The load event; false when the program ended during it (the window is then going away).
  bool Charger(const std::string& dossierProgramme);

 private:
  wxMenuBar* CreeMenus();
  void ToucheBas(wxKeyEvent& e, lex::Champ champ);
  void TouchePresse(wxKeyEvent& e, lex::Champ champ);
  void Menu(wxCommandEvent& e);
  void Fermeture(wxCloseEvent& e);

  wxTextCtrl* txt_ = nullptr;
  wxTextCtrl* rtb_ = nullptr;
  TouchesMortes mortes_;
  std::unique_ptr<WxWindow> ui_;
  std::unique_ptr<Form> form_;  // after ui_: the form refers to it
};

// The classic virtual key code of a wx key code (0 when it has none), and the modifier bits.
int CodeTouche(int wxKey);
bool LitLaLigne(int code, int modificateurs);
int Modificateurs(const wxKeyboardState& e);

}  // namespace lex::wx
