// The notepad: a text file of the user's, opened with Ctrl+B or its row of the list, edited
// page by page in the index field, saved with Ctrl+S or "OK", left as it was with Escape.
#pragma once
#include <string>

#include "notepad/notepad_file.h"
#include "view/commands.h"
#include "view/dialogs.h"
#include "view/screen.h"

namespace lex {

// What the notepad asks of the screen; the controller keeps the field and its pages.
class EcranBlocNote : public virtual Ecran {
 public:
  // The notepad's first page in the field, for editing.
  virtual void MontreBlocNote() = 0;
  // The page shown, as the user changed it, kept into the notepad's lines.
  virtual void GardePage() = 0;
  // Back to where the user was before the notepad.
  virtual void QuitteBlocNote() = 0;
};

struct PartiesBlocNote {
  EcranBlocNote& ecran;
  Dialogues& dialogues;
  BlocNote& bloc;
  const std::string& fichier;  // FichierBlocNote
};

void blocnote(PartiesBlocNote& p);
// "OK": kept after a question when it was changed, then back.
void SauveBlocNote(PartiesBlocNote& p);
// Ctrl+S in the notepad: kept without a question.
void EnregistreBlocNote(PartiesBlocNote& p);
// Leaving the program while the notepad is open: true when the user may go on leaving.
bool QuitteAvecBlocNote(PartiesBlocNote& p);

void InscrireCommandesBlocNote(RegistreCommandes& registre, PartiesBlocNote p);

}  // namespace lex
