#include "controller/startup.h"

#include "base/error.h"
#include "catalogue/config.h"
#include "catalogue/saving.h"
#include "controller/commands.h"
#include "controller/form.h"
#include "controller/modes.h"
#include "controller/notepad_screen.h"
#include "controller/options.h"
#include "controller/place.h"
#include "controller/window_frame.h"
#include "data/files.h"
#include "data/safe_write.h"
#include "screen_reader/startup_scripts.h"
#include "selection/number_files.h"

namespace lex {

void Chargement(Form& f, const std::string& dossierProgramme) {
  ErrorTrap trap(" sur load");
  ActiveMenu(f, MenuId::mnuEffaceArticleDouble, true);
  ActiveMenu(f, MenuId::mnuImporterAjout, false);
  ActiveMenu(f, MenuId::mnuExporterAjout, false);
  f.recherche.RespectCasse = false;

  Reglages& r = f.reglages;
  r.DossierProgramme = ajoutbackslash(dossierProgramme);
  r.FichierConfig = r.DossierProgramme + "lex301.INI";
  r.DossierDictio = r.DossierProgramme;
  if (!f.verrou.Prendre(r.DossierProgramme)) {
    // The other one's files are left as they are: nothing is read, nothing written.
    f.dlg.MessageBox("Un autre LEX utilise d\xE9j\xE0 le dossier " + CheminAffiche(r.DossierProgramme) +
                         " : celui-ci se ferme sans toucher \xE0 ses fichiers.",
                     Boutons::OK, Icone::Exclamation, kTitreBoites);
    f.fenetre.Termine = true;
    f.ui.Quit();
    throw ProgrammeTermine{};
  }
  // What a cut left half written is thrown away before anything is written.
  SupprimerTemporaires(r.DossierProgramme);
  ChargeCadre(f);
  ScriptsAuDemarrage(r.DossierProgramme, f.dlg, f);
  r.FichierBlocNote = r.DossierProgramme + "blocnote.txt";
  r.PoliceNom = "Courier";
  r.PoliceTaille = "10";
  f.fenetre.DictioCourant = 1;

  InitDictio(f.catalogue, r.DossierDictio);
  const bool premiere = !FichierExistant(r.FichierConfig);
  std::vector<std::string> lignes;
  if (!premiere) {
    try {
      lignes = LireLignes(r.FichierConfig);
    } catch (const LexError& e) {
      if (e.numero() != 7) throw;
      // Not a configuration this program wrote: the factory one takes its place at the end.
      OublieRapport();
      f.dlg.MessageBox("Le fichier " + CheminAffiche(r.FichierConfig) +
                           " est trop grand pour \xEAtre une configuration de LEX : il est ignor\xE9 et sera "
                           "remplac\xE9 \xE0 la fermeture.",
                       Boutons::OK, Icone::Exclamation, kTitreBoites);
    }
  }
  if (lignes.empty()) lignes = LignesUsine(r.DossierProgramme);
  const std::vector<std::string> refus = LireConfig(lignes, f.catalogue, r, f.fenetre.DictioCourant);
  AjoutLettreAppelDictio(f.catalogue);

  f.ui.SetFont(PoliceReglee(r));
  f.ui.SetLineEditable(false);

  if (f.fenetre.DictioCourant == 9) {
    EntrerListeHistoire(f);
  } else {
    // The configuration keeps the row of the main list; the window works with entries.
    f.fenetre.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(f.catalogue, f.fenetre.DictioCourant));
    EntrerListeDictio(f);
  }
  // What was refused is said, then left out of the file for good.
  // A few boxes at the most, however many lines a damaged file holds.
  constexpr std::size_t kBoites = 6;
  for (std::size_t i = 0; i < refus.size() && i < kBoites; ++i) {
    std::string texte = refus[i];
    if (i + 1 == kBoites && refus.size() > kBoites)
      texte += " Et " + std::to_string(refus.size() - kBoites) + " autres lignes ignor\xE9" "es.";
    f.dlg.MessageBox(texte, Boutons::OK, Icone::Exclamation, kTitreBoites);
  }
  if (premiere) EcrireLignes(r.FichierConfig, lignes);
  else if (!refus.empty())
    EcrireLignes(r.FichierConfig, LignesConfig(f.catalogue, r, f.fenetre.ListeHistoire, f.fenetre.DictioCourant));
}

void quitter(Form& f) {
  // An article being typed is not kept anywhere yet: leaving would lose it without a word.
  const Mode m = f.fenetre.ModeCourant();
  f.fenetre.SaisieGardee = false;
  if ((SaisieArticle(m) || m == Mode::CreationDictio) &&
      f.dlg.MessageBox("Abandonner l'article en cours de saisie ?", Boutons::YesNo, Icone::Question, kTitreBoites) !=
          Reponse::Yes) {
    f.fenetre.SaisieGardee = true;
    return;
  }
  if (!LaisseBlocNote(f)) return;
  Catalogue& c = f.catalogue;
  const bool ouvert = DansUnDictionnaire(f.fenetre.ModeCourant());
  for (int i = 1; i <= c.NombreDictio() - 1; ++i) {
    if (!c[i].DicModifie) continue;
    switch (f.dlg.MessageBox("Souhaitez vous sauvegarder le dictionnaire " + c[i].NomDictio, Boutons::YesNoCancel,
                             Icone::Question, kTitreBoites)) {
      case Reponse::Yes:
        SauvegardeDic(c, f.reglages.DossierDictio, i, f.selections, ouvert ? &f.dico : nullptr,
                      f.fenetre.DictioCourant);
        break;
      case Reponse::No: {
        const std::string selection =
            NomFichierNumeros(f.reglages.DossierDictio, kPrefixeSelection, NomDictionnaire(c, f.reglages.DossierDictio, i));
        if (FichierExistant(selection)) SupprimerFichier(selection);
        break;
      }
      default:
        return;
    }
  }
  // The dictionary reopens where the user was, whatever they were doing in it.
  GardePosition(f);
  EcrireLignes(f.reglages.FichierConfig,
               LignesConfig(c, f.reglages, f.fenetre.ListeHistoire, f.fenetre.DictioCourant));
  GardeCadre(f);
  f.verrou.Rendre();
  f.fenetre.Termine = true;
  f.ui.Quit();
  throw ProgrammeTermine{};
}

}  // namespace lex
