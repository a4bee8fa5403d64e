// Tab-separated text on any bytes, made into a dictionary file. Either the file is refused (a
// French reason, and no dictionary file left) or the dictionary is one the program reads as
// it was meant: CR LF after every line and nowhere else, one empty line between two articles,
// as many articles as were read, index lines neither blank nor too long, in the program's
// order.
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "data/article_order.h"
#include "exchange/dictionary_writer.h"
#include "exchange/tab_separated.h"
#include "fuzz_folder.h"

namespace {

void Verifie(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // The dictionary is written as the user's files are, forced to the disk: in memory that
  // costs nothing.
  if (std::filesystem::is_directory("/dev/shm")) setenv("TMPDIR", "/dev/shm", 1);
  return 0;
}

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
    Verifie(!x.probleme().empty() && x.fichier() == source);
    Verifie(!std::filesystem::exists(cible));
    return 0;
  }
  Verifie(bilan.articles == lus && lus > 0);

  std::string octets;
  {
    FILE* f = std::fopen(cible.c_str(), "rb");
    Verifie(f != nullptr);
    char tampon[4096];
    for (std::size_t n; (n = std::fread(tampon, 1, sizeof tampon, f)) > 0;) octets.append(tampon, n);
    std::fclose(f);
  }
  Verifie(octets.ends_with("\r\n") && octets.find('\0') == std::string::npos);
  std::size_t articles = 0;
  bool index = true, vide = false;
  std::string precedent;
  for (std::size_t p = 0; p < octets.size();) {
    const std::size_t fin = octets.find("\r\n", p);
    const std::string_view ligne(octets.data() + p, fin - p);
    Verifie(ligne.find_first_of("\r\n") == std::string_view::npos);
    if (ligne.empty()) {
      Verifie(!index && !vide);  // one empty line, between two articles
      index = vide = true;
    } else if (index) {
      Verifie(ligne.size() <= EcrivainDictionnaire::kLongueurIndex);
      Verifie(ligne.find_first_not_of(" \t\xA0") != std::string_view::npos);
      if (articles > 0) Verifie(!AvantDans(ClesDe(ligne), ClesDe(precedent)));
      precedent = ligne;
      ++articles;
      index = vide = false;
    }
    p = fin + 2;
  }
  Verifie(!vide && articles == lus);
  return 0;
}
