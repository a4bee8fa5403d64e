// The language of the toolkit's own texts: the buttons of the message boxes, the file and
// font dialogs. The program itself speaks French; a dialog that answers in English in the
// middle of it is noise a screen reader user has to translate.
#pragma once
#include <string>

namespace lex::wx {

// The language the toolkit is to speak, from the user's environment: the user's own when the
// toolkit has it and it is not English (an unset or "C" environment included), French
// otherwise. On GTK the environment is set accordingly, which must happen before the toolkit
// starts.
std::string ChoisitLangue();

// Loads the toolkit's catalogue of that language. Called once the toolkit has started.
void ChargeTraductions(const std::string& langue);

}  // namespace lex::wx
