#include "catalogue/saving.h"

#include "data/files.h"
#include "data/folding.h"
#include "ui/error_trap.h"
#include "ui/form.h"

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

void SauvegardeDic(Form& f, int numero) {
  ErrorTrap trap(" sur SauvegardeDic,");
  CatalogueEntry& e = f.catalogue[numero];
  const std::string nomfic = NomDictionnaire(f.catalogue, f.reglages.DossierDictio, numero);
  const std::string bak = nomfic + ".bak";
  // The open dictionary is read from the saved file from now on; another one saved while it
  // is open must not take its place.
  if (numero == f.fenetre.DictioCourant && f.fenetre.ModeCourant != 1) f.dico.fichiers.dictio = nomfic;
  if (e.DicModifie) {
    if (FichierExistant(bak)) CopierFichier(bak, nomfic);
    e.DicModifie = false;
  } else if (FichierExistant(nomfic)) {
    CopierFichier(nomfic, bak);
  }
  if (e.GardeNumeros == 0) {
    for (const char* prefixe : {"ajout", "s\xE9lection"}) {
      const std::string numeros = f.reglages.DossierDictio + prefixe + NomFichSeul(nomfic);
      if (FichierExistant(numeros)) SupprimerFichier(numeros);
    }
  }
}

}  // namespace lex
