// The index file reader on any bytes. The input is the index file; the harness writes a
// dictionary of the length record 2 asks for (bounded) and, when the first byte says so,
// puts the version and that dictionary's date where the reader looks for them, so that the
// records themselves are read. A loaded table must keep the promises its readers rely on.
#include <cstdlib>
#include <cstring>
#include <string>

#include "data/index_file.h"
#include "fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const bool enTete = data[0] & 1;
  std::string index(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::int32_t taille = 0;
  if (index.size() >= 2 * lex::kTailleEnreg) std::memcpy(&taille, index.data() + lex::kTailleEnreg + 140, 4);
  taille = static_cast<std::int32_t>(static_cast<std::uint32_t>(taille) % 65536);
  const lex::FichiersIndex f{lex::fuzz::Ecrit("dic.txt", std::string(static_cast<std::size_t>(taille), 'x')),
                             lex::fuzz::Dossier() + "index.dic.txt", lex::fuzz::Dossier() + "lettre.dic.txt"};
  if (enTete && index.size() >= 2 * lex::kTailleEnreg) {
    const std::string date = "T" + std::to_string(lex::LireEtatDictio(f.dictio).date);
    std::memcpy(index.data(), "1.20", 4);
    std::memset(index.data() + lex::kTailleEnreg + 70, ' ', 70);
    std::memcpy(index.data() + lex::kTailleEnreg + 70, date.data(), date.size());
    std::memcpy(index.data() + lex::kTailleEnreg + 140, &taille, 4);
  }
  lex::fuzz::Ecrit("index.dic.txt", index);
  // A letter file that reads, so that a good index is loaded whole.
  static const std::string lettres = [] { return lex::TexteLettres(lex::TableLettre()); }();
  lex::fuzz::Ecrit("lettre.dic.txt", lettres);

  lex::IndexTable table;
  lex::TableLettre l;
  const lex::EtatIndex etat = lex::LireIndex(f, table, l);
  const bool notre = lex::EstFichierIndex(f.index);
  if (etat != lex::EtatIndex::Charge) {
    if (table.NombreArticle() != 0) std::abort();
    return 0;
  }
  if (!notre || table.position(table.NombreArticle() + 1) != taille) std::abort();
  for (std::int32_t i = 1; i <= table.NombreArticle(); ++i) {
    if (table.position(i) >= table.position(i + 1) || table.position(i) < 0) std::abort();
    if (table.texte(i).size() > lex::kTailleChamp || table.cle(i).size() > lex::kTailleChamp) std::abort();
  }
  return 0;
}
