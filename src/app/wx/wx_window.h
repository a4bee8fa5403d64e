// The port over native wxWidgets controls. Nothing here decides anything: every call is
// forwarded to a control, with text converted between the program's Windows-1252 "\r\n" text
// and the control's own.
#pragma once
#include <wx/wx.h>

#include <array>
#include <optional>
#include <string>

#include "app/wx/frame_place.h"
#include "app/wx/spoken_message.h"
#include "view/dialogs.h"
#include "view/window.h"

namespace lex::wx {

// Menu entries carry these command ids, so that an id tells its MenuId back.
inline constexpr int kPremierIdMenu = wxID_HIGHEST + 100;
inline int IdMenu(MenuId m) { return kPremierIdMenu + static_cast<int>(m); }

// One-line texts (captions, titles, messages, paths) between Windows-1252 and wx.
wxString VersWx(const std::string& ansi);
std::string DepuisWx(const wxString& s);

// A multi-line text control with the program's view of its text. The text last set is kept,
// so that positions are mapped without reading a long text back from the control after
// every caret move; a change made by the user drops it.
class ChampTexte {
 public:
  explicit ChampTexte(wxTextCtrl* c) : ctrl_(c) {}
  wxTextCtrl* Controle() const { return ctrl_; }
  void Modifie() { connu_ = false; }
  void SetTexte(const std::string& ansi);
  // Counts the texts set, so that a replaced text can be told from the same one.
  unsigned Version() const { return version_; }
  const std::string& Texte() const;
  // The user typed characters that the program's text cannot hold.
  bool Remplace() const {
    Texte();
    return remplace_;
  }
  void SetSelection(std::size_t debut, std::size_t longueur);
  Selection GetSelection() const;
  void SetPolice(const wxFont& police);

 private:
  wxTextCtrl* ctrl_;
  mutable std::string texte_;
  mutable bool connu_ = true;
  mutable bool remplace_ = false;
  unsigned version_ = 0;
};

struct Controles {
  wxFrame* form = nullptr;
  wxWindow* panneau = nullptr;  // holds the controls and lays them out
  wxTextCtrl* txt = nullptr;
  wxTextCtrl* rtb = nullptr;
  std::array<wxButton*, 3> boutons{};  // in the order of Bouton
  wxStaticText* message = nullptr;
  wxMenuBar* menus = nullptr;
};

class WxWindow final : public Fenetre, public Dialogues {
 public:
  explicit WxWindow(const Controles& c);

  ChampTexte& ChampDe(wxTextCtrl* c) { return c == rtb_.Controle() ? rtb_ : txt_; }

  // Around a key that screen readers answer by reading the line the caret lands on (the
  // arrows up and down, the pages, Ctrl+Home and Ctrl+End): a message that only says that line
  // again is shown but not announced, or the user hears every page turn twice.
  void DebutTouche(bool litLaLigne);
  void FinTouche() { touche_.reset(); }
  bool QuitDemande() const { return quit_; }

  void SetLineText(const std::string& t) override { txt_.SetTexte(t); }
  std::string GetLineText() const override { return txt_.Texte(); }
  bool LineTextReplaced() const override { return txt_.Remplace(); }
  void SetLineSelection(std::size_t d, std::size_t l) override { txt_.SetSelection(d, l); }
  Selection GetLineSelection() const override { return txt_.GetSelection(); }
  void SetLineEditable(bool e) override { c_.txt->SetEditable(e); }
  void SetPaneText(const std::string& t) override { rtb_.SetTexte(t); }
  std::string GetPaneText() const override { return rtb_.Texte(); }
  void SetPaneSelection(std::size_t d, std::size_t l) override { rtb_.SetSelection(d, l); }
  Selection GetPaneSelection() const override { return rtb_.GetSelection(); }
  void SetPaneVisible(bool visible) override;
  bool IsPaneVisible() const override { return c_.rtb->IsShown(); }
  bool CaretOnFirstRow() const override;
  bool CaretOnLastRow() const override;
  void SetFont(const Police& p) override;
  Cadre GetFrame() const override { return place_.Lit(); }
  void SetFrame(const Cadre& c) override { place_.Pose(c); }
  void FocusLine() override { c_.txt->SetFocus(); }
  void FocusPane() override { c_.rtb->SetFocus(); }
  void SetMessage(const std::string& t) override;
  void SetTitle(const std::string& t) override { c_.form->SetTitle(VersWx(t)); }
  void SetButtonCaption(Bouton b, const std::string& t) override;
  void SetButtonVisible(Bouton b, bool visible) override;
  void SetMenuEnabled(MenuId id, bool actif) override { c_.menus->Enable(IdMenu(id), actif); }
  Reponse MessageBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre) override;
  std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) override;
  void Beep() override { wxBell(); }
  void ClipboardSetText(const std::string& t) override;
  std::string ClipboardGetText() override;
  std::string OpenFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                             const std::string& nomDefaut) override;
  std::string SaveFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                             const std::string& nomDefaut) override;
  std::optional<Police> FontDialog(const Police& actuelle) override;
  void Quit() override;

 private:
  static std::size_t Rang(Bouton b) { return static_cast<std::size_t>(b); }
  std::string FileDialog(long style, const std::string& titre, const std::string& filtre, const std::string& dossier,
                         const std::string& nomDefaut);

  Controles c_;
  ChampTexte txt_, rtb_;
  PlaceFenetre place_;
  MessageParle parle_;
  // The focused field, its text and its caret when a line-reading key came.
  struct Touche {
    ChampTexte* champ;
    unsigned version;
    std::size_t curseur;
  };
  std::optional<Touche> touche_;
  bool LigneDejaLue(const std::string& message) const;
  std::array<std::optional<wxString>, 3> legendes_;  // captions waiting for the focus to leave
  bool quit_ = false;
};

}  // namespace lex::wx
