// Making a dictionary's changes permanent: a changed dictionary lives in its ".bak" copy
// until it is saved.
#pragma once
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "catalogue/settings.h"
#include "data/open_dictionary.h"
#include "selection/selections.h"
#include "view/commands.h"
#include "view/screen.h"

namespace lex {

// Saves catalogue entry `numero`; `ouvert`, when given, is the dictionary being read, which
// is read from the saved file from then on if it is that entry.
// The number files of the entry go too, unless they were exported this run.
void SauvegardeDic(Catalogue& c, const std::string& dossierDictio, int numero, const Selections& s,
                   DictionnaireOuvert* ouvert, int dictioOuvert);

// What the saving command works on.
struct PartiesCatalogue {
  Ecran& ecran;
  Catalogue& catalogue;
  const Reglages& reglages;
  DictionnaireOuvert& dico;
  const Selections& selections;
  // The catalogue entry of the dictionary the user is in.
  const std::int16_t& dictioCourant;
};
// Ctrl+S on a dictionary: saves the one the user is in.
void EnregistreDictionnaire(PartiesCatalogue p);

}  // namespace lex
