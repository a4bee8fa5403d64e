// Search settings kept for the whole run, and the parts a search command works on.
#pragma once
#include <string>

#include "search/search_screen.h"
#include "view/dialogs.h"

namespace lex {

struct EtatRecherche {
  bool RespectCasse = false;
  bool RechercheDansIndex = false;
  std::string ChaineRecherche;
};

struct PartiesRecherche {
  EcranRecherche& ecran;
  Dialogues& dialogues;
  EtatRecherche& etat;
};

}  // namespace lex
