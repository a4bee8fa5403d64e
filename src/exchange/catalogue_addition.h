// An imported dictionary added to a program folder's catalogue, as the Edition menu's
// creation of a dictionary adds it: a row after the added dictionaries, before "BLOC NOTE",
// its file named after it in the folder, its configuration line in "lex301.INI".
//
// LEX holds a lock on its folder while it runs and writes the configuration when it ends:
// while it runs, nothing is touched. The lock is held from the checks to the last write, so
// that LEX cannot start on the folder in between.
#pragma once
#include <filesystem>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/settings.h"
#include "data/folder_lock.h"

namespace lex::exchange {

struct NouveauDictionnaire {
  std::string nom;      // UTF-8, as the user typed them
  std::string suffixe;
  std::string lettre;   // the call letter; empty for none
  bool ordreAlpha = true;
};

class AjoutCatalogue {
 public:
  // Takes the folder's lock, reads its configuration (the first start's when there is none
  // yet) and checks the new row as the Edition menu does. Throws ErreurImport naming the
  // folder or the configuration, in French, when LEX runs on the folder or the row cannot be
  // added; nothing is written then.
  AjoutCatalogue(const std::filesystem::path& dossier, const NouveauDictionnaire& d);

  // Where the dictionary file goes.
  const std::filesystem::path& Fichier() const { return fichier_; }
  // The call letter the row answers to, in UTF-8; empty for none.
  std::string Lettre() const;
  // Adds the row and writes the configuration through the safe write; ErreurEcriture when it
  // cannot be written (the configuration is then as it was).
  void Inscrire();

 private:
  VerrouDossier verrou_;
  Catalogue catalogue_;
  Reglages reglages_;
  std::int16_t rang_ = 1;
  CatalogueEntry entree_;
  std::filesystem::path fichier_;
};

}  // namespace lex::exchange
