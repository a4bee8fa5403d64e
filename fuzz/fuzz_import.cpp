// A text file to import, and a number file, on any bytes. Every article read back is one
// article of the dictionary it is merged into: a first line with its cut character, no empty
// line, every LF after a CR; the dictionary's own articles all stay. Number files give
// entries of the dictionary only, each once.
#include <cstdlib>
#include <string>
#include <string_view>

#include "data/article_merge.h"
#include "data/index_file.h"
#include "fuzz_folder.h"
#include "selection/number_files.h"
#include "selection/text_import.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lex;
  const std::string_view octets(reinterpret_cast<const char*>(data), size);
  const std::string import = fuzz::Ecrit("maj.txt", octets);
  const Importation imp = LireImportation(import, [] {});
  if (imp.cles.size() != imp.articles.size()) std::abort();
  LecteurArticles lecteur(import, imp.utf8);
  for (std::size_t i = 0; i < imp.articles.size(); ++i) {
    const std::string texte = lecteur.Texte(imp.articles[i]);
    const std::string_view premiere = std::string_view(texte).substr(0, texte.find("\r\n"));
    if (texte.empty() || Coupe(premiere) == std::string_view::npos) std::abort();
    if (texte.find("\r\n\r\n") != std::string::npos || texte.ends_with("\r\n")) std::abort();
    for (std::size_t p = 0; p < texte.size(); ++p)
      if (texte[p] == '\n' && (p == 0 || texte[p - 1] != '\r')) std::abort();
    if (i > 0 && AvantDans(imp.cles[i], imp.cles[i - 1])) std::abort();
  }

  const std::string dictio = fuzz::Ecrit("d.lex", "b\r\nB\r\n\r\nm\r\nM\r\n");
  const std::string fusion = fuzz::Dossier() + "m.lex";
  {
    EcritureSure cible(fusion, Donnees::Reconstructible);
    const Changement ch =
        FusionneArticles(dictio, cible, imp.cles, [&](std::size_t i) { return lecteur.Texte(imp.articles[i]); });
    cible.Valider();
    if (ch.inseresAvant.size() != imp.cles.size()) std::abort();
  }
  IndexTable table;
  TableLettre lettres;
  ConstruireTables(fusion, table, lettres, [] {});
  if (table.NombreArticle() != static_cast<std::int32_t>(imp.cles.size()) + 2) std::abort();

  const NumerosLus lus = LireNumeros(import, 50);
  std::vector<bool> vu(51);
  for (std::int32_t n : lus.numeros) {
    if (n < 1 || n > 50 || vu[static_cast<std::size_t>(n)]) std::abort();
    vu[static_cast<std::size_t>(n)] = true;
  }
  return 0;
}
