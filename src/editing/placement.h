// Where a typed article goes in the open dictionary.
#pragma once
#include <cstdint>

#include "data/article_order.h"
#include "data/open_dictionary.h"
#include "selection/selections.h"

namespace lex {

// In a dictionary kept in alphabetical order: the entry before which the article of keys
// `cles` goes, the first one other than `sauf` for which RangeArticle is true on its index
// line as the file holds it; the count + 1 when none is. Marks and the index file's
// 70-character cut do not change the answer: such lines are read from the file.
std::int32_t PlaceAlphabetique(const DictionnaireOuvert& dico, const Selections& s, int dictio,
                               const ClesArticle& cles, std::int32_t sauf);

}  // namespace lex
