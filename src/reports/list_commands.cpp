#include "reports/list_commands.h"

#include <string>
#include <utility>
#include <vector>

#include "base/error.h"
#include "data/files.h"
#include "reports/comparison.h"
#include "reports/without_definition.h"

namespace lex {
namespace {

const std::string& NomOuvert(const PartiesRapports& p) { return p.catalogue[p.dictioCourant].NomDictio; }

void Absent(PartiesRapports& p, const std::string& nom) {
  p.dialogues.MessageBox("dictionnaire " + nom + " absent", Boutons::OK, Icone::Exclamation, kTitreBoites);
}

// The result list in place of the index, and how many entries it holds.
void Montre(PartiesRapports& p, std::vector<EntreeTrouvee> entrees, std::string titre, const char* suite) {
  const std::size_t nombre = entrees.size();
  p.ecran.MontreResultats(std::move(entrees), std::move(titre));
  p.ecran.message(std::to_string(nombre) + suite);
}

}  // namespace

void mnucomparaisonIndex(PartiesRapports& p) {
  ErrorTrap trap(" sur ComparaisonIndex_click");
  const Mode m = p.ecran.mode();
  // Asked again while choosing: the heading is said again.
  if (m != Mode::ChoixComparaison) {
    if (!DansUnDictionnaire(m)) {
      p.ecran.message("choisissez d'abord le dictionnaire");
      return;
    }
    p.ecran.EntrerChoixComparaison();
  }
  p.ecran.message("Choix du dictionnaire \xE0 comparer avec " + NomOuvert(p));
}

void ComparaisonIndex(PartiesRapports& p) {
  ErrorTrap trap(" sur ComparaisonIndex");
  if (p.ecran.mode() != Mode::ChoixComparaison) {
    p.ecran.Beep();
    return;
  }
  const Catalogue& c = p.catalogue;
  const int autre = p.ecran.EntreeChoisie();
  if (autre < 1) {
    p.ecran.message("choisissez un dictionnaire");
    return;
  }
  if (autre == c.NombreDictio()) {
    p.ecran.message("le bloc note n'est pas un dictionnaire");
    return;
  }
  const std::string& nom = c[autre].NomDictio;
  // The history group's row: its chronologies are kept in date order, none alphabetically.
  if (autre == 9) {
    p.ecran.message("index absent de " + nom);
    return;
  }
  const std::string index = NomIndex(c, p.reglages.DossierDictio, autre);
  const std::string dictio = p.fichierDictio(autre);
  // An index without its dictionary says nothing of what the dictionary holds now.
  if (!FichierExistant(index) || !FichierExistant(dictio)) {
    Absent(p, nom);
    return;
  }
  if (!c[autre].OrdreAlpha) {
    p.ecran.message("index absent de " + nom);
    return;
  }
  Comparaison r =
      CompareAvecIndex(p.ecran.Liste().Dictionnaire(), index, LongueurFichier(dictio), [&p] { p.ecran.Beep(); });
  switch (r.etat) {
    case LectureIndex::Lue: break;
    case LectureIndex::Absente: Absent(p, nom); return;
    // Not a word: only a beep, so that the key is not met with silence.
    case LectureIndex::Version: p.ecran.Beep(); return;
    case LectureIndex::ARefaire:
      p.ecran.message("index de " + nom + " \xE0 refaire : ouvrez ce dictionnaire, puis recommencez");
      return;
  }
  if (r.absents.empty()) {
    p.ecran.message("Identique");
    return;
  }
  Montre(p, std::move(r.absents), "comparaison " + NomOuvert(p) + " avec " + nom, " index trouv\xE9");
}

void mnuSansDefinition(PartiesRapports& p) {
  ErrorTrap trap(" sur SansDefinition_click");
  if (!SurUneListe(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  std::vector<EntreeTrouvee> trouvees = IndexSansDefinition(p.ecran.Liste().Dictionnaire(), [&p] { p.ecran.Beep(); });
  if (trouvees.empty()) {
    p.ecran.message("introuvable");
    return;
  }
  Montre(p, std::move(trouvees), "index sans d\xE9" "finition", " index sans d\xE9" "finition");
}

}  // namespace lex
