// The window's state: the parts each subsystem works on, the port to the window, and the
// screen the subsystems ask to show what they found.
#pragma once
#include <map>

#include "catalogue/catalogue.h"
#include "catalogue/catalogue_screen.h"
#include "catalogue/settings.h"
#include "data/folder_lock.h"
#include "data/open_dictionary.h"
#include "editing/edit_screen.h"
#include "notepad/notepad.h"
#include "reports/report_screen.h"
#include "search/search_state.h"
#include "selection/selection_screen.h"
#include "selection/selections.h"
#include "controller/comparison.h"
#include "controller/window_state.h"
#include "view/commands.h"
#include "view/dialogs.h"
#include "view/window.h"

namespace lex {

struct Form final : EcranRapports, EcranSelection, EcranCatalogue, EcranBlocNote, EcranEdition {
  Form(Fenetre& fenetreUi, Dialogues& dialogues);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Fenetre& ui;
  Dialogues& dlg;
  Reglages reglages;
  Catalogue catalogue;
  DictionnaireOuvert dico;
  ListeAffichee liste{dico};
  EtatFenetre fenetre;
  EtatRecherche recherche;
  Selections selections;
  BlocNote blocnote;
  RegistreCommandes commandes;
  VerrouDossier verrou;
  // Menu entries the program has disabled; the others are enabled.
  std::map<MenuId, bool> menusInactifs;
  // Where the user was when the choice of a dictionary to compare with began.
  PlaceAvantChoix avantComparaison;

  // What the subsystems ask of the screen.
  Mode mode() const override { return fenetre.ModeCourant(); }
  void message(std::string texte) override;
  void Beep() override { ui.Beep(); }
  const ListeAffichee& Liste() const override { return liste; }
  std::string TexteChamp() const override;
  std::size_t CurseurChamp() const override;
  void MontreOccurrence(std::size_t position) override;
  std::int32_t EntreeCourante() const override;
  void MontrePage(std::int32_t i) override;
  void RetourPage(std::int32_t i, bool annonce, const std::string& debut) override;
  void MontreArticle(std::int32_t i, const std::string& article, std::size_t curseur) override;
  void MontreResultats(std::vector<EntreeTrouvee> entrees, std::string titre) override;
  void ChercheDebut(const std::string& plie) override;
  void EntrerChoixComparaison() override;
  int EntreeChoisie() const override;
  Place PlaceCurseur() const override;
  void RemontrePage(bool annonce) override;
  void RechargeIndex() override;
  std::string FichierDictio() const override;
  Changement ChangeDictionnaire(const Ecrivain& ecrire) override;
  int EntreeSousCurseur() const override;
  void CatalogueChange(int entree) override;
  void MontreBlocNote() override;
  void GardePage() override;
  void QuitteBlocNote() override;
  void EntrerSaisie(Mode m, std::int32_t entree, const std::string& texte) override;
  std::int32_t EntreeSaisie() const override { return fenetre.EntreeAvantSaisie; }
  std::string TexteSaisi() const override { return ui.GetLineText(); }
  bool SaisieRemplacee() const override;
  Changement Retouche(const lex::Retouche& r) override;
  void PlaceSurEntree(std::int32_t numero) override;
  void PressePapier(const std::string& texte) override { ui.ClipboardSetText(texte); }
  PartiesBlocNote PartiesNote() { return {*this, dlg, blocnote, reglages.FichierBlocNote}; }
  lex::PartiesEdition PartiesEdition() { return {*this, dlg, selections, dico, fenetre.DictioCourant}; }
};

}  // namespace lex
