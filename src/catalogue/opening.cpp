#include "catalogue/opening.h"

#include "data/files.h"
#include "data/write_error.h"
#include "selection/marks.h"

namespace lex {

std::string FichierALire(const Catalogue& c, const std::string& dossierDictio, int d) {
  std::string nomfic = NomDictionnaire(c, dossierDictio, d);
  if (c[d].DicModifie) nomfic += ".bak";
  return nomfic;
}

void AlerteIndexEnMemoire(const std::string& raison, const AvisOuverture& avis) {
  OublieRapport();
  avis.alerte(raison + " ; l'index est gard\xE9 en m\xE9moire.");
}

void InitIndex(DictionnaireOuvert& dico, const Selections& s, int d, const AvisOuverture& avis) {
  try {
    ConstruireIndex(dico.fichiers, dico.OrdreAlpha, dico.TableIndex, dico.Lettres, avis.bip);
  } catch (const ErreurEcriture& e) {
    AlerteIndexEnMemoire(MessageErreurEcriture(e), avis);
    ConstruireTables(dico.fichiers.dictio, dico.TableIndex, dico.Lettres, avis.bip);
  }
  TestAjout(dico.TableIndex, s, d);
  TestSelection(dico.TableIndex, s, d);
}

void OuvreDictionnaire(const Catalogue& c, const std::string& dossierDictio, int d, const std::string& fichier,
                       DictionnaireOuvert& dico, const Selections& s, const AvisOuverture& avis) {
  dico.fichiers = {fichier, NomIndex(c, dossierDictio, d), NomLettre(c, dossierDictio, d)};
  dico.OrdreAlpha = c[d].OrdreAlpha;
  const std::string installation = "Installation de l'index  pour " + c[d].NomDictio;
  if (FichierExistant(dico.fichiers.index) && FichierExistant(dico.fichiers.lettre)) {
    switch (LireIndex(dico.fichiers, dico.TableIndex, dico.Lettres)) {
      case EtatIndex::Charge:
        TestAjout(dico.TableIndex, s, d);
        TestSelection(dico.TableIndex, s, d);
        return;
      case EtatIndex::Version:
        InitIndex(dico, s, d, avis);
        return;
      case EtatIndex::Perime:
        break;
    }
  }
  avis.annonce(installation);
  InitIndex(dico, s, d, avis);
}

}  // namespace lex
