// What the program's logic asks of its window. Nothing here names a toolkit: a front end
// implements it over real controls (wx) or over a scripted in-memory window (headless), and
// tests install a fake. All text is Windows-1252; positions are 0-based character offsets,
// with "\r\n" counted as two characters, whatever the control does internally.
#pragma once
#include <cstddef>
#include <optional>
#include <string>

namespace lex {

enum class Bouton { CmdDic, CmdDivers, CmdQuitter };
enum class Boutons { OK, OKCancel, YesNo, YesNoCancel };
enum class Icone { Aucune, Question, Exclamation, Information, Critique };
enum class Reponse { OK, Cancel, Yes, No };
enum class MenuId : int;

struct Police {
  std::string nom;
  int taille = 10;
};

struct Selection {
  std::size_t debut = 0;
  std::size_t longueur = 0;
};

class UiServices {
 public:
  virtual ~UiServices() = default;

  // txt, the multi-line index field.
  virtual void SetLineText(const std::string& texte) = 0;
  virtual std::string GetLineText() const = 0;
  virtual void SetLineSelection(std::size_t debut, std::size_t longueur) = 0;
  virtual Selection GetLineSelection() const = 0;
  virtual void SetLineFont(const Police& police) = 0;
  // Typing changes the field only while something is being edited (notepad, article).
  virtual void SetLineEditable(bool editable) = 0;

  // Rtb, the rich text pane shown in place of txt for very long articles.
  virtual void SetPaneText(const std::string& texte) = 0;
  virtual std::string GetPaneText() const = 0;
  virtual void SetPaneSelection(std::size_t debut, std::size_t longueur) = 0;
  virtual Selection GetPaneSelection() const = 0;
  virtual void SetPaneFont(const Police& police) = 0;
  virtual void SetPaneVisible(bool visible) = 0;
  virtual bool IsPaneVisible() const = 0;

  virtual void FocusLine() = 0;
  virtual void FocusPane() = 0;

  // Only `message` calls this: the screen reader speaks the label when it changes.
  virtual void SetMessage(const std::string& texte) = 0;
  virtual void SetTitle(const std::string& texte) = 0;

  virtual void SetButtonCaption(Bouton b, const std::string& texte) = 0;
  virtual std::string GetButtonCaption(Bouton b) const = 0;
  virtual void SetButtonVisible(Bouton b, bool visible) = 0;
  virtual void SetMenuEnabled(MenuId id, bool actif) = 0;

  virtual Reponse MessageBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre) = 0;
  // Empty when cancelled.
  virtual std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) = 0;
  virtual void Beep() = 0;
  virtual void ClipboardSetText(const std::string& texte) = 0;
  virtual std::string ClipboardGetText() = 0;
  // Paths are Windows-1252 like every other text; empty when cancelled.
  virtual std::string OpenFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) = 0;
  virtual std::string SaveFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) = 0;
  virtual std::optional<Police> FontDialog(const Police& actuelle) = 0;

  // Ends the program at once; the window closes.
  virtual void Quit() = 0;
};

}  // namespace lex
