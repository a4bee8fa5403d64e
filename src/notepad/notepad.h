// The notepad, opened from its row in the list or with Ctrl+B.
#pragma once

#include "view/commands.h"
#include "view/screen.h"

namespace lex {

void blocnote(Ecran& ecran);
void InscrireCommandesBlocNote(RegistreCommandes& registre, Ecran& ecran);

}  // namespace lex
