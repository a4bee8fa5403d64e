// The Edition menu's commands on the lists of dictionaries: creating, renaming, deleting.
#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/catalogue_screen.h"
#include "catalogue/settings.h"
#include "selection/selections.h"
#include "view/commands.h"
#include "view/dialogs.h"

namespace lex {

struct PartiesGestion {
  EcranCatalogue& ecran;
  Dialogues& dialogues;
  Catalogue& catalogue;
  Selections& selections;
  const Reglages& reglages;
};

void mnuCreationDictio(PartiesGestion& p);
void mnuModifDictio(PartiesGestion& p);
void mnuEffaceDictio(PartiesGestion& p);

void InscrireCommandesGestion(RegistreCommandes& registre, PartiesGestion p);

}  // namespace lex
