// Opening the dictionary chosen in a list: its file, an up-to-date index, its page.
#pragma once

namespace lex {

struct Form;

// Rebuilds the current dictionary's index and letter files and its tables, then its marks.
void InitIndex(Form& f);
// Opens the dictionary of the row under the caret (mode 1 only).
void AppelDictionnaire(Form& f);

}  // namespace lex
