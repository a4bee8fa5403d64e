// What the commands that change the catalogue ask of the screen.
#pragma once

#include "view/screen.h"

namespace lex {

class EcranCatalogue : public virtual Ecran {
 public:
  // The catalogue entry of the row under the caret in the list shown; 0 on the heading lines
  // or past the rows.
  virtual int EntreeSousCurseur() const = 0;
  // The catalogue was changed: it is kept on disk at once, and the list is shown again with
  // the caret on entry `entree`'s row.
  virtual void CatalogueChange(int entree) = 0;
};

}  // namespace lex
