// The scripted window: the port over in-memory controls, writing one JSON line per thing a
// user would see or hear, and taking dialog answers from a queue. It is also the window the
// unit tests and the benchmarks run the program in: it keeps the focus and pages its fields by
// the real window's page height, and journals what was said.
#pragma once
#include <deque>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "app/headless/text_field.h"
#include "view/dialogs.h"
#include "view/window.h"

namespace lex::headless {

struct Answer {
  enum class Kind { Button, Input, File, Font } kind = Kind::Button;
  Reponse button = Reponse::OK;
  std::string text;  // program text; a file path is the system's (UTF-8)
  int size = 0;
};

class HeadlessWindow final : public Fenetre, public Dialogues {
 public:
  // Events go to `out`; a window without one journals only.
  explicit HeadlessWindow(std::ostream& out);
  HeadlessWindow();

  TextField txt, rtb;
  std::deque<Answer> answers;
  bool quit = false;

  // The field with the keyboard focus, which gets the keys.
  TextField& Shown() { return rtbFocus_ ? rtb : txt; }
  bool PaneFocused() const { return rtbFocus_; }
  const Police& Font() const { return police_; }

  // The journal: every message line, message box text and input prompt, and the beeps.
  std::vector<std::string> messages, boxes, prompts;
  int beeps = 0;
  const std::string& Title() const { return title_; }
  const std::string& Message() const { return message_; }
  bool ButtonVisible(Bouton b) const;

  void SetLineText(const std::string& t) override { txt.SetText(t); }
  std::string GetLineText() const override { return txt.Text(); }
  bool LineTextReplaced() const override { return txt.remplace; }
  void SetLineSelection(std::size_t d, std::size_t l) override;
  Selection GetLineSelection() const override { return {txt.Caret(), txt.Length()}; }
  void SetLineEditable(bool e) override { txt.editable = e; }
  void SetPaneText(const std::string& t) override { rtb.SetText(t); }
  std::string GetPaneText() const override { return rtb.Text(); }
  void SetPaneSelection(std::size_t d, std::size_t l) override;
  Selection GetPaneSelection() const override { return {rtb.Caret(), rtb.Length()}; }
  void SetPaneVisible(bool v) override;
  bool IsPaneVisible() const override { return rtbVisible_; }
  // The scripted window wraps nothing: a row is a line.
  bool CaretOnFirstRow() const override;
  bool CaretOnLastRow() const override;
  void SetFont(const Police& police) override;
  // The frame is kept as given: there is no desktop to fit it in.
  Cadre GetFrame() const override { return cadre_; }
  void SetFrame(const Cadre& c) override { cadre_ = c; }
  void FocusLine() override { rtbFocus_ = false; }
  void FocusPane() override { rtbFocus_ = rtbVisible_; }
  void SetMessage(const std::string& t) override;
  void SetTitle(const std::string& t) override;
  void SetButtonCaption(Bouton b, const std::string& t) override { captions_[b] = t; }
  std::string GetButtonCaption(Bouton b) const;
  void SetButtonVisible(Bouton b, bool v) override { hidden_[b] = !v; }
  // Which entries are greyed is the program's own state (its key route reads it there).
  void SetMenuEnabled(MenuId, bool) override {}
  Reponse MessageBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre) override;
  std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) override;
  void Beep() override;
  void ClipboardSetText(const std::string& t) override;
  std::string ClipboardGetText() override { return clipboard_; }
  std::string OpenFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                             const std::string& nom) override;
  std::string SaveFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                             const std::string& nom) override;
  std::optional<Police> FontDialog(const Police& actuelle) override;
  void Quit() override;

 private:
  std::string FileDialog(const char* ev, const std::string& titre, const std::string& filtre,
                         const std::string& dossier, const std::string& nom);
  std::ostream& out_;
  bool rtbVisible_ = false, rtbFocus_ = false;
  Police police_;
  Cadre cadre_;
  std::string title_, message_, clipboard_;
  std::map<Bouton, std::string> captions_{{Bouton::CmdDic, "Index"}, {Bouton::CmdQuitter, "&Quitter"}};
  std::map<Bouton, bool> hidden_;
};

// A JSON string literal (UTF-8) of Windows-1252 text.
std::string Json(const std::string& ansi);
// The same for text already in UTF-8 (a path).
std::string JsonUtf8(const std::string& utf8);

}  // namespace lex::headless
