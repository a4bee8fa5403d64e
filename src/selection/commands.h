// The Sélection menu, and the exchanges of the Fichier menu: number files and text import.
#pragma once

#include "selection/selection_screen.h"
#include "view/commands.h"

namespace lex {

void SelectionIndex(PartiesSelection& p);
void DeselectionIndex(PartiesSelection& p);
void MnuSelectionTout(PartiesSelection& p);
void MnuDeSelectionTout(PartiesSelection& p);
void mnuExporterAjout(PartiesSelection& p);
void mnuImporterAjout(PartiesSelection& p);
void mnuImporterTxt(PartiesSelection& p);

void InscrireCommandesSelection(RegistreCommandes& registre, PartiesSelection p);

}  // namespace lex
