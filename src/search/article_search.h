// Searching inside the article being read (index field, or the rich text pane for a long one).
#pragma once
#include <cstddef>

#include "search/search_state.h"

namespace lex {

// From 0-based `debut` of the shown field: the caret goes to the first occurrence of the
// search string and its line is announced. When there is none, `suite` goes on into the
// following articles; otherwise "introuvable".
void rechercher(PartiesRecherche& p, std::size_t debut, bool suite);
// The last occurrence starting before the caret, else the preceding articles.
void AppelRechercheArriere(PartiesRecherche& p);

// Where "suivant" starts inside an article: one past the caret, which a find leaves on the
// start of the occurrence, so the same occurrence is not found twice.
std::size_t DebutSuivant(const PartiesRecherche& p);

}  // namespace lex
