#include "catalogue/working_copy.h"

#include "selection/selecting.h"

namespace lex {

Changement ChangeCopieTravail(Catalogue& c, const std::string& dossierDictio, int d, DictionnaireOuvert& dico,
                              Selections& s,
                              const std::function<Changement(const std::string& source, EcritureSure& cible)>& ecrire,
                              const AvisOuverture& avis) {
  const std::string copie = NomDictionnaire(c, dossierDictio, d) + ".bak";
  Changement ch;
  {
    // The working copy may be the source itself: the new one takes its place only once whole.
    EcritureSure cible(copie, Donnees::Utilisateur);
    ch = ecrire(dico.fichiers.dictio, cible);
    cible.Valider();
  }
  c[d].DicModifie = true;
  dico.fichiers.dictio = copie;
  SuitChangement(s, d, ch);
  InitIndex(dico, s, d, avis);
  return ch;
}

}  // namespace lex
