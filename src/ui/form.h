// The window's state, as parts owned by the subsystems that change them. Procedures are free
// functions of their subsystem that take the form.
#pragma once
#include "catalogue/catalogue.h"
#include "catalogue/settings.h"
#include "data/open_dictionary.h"
#include "search/search_state.h"
#include "selection/selections.h"
#include "ui/ui_services.h"
#include "ui/window_state.h"

namespace lex {

struct Form {
  explicit Form(UiServices& u) : ui(u) {}
  UiServices& ui;
  Reglages reglages;
  Catalogue catalogue;
  DictionnaireOuvert dico;
  EtatFenetre fenetre;
  EtatRecherche recherche;
  Selections selections;
};

}  // namespace lex
