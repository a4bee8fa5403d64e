// dictd dictionaries (FreeDict, FOLDOC, the Jargon File, GCIDE, WordNet...): an ".index" of
// lines "headword TAB offset TAB length", the numbers in base 64, beside a ".dict" or
// ".dict.dz" holding the entries' text.
#pragma once
#include <filesystem>

#include "exchange/article.h"

namespace lex::exchange {

// Whether `chemin` (the .index, the .dict or .dict.dz, or their common base name) names a
// dictd dictionary: an index whose first line reads as one, and a data file beside it.
bool EstDictd(const std::filesystem::path& chemin);

// Gives each entry of the index as an article, in the order of the data file (several
// headwords of one entry in the order of the index), the databases' "00-database-..." entries
// left out. The index line is the entry's own headword line ("cat /kæt/" gives "cat", and the
// pronunciation becomes the first definition line); a headword named in the block of names
// at the top of an entry (FOLDOC) heads its own article, the other names following it; the
// definition lines are the entry's other non-empty lines, trimmed.
void LitDictd(const std::filesystem::path& chemin, const Recepteur& recepteur);

}  // namespace lex::exchange
