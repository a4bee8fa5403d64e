// The notepad from the controller's side.
#pragma once

namespace lex {

struct Form;

// Before something takes the field from a notepad being typed in (the guide, quitting): its
// changes are kept or dropped as the user says. False when the user cancels.
bool LaisseBlocNote(Form& f);

}  // namespace lex
