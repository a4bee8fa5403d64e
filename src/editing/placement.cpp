#include "editing/placement.h"

#include <cstdio>
#include <vector>

#include "base/error.h"
#include "data/files.h"
#include "data/index_file.h"

namespace lex {
namespace {

// The entries whose text in memory carries a mark.
std::vector<bool> Marquees(const Selections& s, int dictio, std::int32_t nombre) {
  std::vector<bool> m(static_cast<std::size_t>(nombre) + 1, false);
  for (const auto* table : {&s.TableSelection, &s.TableAjout}) {
    auto it = table->find(dictio);
    if (it == table->end()) continue;
    for (std::int32_t n : it->second)
      if (n >= 1 && n <= nombre) m[static_cast<std::size_t>(n)] = true;
  }
  return m;
}

// The line starting at `position` in the dictionary, without its line end.
std::string LigneDuFichier(std::FILE* f, std::int64_t position) {
  if (std::fseek(f, static_cast<long>(position), SEEK_SET) != 0) Erreur(62);
  std::string ligne;
  for (int c; (c = std::fgetc(f)) != EOF && c != '\n';) ligne += static_cast<char>(c);
  if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
  return ligne;
}

}  // namespace

std::int32_t PlaceAlphabetique(const DictionnaireOuvert& dico, const Selections& s, int dictio,
                               const ClesArticle& cles, std::int32_t sauf) {
  const IndexTable& t = dico.TableIndex;
  const std::int32_t nombre = t.NombreArticle();
  const std::vector<bool> marquees = Marquees(s, dictio, nombre);
  Fichier f;
  for (std::int32_t i = 1; i <= nombre; ++i) {
    if (i == sauf) continue;
    std::string_view texte = t.texte(i);
    std::string ligne;
    if (marquees[static_cast<std::size_t>(i)] || texte.size() >= kTailleChamp) {
      if (!f) f = OuvrirFichier(dico.fichiers.dictio);
      ligne = LigneDuFichier(f.get(), t.position(i));
      texte = ligne;
    }
    if (RangeArticle(texte, cles)) return i;
  }
  return nombre + 1;
}

}  // namespace lex
