// Runs one scenario (.lexs) through lex-headless in a fresh program folder.
//   @copy SOURCE NAME        copy SOURCE (relative to tests/) into the folder as NAME
//   @write NAME TEXT         write TEXT (UTF-8, "\n" for a line end) into NAME as Windows-1252
//   => FRAGMENT              a later event line contains FRAGMENT (matched in order)
//   =/> FRAGMENT             no event line up to the next match contains FRAGMENT
//   => file NAME: LINE       after the run, file NAME (Windows-1252) has a line equal to LINE
//   => exit N                the exit status
// Any other line is a command for lex-headless.
#include <cstdio>
#include <unistd.h>
#include <sys/wait.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/encoding.h"
#include "data/files.h"

namespace fs = std::filesystem;

namespace {
std::string Decode(std::string s) {
  std::string o;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '\\' && i + 1 < s.size() && s[i + 1] == 'n') {
      o += "\r\n";
      ++i;
    } else {
      o += s[i];
    }
  }
  return o;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: lex-scenario LEX_HEADLESS SCENARIO TESTS_DIR\n";
    return 2;
  }
  const fs::path exe = argv[1], scenario = argv[2], tests = argv[3];
  const fs::path dir = fs::temp_directory_path() / ("lex-scenario-" + scenario.stem().string() + "-" + std::to_string(getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  std::ifstream in(scenario, std::ios::binary);
  std::string line, script;
  struct Attente {
    bool absent;
    std::string fragment;
    int ligne;
  };
  std::vector<Attente> attentes;
  std::vector<std::pair<std::string, std::string>> fichiers;
  int sortieAttendue = 0, numero = 0;
  while (std::getline(in, line)) {
    ++numero;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.rfind("@copy ", 0) == 0) {
      std::istringstream a(line.substr(6));
      std::string src, name;
      a >> src;
      std::getline(a, name);
      name.erase(0, name.find_first_not_of(' '));
      fs::copy_file(tests / src, dir / fs::path(std::u8string(name.begin(), name.end())), fs::copy_options::overwrite_existing);
    } else if (line.rfind("@write ", 0) == 0) {
      std::string rest = line.substr(7);
      auto sp = rest.find(' ');
      std::string name = rest.substr(0, sp), text = sp == std::string::npos ? "" : Decode(rest.substr(sp + 1));
      std::ofstream(dir / fs::path(std::u8string(name.begin(), name.end())), std::ios::binary) << lex::Utf8VersAnsi(text);
    } else if (line.rfind("=> file ", 0) == 0) {
      auto c = line.find(": ", 8);
      fichiers.emplace_back(line.substr(8, c - 8), c == std::string::npos ? "" : line.substr(c + 2));
    } else if (line.rfind("=> exit ", 0) == 0) {
      sortieAttendue = std::atoi(line.c_str() + 8);
    } else if (line.rfind("=> ", 0) == 0) {
      attentes.push_back({false, line.substr(3), numero});
    } else if (line.rfind("=/> ", 0) == 0) {
      attentes.push_back({true, line.substr(4), numero});
    } else {
      script += line + "\n";
    }
  }
  const fs::path scriptFile = dir / "scenario.script";
  std::ofstream(scriptFile, std::ios::binary) << script;
  const std::string cmd = "\"" + exe.string() + "\" --dir \"" + dir.string() + "\" \"" + scriptFile.string() + "\"";
  FILE* p = popen(cmd.c_str(), "r");
  std::vector<std::string> sortie;
  char buf[1 << 16];
  std::string courant;
  while (std::fgets(buf, sizeof buf, p)) {
    courant += buf;
    if (!courant.empty() && courant.back() == '\n') {
      courant.pop_back();
      sortie.push_back(courant);
      courant.clear();
    }
  }
  const int status = pclose(p);
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;

  // Expectations match in order: each one after the end of the previous match, possibly
  // further along the same event line.
  int echecs = 0;
  std::size_t pos = 0, col = 0;
  std::vector<const Attente*> absents;
  auto verifieAbsents = [&](std::size_t jusqua) {
    for (const Attente* x : absents)
      for (std::size_t k = pos; k < jusqua; ++k)
        if (sortie[k].find(x->fragment, k == pos ? col : 0) != std::string::npos) {
          std::cerr << scenario.filename().string() << ":" << x->ligne << ": unexpected event: " << sortie[k] << "\n";
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
      std::cerr << scenario.filename().string() << ":" << a.ligne << ": no event after line " << pos + 1
                << " contains: " << a.fragment << "\n";
      ++echecs;
      continue;
    }
    pos = i;
    col = trouve + a.fragment.size();
  }
  verifieAbsents(sortie.size());
  for (const auto& [nom, attendu] : fichiers) {
    const std::string chemin = (dir / fs::path(std::u8string(nom.begin(), nom.end()))).string();
    bool trouve = false;
    if (lex::FichierExistant(chemin))
      for (const std::string& l : lex::LireLignes(chemin)) trouve = trouve || lex::AnsiVersUtf8(l) == attendu;
    if (!trouve) {
      std::cerr << scenario.filename().string() << ": file " << nom << " has no line: " << attendu << "\n";
      ++echecs;
    }
  }
  if (code != sortieAttendue) {
    std::cerr << scenario.filename().string() << ": exit status " << code << ", expected " << sortieAttendue << "\n";
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
