#include "notepad/notepad.h"

#include "ui/form.h"
#include "ui/message.h"

namespace lex {

// Editing the notepad in the index field is not part of this version: the user is told so
// rather than left with a key that does nothing.
void blocnote(Form& f) { message(f, "bloc note non disponible dans cette version"); }

}  // namespace lex
