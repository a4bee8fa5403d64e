// Selecting and unselecting entries of the open dictionary: the numbers kept, the marks put
// on its index lines. A selection never spans two dictionaries.
#pragma once
#include <cstdint>

#include "data/article_merge.h"
#include "data/index_table.h"
#include "data/open_dictionary.h"
#include "selection/selections.h"

namespace lex {

// Another dictionary than `dictio` with selected entries, or 0.
int AutreDictioSelectionne(const Selections& s, int dictio);
std::int32_t NombreSelection(const Selections& s, int dictio);

// Each gives false when there was nothing to do: the entry was already selected, or was not.
bool Selectionne(Selections& s, IndexTable& t, int dictio, std::int32_t n);
bool Deselectionne(Selections& s, IndexTable& t, int dictio, std::int32_t n);
// Selects every entry of the list shown (the dictionary's own entries behind a result
// list); gives how many were not selected before.
std::int32_t SelectionneListe(Selections& s, IndexTable& t, int dictio, const ListeAffichee& liste);

// The numbers kept for `dictio` follow their entries through a change of the dictionary; the
// entries inserted join its additions.
void SuitChangement(Selections& s, int dictio, const Changement& ch);

}  // namespace lex
