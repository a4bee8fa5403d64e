// lex-headless --dir FOLDER [SCRIPT]: the program in a scripted window, for automation and
// tests. Commands come from SCRIPT or standard input; events go to standard output as JSON.
#include <fstream>
#include <iostream>
#include <string>

#include "app/headless/script.h"

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
  // The folder stays the system's own path.
  if (script.empty()) return lex::headless::RunScript(dossier, std::cin, std::cout);
  std::ifstream in(script, std::ios::binary);
  if (!in) {
    std::cerr << "lex-headless: cannot read " << script << "\n";
    return 2;
  }
  return lex::headless::RunScript(dossier, in, std::cout);
}
