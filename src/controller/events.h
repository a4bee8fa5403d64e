// The window's events, as a front end forwards them. Each runs to completion under the error
// trap; once the program has ended (quitter, or an error), events are ignored.
#pragma once
#include <functional>
#include <string>

#include "controller/form.h"
#include "controller/menus.h"

namespace lex {

// How an event's work ended.
enum class Issue { Faite, EcritureEchouee, Terminee };
// Runs an event's work under the trap. Two errors do not end the program: a file that could
// not be written (the user is told which and why; the old file is still there) and the open
// dictionary gone from the disk (the user is told and taken back to the list).
Issue Evenement(Form& f, const std::function<void()>& travail);

// The form's load event; `dossierProgramme` is the program folder (Windows-1252).
void EvChargement(Form& f, const std::string& dossierProgramme);
// A menu entry chosen in the menu bar (accelerators go through the key route).
void EvMenu(Form& f, MenuId id);
void EvBouton(Form& f, Bouton b);
// The mouse wheel over the window: `rotation` as the toolkit measures it, `cran` one notch, and
// the modifier bits. True when the program took it (with Ctrl: the font size); otherwise the
// control scrolls as usual.
bool EvMolette(Form& f, int rotation, int cran, int modificateurs);
// The window's close box: the program always ends, saving what the user agreed to.
void EvFermeture(Form& f);

}  // namespace lex
