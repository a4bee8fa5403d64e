// Everything the user must hear goes through `message` (the message line) or the title.
#pragma once
#include <string>

namespace lex {

struct Form;

// Shows `texte` on the message line so that it differs from what was shown before (a screen
// reader speaks a label only when it changes); `texte` becomes what was shown.
void message(Form& f, std::string texte);
// The window title for the current situation.
void AfficheStatus(Form& f);

}  // namespace lex
