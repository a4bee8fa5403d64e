// An article typed in the index field, as the dictionary file takes it.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lex {

// The lines of `texte` without their trailing blanks, the empty ones left out (in the file
// an empty line would end the article). Empty when the first line is: an article without
// index line cannot be.
std::vector<std::string> LignesSaisies(std::string_view texte);

}  // namespace lex
