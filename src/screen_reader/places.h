// Where the screen reader keeps the settings of the programs it reads, looked for in order;
// the first place found is the one proposed to the user.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "screen_reader/file_system.h"

namespace lex {

// Proposed when nothing is found, and remembered until a folder is chosen.
inline constexpr const char* kCheminScriptsDefaut = "C:\\JAWS\\settings\\fra";
// Proposed by the older layout when none of its folders is found.
inline constexpr const char* kDossierAncienDefaut = "C:\\JAWS";

enum class Origine {
  DonneesApplication,   // %APPDATA%\Freedom Scientific\JAWS\<version>\Settings\fra or frc
  DocumentsAndSettings,  // C:\Documents and Settings\...\Freedom Scientific\JAWS\<version>\settings\fra or frc
  AncienneDisposition,  // a drive's JAWS... or JFW... folder holding settings\fra: served by jawsAncien
  RacineJaws,           // C:\JAWS...
  Memorise,             // the folder chosen last time
  ParDefaut,
};

struct DossierTrouve {
  std::string chemin;
  Origine origine;
};

// The places in this order: %APPDATA% (where today's screen reader keeps its users'
// settings), C:\Documents and Settings, the older layout on the drives, C:\JAWS..., the
// remembered `cheminScripts` (its settings\fra, its settings\frc, then itself), the default.
DossierTrouve ChercheDossierScripts(const SystemeFichiers& fs, std::string_view cheminScripts);

// The older layout: on each fixed drive, a folder JAWS... or JFW... holding settings\fra (on a
// drive holding several, the newest by its name). Its settings\fra folder.
std::optional<std::string> ChercheDossierAncien(const SystemeFichiers& fs);

}  // namespace lex
