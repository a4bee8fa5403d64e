// Selection and addition marks: words appended to an entry's index line in memory, so that
// the screen reader speaks them with the line.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

#include "data/index_table.h"
#include "selection/selections.h"

namespace lex {

// A marked text: the first `garde` characters of the old one, then `mot`.
struct Marque {
  std::size_t garde;
  std::string_view mot;
};

// The index line carrying the selection mark.
Marque MarqueSelection(std::string_view texte);
// The index line carrying the addition mark.
Marque MarqueAjout(std::string_view texte);
// The index line without its selection mark (an entry both selected and added keeps the
// addition mark); the whole line when it carries none.
Marque SansMarqueSelection(std::string_view texte);
void Applique(IndexTable& t, std::int32_t n, Marque m);

// Put the marks of catalogue entry `dictio` back on its index table after it was (re)loaded.
void TestAjout(IndexTable& t, const Selections& s, int dictio);
void TestSelection(IndexTable& t, const Selections& s, int dictio);
// The same for the entries `numeros` alone, whose texts were just read afresh.
void MarqueEntrees(IndexTable& t, const Selections& s, int dictio, const std::vector<std::int32_t>& numeros);

}  // namespace lex
