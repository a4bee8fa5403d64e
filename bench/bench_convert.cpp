// The conversions to and from StarDict on a large dictionary:
//  - the dictionary exported to StarDict (ExporteStarDict, as lex-export runs it) against
//    `gzip -c DICTIONARY > /dev/null`, target 3x;
//  - that StarDict imported again by the lex-import command against
//    `zcat BASE.dict.dz | sort > /dev/null` on the same .dict.dz, target 3x;
//  - the peak memory of that import (the child's maximum resident set) against the size of
//    the file it writes, target 2x.
// See bench_common.h for the arguments and the output.
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "bench_common.h"
#include "exchange/export.h"

namespace {

using namespace lex;
using namespace lex::bench;
namespace fs = std::filesystem;

struct Enfant {
  double secondes = 0;
  std::int64_t memoire = 0;  // maximum resident set, bytes
};

// The peak resident set of the process `pid` so far (VmHWM), in bytes; 0 once it is gone.
// Its exec gave it a memory of its own, which this reads; the maximum that wait4 reports
// would also hold what this program itself had in memory when the child was started.
std::int64_t PicMemoire(pid_t pid) {
  std::ifstream f("/proc/" + std::to_string(pid) + "/status");
  std::string ligne;
  while (std::getline(f, ligne))
    if (ligne.rfind("VmHWM:", 0) == 0) return std::stoll(ligne.substr(6)) * 1024;
  return 0;
}

// Runs the command and gives its wall time and its own peak memory, read while it runs.
Enfant Lance(const std::vector<std::string>& args) {
  std::vector<char*> argv;
  for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  const auto t0 = Horloge::now();
  const int rc = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (rc != 0) Echec("cannot start " + args[0] + ": " + std::strerror(rc));
  int statut = 0;
  Enfant e;
  for (;;) {
    // Read before the check: a child that has just ended is a zombie whose memory is gone.
    e.memoire = std::max(e.memoire, PicMemoire(pid));
    const pid_t fini = waitpid(pid, &statut, WNOHANG);
    if (fini < 0) Echec("waitpid failed");
    if (fini == pid) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  e.secondes = Secondes(t0, Horloge::now());
  if (!WIFEXITED(statut) || WEXITSTATUS(statut) != 0) Echec(args[0] + " failed");
  return e;
}

}  // namespace

int main(int argc, char** argv) {
  const Options o = LireOptions(argc, argv);
  fs::create_directories(o.work);
  const std::string base = o.work + "/export";
  const std::string dz = base + ".dict.dz";
  const std::string sortie = o.work + "/import.lex";
  // Each side of these takes seconds on the large file: three turns are enough for a best time.
  const int tours = std::min(o.reps, 3);

  std::vector<double> nous, gzip;
  std::size_t articles = 0;
  for (int i = 0; i < tours; ++i) {
    gzip.push_back(TempsCommande({"gzip", "-c", o.dict}));
    nous.push_back(Chrono([&] { articles = exchange::ExporteStarDict(o.dict, base).articles; }));
  }
  const double e = Minimum(nous), g = Minimum(gzip);
  Ligne("export to StarDict", Ms(e), Ms(g) + " gzip -c", e / g, "<= 3x", e / g <= 3,
        std::to_string(articles) + " articles, .dict.dz " + Mo(static_cast<double>(fs::file_size(dz))));

  std::vector<double> importe, reference;
  std::int64_t memoire = 0;
  for (int i = 0; i < tours; ++i) {
    reference.push_back(TempsCommande({"sh", "-c", "zcat \"$0\" | sort > /dev/null", dz}));
    const Enfant r = Lance({LEX_IMPORT, "--remplace", base + ".ifo", sortie});
    importe.push_back(r.secondes);
    memoire = std::max(memoire, r.memoire);
  }
  const double im = Minimum(importe), ref = Minimum(reference);
  Ligne("import of StarDict (lex-import)", Ms(im), Ms(ref) + " zcat | sort", im / ref, "<= 3x", im / ref <= 3,
        "same .dict.dz");
  const auto taille = static_cast<double>(fs::file_size(sortie));
  Ligne("import peak memory", Mo(static_cast<double>(memoire)), Mo(taille) + " output", static_cast<double>(memoire) / taille,
        "<= 2x", static_cast<double>(memoire) <= 2 * taille, "maximum resident set of lex-import");
  return 0;
}
