// Tab-separated text on any bytes, made into a dictionary file. Either the file is refused (a
// French reason, and no dictionary file left) or the dictionary is one the program reads as
// it was meant: CR LF after every line and nowhere else, one empty line between two articles,
// as many articles as were read, index lines neither blank nor too long, in the program's
// order.
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "exchange/dictionary_writer.h"
#include "exchange/tab_separated.h"
#include "fuzz_dictionary.h"
#include "fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lex;
  using namespace lex::exchange;
  const std::string source = fuzz::Ecrit("mots.txt", std::string_view(reinterpret_cast<const char*>(data), size));
  const std::string cible = fuzz::Dossier() + "mots.dic";
  std::filesystem::remove(cible);
  std::size_t lus = 0;
  BilanEcriture bilan;
  try {
    EcrivainDictionnaire e(source);
    LitTabulations(source, [&](ArticleImporte&& a) {
      ++lus;
      e.Ajoute(std::move(a));
    });
    bilan = e.Ecrit(cible);
  } catch (const ErreurImport& x) {
    fuzz::Verifie(!x.probleme().empty() && x.fichier() == source);
    fuzz::Verifie(!std::filesystem::exists(cible));
    return 0;
  }
  fuzz::Verifie(bilan.articles == lus && lus > 0);
  fuzz::Verifie(fuzz::ArticlesDuDictionnaire(cible, true).size() == lus);
  return 0;
}
