#include "catalogue/opening.h"

#include "data/files.h"
#include "selection/marks.h"

namespace lex {

std::string FichierALire(const Catalogue& c, const std::string& dossierDictio, int d) {
  std::string nomfic = NomDictionnaire(c, dossierDictio, d);
  if (c[d].DicModifie) nomfic += ".bak";
  return nomfic;
}

void InitIndex(DictionnaireOuvert& dico, const Selections& s, int d, const std::function<void()>& bip) {
  ConstruireIndex(dico.fichiers, dico.OrdreAlpha, dico.TableIndex, dico.Lettres, bip);
  TestAjout(dico.TableIndex, s, d);
  TestSelection(dico.TableIndex, s, d);
}

void OuvreDictionnaire(const Catalogue& c, const std::string& dossierDictio, int d, const std::string& fichier,
                       DictionnaireOuvert& dico, const Selections& s, const std::function<void(std::string)>& annonce,
                       const std::function<void()>& bip) {
  dico.fichiers = {fichier, NomIndex(c, dossierDictio, d), NomLettre(c, dossierDictio, d)};
  dico.OrdreAlpha = c[d].OrdreAlpha;
  const std::string installation = "Installation de l'index  pour " + c[d].NomDictio;
  if (FichierExistant(dico.fichiers.index) && FichierExistant(dico.fichiers.lettre)) {
    switch (LireIndex(dico.fichiers, LongueurFichier(fichier), dico.TableIndex, dico.Lettres)) {
      case EtatIndex::Charge:
        TestAjout(dico.TableIndex, s, d);
        TestSelection(dico.TableIndex, s, d);
        return;
      case EtatIndex::Version:
        InitIndex(dico, s, d, bip);
        return;
      case EtatIndex::Perime:
        break;
    }
  }
  annonce(installation);
  InitIndex(dico, s, d, bip);
}

}  // namespace lex
