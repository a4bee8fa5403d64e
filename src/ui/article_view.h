// Showing an article: in the index field, or in the rich text pane when it is too long for it.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace lex {

struct Form;

// Longest article the index field holds; a longer one goes to the rich text pane.
inline constexpr std::size_t kLongueurMaxTxt = 65536;

// Shows the text of article `numero` (of the shown list) and enters mode 3. With no `curseur`
// the caret goes to the first definition line and that line is announced; otherwise the
// caret goes to `curseur` and nothing is announced.
void MontreArticle(Form& f, std::int32_t numero, const std::string& article, std::size_t curseur = std::string::npos);
// Enter or "Définition" in the index: the article of the entry under the caret.
void dictionnaire(Form& f);

}  // namespace lex
