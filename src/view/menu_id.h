// The menu entries, by the names the menu table and the scripts give them.
#pragma once

namespace lex {

enum class MenuId : int {
  mnuBlocNote, mnuEnregistrer, mnuImporterTxt, mnuImporterAjout, mnuExporterAjout, mnuQuitter,
  MnuCopieIndex, MnuCopieIndexSelection, mnuCreationIndex, mnuModifIndex, mnuEffaceIndex,
  mnuEffaceIndexSelection, mnuEffaceArticleDouble, mnuCreationDictio, mnuModifDictio, mnuEffaceDictio,
  mnuRetourIndexItem, mnuParlerIndexItem, mnuXY, mnuNombreIndex, mnuCodeIso, mnucomparaisonIndex,
  mnuSansDefinition,
  MnuSelection, MnuDeSelection, MnuSelectionTout, MnuDeSelectionTout,
  mnuRechercheindex, mnuRechercheDansIndex, mnuRechercheAvant, mnuRechercheChaine, mnuRechercheBrute,
  mnuRecherchePrecedent, mnuRechercheSuivant, mnuRechercheSuivantTout,
  mnuPoliceEcran,
  mnuAideTxt, mnuApropos,
};

}  // namespace lex
