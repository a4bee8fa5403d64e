// At start, when the program folder holds the marker "verjaws.ini": the screen reader's files
// are installed once, and the marker is deleted when the user is done with the question.
#pragma once
#include <string>

#include "screen_reader/file_system.h"
#include "view/dialogs.h"
#include "view/screen.h"

namespace lex {

inline constexpr const char* kMarqueurJaws = "verjaws.ini";

// `dossierProgramme` ends with a separator. The marker is deleted once the files are copied
// or the user cancels the question (they chose not to install; putting the marker back asks
// again); it stays after "chemin inconnu" or a failed copy, so that the next start asks
// again. The folder chosen is remembered for the next time.
void ScriptsAuDemarrage(const std::string& dossierProgramme, Dialogues& dlg, Ecran& ecran, const SystemeFichiers& fs);
// The same on the real disk.
void ScriptsAuDemarrage(const std::string& dossierProgramme, Dialogues& dlg, Ecran& ecran);

}  // namespace lex
