#include "controller/menus.h"

#include "view/keys.h"

namespace lex {

std::string Raccourci::Nom() const {
  if (code == 0) return {};
  std::string n;
  if (shift & kCtrl) n += "Ctrl+";
  if (shift & kShift) n += "Shift+";
  if (code >= Touche::F1 && code < Touche::F1 + 12) return n + "F" + std::to_string(code - Touche::F1 + 1);
  return n + static_cast<char>(code);
}

const std::vector<Menu>& TableMenus() {
  using M = MenuId;
  const Raccourci aucun{};
  auto ctrl = [](char c) { return Raccourci{c, kCtrl}; };
  auto f = [](int n, int shift = 0) { return Raccourci{Touche::F(n), shift}; };
  static const std::vector<Menu> table = {
      {"mnuFichier", "&Fichier",
       {{M::mnuBlocNote, "mnuBlocNote", "Bloc note", ctrl('B')},
        {M::mnuEnregistrer, "mnuEnregistrer", "Enregistrer", ctrl('S')},
        {M::mnuImporterTxt, "mnuImporterTxt", "Importer une mise \xE0 jour", ctrl('Y')},
        {M::mnuImporterAjout, "mnuImporterAjout", "Importer la table de mise \xE0 jour et la s\xE9lection", ctrl('K')},
        {M::mnuExporterAjout, "mnuExporterAjout", "Exporter la table de mise \xE0 jour et la s\xE9lection", aucun},
        {M::mnuQuitter, "mnuQuitter", "&Quitter", aucun}}},
      {"mnuEdition", "&Edition",
       {{M::MnuCopieIndex, "MnuCopieIndex", "copie du contenu de l'index dans le presse papier", f(8)},
        {M::MnuCopieIndexSelection, "MnuCopieIndexSelection",
         "copie du contenu des index s\xE9lectionn\xE9s dans le presse papier", f(8, kShift)},
        {M::mnuCreationIndex, "mnuCreationIndex", "Cr\xE9" "ation d'un index", ctrl('N')},
        {M::mnuModifIndex, "mnuModifIndex", "Modification d'un index", ctrl('M')},
        {M::mnuEffaceIndex, "mnuEffaceIndex", "Suppression d'un index", f(5, kCtrl)},
        {M::mnuEffaceIndexSelection, "mnuEffaceIndexSelection", "Suppression des index s\xE9lectionn\xE9s", f(5, kShift)},
        {M::mnuEffaceArticleDouble, "mnuEffaceArticleDouble", "Suppression des articles doubles", f(6, kCtrl)},
        {M::mnuCreationDictio, "mnuCreationDictio", "Cr\xE9" "ation d'un dictionnaire", aucun},
        {M::mnuModifDictio, "mnuModifDictio", "Modification d'un dictionnaire", aucun},
        {M::mnuEffaceDictio, "mnuEffaceDictio", "Suppression d'un dictionnaire", aucun}}},
      {"mnuAffichage", "&Affichage",
       {{M::mnuRetourIndexItem, "mnuRetourIndexItem", "Retour \xE0 l'index ou choix des dictionnaires Echappement", aucun},
        {M::mnuParlerIndexItem, "mnuParlerIndexItem", "Index I", aucun},
        {M::mnuXY, "mnuXY", "Coordonn\xE9" "es du curseur", ctrl('G')},
        {M::mnuNombreIndex, "mnuNombreIndex", "Nombre d'index", f(9)},
        {M::mnuCodeIso, "mnuCodeIso", "Code iso", ctrl('Q')},
        {M::mnucomparaisonIndex, "mnucomparaisonIndex",
         "Liste des index n'existant pas dans le dictionnaire choisi et le dictionnaire en cours", f(9, kCtrl)},
        {M::mnuSansDefinition, "mnuSansDefinition", "Liste des index sans d\xE9" "finition", f(9, kShift)}}},
      {"mnuPrincipalSelections", "&S\xE9lection",
       {{M::MnuSelection, "MnuSelection", "s\xE9lection d'un index Ctrl Fl\xEA" "che bas ou ", f(4)},
        {M::MnuDeSelection, "MnuDeSelection", "d\xE9s\xE9lection d'un index : Ctrl-Espace", aucun},
        {M::MnuSelectionTout, "MnuSelectionTout", "S\xE9lection de tous les index", ctrl('A')},
        {M::MnuDeSelectionTout, "MnuDeSelectionTout", "d\xE9s\xE9lection de tous les index", ctrl('Z')}}},
      {"mnuRecherche", "&Recherche",
       {{M::mnuRechercheindex, "mnuRechercheindex", "Recherche du d\xE9" "but d'un index", ctrl('I')},
        {M::mnuRechercheDansIndex, "mnuRechercheDansIndex", "Recherche d'une chaine dans l'index", ctrl('R')},
        {M::mnuRechercheAvant, "mnuRechercheAvant", "Recherche d'une chaine dans les d\xE9" "finitions", ctrl('F')},
        {M::mnuRechercheChaine, "mnuRechercheChaine", "Liste des index contenant la chaine", ctrl('E')},
        {M::mnuRechercheBrute, "mnuRechercheBrute", "Bascule recherche avec/sans respect de la casse", ctrl('H')},
        {M::mnuRecherchePrecedent, "mnuRecherchePrecedent", "Recherche pr\xE9" "c\xE9" "dente", f(3, kShift)},
        {M::mnuRechercheSuivant, "mnuRechercheSuivant", "Recherche suivante", f(3, kCtrl)},
        {M::mnuRechercheSuivantTout, "mnuRechercheSuivantTout", "Recherche chaine suivante dans tous les articles", f(3)}}},
      {"mnuOptions", "&Options", {{M::mnuPoliceEcran, "mnuPoliceEcran", "Choix de la police de l'\xE9" "cran", aucun}}},
      {"mnuAide", "&?", {{M::mnuAideTxt, "mnuAideTxt", "&Guide", aucun}, {M::mnuApropos, "mnuApropos", "A &propos", aucun}}},
  };
  return table;
}

const MenuItem* MenuParNom(std::string_view nom) {
  for (const Menu& m : TableMenus())
    for (const MenuItem& e : m.entrees)
      if (nom == e.nom) return &e;
  return nullptr;
}

const MenuItem* MenuParRaccourci(int code, int shift) {
  if (code == 0) return nullptr;
  for (const Menu& m : TableMenus())
    for (const MenuItem& e : m.entrees)
      if (e.raccourci.code == code && e.raccourci.shift == (shift & (kCtrl | kShift | kAlt))) return &e;
  return nullptr;
}

}  // namespace lex
