// Enter or "Définition" in the index: the article of the entry under the caret.
#pragma once

namespace lex {

struct Form;

void dictionnaire(Form& f);

}  // namespace lex
