#include "app/wx/main_frame.h"

#include <algorithm>

#ifdef __WXGTK__
#include <gdk/gdk.h>
#endif

#include "app/wx/line_highlight.h"
#include "app/wx/menu_keys.h"
#include "controller/menus.h"
#include "view/keys.h"

namespace lex::wx {

int CodeTouche(int k) {
  switch (k) {
    case WXK_BACK: return Touche::Retour;
    case WXK_TAB: case WXK_NUMPAD_TAB: return Touche::Tab;
    case WXK_RETURN: case WXK_NUMPAD_ENTER: return Touche::Entree;
    case WXK_ESCAPE: return Touche::Echap;
    case WXK_SPACE: case WXK_NUMPAD_SPACE: return Touche::Espace;
    case WXK_PAGEUP: case WXK_NUMPAD_PAGEUP: return Touche::PagePrec;
    case WXK_PAGEDOWN: case WXK_NUMPAD_PAGEDOWN: return Touche::PageSuiv;
    case WXK_END: case WXK_NUMPAD_END: return Touche::Fin;
    case WXK_HOME: case WXK_NUMPAD_HOME: return Touche::Debut;
    case WXK_LEFT: case WXK_NUMPAD_LEFT: return Touche::Gauche;
    case WXK_UP: case WXK_NUMPAD_UP: return Touche::Haut;
    case WXK_RIGHT: case WXK_NUMPAD_RIGHT: return Touche::Droite;
    case WXK_DOWN: case WXK_NUMPAD_DOWN: return Touche::Bas;
    case WXK_INSERT: case WXK_NUMPAD_INSERT: return 45;
    case WXK_DELETE: case WXK_NUMPAD_DELETE: return Touche::Suppr;
    case WXK_SHIFT: return 16;
    case WXK_CONTROL: return 17;
    case WXK_ALT: return 18;
    case WXK_NUMPAD_ADD: case WXK_ADD: return Touche::PavePlus;
    case WXK_NUMPAD_SUBTRACT: case WXK_SUBTRACT: return Touche::PaveMoins;
    case '+': case '=': return Touche::Plus;
    case '-': return Touche::Moins;
    default: break;
  }
  if (k >= WXK_F1 && k <= WXK_F24) return Touche::F1 + (k - WXK_F1);
  if (k >= WXK_NUMPAD0 && k <= WXK_NUMPAD9) return 96 + (k - WXK_NUMPAD0);
  if ((k >= 'A' && k <= 'Z') || (k >= '0' && k <= '9')) return k;
  if (k >= 'a' && k <= 'z') return k - 'a' + 'A';
  return 0;
}

// The keys after which screen readers read the line the caret is on.
bool LitLaLigne(int code, int modificateurs) {
  switch (code) {
    case Touche::Haut: case Touche::Bas: case Touche::PagePrec: case Touche::PageSuiv: return modificateurs == 0;
    case Touche::Debut: case Touche::Fin: return modificateurs == kCtrl;
    default: return false;
  }
}

int Modificateurs(const wxKeyboardState& e) {
  return (e.ShiftDown() ? kShift : 0) | (e.ControlDown() ? kCtrl : 0) | (e.AltDown() ? kAlt : 0);
}

Form1::Form1()
    : wxFrame(nullptr, wxID_ANY, "Dictionnaires", wxDefaultPosition, wxSize(1024, 768), wxDEFAULT_FRAME_STYLE,
              "Form1") {
  // A panel carries keyboard navigation between the controls on every platform. The file
  // and font dialogs are made when they are asked for.
  auto* panneau = new wxPanel(this, wxID_ANY);
  // Long lines wrap at the window's width, between words where they can: an enlarged font
  // must not hide the end of a line. A screen reader then speaks the part of the line it
  // shows, as in any editor that wraps; the program's own commands still go by whole lines.
  const long texte = wxTE_MULTILINE | wxTE_PROCESS_ENTER | wxTE_NOHIDESEL | wxTE_BESTWRAP;
  auto* Rtb = new wxTextCtrl(panneau, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, texte | wxTE_RICH2,
                             wxDefaultValidator, "Rtb");
  Rtb->Hide();
  auto* txt = new wxTextCtrl(panneau, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, texte, wxDefaultValidator, "txt");
  auto* CmdDic = new wxButton(panneau, wxID_ANY, "Index", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                              "CmdDic");
  auto* CmdDivers = new wxButton(panneau, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                                 "CmdDivers");
  auto* CmdQuitter = new wxButton(panneau, wxID_ANY, "&Quitter", wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "CmdQuitter");
  // Made after the buttons: a label takes the next control made as the one it names.
  auto* LblMessage = new wxStaticText(panneau, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE,
                                      "LblMessage");
  LblMessage->SetMinSize(wxSize(-1, LblMessage->GetCharHeight() * 3 / 2));

  auto* boutons = new wxBoxSizer(wxHORIZONTAL);
  for (wxButton* b : {CmdDic, CmdDivers, CmdQuitter}) boutons->Add(b, 0, wxRIGHT, 6);
  auto* vertical = new wxBoxSizer(wxVERTICAL);
  vertical->Add(Rtb, 1, wxEXPAND | wxALL, 6);
  vertical->Add(txt, 1, wxEXPAND | wxALL, 6);
  vertical->Add(boutons, 0, wxLEFT | wxRIGHT, 6);
  vertical->Add(LblMessage, 0, wxEXPAND | wxALL, 6);
  panneau->SetSizer(vertical);

  Controles c;
  c.form = this;
  c.panneau = panneau;
  c.txt = txt;
  c.rtb = Rtb;
  c.boutons = {CmdDic, CmdDivers, CmdQuitter};
  c.message = LblMessage;
  c.menus = CreeMenus();
  SetMenuBar(c.menus);
  txt_ = txt;
  rtb_ = Rtb;
  ui_ = std::make_unique<WxWindow>(c);
  form_ = std::make_unique<Form>(*ui_, *ui_);

  for (auto [ctrl, champ] : {std::pair{txt, Champ::Txt}, std::pair{Rtb, Champ::Rtb}}) {
    const Champ ch = champ;
    ctrl->Bind(wxEVT_KEY_DOWN, [this, ch](wxKeyEvent& e) { ToucheBas(e, ch); });
    ctrl->Bind(wxEVT_CHAR, [this, ch](wxKeyEvent& e) { TouchePresse(e, ch); });
    wxTextCtrl* t = ctrl;
    ctrl->Bind(wxEVT_TEXT, [this, t](wxCommandEvent& e) {
      ui_->ChampDe(t).Modifie();
      e.Skip();
    });
  }
  // The desktop's theme gives every colour; the caret's line is a tint of it.
  SurligneLigneDuCurseur(txt);
  SurligneLigneDuCurseur(Rtb);
  for (wxWindow* w : {static_cast<wxWindow*>(txt), static_cast<wxWindow*>(Rtb), static_cast<wxWindow*>(panneau)})
    w->Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& e) {
      if (e.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL ||
          !EvMolette(*form_, e.GetWheelRotation(), e.GetWheelDelta(), Modificateurs(e)))
        e.Skip();
    });
  CmdDic->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EvBouton(*form_, Bouton::CmdDic); });
  CmdDivers->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EvBouton(*form_, Bouton::CmdDivers); });
  CmdQuitter->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EvBouton(*form_, Bouton::CmdQuitter); });
  Bind(wxEVT_CLOSE_WINDOW, &Form1::Fermeture, this);
  OuvreMenusParAlt(this);
}

