// Installing the program's files for the JAWS screen reader: the folder is found, confirmed by
// the user, and what the program folder holds of them is copied there.
#pragma once
#include <string>

#include "screen_reader/confirm.h"
#include "screen_reader/file_system.h"
#include "view/dialogs.h"
#include "view/screen.h"

namespace lex {

struct ContexteScripts {
  std::string DossierProgramme;  // where the files lie, ending with a separator
  std::string CheminScripts;     // the folder chosen last time, or the default
  Dialogues& dlg;
  Ecran& ecran;
  const SystemeFichiers& fs;
};

// Copies `nom`.jdf and `nom`.jcf. On a machine where only the older layout is found, the
// older installation serves instead (jawsAncien).
Confirmation jaws(const std::string& nom, const ContexteScripts& c);

// The older layout, settings inside the screen reader's own folder: copies the dictionary, the
// configuration and the scripts of the screen reader's version, read from the name of its
// folder in the path confirmed (JAWS35 is 3.5). Before 3.7, the scripts compiled for 3.5
// ("lex35.jss", "lex35.jsb") are copied under the names the screen reader loads ("lex.jss",
// "lex.jsb"); from 3.7 on, or for a folder whose name says no version, "lex.jss" and
// "lex.jsb".
Confirmation jawsAncien(const std::string& nom, const ContexteScripts& c);

}  // namespace lex
