// The screen as the editing commands see it.
#include "catalogue/working_copy.h"
#include "controller/form.h"
#include "controller/modes.h"
#include "controller/opening.h"
#include "controller/paging.h"

namespace lex {

void Form::EntrerSaisie(Mode m, std::int32_t entree, const std::string& texte) {
  EntrerSaisieArticle(*this, m, entree, texte);
}

bool Form::SaisieRemplacee() const { return ui.LineTextReplaced(); }

Changement Form::Retouche(const lex::Retouche& r) {
  Changement ch = RetoucheCopieTravail(catalogue, reglages.DossierDictio, fenetre.DictioCourant, dico, selections, r,
                                       AvisDe(*this));
  fenetre.PileSuite.clear();
  // A result list names entries by numbers the change moved: the index takes its place.
  liste.MontreIndex();
  return ch;
}

void Form::PlaceSurEntree(std::int32_t numero) {
  // The page the user was on stays when it holds the entry.
  std::int32_t page = fenetre.PremierIndexAffiche;
  if (numero < page || numero >= page + kLignesPage) page = std::max(numero, 1);
  liste.MontreIndex();
  EntrerPage(*this, page, Annonce::Non, numero - page + 1);
}

}  // namespace lex
