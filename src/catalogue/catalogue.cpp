#include "catalogue/catalogue.h"

#include <algorithm>

#include "data/files.h"
#include "data/index_file.h"
#include "base/numbers.h"
#include "base/error.h"

namespace lex {

CatalogueEntry& Catalogue::operator[](int i) {
  if (i < 1 || i > NombreDictio()) Erreur(9);
  return entrees_[static_cast<std::size_t>(i - 1)];
}

const CatalogueEntry& Catalogue::operator[](int i) const {
  if (i < 1 || i > NombreDictio()) Erreur(9);
  return entrees_[static_cast<std::size_t>(i - 1)];
}

void Catalogue::Inserer(int avant, CatalogueEntry e) {
  if (avant < 1 || avant > NombreDictio() + 1) Erreur(9);
  entrees_.insert(entrees_.begin() + (avant - 1), std::move(e));
}

void InitDictio(Catalogue& c, const std::string& dossierDictio) {
  ErrorTrap trap(" sur InirtDictio");
  struct Fixe {
    const char* suffixe;
    const char* fichier;
    const char* nom;
    const char* lettre;
  };
  static const Fixe fixes[] = {
      {"eng", "lex", "ANGLAIS francais", "A"},
      {"fen", "lex", "FRANCAIS ANGLAIS", "F"},
      {"inf", "lex", "INFORMATIQUE ANGLAIS FRANCAIS", "I"},
      {"txt", "Verbes irr\xE9guliers anglais", "Verbes irr\xE9guliers anglais", "R"},
      {"rob", "lex", "nom commun", "C"},
      {"npr", "lex", "NOM PROPRE", "P"},
      {"zyz", "lex", "ENCYCLOPEDIE", "E"},
      {"ver", "lex", "CONJUGAISON", "V"},
      {"", "lex", "Histoire", "H"},
  };
  c = Catalogue();
  for (const Fixe& f : fixes) {
    CatalogueEntry e;
    e.Suffixe = f.suffixe;
    e.NomFichier = f.fichier;
    e.NomDictio = f.nom;
    e.LettreAppel = f.lettre;
    c.entrees().push_back(e);
  }
  CatalogueEntry bloc;
  bloc.NomDictio = "BLOC NOTE";
  bloc.LettreAppel = "B";
  c.entrees().push_back(bloc);
  // Index files of the earlier naming ("index.eng") are left-overs; the current ones
  // carry the base name too ("index.lex.eng") and are not touched. A user's own file of such
  // a name ("index.txt" of notes) is not ours and stays.
  for (int i = 1; i <= 8; ++i) {
    const std::string index = dossierDictio + NomNatif("index." + c[i].Suffixe);
    const std::string lettre = dossierDictio + NomNatif("lettre." + c[i].Suffixe);
    if (EstFichierIndex(index)) SupprimerFichier(index);
    if (EstFichierLettre(lettre)) SupprimerFichier(lettre);
  }
}

std::string DefautDeNom(std::string_view nom) {
  if (nom.empty()) return "est vide";
  if (nom.size() > kLongueurNomMax) return "est trop long";
  if (nom.find_first_of("/\\") != std::string_view::npos) return "contient un s\xE9parateur de dossier";
  if (nom.find("..") != std::string_view::npos) return "contient \"..\"";
  if (nom.find(':') != std::string_view::npos) return "contient un nom de lecteur";
  for (char ch : nom)
    if (static_cast<unsigned char>(ch) < 32) return "contient un caract\xE8re de contr\xF4le";
  return {};
}

std::string LireLigneCatalogue(Catalogue& c, std::string_view l) {
  CatalogueEntry e;
  auto p = l.find(',');
  e.PositionDictio = Val(l.substr(0, p));
  // The suffix is always the three characters after the first comma; the rest starts after
  // the comma that follows the suffix.
  std::size_t apres = p == std::string_view::npos ? l.size() : p + 1;
  e.Suffixe = std::string(l.substr(std::min(apres, l.size()), 3));
  std::string_view r = l.substr(std::min(apres + 4, l.size()));
  auto q = r.find(',');
  if (q == std::string_view::npos) {
    // A line without a comma after the name loses its first three characters.
    // The call letter stays the blank of an entry that has none.
    e.NomDictio = std::string(r.substr(std::min<std::size_t>(3, r.size())));
  } else {
    e.NomDictio = std::string(r.substr(0, q));
    constexpr std::string_view kSans = "SansOrdreAlpha";
    if (r.size() >= kSans.size() && r.substr(r.size() - kSans.size()) == kSans) {
      e.LettreAppel = std::string(r.substr(q + 1, 1));
      e.OrdreAlpha = false;
    } else {
      e.LettreAppel = std::string(r.substr(r.size() - 1));
    }
  }
  e.NomFichier = e.NomDictio;
  for (const std::string* nom : {&e.NomDictio, &e.Suffixe})
    if (std::string defaut = DefautDeNom(*nom); !defaut.empty()) {
      // Quoted as far as it can be shown on one line of a message box.
      std::string montre = nom->substr(0, 60);
      for (char& ch : montre)
        if (static_cast<unsigned char>(ch) < 32) ch = '?';
      return (nom == &e.Suffixe ? "le suffixe \xAB " : "le nom \xAB ") + montre + " \xBB " + defaut;
    }
  c.Inserer(c.NombreDictio(), std::move(e));
  return {};
}

std::string LigneCatalogue(const CatalogueEntry& e) {
  std::string l = std::to_string(e.PositionDictio) + "," + e.Suffixe + "," + e.NomDictio + "," + e.LettreAppel;
  if (!e.OrdreAlpha) l += ",SansOrdreAlpha";
  return l;
}

namespace {
// `texte` padded with blanks to `largeur` characters.
std::string complete(std::string_view texte, std::size_t largeur) {
  std::string s(texte);
  if (s.size() < largeur) s.append(largeur - s.size(), ' ');
  return s;
}
}  // namespace

void AjoutLettreAppelDictio(Catalogue& c) {
  ErrorTrap trap("sur AjoutLettreAppelDictio");
  std::size_t largeur = 1;
  for (const auto& e : c.entrees()) largeur = std::max(largeur, e.NomDictio.size());
  ++largeur;
  for (auto& e : c.entrees()) e.LigneListe = complete(e.NomDictio, largeur) + e.LettreAppel;
}

std::string NomDictionnaire(const Catalogue& c, const std::string& dossierDictio, int i) {
  ErrorTrap trap(" sur NomDictionnaire");
  return dossierDictio + NomNatif(c[i].NomFichier + "." + c[i].Suffixe);
}

std::string NomIndex(const Catalogue& c, const std::string& dossierDictio, int i) {
  return dossierDictio + NomNatif("index." + c[i].NomFichier + "." + c[i].Suffixe);
}

std::string NomLettre(const Catalogue& c, const std::string& dossierDictio, int i) {
  return dossierDictio + NomNatif("lettre." + c[i].NomFichier + "." + c[i].Suffixe);
}

int EntreeDeLigne(const Catalogue& c, int rang) { return rang > 9 ? rang + c.NombreHistoire : rang; }

int LigneDeEntree(const Catalogue& c, int entree) { return entree > 9 ? entree - c.NombreHistoire : entree; }

}  // namespace lex