wxMenuBar* Form1::CreeMenus() {
  auto* barre = new wxMenuBar;
  int dernier = kPremierIdMenu;
  for (const lex::Menu& m : TableMenus()) {
    auto* menu = new wxMenu;
    for (const MenuItem& e : m.entrees) {
      wxString legende = VersWx(e.legende);
      if (e.raccourci.code != 0) legende += "\t" + wxString::FromUTF8(e.raccourci.Nom());
      menu->Append(IdMenu(e.id), legende);
      dernier = std::max(dernier, IdMenu(e.id));
    }
    barre->Append(menu, VersWx(m.legende));
  }
  Bind(wxEVT_MENU, &Form1::Menu, this, kPremierIdMenu, dernier);
  return barre;
}

bool Form1::Charger(const std::string& dossierProgramme) {
  EvChargement(*form_, dossierProgramme);
  return !ui_->QuitDemande();
}

void Form1::ToucheBas(wxKeyEvent& e, Champ champ) {
  const int code = CodeTouche(e.GetKeyCode());
#ifdef __WXGTK__
  // GTK gives a read-only text view's printable keys to its input method, and wx then sends
  // no character event for them: the character is taken from the key itself, here, and the
  // whole route runs at key down.
  const int modificateurs = Modificateurs(e);
  const unsigned keyval = e.GetRawKeyCode();
  if (!(modificateurs & (kCtrl | kAlt)) && mortes_.Retient(keyval)) return;
  char32_t c = gdk_keyval_to_unicode(keyval);
  const bool accentue = mortes_.Attend() && c != 0;
  if (accentue) c = mortes_.Compose(c);
  else if (c == 0 && code != 16 && code != 17 && code != 18) mortes_.Oublie();
  ui_->DebutTouche(LitLaLigne(code, modificateurs));
  const SuiteTouche suite = RouteTouche(*form_, champ, code, modificateurs, c);
  ui_->FinTouche();
  if (!suite.auChamp) return;
  // The input method never saw the accent: the field takes the composed letter from here.
  if (accentue && suite.caractere) (champ == Champ::Rtb ? rtb_ : txt_)->WriteText(wxString(wxUniChar(suite.caractere)));
  else e.Skip();
#else
  ui_->DebutTouche(LitLaLigne(code, Modificateurs(e)));
  const bool pris = lex::ToucheBas(*form_, champ, code, Modificateurs(e));
  ui_->FinTouche();
  if (!pris) e.Skip();
#endif
}

void Form1::TouchePresse(wxKeyEvent& e, Champ champ) {
#ifndef __WXGTK__
  char32_t c = e.GetUnicodeKey() == WXK_NONE ? 0 : static_cast<char32_t>(e.GetUnicodeKey());
  if (e.GetKeyCode() == WXK_NUMPAD_ENTER) c = '\r';
  if (!Caractere(*form_, champ, Modificateurs(e), c).auChamp) return;
#else
  (void)champ;
#endif
  e.Skip();
}

void Form1::Menu(wxCommandEvent& e) { EvMenu(*form_, static_cast<MenuId>(e.GetId() - kPremierIdMenu)); }

void Form1::Fermeture(wxCloseEvent& e) {
  EvFermeture(*form_);
  // The program stays when it could not save what closing would lose.
  if (!form_->fenetre.Termine && e.CanVeto()) {
    e.Veto();
    return;
  }
  ui_->Quit();  // already done unless the program had ended before
}

}  // namespace lex::wx
