// The screen as the commands that change the catalogue see it.
#include "catalogue/config.h"
#include "controller/form.h"
#include "controller/modes.h"
#include "controller/opening.h"
#include "data/files.h"

namespace lex {

int Form::EntreeSousCurseur() const {
  const int r = RangSousCurseur(*this);
  if (r < 1) return 0;
  if (fenetre.ModeCourant() == Mode::ListeHistoire) return r <= catalogue.NombreHistoire ? r + 9 : 0;
  const int e = EntreeDeLigne(catalogue, r);
  return e <= catalogue.NombreDictio() ? e : 0;
}

void Form::CatalogueChange(int entree) {
  if (fenetre.ModeCourant() == Mode::ListeHistoire) {
    catalogue[9].PositionDictio = std::max(entree - 9, 1);
    EntrerListeHistoire(*this);
  } else {
    fenetre.DictioCourant = static_cast<std::int16_t>(entree);
    EntrerListeDictio(*this);
  }
  // A catalogue kept only until the program ends would be lost with it.
  EcrireLignes(reglages.FichierConfig, LignesConfig(catalogue, reglages, fenetre.ListeHistoire, fenetre.DictioCourant));
}

}  // namespace lex
