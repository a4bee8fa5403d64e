// The keys of another dictionary's index file, read whole for a comparison: its header first,
// which says whether the file can be read and how many entries it holds, then its records in
// big blocks, of which nothing is kept but the compared keys.
#pragma once
#include <cstdint>
#include <string_view>

#include "reports/key_parts.h"

namespace lex {

enum class LectureIndex {
  Lue,       // every entry's key is in the set
  Absente,   // the file cannot be opened
  Version,   // another version of the format: the comparison ends without a word
  ARefaire,  // cut short, damaged, or made before its dictionary last changed
};

struct EnTeteIndex {
  LectureIndex etat = LectureIndex::Absente;
  std::int32_t nombre = 0;  // the entries, when it can be read
};

// The header of index file `fichierIndex`. `tailleDictio` is the present length of the
// dictionary the index was made from: an index that recorded another one no longer tells what
// that dictionary holds. So does one whose records are not exactly as many as it counts.
EnTeteIndex LireEnTeteIndex(std::string_view fichierIndex, std::int64_t tailleDictio);

// The compared keys (reports/comparison.h) of `nombre` entries from entry `premier` + 1 on
// (records `premier` + 3 ...), into `cles`; false when the file no longer holds them all.
// Several slices may be read at once, each into its own set.
bool LireClesIndex(std::string_view fichierIndex, std::int32_t premier, std::int32_t nombre, ClesReparties& cles);

}  // namespace lex
