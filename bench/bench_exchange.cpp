// The exchanges on a large dictionary, run as the user runs them in the scripted window:
//  - a text file of 100,000 articles, in no order, merged into the dictionary (Ctrl+Y), the
//    working copy forced to the disk and the index rebuilt, against `cat DICTIONARY IMPORT >
//    OUT` on the same files in the same run; and the peak memory it adds;
//  - every entry selected (Ctrl+A), then one page turned, each against an absolute target.
// See bench_common.h for the arguments and the output.
#include <filesystem>
#include <fstream>
#include <random>

#include "bench_common.h"
#include "programme.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "view/keys.h"

namespace {

using namespace lex;
using namespace lex::bench;
namespace fs = std::filesystem;

constexpr int kArticles = 100000;

// Articles in the import format: the index line holds "(", the lines after it hold none of
// "(", "[", ","; in no order, so that every one has to find its place.
void EcrireImport(const std::string& nom) {
  std::mt19937 alea(11);
  const auto mot = [&] {
    std::string m(3 + alea() % 8, 'a');
    for (char& c : m) c = static_cast<char>('a' + alea() % 26);
    return m;
  };
  std::ofstream out(nom, std::ios::binary);
  for (int i = 0; i < kArticles; ++i) {
    out << mot() << " (n.m.) " << mot() << ' ' << mot() << "\r\n";
    for (unsigned l = alea() % 3; l > 0; --l) out << mot() << ' ' << mot() << ' ' << mot() << ' ' << mot() << "\r\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  const Options o = LireOptions(argc, argv);
  const std::string dossier = o.work + "/programme/";
  fs::remove_all(dossier);
  fs::create_directories(dossier);
  const std::string dictio = dossier + "lex.eng", import = dossier + "maj.bak", sortie = o.work + "/cat.out";
  fs::copy_file(o.dict, dictio);
  EcrireImport(import);
  std::fprintf(stderr, "bench_exchange: %s, %d repetitions\n", o.dict.c_str(), o.reps);

  const double demarrage = TempsCommande({"sh", "-c", "true"});
  std::vector<double> nous, eux, selection, pages;
  std::int64_t croissance = 0, ajoutes = 0;
  for (int r = 0; r < o.reps; ++r) {
    eux.push_back(TempsCommande({"sh", "-c", "cat '" + dictio + "' '" + import + "' > '" + sortie + "'"}) - demarrage);
    // Each round starts from the dictionary as it was: the working copy is dropped.
    fs::remove(dictio + ".bak");
    Programme p(dossier);
    p.ui.answers.push_back({headless::Answer::Kind::File, Reponse::OK, import});
    const std::int64_t avant = StatutOctets("VmRSS");
    std::ofstream("/proc/self/clear_refs") << "5";
    nous.push_back(Chrono([&] { EvMenu(p.f, MenuId::mnuImporterTxt); }));
    croissance = std::max(croissance, StatutOctets("VmHWM") - avant);
    if (!p.ui.boxes.empty()) Echec("the import said: " + p.ui.boxes.front());
    ajoutes = p.f.dico.TableIndex.NombreArticle();

    selection.push_back(Chrono([&] { EvMenu(p.f, MenuId::MnuSelectionTout); }));
    for (int i = 0; i < 20; ++i) pages.push_back(Chrono([&] { p.Touche(Touche::PageSuiv); }));
  }
  fs::remove(sortie);
  const std::int64_t taille = LongueurFichier(dictio);
  const double x = Minimum(nous), y = Minimum(eux);
  Ligne("Import of 100,000 articles (Ctrl+Y), index rebuilt", Ms(x), Ms(y) + " cat", x / y, "<= 3x", x / y <= 3,
        std::to_string(ajoutes) + " entries after; the working copy is forced to the disk, cat's output is not");
  Ligne("Memory added by the import (peak)", Mo(static_cast<double>(croissance)), Mo(static_cast<double>(taille)) + " dictionary",
        static_cast<double>(croissance) / static_cast<double>(taille), "< 0.5x", croissance * 2 < taille,
        "the index table is rebuilt in place; the dictionary is never held");
  const double s = Minimum(selection), t = Mediane(pages);
  Ligne("Select all (Ctrl+A)", Ms(s), "100 ms", s / 0.1, "< 100 ms", s < 0.1, "every entry marked");
  Ligne("Page turn after select all", Ms(t), "1 ms", t / 0.001, "< 1 ms", t < 0.001, "median of 20 Page Down");
  return 0;
}
