#include "app/headless/script.h"

#include <filesystem>
#include <sstream>
#include <vector>

#include "app/headless/headless_window.h"
#include "base/encoding.h"
#include "controller/commands.h"
#include "controller/events.h"
#include "controller/key_route.h"
#include "data/files.h"
#include "view/keys.h"

namespace lex::headless {
namespace {

struct Key {
  int code = 0;
  int shift = 0;
  char ch = 0;  // the character the key types (Windows-1252), 0 for none
};

// The old numbers of the modes, which the scripts' "show" gives.
int NumeroMode(Mode m) {
  switch (m) {
    case Mode::ListeDictionnaires:
    case Mode::ListeHistoire:
    case Mode::ChoixComparaison:
    case Mode::Aide: return 1;
    case Mode::Index:
    case Mode::ListeResultats: return 2;
    case Mode::Article: return 3;
    case Mode::BlocNote: return 2;
    case Mode::CreationDictio:
    case Mode::CreationIndex:
    case Mode::ModificationIndex: return 3;
  }
  return 1;
}

bool ParseKey(std::string name, Key& k) {
  for (;;) {
    if (name.rfind("Ctrl+", 0) == 0 && name.size() > 5) {
      k.shift |= kCtrl;
      name.erase(0, 5);
    } else if (name.rfind("Shift+", 0) == 0 && name.size() > 6) {
      k.shift |= kShift;
      name.erase(0, 6);
    } else if (name.rfind("Alt+", 0) == 0 && name.size() > 4) {
      k.shift |= kAlt;
      name.erase(0, 4);
    } else {
      break;
    }
  }
  static const std::vector<std::pair<std::string, std::pair<int, char>>> noms = {
      {"Up", {Touche::Haut, 0}},          {"Down", {Touche::Bas, 0}},          {"Left", {Touche::Gauche, 0}},
      {"Right", {Touche::Droite, 0}},     {"PageUp", {Touche::PagePrec, 0}},   {"PageDown", {Touche::PageSuiv, 0}},
      {"Home", {Touche::Debut, 0}},       {"End", {Touche::Fin, 0}},           {"Enter", {Touche::Entree, 13}},
      {"Escape", {Touche::Echap, 27}},    {"Backspace", {Touche::Retour, 8}},  {"Delete", {Touche::Suppr, 0}},
      {"Space", {Touche::Espace, ' '}},   {"Tab", {Touche::Tab, 9}},           {"Plus", {Touche::Plus, '+'}},
      {"Minus", {Touche::Moins, '-'}},    {"Add", {Touche::PavePlus, '+'}},    {"Subtract", {Touche::PaveMoins, '-'}}};
  for (const auto& [n, v] : noms)
    if (name == n) {
      k.code = v.first;
      k.ch = v.second;
      return true;
    }
  if (name.size() >= 2 && name.size() <= 3 && name[0] == 'F' &&
      name.find_first_not_of("0123456789", 1) == std::string::npos) {
    const int n = std::stoi(name.substr(1));
    if (n < 1 || n > 12) return false;
    k.code = Touche::F(n);
    return true;
  }
  const std::string ansi = Utf8VersAnsi(name);
  if (ansi.size() != 1) return false;
  const char c = ansi[0];
  k.ch = c;
  if (c >= 'a' && c <= 'z') k.code = c - 32;
  else if (c >= 'A' && c <= 'Z') {
    // "B" is Shift+B, but "Ctrl+B" names the accelerator as menus write it.
    k.code = c;
    if (!(k.shift & (kCtrl | kAlt))) k.shift |= kShift;
  } else if (c >= '0' && c <= '9') k.code = c;
  // The keys of "+" (with "=") and "-" have codes of their own, as on a real keyboard.
  else if (c == '+' || c == '=') k.code = Touche::Plus;
  else if (c == '-') k.code = Touche::Moins;
  return true;
}

// The frame as X writes a geometry: "1024x768" when no place is known yet, "1100x700+10+20",
// and " max" after it when maximised.
std::string Geometrie(const Cadre& c) {
  std::string g = std::to_string(c.largeur) + "x" + std::to_string(c.hauteur);
  if (c.place) g += (c.x < 0 ? "" : "+") + std::to_string(c.x) + (c.y < 0 ? "" : "+") + std::to_string(c.y);
  return c.maximise ? g + " max" : g;
}

const char* NomBouton(Bouton b) {
  switch (b) {
    case Bouton::CmdDic: return "CmdDic";
    case Bouton::CmdDivers: return "CmdDivers";
    case Bouton::CmdQuitter: return "CmdQuitter";
  }
  return "";
}

class Runner {
 public:
  Runner(std::ostream& out, const std::string& dossier) : out_(out), win_(out), form_(win_, win_), dossier_(dossier) {}

