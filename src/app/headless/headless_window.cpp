#include "app/headless/headless_window.h"

#include <cstdio>
#include <streambuf>

#include "base/encoding.h"
#include "data/files.h"

namespace lex::headless {

std::string Json(const std::string& ansi) { return JsonUtf8(AnsiVersUtf8(ansi)); }

std::string JsonUtf8(const std::string& u) {
  std::string o = "\"";
  for (unsigned char c : u) {
    switch (c) {
      case '"': o += "\\\""; break;
      case '\\': o += "\\\\"; break;
      case '\n': o += "\\n"; break;
      case '\r': o += "\\r"; break;
      case '\t': o += "\\t"; break;
      default:
        if (c < 0x20) {
          char b[8];
          std::snprintf(b, sizeof b, "\\u%04x", c);
          o += b;
        } else {
          o += static_cast<char>(c);
        }
    }
  }
  return o + "\"";
}

namespace {
const char* NomBoutons(Boutons b) {
  switch (b) {
    case Boutons::OK: return "OK";
    case Boutons::OKCancel: return "OKCancel";
    case Boutons::YesNo: return "YesNo";
    case Boutons::YesNoCancel: return "YesNoCancel";
  }
  return "OK";
}
const char* NomReponse(Reponse r) {
  switch (r) {
    case Reponse::OK: return "OK";
    case Reponse::Cancel: return "Cancel";
    case Reponse::Yes: return "Yes";
    case Reponse::No: return "No";
  }
  return "OK";
}
bool Permise(Boutons b, Reponse r) {
  switch (b) {
    case Boutons::OK: return r == Reponse::OK;
    case Boutons::OKCancel: return r == Reponse::OK || r == Reponse::Cancel;
    case Boutons::YesNo: return r == Reponse::Yes || r == Reponse::No;
    case Boutons::YesNoCancel: return r != Reponse::OK;
  }
  return false;
}
}  // namespace

namespace {
// Where the events of a window without an output go.
class SansSortie final : public std::streambuf {
 protected:
  int overflow(int c) override { return c; }
};
std::ostream& Nulle() {
  static SansSortie tampon;
  static std::ostream sortie(&tampon);
  return sortie;
}
}  // namespace

HeadlessWindow::HeadlessWindow(std::ostream& out) : out_(out) {}
HeadlessWindow::HeadlessWindow() : HeadlessWindow(Nulle()) {}

void HeadlessWindow::SetPaneVisible(bool v) {
  rtbVisible_ = v;
  // A hidden control loses the focus to the field beside it.
  if (!v) rtbFocus_ = false;
}

void HeadlessWindow::SetFont(const Police& police) {
  police_ = police;
  out_ << "{\"ev\":\"font\",\"name\":" << Json(police.nom) << ",\"size\":" << police.taille << "}\n";
}

bool HeadlessWindow::ButtonVisible(Bouton b) const {
  auto it = hidden_.find(b);
  return it == hidden_.end() || !it->second;
}

std::string HeadlessWindow::GetButtonCaption(Bouton b) const {
  auto it = captions_.find(b);
  return it == captions_.end() ? std::string() : it->second;
}

void HeadlessWindow::SetLineSelection(std::size_t d, std::size_t l) {
  txt.SetCaret(d);
  txt.SetSelectionLength(l);
}

void HeadlessWindow::SetPaneSelection(std::size_t d, std::size_t l) {
  rtb.SetCaret(d);
  rtb.SetSelectionLength(l);
}

void HeadlessWindow::SetMessage(const std::string& t) {
  message_ = t;
  messages.push_back(t);
  out_ << "{\"ev\":\"message\",\"text\":" << Json(t) << "}\n";
}

void HeadlessWindow::SetTitle(const std::string& t) {
  if (t == title_) return;
  title_ = t;
  out_ << "{\"ev\":\"title\",\"text\":" << Json(t) << "}\n";
}

Reponse HeadlessWindow::MessageBox(const std::string& texte, Boutons boutons, Icone, const std::string& titre) {
  Reponse r = boutons == Boutons::OK ? Reponse::OK : boutons == Boutons::YesNo ? Reponse::No : Reponse::Cancel;
  bool repondu = boutons == Boutons::OK;
  if (!repondu && !answers.empty() && answers.front().kind == Answer::Kind::Button &&
      Permise(boutons, answers.front().button)) {
    r = answers.front().button;
    answers.pop_front();
    repondu = true;
  }
  boxes.push_back(texte);
  out_ << "{\"ev\":\"msgbox\",\"text\":" << Json(texte) << ",\"title\":" << Json(titre) << ",\"buttons\":\""
       << NomBoutons(boutons) << "\",\"answer\":\"" << NomReponse(r) << "\"" << (repondu ? "" : ",\"unanswered\":true")
       << "}\n";
  return r;
}

std::string HeadlessWindow::InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) {
  std::string r;
  bool repondu = false;
  if (!answers.empty() && answers.front().kind == Answer::Kind::Input) {
    r = answers.front().text;
    answers.pop_front();
    repondu = true;
  }
  prompts.push_back(invite);
  out_ << "{\"ev\":\"input\",\"prompt\":" << Json(invite) << ",\"title\":" << Json(titre)
       << ",\"default\":" << Json(defaut) << ",\"answer\":" << Json(r) << (repondu ? "" : ",\"unanswered\":true")
       << "}\n";
  return r;
}

