// The list of the index entries whose article holds a string, shown in place of the index.
#pragma once

namespace lex {

struct Form;

void mnuRechercheChaine(Form& f);
// Reads every article of the shown list (the dictionary's index, or a list shown before, which
// is thus narrowed) and shows the entries that hold the search string; "introuvable" leaves
// everything as it was.
void rechercheChaine(Form& f);

}  // namespace lex
