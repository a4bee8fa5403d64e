// The notepad, opened from its row in the list or with Ctrl+B.
#pragma once

namespace lex {

struct Form;

void blocnote(Form& f);

}  // namespace lex