void HeadlessWindow::Beep() {
  ++beeps;
  out_ << "{\"ev\":\"beep\"}\n";
}

void HeadlessWindow::ClipboardSetText(const std::string& t) {
  clipboard_ = t;
  out_ << "{\"ev\":\"clipboard\",\"text\":" << Json(t) << "}\n";
}

std::string HeadlessWindow::FileDialog(const char* ev, const std::string& titre, const std::string& filtre,
                                       const std::string& dossier, const std::string& nom) {
  std::string r;
  bool repondu = false;
  if (!answers.empty() && answers.front().kind == Answer::Kind::File) {
    r = answers.front().text;
    answers.pop_front();
    repondu = true;
    // A bare name is picked in the folder the dialog opened on, as a user would.
    if (!r.empty() && !CheminNatif(r).is_absolute()) r = dossier + r;
  }
  out_ << "{\"ev\":\"" << ev << "\",\"title\":" << Json(titre) << ",\"filter\":" << Json(filtre)
       << ",\"folder\":" << JsonUtf8(dossier) << ",\"name\":" << Json(nom) << ",\"answer\":" << JsonUtf8(r)
       << (repondu ? "" : ",\"unanswered\":true") << "}\n";
  return r;
}

std::string HeadlessWindow::OpenFileDialog(const std::string& t, const std::string& f, const std::string& d,
                                           const std::string& n) {
  return FileDialog("open_dialog", t, f, d, n);
}

std::string HeadlessWindow::SaveFileDialog(const std::string& t, const std::string& f, const std::string& d,
                                           const std::string& n) {
  return FileDialog("save_dialog", t, f, d, n);
}

std::optional<Police> HeadlessWindow::FontDialog(const Police& actuelle) {
  std::optional<Police> r;
  if (!answers.empty() && answers.front().kind == Answer::Kind::Font) {
    r = Police{answers.front().text, answers.front().size};
    answers.pop_front();
  }
  out_ << "{\"ev\":\"font_dialog\",\"current\":" << Json(actuelle.nom) << ",\"size\":" << actuelle.taille
       << ",\"answer\":" << (r ? Json(r->nom + " " + std::to_string(r->taille)) : std::string("null"))
       << (r ? "" : ",\"unanswered\":true") << "}\n";
  return r;
}

void HeadlessWindow::Quit() {
  if (!quit) out_ << "{\"ev\":\"quit\"}\n";
  quit = true;
}

bool HeadlessWindow::CaretOnFirstRow() const {
  const TextField& f = rtbVisible_ ? rtb : txt;
  return f.Line() == 1;
}

bool HeadlessWindow::CaretOnLastRow() const {
  const TextField& f = rtbVisible_ ? rtb : txt;
  return f.Text().find('\n', f.Caret()) == std::string::npos;
}

}  // namespace lex::headless
