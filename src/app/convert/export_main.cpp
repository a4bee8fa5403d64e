// lex-export: a dictionary of LEX written as StarDict (with its .dict.dz at random access) or
// as tab-separated UTF-8 text, which lex-import and other readers take. The work is in the
// exchange floor; this reads the command line and tells the user, in French, what was done.
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/convert/failure.h"
#include "exchange/export.h"

namespace {

using namespace lex;
using namespace lex::exchange;

int Usage(const std::string& pourquoi) {
  std::cerr << "lex-export : " << pourquoi << "\n"
            << "usage : lex-export --format stardict DICTIONNAIRE BASE   (\xC3\xA9" "crit BASE.ifo, BASE.idx, BASE.dict.dz)\n"
               "        lex-export --format tab DICTIONNAIRE FICHIER.txt\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::string format;
  std::vector<std::string> libres;
  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    if (a == "--format") {
      if (i + 1 >= argc) return Usage("valeur manquante apr\xC3\xA8s --format");
      format = argv[++i];
    } else if (a.starts_with("--")) {
      return Usage("option inconnue : " + std::string(a));
    } else {
      libres.emplace_back(a);
    }
  }
  if (format.empty()) return Usage("--format manque (stardict ou tab)");
  if (format != "stardict" && format != "tab") return Usage("format inconnu : " + format + " (stardict ou tab)");
  if (libres.size() != 2) return Usage("il faut un DICTIONNAIRE et une SORTIE");
  return lex::convert::Execute("lex-export", [&] {
    const BilanExport bilan =
        format == "stardict" ? ExporteStarDict(libres[0], libres[1]) : ExporteTabulations(libres[0], libres[1]);
    std::cout << bilan.articles << (bilan.articles > 1 ? " articles export\xC3\xA9s dans " : " article export\xC3\xA9 dans ");
    for (std::size_t i = 0; i < bilan.fichiers.size(); ++i) std::cout << (i ? ", " : "") << bilan.fichiers[i].string();
    std::cout << "\n";
    return 0;
  });
}
