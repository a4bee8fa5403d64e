// Menu entries to the commands behind them. Each subsystem registers its own; the window's
// own commands are registered here.
#pragma once

#include "view/menu_id.h"

namespace lex {

struct Form;

// Every subsystem's commands and the window's, into the form's registry.
void InscrireCommandes(Form& f);
// Runs the command of a menu entry; an entry whose command this version lacks says so.
void ExecuteMenu(Form& f, MenuId id);
// Whether the user may choose the entry now (the window greys the others).
bool MenuActif(const Form& f, MenuId id);
void ActiveMenu(Form& f, MenuId id, bool actif);
// A command refused while an article or a new dictionary is typed: a beep, and how to end it.
void TerminezDAbordLaSaisie(Form& f);

}  // namespace lex
