// Searching inside the article being read (index field, or the rich text pane for a long one).
#pragma once
#include <cstddef>

namespace lex {

struct Form;

// From 0-based `debut` of the shown field: the caret goes to the first occurrence of the
// search string and its line is announced. When there is none, `suite` goes on into the
// following articles (unless the article is being edited); otherwise "introuvable".
void rechercher(Form& f, std::size_t debut, bool suite);
// The last occurrence starting before the caret, else the preceding articles (unless the
// article is being edited).
void AppelRechercheArriere(Form& f);

// Where "suivant" starts inside an article: one past the caret, which a find leaves on the
// start of the occurrence, so the same occurrence is not found twice.
std::size_t DebutSuivant(const Form& f);

}  // namespace lex
