// The two lists of the catalogue shown in the index field: the list of dictionaries and the
// history group. Rows are counted from the first row under the list's heading and blank line.
#pragma once
#include <string>

#include "catalogue/catalogue.h"

namespace lex {

std::string TexteListeDictio(const Catalogue& c);
std::string TexteListeHistoire(const Catalogue& c);
// The 0-based row, in the list shown (the history list when `histoire`), of the typed call
// letter `tape` (compared as typed), else of the name sharing the longest beginning with the
// folded `plie`; -1 when no name shares a character.
int RangCatalogue(const Catalogue& c, bool histoire, const std::string& tape, const std::string& plie);

}  // namespace lex