  void Load() { EvChargement(form_, dossier_); }
  bool Ended() const { return win_.quit || form_.fenetre.Termine; }

  // Returns false when the line cannot be parsed.
  bool Run(const std::string& line) {
    std::istringstream in(line);
    std::string cmd;
    in >> cmd;
    std::string rest;
    std::getline(in, rest);
    if (!rest.empty() && rest[0] == ' ') rest.erase(0, 1);
    if (cmd == "key") return PressKey(rest);
    if (cmd == "type") {
      for (const char c : Utf8VersAnsi(rest)) {
        if (Ended()) break;
        if (!PressKey(AnsiVersUtf8(std::string(1, c)))) return false;
      }
      return true;
    }
    if (cmd == "menu") {
      const MenuItem* m = MenuParNom(rest);
      if (!m) return false;
      if (MenuActif(form_, m->id)) EvMenu(form_, m->id);
      else out_ << "{\"ev\":\"disabled\",\"menu\":" << Json(rest) << "}\n";
      return true;
    }
    if (cmd == "click") {
      for (Bouton b : {Bouton::CmdDic, Bouton::CmdDivers, Bouton::CmdQuitter})
        if (rest == NomBouton(b)) {
          if (win_.ButtonVisible(b)) EvBouton(form_, b);
          else out_ << "{\"ev\":\"hidden\",\"button\":\"" << rest << "\"}\n";
          return true;
        }
      return false;
    }
    if (cmd == "caret") {
      std::istringstream a(rest);
      long l = 0, c = 0;
      if (!(a >> l >> c) || l < 1 || c < 1) return false;
      win_.Shown().GoTo(static_cast<std::size_t>(l), static_cast<std::size_t>(c));
      return true;
    }
    if (cmd == "answer") return QueueAnswer(rest);
    if (cmd == "mkdir") return MakeFolder(rest);
    if (cmd == "close") {
      EvFermeture(form_);
      return true;
    }
    if (cmd == "frame") {
      // The user moved or resized the window: x y width height, then "max" when maximised.
      std::istringstream a(rest);
      Cadre c;
      std::string max;
      if (!(a >> c.x >> c.y >> c.largeur >> c.hauteur) || c.largeur <= 0 || c.hauteur <= 0) return false;
      if (a >> max && max != "max") return false;
      c.place = true;
      c.maximise = max == "max";
      win_.SetFrame(c);
      return true;
    }
    if (cmd == "show") {
      Show();
      return true;
    }
    return false;
  }

 private:
  bool PressKey(const std::string& name) {
    Key k;
    if (!ParseKey(name, k)) return false;
    const Champ champ = win_.PaneFocused() ? Champ::Rtb : Champ::Txt;
    const SuiteTouche suite = RouteTouche(form_, champ, k.code, k.shift, k.ch ? UnicodeDeAnsi(k.ch) : 0);
    if (suite.auChamp) {
      const char ansi = suite.caractere ? AnsiDeUnicode(suite.caractere) : 0;
      if (ansi == '?' && suite.caractere != U'?' && win_.Shown().editable) win_.Shown().remplace = true;
      win_.Shown().Key(k.code, k.shift, ansi);
    }
    return true;
  }

