// Which entries of the open dictionary another dictionary lacks. Entries are compared by
// their keys folded with Sansaccent: "Été" and "ETE" are one entry, "chat (n.)" and "chat"
// two. The key is taken from what an index keeps of each entry, SansaccentEpure of its index
// line cut at the index file's field width; Sansaccent of that key is Sansaccent of the line,
// and both sides being cut alike, a dictionary compared with itself lacks nothing, long
// index lines included. The entry's text is not used: the marks a selection adds to it would
// make a marked entry look missing.
#pragma once
#include <functional>
#include <string_view>
#include <vector>

#include "data/open_dictionary.h"
#include "reports/other_index.h"

namespace lex {

// The compared form of an index key: its first kTailleChamp characters, blanks of a padded
// field included, without what Sansaccent removes and SansaccentEpure keeps (brackets, commas,
// plus signs). On a key SansaccentEpure made, that is exactly what Sansaccent makes of it, at
// a fraction of the cost of folding every character again. `tampon` holds kTailleChamp
// characters.
std::string_view CleComparee(std::string_view cleIndex, char* tampon);

struct Comparaison {
  LectureIndex etat = LectureIndex::Lue;
  // When the other index was read: the entries of the open dictionary it lacks, in the
  // dictionary's order, as a result list names them.
  std::vector<EntreeTrouvee> absents;
};

// Compares `dico` with the dictionary whose index file is `fichierIndex` (whose dictionary is
// now `tailleDictio` bytes long); `bip` every 5000 entries of `dico`. The other index is read
// on a second thread while the open dictionary's keys are made on this one.
Comparaison CompareAvecIndex(const DictionnaireOuvert& dico, std::string_view fichierIndex, std::int64_t tailleDictio,
                             const std::function<void()>& bip);

}  // namespace lex
