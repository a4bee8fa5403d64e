// The list of the entries whose article holds a string (rechercheChaine), case respected and
// not, against grep -c -F and grep -c -i -F on the same file in the same run, and the memory
// a result list of 100,000 entries takes while it is made. See bench_common.h for the
// arguments and the output.
//
// The string is the word the generator planted (DICT.info, "planted_word="), else "maison".
// grep runs with LC_ALL=C, since the file is Windows-1252.
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "bench_common.h"
#include "base/encoding.h"
#include "data/files.h"
#include "data/index_file.h"
#include "search/string_list.h"
#include "controller/form.h"
#include "controller/modes.h"

namespace {

using namespace lex;
using namespace lex::bench;



void Ouvre(Form& f, const Options& o) {
  std::filesystem::create_directories(o.work);
  f.dico.fichiers = Fichiers(o);
  f.dico.OrdreAlpha = true;
  if (LireIndex(f.dico.fichiers, LongueurFichier(o.dict), f.dico.TableIndex, f.dico.Lettres) != EtatIndex::Charge)
    ConstruireIndex(f.dico.fichiers, true, f.dico.TableIndex, f.dico.Lettres, [] {});
  EntrerIndex(f, 1, Annonce::Non);
}

// One rechercheChaine over the whole dictionary, as from its index page; the entries found.
std::size_t Cherche(Form& f, headless::HeadlessWindow& ui, const std::string& chaine, bool respectCasse) {
  f.recherche.ChaineRecherche = chaine;
  f.recherche.RespectCasse = respectCasse;
  EntrerIndex(f, 1, Annonce::Non);
  PartiesRecherche p{f, f.dlg, f.recherche};
  rechercheChaine(p);
  if (!ui.boxes.empty() || f.fenetre.Termine) Echec("rechercheChaine reported \"" + (ui.boxes.empty() ? std::string() : ui.boxes.front()) + "\"");
  return f.liste.EstResultats() ? static_cast<std::size_t>(f.liste.Nombre()) : 0;
}

// Child process: a list of 100,000 entries (every n-th entry of the dictionary, or all of a
// smaller one) is searched for a letter nearly every article holds, so that the new list has
// about as many entries; prints the peak resident growth during that search, the new list's
// bytes, its entries and those of the list searched.
int Memoire(const Options& o) {
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  Ouvre(f, o);
  const std::int32_t n = f.dico.TableIndex.NombreArticle();
  const std::int32_t pas = std::max(1, n / 100000);
  std::vector<EntreeTrouvee> liste;
  for (std::int32_t i = 1; i <= n && liste.size() < 100000; i += pas) {
    const Etendue e = f.liste.EtendueArticle(i);
    liste.push_back({i, static_cast<std::int32_t>(e.debut), static_cast<std::int32_t>(e.fin)});
  }
  const std::size_t depart = liste.size();
  f.liste.MontreResultats(std::move(liste), "");
  EntrerPage(f, 1, Annonce::Non);
  f.recherche.ChaineRecherche = "E";
  f.recherche.RespectCasse = false;
  PartiesRecherche p{f, f.dlg, f.recherche};
  const std::int64_t avant = StatutOctets("VmRSS");
  // Resets the peak resident size, so that VmHWM is the search's own.
  std::ofstream("/proc/self/clear_refs") << "5";
  rechercheChaine(p);
  const std::int64_t pic = StatutOctets("VmHWM");
  if (!ui.boxes.empty()) Echec("memory: rechercheChaine reported \"" + ui.boxes.front() + "\"");
  std::printf("%lld %lld %zu %zu\n", static_cast<long long>(pic - avant),
              static_cast<long long>(f.liste.OctetsResultats()), static_cast<std::size_t>(f.liste.Nombre()), depart);
  return 0;
}

// How many times a whole-file measure goes over a file of `octets` bytes: about 64 MB in all.
int Passes(std::int64_t octets) {
  return static_cast<int>(std::clamp<std::int64_t>((std::int64_t{64} << 20) / std::max<std::int64_t>(octets, 1), 1, 1000));
}

// grep with its options and a small file that holds the string, so that it exits with 0 even
// when the dictionary does not.
std::vector<std::string> Grep(const std::string& option, const std::string& chaine, const std::string& temoin) {
  return {"env", "LC_ALL=C", "grep", "-c", option, "--", chaine, temoin};
}



}  // namespace

