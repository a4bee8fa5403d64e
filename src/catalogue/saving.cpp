#include "catalogue/saving.h"

#include "data/files.h"
#include "selection/number_files.h"
#include "base/error.h"

namespace lex {
void SauvegardeDic(Catalogue& c, const std::string& dossierDictio, int numero, const Selections& s,
                   DictionnaireOuvert* ouvert, int dictioOuvert) {
  ErrorTrap trap(" sur SauvegardeDic,");
  CatalogueEntry& e = c[numero];
  const std::string nomfic = NomDictionnaire(c, dossierDictio, numero);
  const std::string bak = nomfic + ".bak";
  // The open dictionary is read from the saved file from now on; another one saved while it
  // is open must not take its place.
  if (ouvert && numero == dictioOuvert) ouvert->fichiers.dictio = nomfic;
  if (e.DicModifie) {
    if (FichierExistant(bak)) CopierFichier(bak, nomfic);
    e.DicModifie = false;
  } else if (FichierExistant(nomfic)) {
    CopierFichier(nomfic, bak);
  }
  if (s.GardeNumeros.contains(numero)) return;
  for (std::string_view prefixe : {kPrefixeAjout, kPrefixeSelection}) {
    const std::string numeros = NomFichierNumeros(dossierDictio, prefixe, nomfic);
    if (FichierExistant(numeros)) SupprimerFichier(numeros);
  }
}

void EnregistreDictionnaire(PartiesCatalogue p) {
  if (!DansUnDictionnaire(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  SauvegardeDic(p.catalogue, p.reglages.DossierDictio, p.dictioCourant, p.selections, &p.dico, p.dictioCourant);
  p.ecran.message("enregistrer");
}

}  // namespace lex
