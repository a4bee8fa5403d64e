// What the program's logic asks of its window: two text fields, the message line, the title,
// three buttons, the menus and the beep. Nothing here names a toolkit: a front end implements
// it over real controls (wx) or over a scripted in-memory window (headless). All text is
// Windows-1252; positions are 0-based character offsets, with "\r\n" counted as two
// characters, whatever the control does internally.
#pragma once
#include <cstddef>
#include <string>

#include "view/menu_id.h"

namespace lex {

enum class Bouton { CmdDic, CmdDivers, CmdQuitter };

struct Police {
  std::string nom;
  int taille = 10;
};

// Where the window stands on the desktop, in pixels: its place, and its size when not
// maximised. `place` false: no place known yet, the window is centred.
struct Cadre {
  int x = 0, y = 0;
  int largeur = 1024, hauteur = 768;
  bool place = false;
  bool maximise = false;
};

struct Selection {
  std::size_t debut = 0;
  std::size_t longueur = 0;
};

// Lines the text field shows at the window's default size: Page Up and Page Down inside an
// article move by this much, in the real window and in the scripted one alike.
inline constexpr int kLignesVisibles = 26;

class Fenetre {
 public:
  virtual ~Fenetre() = default;

  // txt, the multi-line index field.
  virtual void SetLineText(const std::string& texte) = 0;
  virtual std::string GetLineText() const = 0;
  virtual void SetLineSelection(std::size_t debut, std::size_t longueur) = 0;
  virtual Selection GetLineSelection() const = 0;
  // Typing changes the field only while something is being edited.
  virtual void SetLineEditable(bool editable) = 0;
  // Whether the text typed holds characters that Windows-1252 cannot: GetLineText gives them
  // as "?". False again once the program sets the text.
  virtual bool LineTextReplaced() const = 0;

  // Rtb, the rich text pane shown in place of txt for very long articles.
  virtual void SetPaneText(const std::string& texte) = 0;
  virtual std::string GetPaneText() const = 0;
  virtual void SetPaneSelection(std::size_t debut, std::size_t longueur) = 0;
  virtual Selection GetPaneSelection() const = 0;
  virtual void SetPaneVisible(bool visible) = 0;
  virtual bool IsPaneVisible() const = 0;

  // Whether the caret of the field shown (Rtb when visible, txt otherwise) is on the first or
  // the last row it shows: a long line wrapped at the window's width makes several rows, which
  // the arrows go through before they reach the text's end.
  virtual bool CaretOnFirstRow() const = 0;
  virtual bool CaretOnLastRow() const = 0;

  // The screen font: both fields and the message line. The caret stays where it was.
  virtual void SetFont(const Police& police) = 0;

  // The window's frame. A front end keeps it within the desktop it shows it on.
  virtual Cadre GetFrame() const = 0;
  virtual void SetFrame(const Cadre& cadre) = 0;

  virtual void FocusLine() = 0;
  virtual void FocusPane() = 0;

  // Only `message` calls this: the screen reader speaks the label when it changes.
  virtual void SetMessage(const std::string& texte) = 0;
  virtual void SetTitle(const std::string& texte) = 0;

  virtual void SetButtonCaption(Bouton b, const std::string& texte) = 0;
  virtual void SetButtonVisible(Bouton b, bool visible) = 0;
  virtual void SetMenuEnabled(MenuId id, bool actif) = 0;

  virtual void Beep() = 0;
  virtual void ClipboardSetText(const std::string& texte) = 0;
  virtual std::string ClipboardGetText() = 0;

  // Ends the program at once; the window closes.
  virtual void Quit() = 0;
};

}  // namespace lex
