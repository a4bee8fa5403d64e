#include "reports/spoken.h"

#include <string>

#include "base/numbers.h"

namespace lex {

void mnuXY(PartiesRapports& p) {
  const Mode m = p.ecran.mode();
  if (!DansUnDictionnaire(m)) {
    p.ecran.Beep();
    return;
  }
  const EcranRapports::Place ici = p.ecran.PlaceCurseur();
  const std::int32_t ligne = m == Mode::Article ? ici.ligne : p.ecran.EntreeCourante();
  p.ecran.message("colonne" + NombreImprime(ici.colonne) + " ligne" + NombreImprime(ligne));
}

void mnuNombreIndex(PartiesRapports& p) {
  if (!DansUnDictionnaire(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  p.ecran.message(std::to_string(p.ecran.Liste().Dictionnaire().TableIndex.NombreArticle()) + " sur " +
                  p.catalogue[p.dictioCourant].NomDictio);
}

void mnuCodeIso(PartiesRapports& p) {
  const std::string texte = p.ecran.TexteChamp();
  const std::size_t curseur = p.ecran.CurseurChamp();
  if (curseur >= texte.size()) {
    p.ecran.Beep();
    return;
  }
  p.ecran.message(NombreImprime(static_cast<unsigned char>(texte[curseur])));
}

}  // namespace lex
