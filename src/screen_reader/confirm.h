// The question "Chemin des scripts de jaws": the user confirms or changes the folder found.
#pragma once
#include <string>

#include "screen_reader/file_system.h"
#include "view/dialogs.h"

namespace lex {

enum class Issue {
  Installee,      // the folder was confirmed and what the program folder holds was copied
  Annulee,        // the user cancelled: nothing copied
  CheminInconnu,  // the folder given is not one: nothing copied
  Echouee,        // a copy failed, and the user was told which file and why
};

struct Confirmation {
  Issue issue;
  std::string dossier;  // the folder given (a system path) when confirmed
};

inline constexpr const char* kTitreScripts = "Chemin des scripts de jaws";

// `propose` is a system path. What the user types is taken as the system path it is; the
// proposal accepted as shown keeps the path found, even with characters the box cannot show.
Confirmation ConfirmeDossier(Dialogues& dlg, const SystemeFichiers& fs, const std::string& propose);

}  // namespace lex
