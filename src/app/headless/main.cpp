// lex-headless --dir FOLDER [SCRIPT]: the program in a scripted window, for automation and
// tests. Commands come from SCRIPT or standard input; events go to standard output as JSON.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "app/headless/script.h"
#include "data/files.h"

int main(int argc, char** argv) {
  std::string dossier, script;
  for (int i = 1; i < argc; ++i) {
    std::string a = argv[i];
    if (a == "--dir" && i + 1 < argc) dossier = argv[++i];
    else if (script.empty() && a.rfind("--", 0) != 0) script = a;
    else {
      std::cerr << "usage: lex-headless --dir FOLDER [SCRIPT]\n";
      return 2;
    }
  }
  if (dossier.empty()) {
    std::cerr << "usage: lex-headless --dir FOLDER [SCRIPT]\n";
    return 2;
  }
  std::ifstream in;
  if (!script.empty()) {
    in.open(script, std::ios::binary);
    if (!in) {
      std::cerr << "lex-headless: cannot read " << script << "\n";
      return 2;
    }
  }
  // The program works in its own folder, as its shortcut starts it: a relative path typed in
  // an input box is taken there, never where the script happened to be run from. The folder
  // stays the system's own path.
  std::error_code ec;
  const auto absolu = std::filesystem::absolute(lex::CheminNatif(dossier), ec);
  if (!ec && std::filesystem::is_directory(absolu, ec)) {
    dossier = lex::NomDepuisNatif(absolu);
    std::filesystem::current_path(absolu, ec);
  }
  return lex::headless::RunScript(dossier, script.empty() ? std::cin : in, std::cout);
}
