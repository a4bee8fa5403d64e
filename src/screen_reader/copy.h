// Copying the program's script files into the screen reader's folder.
#pragma once
#include <string>
#include <vector>

#include "view/dialogs.h"

namespace lex {

struct FichierScript {
  std::string source;  // its name in the program folder (core text)
  std::string cible;   // its name in the screen reader's folder
};

struct Copie {
  bool reussie = true;  // false: a copy failed and the user was told which file and why
  int copies = 0;       // the files copied
};

// Copies, in order, those of `fichiers` that the program folder holds, each replacing any
// older copy; the others are skipped. A copy is whole or not made (data/safe_write.h): the
// first that fails is told in a message box and ends the copying.
// The text of an error as a reason within a sentence ("permission refusée").
std::string Raison(int numero);

Copie CopieScripts(Dialogues& dlg, const std::string& dossierProgramme, const std::string& dossier,
                   const std::vector<FichierScript>& fichiers);

}  // namespace lex
