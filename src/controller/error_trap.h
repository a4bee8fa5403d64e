// The event's trap: an error that reaches it is shown as the classic report
// ("53Fichier introuvable sur LitDictio"), OK only, and the program ends without saving.
#pragma once
#include <functional>

#include "base/error.h"

namespace lex {

class Dialogues;
class Fenetre;

// Runs one event's work. Returns false when the program has ended (now or before).
bool RunTrapped(Fenetre& ui, Dialogues& dlg, bool& termine, const std::function<void()>& travail);

}  // namespace lex
