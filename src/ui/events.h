// The window's events, as a front end forwards them. Each runs to completion under the error
// trap; once the program has ended (quitter, or an error), events are ignored.
#pragma once
#include <string>

#include "ui/form.h"
#include "ui/menus.h"

namespace lex {

enum class Champ { Txt, Rtb };

// The form's load event; `dossierProgramme` is the program folder (Windows-1252).
void EvChargement(Form& f, const std::string& dossierProgramme);
// A key: returns true when the program used it and the field must not see it.
bool EvToucheBas(Form& f, Champ c, int code, int shift);
bool EvTouchePresse(Form& f, Champ c, char caractere);
// A menu entry, by its accelerator or by the menu bar.
void EvMenu(Form& f, MenuId id);
void EvBouton(Form& f, Bouton b);
// The window's close box: the program always ends, saving what the user agreed to.
void EvFermeture(Form& f);

}  // namespace lex
