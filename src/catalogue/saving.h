// Making a dictionary's changes permanent: a changed dictionary lives in its ".bak" copy
// until it is saved.
#pragma once
#include <string>
#include <string_view>

namespace lex {

struct Form;

// True when the new article (its two folded keys) goes before the existing index line.
bool RangeArticle(std::string_view texte, std::string_view cleEntiere, std::string_view cleTete);
// The head key of an index line: the folded part before its first "(", "[" or ","; empty
// when it holds none of them.
std::string CleTete(std::string_view ligne);
// Saves catalogue entry `numero`.
void SauvegardeDic(Form& f, int numero);

}  // namespace lex
