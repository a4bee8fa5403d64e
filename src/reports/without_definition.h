// The entries whose article says nothing after its index line.
#pragma once
#include <cstddef>
#include <functional>
#include <vector>

#include "data/open_dictionary.h"

namespace lex {

// The entries of `dico` whose article holds nothing but line ends after its index line (a
// line of blanks is text, as everywhere in a dictionary), in the dictionary's order, as a
// result list names them; `bip` every 1000 entries. The dictionary file is read once, forward,
// in blocks of `bloc` bytes, the table's offsets telling where each article starts and ends.
std::vector<EntreeTrouvee> IndexSansDefinition(const DictionnaireOuvert& dico, const std::function<void()>& bip,
                                               std::size_t bloc = std::size_t{1} << 20);

}  // namespace lex
