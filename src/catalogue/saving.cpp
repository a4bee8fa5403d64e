#include "catalogue/saving.h"

#include "data/files.h"
#include "data/folding.h"
#include "base/error.h"

namespace lex {
namespace {
std::size_t Coupure(std::string_view texte) {
  for (char c : {'(', '[', ','}) {
    auto p = texte.find(c);
    if (p != std::string_view::npos) return p;
  }
  return std::string_view::npos;
}
}  // namespace

std::string CleTete(std::string_view ligne) {
  auto p = Coupure(ligne);
  return p == std::string_view::npos ? std::string() : Sansaccent(ligne.substr(0, p));
}

bool RangeArticle(std::string_view texte, std::string_view cleEntiere, std::string_view cleTete) {
  const auto p = Coupure(texte);
  const std::string entiere = Sansaccent(texte);
  if (p == std::string_view::npos) {
    return cleTete.empty() ? entiere > cleEntiere : entiere > cleTete;
  }
  const std::string tete = Sansaccent(texte.substr(0, p));
  if (!cleTete.empty()) return tete > cleTete || (tete == cleTete && entiere > cleEntiere);
  // An existing head equal to the new whole line places the new article first.
  return tete >= cleEntiere;
}

void SauvegardeDic(Catalogue& c, const std::string& dossierDictio, int numero, DictionnaireOuvert* ouvert,
                   int dictioOuvert) {
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
  for (const char* prefixe : {"ajout", "s\xE9lection"}) {
    const std::string numeros = dossierDictio + NomNatif(prefixe) + NomFichSeul(nomfic);
    if (FichierExistant(numeros)) SupprimerFichier(numeros);
  }
}

void InscrireCommandesCatalogue(RegistreCommandes& registre, PartiesCatalogue p) {
  registre.Inscrire(MenuId::mnuEnregistrer,
                    {[p] {
                       SauvegardeDic(p.catalogue, p.reglages.DossierDictio, p.dictioCourant, &p.dico, p.dictioCourant);
                       p.ecran.message("enregistrer");
                     },
                     [p] { return DansUnDictionnaire(p.ecran.mode()); }});
}

}  // namespace lex
