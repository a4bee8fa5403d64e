// The exchanges of the Fichier menu: the number files written and read back, and a text file
// of articles merged into the open dictionary.
#include <filesystem>
#include <string>

#include "base/error.h"
#include "data/article_merge.h"
#include "data/files.h"
#include "selection/commands.h"
#include "selection/number_files.h"
#include "selection/selecting.h"
#include "selection/text_import.h"

namespace lex {
namespace {

std::string Compte(std::size_t n, const char* quoi) { return std::to_string(n) + " index " + quoi; }

// The same file under two names: importing a dictionary into itself would read what it writes.
bool MemeFichier(const std::string& a, const std::string& b) {
  std::error_code ec;
  return std::filesystem::equivalent(CheminNatif(a), CheminNatif(b), ec) && !ec;
}

}  // namespace

void mnuExporterAjout(PartiesSelection& p) {
  ErrorTrap trap(" sur ExporterAjout_click");
  if (!DansUnDictionnaire(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  const int d = p.dictioCourant;
  const std::string dictio = p.ecran.FichierDictio();
  const auto& ajouts = p.selections.TableAjout[d];
  const auto& selection = p.selections.TableSelection[d];
  if (!ajouts.empty()) EcrireNumeros(NomFichierNumeros(p.dossierDictio, kPrefixeAjout, dictio), ajouts);
  EcrireNumeros(NomFichierNumeros(p.dossierDictio, kPrefixeSelection, dictio), selection);
  // Exported numbers are worth keeping: saving the dictionary no longer removes them.
  p.selections.GardeNumeros.insert(d);
  p.ecran.message("export\xE9s : " + Compte(ajouts.size(), "ajout\xE9s") + ", " +
                  Compte(selection.size(), "s\xE9lectionn\xE9s"));
}

void mnuImporterAjout(PartiesSelection& p) {
  ErrorTrap trap(" sur ImporterAjout_click");
  if (!SurUneListe(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  const int d = p.dictioCourant;
  const std::string dictio = p.ecran.FichierDictio();
  const std::int32_t nombre = p.dico.TableIndex.NombreArticle();
  std::string dit;
  std::int32_t ignores = 0;
  const std::string ajout = NomFichierNumeros(p.dossierDictio, kPrefixeAjout, dictio);
  if (FichierExistant(ajout)) {
    NumerosLus lus = LireNumeros(ajout, nombre);
    ignores += lus.ignores;
    dit = Compte(lus.numeros.size(), "ajout\xE9s");
    p.selections.TableAjout[d] = std::move(lus.numeros);
  } else {
    dit = "Table ajout Inexistante";
  }
  const std::string selection = NomFichierNumeros(p.dossierDictio, kPrefixeSelection, dictio);
  if (FichierExistant(selection)) {
    NumerosLus lus = LireNumeros(selection, nombre);
    ignores += lus.ignores;
    if (!lus.numeros.empty() && AutreDictioSelectionne(p.selections, d) != 0) {
      p.ecran.Beep();
      dit += ", s\xE9lection non import\xE9" "e : s\xE9lection d\xE9ja faite dans un autre dictionnaire";
    } else {
      dit += ", " + Compte(lus.numeros.size(), "s\xE9lectionn\xE9s");
      p.selections.TableSelection[d] = std::move(lus.numeros);
    }
  } else {
    dit += ", table s\xE9lection inexistante";
  }
  if (ignores > 0) dit += ", " + std::to_string(ignores) + " lignes ignor\xE9" "es";
  p.ecran.RechargeIndex();
  p.ecran.message(dit);
}

void mnuImporterTxt(PartiesSelection& p) {
  ErrorTrap trap(" sur ImporterTxt_click");
  if (!SurUneListe(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  if (!p.dico.OrdreAlpha) {
    p.dialogues.MessageBox("impossible car sans ordre alphab\xE9tique", Boutons::OK, Icone::Exclamation, "LEX");
    p.ecran.Beep();
    return;
  }
  const std::string dictio = p.ecran.FichierDictio();
  std::string choisi = p.dialogues.OpenFileDialog("Importer une mise \xE0 jour",
                                                  "Fichiers texte (*.txt)|*.txt|tous fichiers (*.*)|*.*",
                                                  p.dossierDictio, "ImportationDic.txt");
  if (choisi.empty()) return;
  if (!FichierExistant(choisi)) {
    p.ecran.message("fichier " + CheminAffiche(choisi) + " introuvable");
    return;
  }
  if (MemeFichier(choisi, dictio) || MemeFichier(choisi, dictio + ".bak") || MemeFichier(choisi, p.dico.fichiers.dictio)) {
    p.ecran.Beep();
    p.ecran.message("impossible d'importer le dictionnaire dans lui-m\xEAme");
    return;
  }
  // The user's file is read from a copy, left beside it.
  if (!choisi.ends_with(".bak")) {
    CopierFichier(choisi, choisi + ".bak");
    choisi += ".bak";
  }
  const Importation imp = LireImportation(choisi, [&p] { p.ecran.Beep(); });
  if (imp.cles.empty()) {
    p.ecran.message("aucun index \xE0 importer : une ligne d'index contient \xAB ( \xBB, \xAB [ \xBB ou \xAB , \xBB");
    return;
  }
  LecteurArticles lecteur(choisi, imp.utf8);
  const Changement ch = p.ecran.ChangeDictionnaire([&](const std::string& source, EcritureSure& cible) {
    return FusionneArticles(source, cible, imp.cles,
                            [&](std::size_t i) { return lecteur.Texte(imp.articles[i]); });
  });
  p.ecran.message(std::to_string(ch.inseresAvant.size()) + " ajout\xE9s");
}

}  // namespace lex
