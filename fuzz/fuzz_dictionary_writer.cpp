// Articles of any bytes given straight to the dictionary writer, as a reader of any format
// would give them: byte 1 ends an article, byte 2 a line; the first byte chooses the order.
// Either an article is refused, naming it, and no file is written, or each article of the
// file is its source folded to Windows-1252 (empty lines left out), in the source's order or
// sorted, none lost.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/dictionary_writer.h"
#include "exchange/unicode_fold.h"
#include "fuzz_dictionary.h"
#include "fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lex;
  using namespace lex::exchange;
  if (size == 0) return 0;
  const bool trie = data[0] & 1;
  const std::string_view octets(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::vector<ArticleImporte> articles;
  std::vector<std::string> attendus;  // each article as the file should hold it
  ReplieurAnsi replieur;
  for (std::size_t p = 0; p <= octets.size();) {
    std::size_t fin = octets.find('\x01', p);
    if (fin == std::string_view::npos) fin = octets.size();
    ArticleImporte a;
    std::string attendu;
    bool premiere = true;
    for (std::size_t q = p; q <= fin;) {
      std::size_t f = octets.find('\x02', q);
      if (f == std::string_view::npos || f > fin) f = fin;
      const std::string ligne(octets.substr(q, f - q));
      const std::string ansi = replieur.Replie(ligne);
      if (premiere) {
        a.index = ligne;
        attendu = ansi;
      } else {
        a.definition.push_back(ligne);
        if (!ansi.empty()) attendu += "\r\n" + ansi;
      }
      premiere = false;
      q = f + 1;
    }
    articles.push_back(std::move(a));
    attendus.push_back(std::move(attendu));
    p = fin + 1;
  }

  const std::string cible = fuzz::Dossier() + "sortie.dic";
  std::filesystem::remove(cible);
  try {
    EcrivainDictionnaire e("source");
    for (auto& a : articles) e.Ajoute(std::move(a));
    const BilanEcriture b = e.Ecrit(cible, trie ? EcrivainDictionnaire::Ordre::Alphabetique
                                                : EcrivainDictionnaire::Ordre::Source);
    fuzz::Verifie(b.articles == attendus.size() && b.changes == replieur.Changes());
  } catch (const ErreurImport& x) {
    fuzz::Verifie(x.fichier() == "source" && x.endroit().starts_with("entr\xC3\xA9" "e ") && !x.probleme().empty());
    fuzz::Verifie(!std::filesystem::exists(cible));
    return 0;
  }
  std::vector<std::string> lus = fuzz::ArticlesDuDictionnaire(cible, trie);
  if (trie) {
    std::sort(lus.begin(), lus.end());
    std::sort(attendus.begin(), attendus.end());
  }
  fuzz::Verifie(lus == attendus);
  return 0;
}
