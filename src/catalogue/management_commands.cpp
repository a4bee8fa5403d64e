#include "catalogue/management_commands.h"

#include <optional>

#include "base/blanks.h"
#include "base/encoding.h"
#include "base/error.h"
#include "catalogue/management.h"
#include "data/files.h"

namespace lex {
namespace {


void Boite(PartiesGestion& p, const std::string& texte) { p.dialogues.MessageBox(texte, Boutons::OK, Icone::Exclamation, kTitreBoites); }
bool Oui(PartiesGestion& p, const std::string& question) {
  return p.dialogues.MessageBox(question, Boutons::YesNo, Icone::Question, kTitreBoites) == Reponse::Yes;
}

// The list shown, or nothing: these commands work on its rows.
bool SurUneListeDeDictionnaires(PartiesGestion& p, bool& histoire) {
  const Mode m = p.ecran.mode();
  histoire = m == Mode::ListeHistoire;
  if (histoire || m == Mode::ListeDictionnaires) return true;
  p.ecran.message("mettez vous sur les choix des dictionnaires");
  return false;
}

// Why the catalogue cannot take `nom` for entry `propre` (0 for a new one); empty when it can.
std::string RefusNom(const Catalogue& c, const std::string& nom, int propre) {
  for (int i = 1; i <= c.NombreDictio(); ++i)
    if (i != propre && c[i].NomDictio == nom) return "Nom existe d\xE9ja";
  if (nom.find(',') != std::string::npos) return "virgule interdite";
  if (nom.size() > kLongueurNomMax) return "nom trop long : " + std::to_string(kLongueurNomMax) + " caract\xE8res au plus";
  if (!NomDeFichierPermis(nom)) return "caract\xE8re interdit dans le nom";
  return {};
}

// The dictionary file `nom`.`suffixe` belongs to an entry other than `propre`, or lies in the
// folder already while it is not `propre`'s own: taking it would mix two dictionaries.
bool FichierPris(PartiesGestion& p, const std::string& nom, const std::string& suffixe, int propre) {
  const Catalogue& c = p.catalogue;
  const std::string cle = MajusculesAnsi(nom + "." + suffixe);
  for (int i = 1; i <= c.NombreDictio(); ++i)
    if (i != propre && MajusculesAnsi(c[i].NomFichier + "." + c[i].Suffixe) == cle) return true;
  if (propre == 0) return false;
  const std::string fichier = p.reglages.DossierDictio + NomNatif(nom + "." + suffixe);
  const bool meme = MajusculesAnsi(c[propre].NomFichier + "." + c[propre].Suffixe) == cle;
  return !meme && (FichierExistant(fichier) || FichierExistant(fichier + ".bak"));
}

std::optional<std::string> DemandeNom(PartiesGestion& p, const char* invite, const std::string& defaut, int propre) {
  const std::string reponse = p.dialogues.InputBox(invite, kTitreBoites, defaut);
  if (reponse.empty()) return std::nullopt;
  const std::string nom = SansBlancs(reponse);
  if (const std::string refus = RefusNom(p.catalogue, nom, propre); !refus.empty()) {
    Boite(p, refus);
    return std::nullopt;
  }
  return nom;
}

std::optional<std::string> DemandeSuffixe(PartiesGestion& p, const char* invite, std::string defaut) {
  for (;;) {
    const std::string reponse = p.dialogues.InputBox(invite, kTitreBoites, defaut);
    if (reponse.empty()) return std::nullopt;
    if (reponse.size() != 3) {
      Boite(p, "3 lettres obligatoire");
      defaut = reponse;
      continue;
    }
    if (!NomDeFichierPermis(reponse)) {
      Boite(p, "caract\xE8re interdit dans le nom");
      return std::nullopt;
    }
    return reponse;
  }
}

// One letter no other dictionary answers to; `propre`, the entry's own, may be kept.
std::optional<std::string> DemandeLettre(PartiesGestion& p, const char* invite, const std::string& propre) {
  std::string utilisees = LettresUtilisees(p.catalogue);
  if (const auto i = utilisees.find(propre); propre != " " && i != std::string::npos) utilisees.erase(i, 1);
  for (;;) {
    const std::string reponse = p.dialogues.InputBox(invite + utilisees, kTitreBoites, propre == " " ? "" : propre);
    if (reponse.empty()) return std::nullopt;
    if (reponse.size() >= 2) {
      Boite(p, "une seule lettre \xE0 entrer");
      continue;
    }
    // Letters are typed in capitals by the list's own keys.
    const std::string lettre(1, MajusculeAnsi(reponse[0]));
    if (lettre != " " && utilisees.find(lettre) != std::string::npos) {
      Boite(p, "Lettre d\xE9ja existante " + utilisees);
      continue;
    }
    return lettre;
  }
}

// Renames a file, or tells the user why it could not be done.
bool Renomme(PartiesGestion& p, const std::string& ancien, const std::string& nouveau) {
  try {
    RenommerFichier(ancien, nouveau);
    return true;
  } catch (const LexError& erreur) {
    OublieRapport();
    Boite(p, "Le fichier " + CheminAffiche(ancien) + " n'a pas pu être renommé : " + LexError::Texte(erreur.numero()) +
                 ". Le dictionnaire garde son nom.");
    return false;
  }
}

// Only the dictionaries the user added may be renamed or deleted from the main list.
int EntreeModifiable(PartiesGestion& p, bool histoire) {
  const int e = p.ecran.EntreeSousCurseur();
  if (e == 0 || (!histoire && (e <= 9 || e == p.catalogue.NombreDictio()))) {
    p.ecran.message("interdit");
    return 0;
  }
  return e;
}

}  // namespace

void mnuCreationDictio(PartiesGestion& p) {
  ErrorTrap trap(" sur CreationDictio_click");
  bool histoire = false;
  if (!SurUneListeDeDictionnaires(p, histoire)) return;
  Catalogue& c = p.catalogue;
  int e = p.ecran.EntreeSousCurseur();
  if (!histoire && e <= 9) {
    Boite(p, "Mettez vous en-dessous d'Histoire");
    return;
  }
  // An empty history group has no row to stand on: the first entry opens it.
  if (histoire && e == 0) {
    if (c.NombreHistoire > 0) {
      p.ecran.Beep();
      return;
    }
    e = 10;
  }
  const auto nom = DemandeNom(p, "Nom du nouveau dictionnaire", "", 0);
  if (!nom) return;
  const auto suffixe = DemandeSuffixe(p, "Suffixe du nouveau dictionnaire sur 3 lettres", "txt");
  if (!suffixe) return;
  if (FichierPris(p, *nom, *suffixe, 0)) {
    Boite(p, "fichier d\xE9ja existant");
    return;
  }
  const auto lettre = histoire ? std::optional<std::string>(" ") : DemandeLettre(p, "Lettre d'appel du nouveau dictionnaire sauf ", " ");
  if (!lettre) return;
  int avant = e;
  if (histoire && c.NombreHistoire > 0 && e == 9 + c.NombreHistoire && Oui(p, "cr\xE9" "ation en-dessous")) ++avant;
  CatalogueEntry nouvelle;
  nouvelle.NomDictio = nouvelle.NomFichier = *nom;
  nouvelle.Suffixe = *suffixe;
  nouvelle.LettreAppel = *lettre;
  nouvelle.OrdreAlpha = Oui(p, "avec ordre alphab\xE9tique");
  InsereDictio(c, p.selections, avant, std::move(nouvelle), histoire);
  AjoutLettreAppelDictio(c);
  p.ecran.CatalogueChange(avant);
}

void mnuModifDictio(PartiesGestion& p) {
  ErrorTrap trap(" sur ModifDictio_click");
  bool histoire = false;
  if (!SurUneListeDeDictionnaires(p, histoire)) return;
  const int e = EntreeModifiable(p, histoire);
  if (e == 0) return;
  Catalogue& c = p.catalogue;
  const auto nom = DemandeNom(p, "Nouveau nom", c[e].NomDictio, e);
  if (!nom) return;
  const auto suffixe = DemandeSuffixe(p, "Nouveau suffixe du dictionnaire sur 3 lettres", c[e].Suffixe);
  if (!suffixe) return;
  if (FichierPris(p, *nom, *suffixe, e)) {
    Boite(p, "fichier d\xE9ja existant");
    return;
  }
  const auto lettre = histoire ? std::optional<std::string>(c[e].LettreAppel)
                               : DemandeLettre(p, "Lettre d'appel du dictionnaire sauf ", c[e].LettreAppel);
  if (!lettre) return;
  const bool ordre = Oui(p, "avec ordre alphab\xE9tique");
  const std::string ancien = NomDictionnaire(c, p.reglages.DossierDictio, e);
  const std::string nouveau = p.reglages.DossierDictio + NomNatif(*nom + "." + *suffixe);
  if (nouveau != ancien && FichierExistant(ancien) &&
      Oui(p, "Souhaitez vous renommer le dictionnaire de " + CheminAffiche(ancien) + " en " + CheminAffiche(nouveau))) {
    if (!Renomme(p, ancien, nouveau)) return;
    // The working copy goes with its dictionary, or neither moves.
    if (FichierExistant(ancien + ".bak") && !Renomme(p, ancien + ".bak", nouveau + ".bak")) {
      Renomme(p, nouveau, ancien);
      return;
    }
  }
  CatalogueEntry& x = c[e];
  x.NomDictio = x.NomFichier = *nom;
  x.Suffixe = *suffixe;
  x.LettreAppel = *lettre;
  x.OrdreAlpha = ordre;
  AjoutLettreAppelDictio(c);
  p.ecran.CatalogueChange(e);
}

void mnuEffaceDictio(PartiesGestion& p) {
  ErrorTrap trap(" sur EffaceDictio_click");
  bool histoire = false;
  if (!SurUneListeDeDictionnaires(p, histoire)) return;
  const int e = EntreeModifiable(p, histoire);
  if (e == 0) return;
  Catalogue& c = p.catalogue;
  if (!Oui(p, "Souhaitez vous supprimer le dictionnaire " + c[e].NomDictio)) return;
  const std::string fichier = NomDictionnaire(c, p.reglages.DossierDictio, e);
  if (FichierExistant(fichier) && Oui(p, "Souhaitez vous supprimer le fichier " + CheminAffiche(fichier))) {
    try {
      SupprimerFichier(fichier);
    } catch (const LexError& erreur) {
      // The entry stays with its file: the user decides again, knowing why.
      OublieRapport();
      Boite(p, "Le fichier " + CheminAffiche(fichier) + " n'a pas pu \xEAtre supprim\xE9 : " + LexError::Texte(erreur.numero()) +
                   ". Le dictionnaire reste dans la liste.");
      return;
    }
  }
  RetireDictio(c, p.selections, e);
  AjoutLettreAppelDictio(c);
  // The caret goes to the row that took its place, or to the last one of the history group.
  p.ecran.CatalogueChange(histoire && e > 9 + c.NombreHistoire ? e - 1 : e);
}

void InscrireCommandesGestion(RegistreCommandes& registre, PartiesGestion p) {
  InscrireCommandes<PartiesGestion>(registre, p,
                                    {{MenuId::mnuCreationDictio, mnuCreationDictio},
                                     {MenuId::mnuModifDictio, mnuModifDictio},
                                     {MenuId::mnuEffaceDictio, mnuEffaceDictio}});
}

}  // namespace lex
