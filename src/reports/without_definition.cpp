#include "reports/without_definition.h"

#include <algorithm>

#include "data/files.h"
#include "reports/block_reader.h"

namespace lex {
namespace {

bool FinDeLigne(char c) { return c == '\r' || c == '\n'; }

// Whether the article whose index line starts at `debut`, and which ends at `fin`, holds only
// line ends after that line. A file that ends before `fin` (changed since it was indexed)
// tells nothing: the entry is not listed.
bool RienApresIndex(LecteurBlocs& lecteur, std::int64_t debut, std::int64_t fin) {
  bool dansIndex = true;
  for (std::int64_t p = debut; p < fin;) {
    std::string_view v = lecteur.Depuis(p);
    if (v.empty()) return false;
    v = v.substr(0, static_cast<std::size_t>(std::min<std::int64_t>(static_cast<std::int64_t>(v.size()), fin - p)));
    std::size_t k = 0;
    if (dansIndex) {
      while (k < v.size() && !FinDeLigne(v[k])) ++k;
      dansIndex = k == v.size();
    }
    for (; k < v.size(); ++k)
      if (!FinDeLigne(v[k])) return false;
    p += static_cast<std::int64_t>(v.size());
  }
  return true;
}

}  // namespace

std::vector<EntreeTrouvee> IndexSansDefinition(const DictionnaireOuvert& dico, const std::function<void()>& bip,
                                               std::size_t bloc) {
  const IndexTable& table = dico.TableIndex;
  // The dictionary's own index, whatever list the page shows: its extents are the articles'.
  const ListeAffichee index(dico);
  std::vector<EntreeTrouvee> trouvees;
  Fichier f = OuvrirFichier(dico.fichiers.dictio);
  LecteurBlocs lecteur(f.get(), bloc);
  int compteur = 0;
  for (std::int32_t i = 1; i <= table.NombreArticle(); ++i) {
    if (++compteur == 1000) {
      bip();
      compteur = 0;
    }
    if (!RienApresIndex(lecteur, table.position(i), table.position(i + 1))) continue;
    const Etendue e = index.EtendueArticle(i);
    trouvees.push_back({i, static_cast<std::int32_t>(e.debut), static_cast<std::int32_t>(e.fin)});
  }
  return trouvees;
}

}  // namespace lex
