// Changing a few articles of a dictionary whose index is in memory: the new file is the old
// one's byte ranges between the changes, copied without looking at them, and the new
// articles; the index follows by shifting offsets, not by scanning the file again.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/article_merge.h"
#include "data/index_table.h"
#include "data/safe_write.h"

namespace lex {

// Entries removed and articles inserted, named by the entry numbers before the change.
struct Retouche {
  struct Insertion {
    std::int32_t avant = 1;  // the entry it goes before; the count + 1 is the end
    std::string texte;       // its lines joined by CR LF, no line end after the last
    std::int32_t remplace = 0;  // the removed entry whose article this is, changed
  };
  std::vector<std::int32_t> retires;  // ascending
  std::vector<Insertion> inseres;     // by `avant`, ascending; equal ones in the order given
};

// What the new file is made of, in order, for the index to follow.
struct Recomposition {
  Changement changement;
  std::vector<IndexTable::Morceau> morceaux;  // new entries' texts point into the Retouche
  std::int64_t taille = 0;
};

// Writes the dictionary `source`, indexed in `table`, with the change into `cible`. An empty
// line stands between articles; the file ends with a line end after the last. Error 9 when
// the change names an entry the table lacks; the file is read by its offsets in the table,
// which must describe it. Does not validate `cible`.
Recomposition EcritRetouche(std::string_view source, EcritureSure& cible, const IndexTable& table,
                            const Retouche& r);

// The index line of an article's text: its first line.
std::string_view LigneIndexDe(std::string_view texte);

}  // namespace lex
