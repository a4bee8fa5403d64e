// Opening what the user chose in a list of the catalogue: a dictionary, the history list or
// the notepad.
#pragma once

namespace lex {

struct Form;

// Opens the row under the caret (in a list of the catalogue only).
void AppelDictionnaire(Form& f);
// The row under the caret (line - 2), or 0 on the title and blank lines.
int RangSousCurseur(const Form& f);

}  // namespace lex
