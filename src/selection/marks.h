// Selection and addition marks: words appended to an entry's index line in memory, so that
// the screen reader speaks them with the line.
#pragma once
#include <string>
#include <string_view>

#include "data/index_table.h"
#include "selection/selections.h"

namespace lex {

// The index line carrying the selection mark.
std::string AvecMarqueSelection(std::string_view texte);
// The index line carrying the addition mark.
std::string AvecMarqueAjout(std::string_view texte);
// Put the marks of catalogue entry `dictio` back on its index table after it was (re)loaded.
void TestAjout(IndexTable& t, const Selections& s, int dictio);
void TestSelection(IndexTable& t, const Selections& s, int dictio);

}  // namespace lex
