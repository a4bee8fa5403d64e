// Where the program's files are and how the index field is shown; read from and written back
// to the configuration file.
#pragma once
#include <string>

namespace lex {

struct Reglages {
  std::string DossierProgramme;  // always ends with a folder separator
  std::string DossierDictio;
  std::string FichierConfig;
  std::string FichierBlocNote;
  std::string PoliceNom = "Courier";
  std::string PoliceTaille = "10";
};

}  // namespace lex