  // A folder the user made beforehand, inside the program folder and nowhere else.
  bool MakeFolder(const std::string& nom) {
    const std::filesystem::path p = CheminNatif(nom);
    if (nom.empty() || p.is_absolute() || p.has_root_name()) return false;
    for (const auto& partie : p)
      if (partie == "..") return false;
    std::error_code ec;
    std::filesystem::create_directories(CheminNatif(ajoutbackslash(dossier_)) / p, ec);
    return true;
  }

  bool QueueAnswer(const std::string& rest) {
    std::istringstream a(rest);
    std::string kind;
    a >> kind;
    std::string value;
    std::getline(a, value);
    if (!value.empty() && value[0] == ' ') value.erase(0, 1);
    Answer ans;
    if (kind == "Yes" || kind == "No" || kind == "Cancel" || kind == "OK") {
      ans.button = kind == "Yes" ? Reponse::Yes : kind == "No" ? Reponse::No : kind == "OK" ? Reponse::OK : Reponse::Cancel;
    } else if (kind == "input" || kind == "file") {
      ans.kind = kind == "input" ? Answer::Kind::Input : Answer::Kind::File;
      // A path stays the system's (UTF-8); what is typed is program text.
      ans.text = kind == "input" ? Utf8VersAnsi(value) : value;
    } else if (kind == "font") {
      auto sp = value.rfind(' ');
      if (sp == std::string::npos) return false;
      ans.kind = Answer::Kind::Font;
      ans.text = Utf8VersAnsi(value.substr(0, sp));
      ans.size = std::atoi(value.c_str() + sp + 1);
      if (ans.size <= 0) return false;
    } else {
      return false;
    }
    win_.answers.push_back(ans);
    return true;
  }

  void Show() {
    TextField& shown = win_.Shown();
    auto b = [&](Bouton x) {
      return Json(win_.GetButtonCaption(x)) + ",\"" + NomBouton(x) + "_visible\":" + (win_.ButtonVisible(x) ? "true" : "false");
    };
    out_ << "{\"ev\":\"state\",\"mode\":" << NumeroMode(form_.fenetre.ModeCourant()) << ",\"title\":" << Json(win_.Title())
         << ",\"message\":" << Json(win_.Message()) << ",\"txt\":" << Json(win_.txt.Text())
         << ",\"caret_line\":" << shown.Line() << ",\"caret_col\":" << shown.Column()
         << ",\"line\":" << Json(shown.CurrentLine()) << ",\"rtb_visible\":" << (win_.IsPaneVisible() ? "true" : "false")
         << ",\"rtb\":" << Json(win_.rtb.Text()) << ",\"CmdDic\":" << b(Bouton::CmdDic)
         << ",\"CmdDivers\":" << b(Bouton::CmdDivers) << ",\"CmdQuitter\":" << b(Bouton::CmdQuitter)
         << ",\"frame\":" << Json(Geometrie(win_.GetFrame())) << ",\"font_size\":" << win_.Font().taille << "}\n";
  }

  std::ostream& out_;
  HeadlessWindow win_;
  Form form_;
  std::string dossier_;
};

// What a script may do before the program starts: answer the questions that start-up may
// ask, and make the folders a user would have made beforehand.
bool AvantLeDemarrage(const std::string& line) {
  return line.rfind("answer ", 0) == 0 || line == "answer" || line.rfind("mkdir ", 0) == 0;
}

}  // namespace

int RunScript(const std::string& dossierProgramme, std::istream& script, std::ostream& out) {
  Runner r(out, dossierProgramme);
  bool demarre = false;
  std::string line;
  int numero = 0;
  while (std::getline(script, line)) {
    ++numero;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    if (!demarre && !AvantLeDemarrage(line)) {
      r.Load();
      demarre = true;
    }
    if (r.Ended()) continue;
    if (!r.Run(line)) {
      out << "{\"ev\":\"error\",\"line\":" << numero << ",\"text\":" << Json(Utf8VersAnsi(line)) << "}\n";
      out.flush();
      return 2;
    }
    out.flush();
  }
  if (!demarre) r.Load();
  return 0;
}

}  // namespace lex::headless
