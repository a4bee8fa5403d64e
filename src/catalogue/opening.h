// Opening a dictionary of the catalogue: its file, an up-to-date index, its marks.
#pragma once
#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "data/open_dictionary.h"
#include "selection/selections.h"

namespace lex {

// The file the user reads for entry d: its ".bak" working copy while it holds unsaved changes.
std::string FichierALire(const Catalogue& c, const std::string& dossierDictio, int d);

// Rebuilds the index and letter files of `dico` and its tables, then the marks of entry d.
void InitIndex(DictionnaireOuvert& dico, const Selections& s, int d, const std::function<void()>& bip);

// Opens `fichier`, entry d's file, into `dico`: its index is loaded when up to date, or built
// anew, after `annonce` tells the user to wait when the index was missing or out of date.
void OuvreDictionnaire(const Catalogue& c, const std::string& dossierDictio, int d, const std::string& fichier,
                       DictionnaireOuvert& dico, const Selections& s, const std::function<void(std::string)>& annonce,
                       const std::function<void()>& bip);

}  // namespace lex
