// Selection and addition marks: words appended to an entry's index line in memory, so that
// the screen reader speaks them with the line.
#pragma once
#include <string>
#include <string_view>

namespace lex {

struct Form;

// The index line carrying the selection mark.
std::string AvecMarqueSelection(std::string_view texte);
// The index line carrying the addition mark.
std::string AvecMarqueAjout(std::string_view texte);
// Put the marks of the open dictionary back after its index was (re)loaded.
void TestAjout(Form& f);
void TestSelection(Form& f);

}  // namespace lex
