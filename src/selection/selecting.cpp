#include "selection/selecting.h"

#include <algorithm>

#include "base/error.h"
#include "selection/marks.h"

namespace lex {

int AutreDictioSelectionne(const Selections& s, int dictio) {
  for (const auto& [d, numeros] : s.TableSelection)
    if (d != dictio && !numeros.empty()) return d;
  return 0;
}

std::int32_t NombreSelection(const Selections& s, int dictio) {
  auto it = s.TableSelection.find(dictio);
  return it == s.TableSelection.end() ? 0 : static_cast<std::int32_t>(it->second.size());
}

bool Selectionne(Selections& s, IndexTable& t, int dictio, std::int32_t n) {
  std::vector<std::int32_t>& ligne = s.TableSelection[dictio];
  if (std::find(ligne.begin(), ligne.end(), n) != ligne.end()) return false;
  Applique(t, n, MarqueSelection(t.texte(n)));
  ligne.push_back(n);
  return true;
}

bool Deselectionne(Selections& s, IndexTable& t, int dictio, std::int32_t n) {
  std::vector<std::int32_t>& ligne = s.TableSelection[dictio];
  auto it = std::find(ligne.begin(), ligne.end(), n);
  if (it == ligne.end()) return false;
  ligne.erase(it);
  Applique(t, n, SansMarqueSelection(t.texte(n)));
  return true;
}

std::int32_t SelectionneListe(Selections& s, IndexTable& t, int dictio, const ListeAffichee& liste) {
  ErrorTrap trap(" sur selectionTout_click");
  std::vector<std::int32_t>& ligne = s.TableSelection[dictio];
  // One pass whatever the count: a million entries are looked up in a table of flags, not
  // in the list of those already selected.
  std::vector<bool> deja(static_cast<std::size_t>(t.NombreArticle()) + 1);
  for (std::int32_t n : ligne)
    if (n >= 1 && n <= t.NombreArticle()) deja[static_cast<std::size_t>(n)] = true;
  const std::int32_t nombre = liste.Nombre();
  ligne.reserve(ligne.size() + static_cast<std::size_t>(nombre));
  std::size_t octets = 0;
  for (std::int32_t i = 1; i <= nombre; ++i) octets += t.texte(liste.NumeroDictio(i)).size() + t.cle(liste.NumeroDictio(i)).size() + 12;
  t.ReserverChangements(octets);
  std::int32_t ajoutes = 0;
  for (std::int32_t i = 1; i <= nombre; ++i) {
    const std::int32_t n = liste.NumeroDictio(i);
    if (deja[static_cast<std::size_t>(n)]) continue;
    deja[static_cast<std::size_t>(n)] = true;
    Applique(t, n, MarqueSelection(t.texte(n)));
    ligne.push_back(n);
    ++ajoutes;
  }
  return ajoutes;
}

void SuitChangement(Selections& s, int dictio, const Changement& ch) {
  for (auto* table : {&s.TableSelection, &s.TableAjout}) {
    auto it = table->find(dictio);
    if (it == table->end()) continue;
    std::vector<std::int32_t>& numeros = it->second;
    for (std::int32_t& n : numeros) n = ch.Nouveau(n);
    // A removed entry leaves the lists.
    std::erase(numeros, 0);
  }
  std::vector<std::int32_t>& ajouts = s.TableAjout[dictio];
  for (std::int32_t n : ch.NumerosNouveaux()) ajouts.push_back(n);
}

}  // namespace lex
