// The reports said on the message line: where the caret is, how many entries the dictionary
// holds, and the code of the character at the caret.
#pragma once

#include "reports/commands.h"

namespace lex {

// "colonne 3 ligne 12": in an article the caret's line in it, on a page the number of the
// entry under the caret in the list shown. Elsewhere (a list of the catalogue, the guide)
// there is no entry to tell of: a beep.
void mnuXY(PartiesRapports& p);
// "1234 sur ANGLAIS francais": the open dictionary's entries, whatever list the page shows.
void mnuNombreIndex(PartiesRapports& p);
// " 233" for "é": the Windows-1252 code of the character at the caret of the shown field,
// whatever that field shows; a beep past the end of its text.
void mnuCodeIso(PartiesRapports& p);

}  // namespace lex
