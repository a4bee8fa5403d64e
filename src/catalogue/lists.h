// The two lists of the catalogue shown in the index field: the list of dictionaries and the
// history group.
#pragma once

namespace lex {

struct Form;

void AfficheListeDictio(Form& f);
void AfficheListeHistoire(Form& f);
// Caret on the row of the current dictionary, spoken.
void NumeroLigneDictio(Form& f);
// The row under the caret (line - 2), or 0 on the title and blank lines.
int RangSousCurseur(const Form& f);

}  // namespace lex
