// What the reports ask of the screen beyond what a search does: the list of dictionaries in
// which the user chooses the one to compare with, and where the caret stands.
#pragma once
#include <cstdint>

#include "search/search_screen.h"

namespace lex {

class EcranRapports : public EcranRecherche {
 public:
  // The list of dictionaries in place of the page, for choosing the dictionary the open one is
  // compared with; a result list still shown is dropped. Giving up brings the page back as
  // the user left it.
  virtual void EntrerChoixComparaison() = 0;
  // The catalogue entry on the caret's row of that list; 0 on a line that names none.
  virtual int EntreeChoisie() const = 0;
  // The caret's line and column in the shown field, both from 1.
  struct Place {
    std::int32_t ligne = 1;
    std::int32_t colonne = 1;
  };
  virtual Place PlaceCurseur() const = 0;
};

}  // namespace lex
