#include "selection/commands.h"

#include <string>

#include "base/error.h"
#include "selection/selecting.h"

namespace lex {
namespace {

// Selecting is refused while another dictionary holds a selection: it never spans two.
bool SelectionAilleurs(PartiesSelection& p) {
  if (AutreDictioSelectionne(p.selections, p.dictioCourant) == 0) return false;
  p.ecran.Beep();
  p.ecran.message("S\xE9lection d\xE9ja faite dans un autre dictionnaire");
  return true;
}

}  // namespace

void SelectionIndex(PartiesSelection& p) {
  ErrorTrap trap(" sur SelectionIndex");
  const std::int32_t n = SurUneListe(p.ecran.mode()) ? p.ecran.EntreeDictio() : 0;
  if (n == 0) {
    p.ecran.Beep();
    return;
  }
  if (SelectionAilleurs(p)) return;
  // Selected again, the entry keeps its one mark; the user hears the line either way.
  Selectionne(p.selections, p.dico.TableIndex, p.dictioCourant, n);
  p.ecran.RemontrePage(true);
}

void DeselectionIndex(PartiesSelection& p) {
  ErrorTrap trap(" sur DeSelectionIndex");
  const std::int32_t n = SurUneListe(p.ecran.mode()) ? p.ecran.EntreeDictio() : 0;
  if (n == 0 || !Deselectionne(p.selections, p.dico.TableIndex, p.dictioCourant, n)) {
    p.ecran.Beep();
    return;
  }
  p.ecran.RemontrePage(true);
}

void MnuSelectionTout(PartiesSelection& p) {
  ErrorTrap trap(" sur selectionTout_click");
  if (!SurUneListe(p.ecran.mode()) || p.ecran.Liste().Nombre() == 0) {
    p.ecran.Beep();
    return;
  }
  if (SelectionAilleurs(p)) return;
  SelectionneListe(p.selections, p.dico.TableIndex, p.dictioCourant, p.ecran.Liste());
  p.ecran.RemontrePage(false);
  p.ecran.message(std::to_string(NombreSelection(p.selections, p.dictioCourant)) + " index s\xE9lectionn\xE9s");
}

void MnuDeSelectionTout(PartiesSelection& p) {
  ErrorTrap trap(" sur DeselectionTout_click");
  bool selection = false;
  for (auto& [d, numeros] : p.selections.TableSelection) {
    selection = selection || !numeros.empty();
    numeros.clear();
  }
  if (!selection) {
    p.ecran.Beep();
    p.ecran.message("aucun index s\xE9lectionn\xE9");
    return;
  }
  // The marks go with the lines read again from the index.
  if (DansUnDictionnaire(p.ecran.mode())) p.ecran.RechargeIndex();
  p.ecran.message("s\xE9lection annul\xE9" "e");
}

void InscrireCommandesSelection(RegistreCommandes& registre, PartiesSelection p) {
  InscrireCommandes<PartiesSelection>(registre, p,
                                      {{MenuId::MnuSelection, SelectionIndex},
                                       {MenuId::MnuDeSelection, DeselectionIndex},
                                       {MenuId::MnuSelectionTout, MnuSelectionTout},
                                       {MenuId::MnuDeSelectionTout, MnuDeSelectionTout},
                                       {MenuId::mnuExporterAjout, mnuExporterAjout},
                                       {MenuId::mnuImporterAjout, mnuImporterAjout},
                                       {MenuId::mnuImporterTxt, mnuImporterTxt}});
}

}  // namespace lex
