// Finding folders by name, the way the screen reader's folders are named: compared in
// capitals, as Windows compares them, whatever the system underneath. What is found is the
// path as the system spells it.
#pragma once
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "screen_reader/file_system.h"

namespace lex {

// Whether `dossier` has a sub-folder named `nom`; `trouve` then holds its path.
bool rechercherDossier(const SystemeFichiers& fs, std::string_view dossier, std::string_view nom, std::string& trouve);

// The path below `dossier` through sub-folders of these names, each found as rechercherDossier
// finds it ("settings", "fra" finds "Settings\fra").
std::optional<std::string> SousChemin(const SystemeFichiers& fs, std::string_view dossier,
                                      std::initializer_list<std::string_view> noms);

// The first folder named `nom` below `racine`, at most `profondeur` levels down. "All Users"
// is walked before the other profiles at each level: the settings kept there serve every user
// of the machine.
std::optional<std::string> recherche_dir(const SystemeFichiers& fs, std::string_view racine, std::string_view nom,
                                         int profondeur);

// The name in capitals (Windows-1252 text), for comparing folder names.
std::string NomMajuscule(std::string_view nom);

}  // namespace lex
