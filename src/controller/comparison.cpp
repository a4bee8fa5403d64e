// The choice of the dictionary to compare with, as the reports see it and as the keys and
// buttons reach it.
#include "controller/comparison.h"

#include <algorithm>

#include "catalogue/opening.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/modes.h"
#include "controller/opening.h"
#include "controller/paging.h"
#include "reports/list_commands.h"

namespace lex {

PartiesRapports PartiesRapportsDe(Form& f) {
  return {f, f.dlg, f.catalogue, f.reglages, f.fenetre.DictioCourant,
          [&f](int i) { return FichierALire(f.catalogue, f.reglages.DossierDictio, i); }};
}

void ValideChoixComparaison(Form& f) {
  PartiesRapports p = PartiesRapportsDe(f);
  ComparaisonIndex(p);
}

void AbandonneChoixComparaison(Form& f) {
  const PlaceAvantChoix& avant = f.avantComparaison;
  f.liste.MontreIndex();
  const std::int32_t numero = std::clamp(avant.numero, 1, std::max(1, f.liste.Nombre()));
  std::int32_t premier = avant.premier;
  if (numero < premier || numero >= premier + kLignesPage) premier = numero;
  EntrerPage(f, premier, Annonce::ApresLeTitre, numero - premier + 1);
}

void Form::EntrerChoixComparaison() { lex::EntrerChoixComparaison(*this); }

int Form::EntreeChoisie() const {
  const int rang = RangSousCurseur(*this);
  if (rang < 1) return 0;
  const int entree = EntreeDeLigne(catalogue, rang);
  return entree <= catalogue.NombreDictio() ? entree : 0;
}

EcranRapports::Place Form::PlaceCurseur() const {
  const std::string texte = lex::TexteChamp(*this);
  std::size_t debut = lex::CurseurChamp(*this);
  const std::size_t curseur = std::min(debut, texte.size());
  extraitLigne(texte, debut);
  return {numeroTxt(texte, curseur), static_cast<std::int32_t>(curseur - debut + 1)};
}

}  // namespace lex
