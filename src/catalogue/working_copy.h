// Changing a dictionary: the change is written to its ".bak" working copy, which the user
// reads from then on; the dictionary file itself changes only when it is saved.
#pragma once
#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/opening.h"
#include "data/article_edit.h"
#include "data/article_merge.h"
#include "data/open_dictionary.h"
#include "data/safe_write.h"
#include "selection/selections.h"

namespace lex {

// Writes the working copy of entry d, open in `dico`, through `ecrire`, which reads `source`
// (the dictionary as the user reads it) and writes the new content into `cible`. Then the
// entry is marked changed, the numbers kept for it follow their entries (the inserted ones
// join its additions), and its index is rebuilt with its marks. A failure raised by `ecrire`
// or by the write leaves the working copy, the tables and the flags as they were.
Changement ChangeCopieTravail(Catalogue& c, const std::string& dossierDictio, int d, DictionnaireOuvert& dico,
                              Selections& s,
                              const std::function<Changement(const std::string& source, EcritureSure& cible)>& ecrire,
                              const AvisOuverture& avis);

// The same for a change of a few articles (data/article_edit.h): the file is copied by the
// index's offsets, and the index follows without reading the dictionary again when its
// file was current.
Changement RetoucheCopieTravail(Catalogue& c, const std::string& dossierDictio, int d, DictionnaireOuvert& dico,
                                Selections& s, const Retouche& r, const AvisOuverture& avis);

}  // namespace lex
