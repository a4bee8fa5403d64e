// Runs one scenario (.lexs) through lex-headless in a fresh program folder.
//   @copy SOURCE NAME        copy SOURCE (relative to tests/) into the folder as NAME
//   @write NAME TEXT         write TEXT (UTF-8, "\n" for a line end) into NAME as Windows-1252
//   => FRAGMENT              a later event line contains FRAGMENT (matched in order)
//   =/> FRAGMENT             no event line up to the next match contains FRAGMENT
//   => file NAME: LINE       after the run, file NAME (Windows-1252) has a line equal to LINE
//   @restart                 the program ends there and lex-headless starts again on the same
//                            folder with the commands that follow, as a user starting it anew
// Any other line is a command for lex-headless, which must end with status 0.
#include <unistd.h>
#include <sys/wait.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "base/encoding.h"
#include "data/files.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: lex-scenario LEX_HEADLESS SCENARIO TESTS_DIR\n";
    return 2;
  }
  const fs::path exe = argv[1], scenario = argv[2], tests = argv[3];
  const std::string nomScenario = scenario.filename().string();
  const fs::path dir = fs::temp_directory_path() / ("lex-scenario-" + scenario.stem().string() + "-" + std::to_string(getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  const auto dans = [&](const std::string& nom) { return dir / fs::path(std::u8string(nom.begin(), nom.end())); };

  struct Attente {
    bool absent;
    std::string fragment;
    int ligne;
  };
  std::vector<Attente> attentes;
  std::vector<std::pair<std::string, std::string>> fichiers;
  std::ifstream in(scenario, std::ios::binary);
  std::string line;
  std::vector<std::string> scripts(1);
  for (int numero = 1; std::getline(in, line); ++numero) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto sp = line.find(' ', line.find(' ') + 1);  // after a directive's first argument
    if (line.rfind("@copy ", 0) == 0) {
      fs::copy_file(tests / line.substr(6, sp - 6), dans(line.substr(sp + 1)), fs::copy_options::overwrite_existing);
    } else if (line.rfind("@write ", 0) == 0) {
      std::string texte = sp == std::string::npos ? "" : line.substr(sp + 1);
      for (auto p = texte.find("\\n"); p != std::string::npos; p = texte.find("\\n", p + 2)) texte.replace(p, 2, "\r\n");
      std::ofstream(dans(line.substr(7, sp - 7)), std::ios::binary) << lex::Utf8VersAnsi(texte);
    } else if (line == "@restart") {
      scripts.emplace_back();
    } else if (line.rfind("=> file ", 0) == 0) {
      const auto c = line.find(": ", 8);
      fichiers.emplace_back(line.substr(8, c - 8), c == std::string::npos ? "" : line.substr(c + 2));
    } else if (line.rfind("=> ", 0) == 0 || line.rfind("=/> ", 0) == 0) {
      const bool absent = line[1] == '/';
      attentes.push_back({absent, line.substr(absent ? 4 : 3), numero});
    } else {
      scripts.back() += line + "\n";
    }
  }
  const fs::path events = dir / "events";
  int code = 0;
  for (std::size_t i = 0; i < scripts.size() && code == 0; ++i) {
    const fs::path scriptFile = dir / ("scenario" + std::to_string(i) + ".script");
    std::ofstream(scriptFile, std::ios::binary) << scripts[i];
    const int status = std::system(("\"" + exe.string() + "\" --dir \"" + dir.string() + "\" \"" + scriptFile.string() +
                                    "\" " + (i == 0 ? ">" : ">>") + " \"" + events.string() + "\"").c_str());
    code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::vector<std::string> sortie;
  std::ifstream ev(events, std::ios::binary);
  for (std::string l; std::getline(ev, l);) sortie.push_back(l);

  // Expectations match in order: each one after the end of the previous match, possibly
  // further along the same event line.
  int echecs = 0;
  std::size_t pos = 0, col = 0;
  std::vector<const Attente*> absents;
  auto verifieAbsents = [&](std::size_t jusqua) {
    for (const Attente* x : absents)
      for (std::size_t k = pos; k < jusqua; ++k)
        if (sortie[k].find(x->fragment, k == pos ? col : 0) != std::string::npos) {
          std::cerr << nomScenario << ":" << x->ligne << ": unexpected event: " << sortie[k] << "\n";
          ++echecs;
        }
    absents.clear();
  };
  for (const Attente& a : attentes) {
    if (a.absent) {
      absents.push_back(&a);
      continue;
    }
    std::size_t i = pos, trouve = std::string::npos;
    for (; i < sortie.size(); ++i) {
      trouve = sortie[i].find(a.fragment, i == pos ? col : 0);
      if (trouve != std::string::npos) break;
    }
    verifieAbsents(i);
    if (i == sortie.size()) {
      std::cerr << nomScenario << ":" << a.ligne << ": no event after line " << pos + 1 << " contains: " << a.fragment << "\n";
      ++echecs;
      continue;
    }
    pos = i;
    col = trouve + a.fragment.size();
  }
  verifieAbsents(sortie.size());
  for (const auto& [nom, attendu] : fichiers) {
    const std::string chemin = dans(nom).string();
    const auto lignes = lex::FichierExistant(chemin) ? lex::LireLignes(chemin) : std::vector<std::string>{};
    if (std::none_of(lignes.begin(), lignes.end(), [&](const std::string& l) { return lex::AnsiVersUtf8(l) == attendu; })) {
      std::cerr << nomScenario << ": file " << nom << " has no line: " << attendu << "\n";
      ++echecs;
    }
  }
  if (code != 0) {
    std::cerr << nomScenario << ": exit status " << code << "\n";
    ++echecs;
  }
  if (echecs) {
    std::cerr << "--- events:\n";
    for (const std::string& s : sortie) std::cerr << s << "\n";
    return 1;
  }
  fs::remove_all(dir);
  return 0;
}
