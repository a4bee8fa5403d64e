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

// What opening a dictionary tells the user on the way.
struct AvisOuverture {
  std::function<void(std::string)> annonce;  // on the message line: wait, the index is being built
  std::function<void(std::string)> alerte;   // in a message box: an index that could not be written
  std::function<void()> bip;                 // the progress signal of a long build
};

// Tells the user that the index could not be written and is kept in memory.
void AlerteIndexEnMemoire(const std::string& raison, const AvisOuverture& avis);

// Rebuilds the index and letter files of `dico` and its tables, then the marks of entry d.
// When the files cannot be written, the user is told and the tables are built in memory
// alone: the dictionary opens all the same.
void InitIndex(DictionnaireOuvert& dico, const Selections& s, int d, const AvisOuverture& avis);

// Opens `fichier`, entry d's file, into `dico`: its index is loaded when up to date, or built
// anew, after telling the user to wait when the index was missing or out of date.
void OuvreDictionnaire(const Catalogue& c, const std::string& dossierDictio, int d, const std::string& fichier,
                       DictionnaireOuvert& dico, const Selections& s, const AvisOuverture& avis);

}  // namespace lex
