#include "exchange/catalogue_addition.h"

#include <utility>

#include "base/encoding.h"
#include "base/error.h"
#include "catalogue/config.h"
#include "catalogue/management.h"
#include "data/files.h"
#include "data/safe_write.h"
#include "exchange/article.h"
#include "selection/selections.h"

namespace lex::exchange {

namespace {

std::string Guillemets(const std::string& utf8) { return "\xC2\xAB " + utf8 + " \xC2\xBB"; }

}  // namespace

AjoutCatalogue::AjoutCatalogue(const std::filesystem::path& dossier, const NouveauDictionnaire& d) {
  const std::string nomDossier = dossier.string();
  std::error_code ec;
  if (!std::filesystem::is_directory(dossier, ec)) throw ErreurImport(nomDossier, "", "dossier introuvable");
  Reglages& r = reglages_;
  r.DossierProgramme = ajoutbackslash(NomDepuisNatif(dossier));
  r.DossierDictio = r.DossierProgramme;
  r.FichierConfig = r.DossierProgramme + "lex301.INI";
  r.FichierBlocNote = r.DossierProgramme + "blocnote.txt";
  if (!verrou_.Prendre(r.DossierProgramme))
    throw ErreurImport(nomDossier, "",
                       "LEX est ouvert sur ce dossier : fermez-le puis recommencez. Rien n'a \xC3\xA9t\xC3\xA9 modifi\xC3\xA9.");

  const std::string config = AnsiVersUtf8(CheminAffiche(r.FichierConfig));
  auto refuse = [&](const std::string& probleme) { throw ErreurImport(config, "", probleme); };
  InitDictio(catalogue_, r.DossierDictio);
  std::vector<std::string> lignes;
  if (FichierExistant(r.FichierConfig)) {
    try {
      lignes = LireLignes(r.FichierConfig);
    } catch (const LexError& e) {
      OublieRapport();
      refuse(AnsiVersUtf8(LexError::Texte(e.numero())));
    }
  }
  if (lignes.empty()) lignes = LignesUsine(r.DossierProgramme);
  // Lines LEX would drop (and say so) must not be dropped here without a word.
  if (!LireConfig(lignes, catalogue_, r, rang_).empty())
    refuse("des lignes de la configuration sont refus\xC3\xA9" "es par LEX : ouvrez LEX une fois sur ce dossier, puis recommencez");
  if (catalogue_.NombreDictio() >= kEntreesMax)
    refuse("le catalogue compte d\xC3\xA9j\xC3\xA0 " + std::to_string(kEntreesMax) + " dictionnaires, le plus qu'il puisse");

  // The checks of the Edition menu's creation, with its words where it has some.
  const std::string nom = Utf8VersAnsi(d.nom);
  const std::string suffixe = Utf8VersAnsi(d.suffixe);
  for (int i = 1; i <= catalogue_.NombreDictio(); ++i)
    if (catalogue_[i].NomDictio == nom) refuse("le catalogue a d\xC3\xA9j\xC3\xA0 un dictionnaire " + Guillemets(d.nom));
  if (nom.find(',') != std::string::npos) refuse("virgule interdite dans le nom " + Guillemets(d.nom));
  if (nom.size() > kLongueurNomMax)
    refuse("nom trop long : " + std::to_string(kLongueurNomMax) + " caract\xC3\xA8res au plus");
  if (!NomDeFichierPermis(nom)) refuse("caract\xC3\xA8re interdit dans le nom " + Guillemets(d.nom));
  if (suffixe.size() != 3) refuse("le suffixe " + Guillemets(d.suffixe) + " doit avoir 3 lettres");
  if (!NomDeFichierPermis(suffixe)) refuse("caract\xC3\xA8re interdit dans le suffixe " + Guillemets(d.suffixe));
  const std::string cle = MajusculesAnsi(nom + "." + suffixe);
  for (int i = 1; i <= catalogue_.NombreDictio(); ++i)
    if (MajusculesAnsi(catalogue_[i].NomFichier + "." + catalogue_[i].Suffixe) == cle)
      refuse("le fichier " + d.nom + "." + d.suffixe + " est celui du dictionnaire " +
             Guillemets(AnsiVersUtf8(catalogue_[i].NomDictio)));
  std::string lettre = " ";
  if (!d.lettre.empty()) {
    const std::string l = Utf8VersAnsi(d.lettre);
    if (l.size() != 1 || l == " ") refuse("une seule lettre d'appel \xC3\xA0 donner, pas " + Guillemets(d.lettre));
    lettre = std::string(1, MajusculeAnsi(l[0]));
    const std::string utilisees = LettresUtilisees(catalogue_);
    if (utilisees.find(lettre) != std::string::npos)
      refuse("lettre d'appel " + AnsiVersUtf8(lettre) + " d\xC3\xA9j\xC3\xA0 prise ; les lettres prises : " +
             AnsiVersUtf8(utilisees));
  }

  entree_.NomDictio = entree_.NomFichier = nom;
  entree_.Suffixe = suffixe;
  entree_.LettreAppel = lettre;
  entree_.OrdreAlpha = d.ordreAlpha;
  fichier_ = CheminNatif(r.DossierDictio + NomNatif(nom + "." + suffixe));
}

std::string AjoutCatalogue::Lettre() const {
  return entree_.LettreAppel == " " ? std::string() : AnsiVersUtf8(entree_.LettreAppel);
}

void AjoutCatalogue::Inscrire() {
  Catalogue& c = catalogue_;
  // The configuration keeps the user's row: "BLOC NOTE" moves down one entry with the new row.
  const bool histoire = rang_ == 9;
  int courant = EntreeDeLigne(c, rang_);
  const int avant = c.NombreDictio();
  if (courant >= avant) ++courant;
  Selections selections;
  InsereDictio(c, selections, avant, entree_, false);
  AjoutLettreAppelDictio(c);
  EcrireLignesSur(reglages_.FichierConfig, LignesConfig(c, reglages_, histoire, courant), Donnees::Utilisateur);
}

}  // namespace lex::exchange
