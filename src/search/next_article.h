// Going to the next (or previous) article of the shown list that holds the search string.
//
// The article found is shown as if it had been opened from the index, so that going back to
// the index shows the page starting at that entry with the caret on it. The next search
// starts from the entry after (or before) the one the user is on, however it was reached
// (from the index page, from a word, or by a search).
#pragma once

#include "search/search_state.h"

namespace lex {

// From the entry after the current one to the last; "introuvable" when no article holds the
// string, and nothing moves. The caret goes to the first occurrence.
void rechercheChaineSuivant(PartiesRecherche& p);
// From the entry before the current one down to the first; the caret goes to the last
// occurrence.
void rechercheChaineArriere(PartiesRecherche& p);

}  // namespace lex