int main(int argc, char** argv) {
  const bool memoire = argc >= 2 && std::strcmp(argv[1], "--memoire") == 0;
  const Options o = LireOptions(argc - (memoire ? 1 : 0), argv + (memoire ? 1 : 0));
  if (memoire) return Memoire(o);

  headless::HeadlessWindow ui;
  Form f(ui, ui);
  Ouvre(f, o);
  const std::int64_t taille = LongueurFichier(o.dict);
  const std::int32_t articles = f.dico.TableIndex.NombreArticle();
  std::string mot = Info(o.dict, "planted_word");
  const std::string plantes = Info(o.dict, "planted_articles");
  if (mot.empty()) mot = "maison";
  std::fprintf(stderr, "bench_search: %s (%lld bytes, %d articles), \"%s\", %d repetitions\n", o.dict.c_str(),
               static_cast<long long>(taille), articles, mot.c_str(), o.reps);

  const int passes = Passes(taille);
  const std::string temoin = o.work + "/bench_search.txt", sortie = o.work + "/bench_search.out";
  std::ofstream(temoin, std::ios::binary) << mot << "\n";
  struct Cas {
    const char* mesure;
    std::string chaine;
    bool respectCasse;
    const char* option;
  };
  // Case ignored: the string typed in capitals, so that the search and grep both fold.
  const std::vector<Cas> cas = {{"rechercheChaine, case respected", mot, true, "-F"},
                                {"rechercheChaine, case ignored", MajusculesAnsi(mot), false, "-iF"}};
  for (const Cas& c : cas) {
    std::vector<std::string> grep = Grep(c.option, c.chaine, temoin);
    const double demarrage = Demarrage(grep, sortie);
    for (int p = 0; p < passes; ++p) grep.push_back(o.dict);
    // One untimed round of each first, so that both find the file in the page cache.
    TempsCommande(grep, sortie);
    std::size_t trouves = Cherche(f, ui, c.chaine, c.respectCasse);
    std::vector<double> nous, ref;
    for (int r = 0; r < o.reps; ++r) {
      ref.push_back(std::max(1e-7, TempsCommande(grep, sortie) - demarrage) / passes);
      ui.beeps = 0;
      nous.push_back(Chrono([&] {
                       for (int p = 0; p < passes; ++p) trouves = Cherche(f, ui, c.chaine, c.respectCasse);
                     }) /
                     passes);
    }
    const double a = Mediane(nous), b = Mediane(ref);
    Ligne(c.mesure, Ms(a), Ms(b) + " grep -c " + c.option, a / b, "<= 3x", a / b <= 3.0,
          "median of " + std::to_string(o.reps) + (passes > 1 ? ", " + std::to_string(passes) + " passes" : "") +
              "; \"" + c.chaine + "\" in " + std::to_string(trouves) + " articles" +
              (plantes.empty() ? "" : " (planted " + plantes + ")") + "; " + std::to_string(ui.beeps / passes) +
              " beeps; grep start " + Ms(demarrage) + " taken off");
  }

  {
    const std::string moi = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string sortie = SortieCommande({moi, "--memoire", "--dict", o.dict, "--work", o.work});
    std::istringstream in(sortie);
    long long pic = 0, liste = 0;
    std::size_t n = 0, depart = 0;
    if (!(in >> pic >> liste >> n >> depart)) Echec("memory: unexpected output \"" + sortie + "\"");
    Ligne("Memory of a result list being made (peak RSS growth)", Mo(static_cast<double>(pic)),
          Mo(static_cast<double>(liste)) + " list", static_cast<double>(pic) / std::max(1.0, static_cast<double>(liste)),
          "< 30 MB", pic < 30'000'000,
          "a list of " + std::to_string(n) + " entries made from one of " + std::to_string(depart) +
              "; VmHWM - VmRSS, fresh process");
  }
  return 0;
}
