#include "notepad/notepad.h"

namespace lex {

// Editing the notepad in the index field is not part of this version: the user is told so
// rather than left with a key that does nothing.
void blocnote(Ecran& ecran) { ecran.message("bloc note non disponible dans cette version"); }

void InscrireCommandesBlocNote(RegistreCommandes& registre, Ecran& ecran) {
  registre.Inscrire(MenuId::mnuBlocNote, [&ecran] { blocnote(ecran); });
}

}  // namespace lex
