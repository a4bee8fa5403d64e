// The reports on a large dictionary. See bench_common.h for the arguments and the output.
//
// Comparison (ComparaisonIndex, the whole command as Enter in the choice runs it, the result
// list shown): the dictionary against a copy of it that lacks one entry in a hundred, made in
// the work folder with its index; measured against cat of both index files. Every entry the
// comparison lists must be one the copy lacks.
//
// Entries without definition (mnuSansDefinition, the whole command): measured against
// grep -c -F of the planted word on the same dictionary file. The copy, whose articles one in
// a hundred were stripped of their definitions, checks the count.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unordered_set>

#include "bench_common.h"
#include "base/encoding.h"
#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "controller/commands.h"
#include "controller/comparison.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/modes.h"
#include "data/files.h"
#include "data/folding.h"
#include "data/index_file.h"
#include "data/safe_write.h"
#include "reports/without_definition.h"

namespace {

using namespace lex;
using namespace lex::bench;

// The copy drops entry i when i % kRetrait == 0 and keeps only the index line of entry i
// when i % kRetrait == kVide.
constexpr std::int32_t kRetrait = 100;
constexpr std::int32_t kVide = 50;

struct Copie {
  std::int32_t retirees = 0;
  std::int32_t videes = 0;
};

// Writes the copy of the open dictionary, article by article from the table's offsets.
Copie FaitCopie(const DictionnaireOuvert& d, const std::string& cible) {
  Copie c;
  const IndexTable& t = d.TableIndex;
  Fichier source = OuvrirFichier(d.fichiers.dictio);
  EcritureSure sortie(cible, Donnees::Reconstructible);
  std::string article, bloc;
  for (std::int32_t i = 1; i <= t.NombreArticle(); ++i) {
    const std::int64_t debut = t.position(i), fin = t.position(i + 1);
    article.resize(static_cast<std::size_t>(fin - debut));
    if (std::fread(article.data(), 1, article.size(), source.get()) != article.size())
      Echec("short read of the dictionary");
    if (i % kRetrait == 0) {
      ++c.retirees;
      continue;
    }
    if (i % kRetrait == kVide) {
      ++c.videes;
      bloc.append(t.texte(i));
      bloc.append("\r\n\r\n");
    } else {
      bloc.append(article);
    }
    if (bloc.size() > (std::size_t{1} << 20)) {
      sortie.Ecrire(bloc);
      bloc.clear();
    }
  }
  sortie.Ecrire(bloc);
  sortie.Valider();
  return c;
}

void Ouvre(Form& f, const FichiersIndex& fichiers) {
  f.dico.fichiers = fichiers;
  f.dico.OrdreAlpha = true;
  if (LireIndex(f.dico.fichiers, f.dico.TableIndex, f.dico.Lettres) != EtatIndex::Charge)
    ConstruireIndex(f.dico.fichiers, true, f.dico.TableIndex, f.dico.Lettres, [] {});
  EntrerIndex(f, 1, Annonce::Non);
}

// The whole comparison as the user runs it: the choice, the caret on the copy's row, Enter.
void Compare(Form& f, headless::HeadlessWindow& ui, int entreeCopie) {
  EntrerIndex(f, 1, Annonce::Non);
  f.EntrerChoixComparaison();
  ui.txt.SetCaret(DebutLigne(ui.txt.Text(), LigneDeEntree(f.catalogue, entreeCopie) + 2));
  ValideChoixComparaison(f);
  // A copy that lacks no key (a small dictionary) is "Identique"; anything else is a failure.
  const bool liste = f.fenetre.ModeCourant() == Mode::ListeResultats;
  if (!ui.boxes.empty() || (!liste && ui.Message().find("Identique") == std::string::npos))
    Echec("the comparison ended with \"" + (ui.boxes.empty() ? ui.Message() : ui.boxes.front()) + "\"");
}

// What the comparison must list, found another way: the removed entries whose key, folded
// with Sansaccent as the line an index keeps of it, no entry of the copy has.
std::int32_t Attendus(const IndexTable& ouvert, const IndexTable& copie) {
  std::unordered_set<std::string> cles;
  for (std::int32_t i = 1; i <= copie.NombreArticle(); ++i)
    cles.insert(Sansaccent(copie.cle(i).substr(0, kTailleChamp)));
  std::int32_t n = 0;
  for (std::int32_t i = kRetrait; i <= ouvert.NombreArticle(); i += kRetrait)
    n += cles.count(Sansaccent(ouvert.cle(i).substr(0, kTailleChamp))) == 0 ? 1 : 0;
  return n;
}




}  // namespace

