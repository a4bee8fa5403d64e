// A window for unit tests: it keeps what the program shows and records what the user would
// see or hear; dialogs take their answers from queues.
#pragma once
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "ui/ui_services.h"

namespace lex::test {

class FakeUi final : public UiServices {
 public:
  std::string txt, rtb;
  Selection txtSel, rtbSel;
  bool rtbVisible = false, editable = false, quit = false;
  std::string title;
  std::vector<std::string> messages, boxes, prompts;
  int beeps = 0;
  std::deque<Reponse> reponses;
  std::deque<std::string> saisies;
  std::map<Bouton, std::string> captions;
  std::map<Bouton, bool> visible;
  std::map<MenuId, bool> menus;
  Police police;

  void SetLineText(const std::string& t) override {
    txt = t;
    txtSel = {};
  }
  std::string GetLineText() const override { return txt; }
  void SetLineSelection(std::size_t d, std::size_t l) override { txtSel = {std::min(d, txt.size()), l}; }
  Selection GetLineSelection() const override { return txtSel; }
  void SetLineFont(const Police& p) override { police = p; }
  void SetLineEditable(bool e) override { editable = e; }
  void SetPaneText(const std::string& t) override {
    rtb = t;
    rtbSel = {};
  }
  std::string GetPaneText() const override { return rtb; }
  void SetPaneSelection(std::size_t d, std::size_t l) override { rtbSel = {std::min(d, rtb.size()), l}; }
  Selection GetPaneSelection() const override { return rtbSel; }
  void SetPaneFont(const Police&) override {}
  void SetPaneVisible(bool v) override { rtbVisible = v; }
  bool IsPaneVisible() const override { return rtbVisible; }
  void FocusLine() override {}
  void FocusPane() override {}
  void SetMessage(const std::string& t) override { messages.push_back(t); }
  void SetTitle(const std::string& t) override { title = t; }
  void SetButtonCaption(Bouton b, const std::string& t) override { captions[b] = t; }
  std::string GetButtonCaption(Bouton b) const override {
    auto it = captions.find(b);
    return it == captions.end() ? std::string() : it->second;
  }
  void SetButtonVisible(Bouton b, bool v) override { visible[b] = v; }
  void SetMenuEnabled(MenuId id, bool a) override { menus[id] = a; }
  Reponse MessageBox(const std::string& t, Boutons b, Icone, const std::string&) override {
    boxes.push_back(t);
    if (b == Boutons::OK) return Reponse::OK;
    if (reponses.empty()) return b == Boutons::YesNo ? Reponse::No : Reponse::Cancel;
    Reponse r = reponses.front();
    reponses.pop_front();
    return r;
  }
  std::string InputBox(const std::string& p, const std::string&, const std::string&) override {
    prompts.push_back(p);
    if (saisies.empty()) return {};
    std::string s = saisies.front();
    saisies.pop_front();
    return s;
  }
  void Beep() override { ++beeps; }
  void ClipboardSetText(const std::string&) override {}
  std::string ClipboardGetText() override { return {}; }
  std::string OpenFileDialog(const std::string&, const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::string SaveFileDialog(const std::string&, const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<Police> FontDialog(const Police&) override { return std::nullopt; }
  void Quit() override { quit = true; }

  const std::string& DernierMessage() const {
    static const std::string vide;
    return messages.empty() ? vide : messages.back();
  }
};

}  // namespace lex::test
