// Saving a dictionary: the copy of its ".bak" working copy over it (CopierFichier, through a
// safe write of the user's data: a temporary file, forced to the disk, renamed over the
// target, the folder forced too), against the same copy by cp followed by sync of the copy.
// See bench_common.h for the arguments and the output.
#include <unistd.h>

#include <filesystem>

#include "bench_common.h"
#include "data/files.h"


int main(int argc, char** argv) {
  using namespace lex;
  using namespace lex::bench;
  const Options o = LireOptions(argc, argv);
  std::filesystem::create_directories(o.work);
  const std::int64_t taille = LongueurFichier(o.dict);
  if (taille < 0) Echec("cannot read " + o.dict);
  std::fprintf(stderr, "bench_write: %s (%lld bytes), %d repetitions\n", o.dict.c_str(),
               static_cast<long long>(taille), o.reps);
  const std::string nous = o.work + "/sauve.lex", eux = o.work + "/sauve-cp.lex";
  const std::string vide = o.work + "/vide";
  const double demarrage = lex::bench::Demarrage({"cp", "/dev/null", vide}) + lex::bench::Demarrage({"sync", vide});
  // The first round brings the source into the page cache for both sides.
  CopierFichier(o.dict, nous);
  TempsCommande({"cp", o.dict, eux});
  std::vector<double> a, b;
  for (int r = 0; r < o.reps; ++r) {
    ::sync();
    b.push_back(std::max(1e-7, TempsCommande({"cp", o.dict, eux}) + TempsCommande({"sync", eux}) - demarrage));
    ::sync();
    a.push_back(Chrono([&] { CopierFichier(o.dict, nous); }));
  }
  if (LongueurFichier(nous) != taille) Echec("the copy has the wrong length");
  const double x = Minimum(a), y = Minimum(b);
  Ligne("Save (CopierFichier, safe write)", Ms(x), Ms(y) + " cp+sync", x / y, "<= 1.5x", x / y <= 1.5,
        "best of " + std::to_string(o.reps) + "; cp and sync starts taken off");
  std::filesystem::remove(nous);
  std::filesystem::remove(eux);
  std::filesystem::remove(vide);
  return 0;
}