int main(int argc, char** argv) {
  const Options o = LireOptions(argc, argv);
  std::filesystem::create_directories(o.work);
  const std::string dossier = ajoutbackslash(o.work);
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  f.reglages.DossierDictio = dossier;
  InitDictio(f.catalogue, dossier);
  const std::int64_t taille = LongueurFichier(o.dict);
  if (taille < 0) Echec("cannot read " + o.dict);
  Ouvre(f, Fichiers(o));
  const std::int32_t articles = f.dico.TableIndex.NombreArticle();
  std::fprintf(stderr, "bench_reports: %s (%lld bytes, %d articles), %d repetitions\n", o.dict.c_str(),
               static_cast<long long>(taille), articles, o.reps);

  // The copy, a dictionary of the catalogue in the work folder, with its index.
  CatalogueEntry e;
  e.Suffixe = "lex";
  e.NomFichier = e.NomDictio = "comparee";
  f.catalogue.Inserer(f.catalogue.NombreDictio(), e);
  AjoutLettreAppelDictio(f.catalogue);
  const int entreeCopie = f.catalogue.NombreDictio() - 1;
  DictionnaireOuvert copie;
  copie.fichiers = {NomDictionnaire(f.catalogue, dossier, entreeCopie), NomIndex(f.catalogue, dossier, entreeCopie),
                    NomLettre(f.catalogue, dossier, entreeCopie)};
  const Copie faite = FaitCopie(f.dico, copie.fichiers.dictio);
  ConstruireIndex(copie.fichiers, true, copie.TableIndex, copie.Lettres, [] {});

  {
    const std::vector<std::string> cat = {"cat", f.dico.fichiers.index, copie.fichiers.index};
    const double demarrage = Demarrage({"cat", "/dev/null"});
    // One untimed round of each first, so that both find the files in the page cache; the
    // program's is timed apart, its memory being new to it.
    TempsCommande(cat);
    const double premiere = Chrono([&] { Compare(f, ui, entreeCopie); });
    std::vector<double> nous, ref;
    for (int r = 0; r < o.reps; ++r) {
      ref.push_back(std::max(1e-7, TempsCommande(cat) - demarrage));
      ui.beeps = 0;
      nous.push_back(Chrono([&] { Compare(f, ui, entreeCopie); }));
    }
    // Every entry listed must be one the copy lacks, and as many as another count finds.
    const std::int32_t listes = f.liste.EstResultats() ? f.liste.Nombre() : 0;
    int faux = 0;
    for (std::int32_t i = 1; i <= listes; ++i)
      if (f.liste.NumeroDictio(i) % kRetrait != 0) ++faux;
    const std::int32_t attendus = Attendus(f.dico.TableIndex, copie.TableIndex);
    const bool juste = faux == 0 && listes == attendus;
    const double a = Minimum(nous), b = Minimum(ref);
    Ligne("ComparaisonIndex, copy lacking 1%", Ms(a), Ms(b) + " cat of both index files", a / b, "<= 3x",
          a / b <= 3.0 && juste,
          "best of " + std::to_string(o.reps) + " (the first, on new memory: " + Ms(premiere) + "); " +
              std::to_string(listes) + " entries listed of " +
              std::to_string(faite.retirees) + " removed (the others share a key with one kept)" +
              (juste ? "" : "; WRONG: " + std::to_string(attendus) + " expected, " + std::to_string(faux) +
                                " listed entries are in the copy") + "; " +
              std::to_string(ui.beeps) + " beeps; cat start " + Ms(demarrage) + " taken off");
  }

  {
    std::string mot = Info(o.dict, "planted_word");
    if (mot.empty()) mot = "maison";
    const std::string temoin = o.work + "/bench_reports.txt", sortie = o.work + "/bench_reports.out";
    std::ofstream(temoin, std::ios::binary) << mot << "\n";
    // The small file holds the word, so that grep exits with 0 whatever the dictionary holds.
    std::vector<std::string> grep = {"env", "LC_ALL=C", "grep", "-c", "-F", "--", mot, temoin};
    std::vector<double> t;
    for (int i = 0; i < 5; ++i) t.push_back(TempsCommande(grep, sortie));
    const double demarrage = Minimum(t);
    grep.push_back(o.dict);
    TempsCommande(grep, sortie);
    const auto liste = [&] {
      EntrerIndex(f, 1, Annonce::Non);
      ExecuteMenu(f, MenuId::mnuSansDefinition);
      if (!ui.boxes.empty()) Echec("mnuSansDefinition reported \"" + ui.boxes.front() + "\"");
    };
    liste();
    std::vector<double> nous, ref;
    for (int r = 0; r < o.reps; ++r) {
      ref.push_back(std::max(1e-7, TempsCommande(grep, sortie) - demarrage));
      ui.beeps = 0;
      nous.push_back(Chrono(liste));
    }
    const std::int32_t trouves = f.liste.EstResultats() ? f.liste.Nombre() : 0;
    // The copy holds those the copy kept as they were, and the stripped ones.
    std::int32_t attendus = faite.videes;
    for (std::int32_t i = 1; i <= trouves; ++i) {
      const std::int32_t n = f.liste.NumeroDictio(i);
      if (n % kRetrait != 0 && n % kRetrait != kVide) ++attendus;
    }
    const auto dansCopie = static_cast<std::int32_t>(IndexSansDefinition(copie, [] {}).size());
    const double a = Minimum(nous), b = Minimum(ref);
    Ligne("mnuSansDefinition", Ms(a), Ms(b) + " grep -c -F", a / b, "<= 2x", a / b <= 2.0 && dansCopie == attendus,
          "best of " + std::to_string(o.reps) + "; " + std::to_string(trouves) + " without definition (\"" +
              AnsiVersUtf8(ui.Message()) + "\"); in the copy " + std::to_string(dansCopie) + ", " +
              std::to_string(faite.videes) + " of them stripped" +
              (dansCopie != attendus ? " WRONG, " + std::to_string(attendus) + " expected" : "") + "; " +
              std::to_string(ui.beeps) + " beeps; grep start " + Ms(demarrage) + " taken off");
  }
  return 0;
}
