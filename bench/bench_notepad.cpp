// The notepad of 100,000 lines in the scripted window: opening it (Ctrl+B) and turning a page,
// against absolute targets, and saving it (Ctrl+S: its backup, then the file, both forced to
// the disk) against `cp` of the same file in the same run. The dictionary given is not used:
// the notepad is made in the work folder. See bench_common.h for the arguments and output.
#include <filesystem>
#include <fstream>

#include "bench_common.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "view/keys.h"

int main(int argc, char** argv) {
  using namespace lex;
  using namespace lex::bench;
  namespace fs = std::filesystem;
  const Options o = LireOptions(argc, argv);
  const std::string dossier = o.work + "/bloc/";
  fs::remove_all(dossier);
  fs::create_directories(dossier);
  const std::string fichier = dossier + "blocnote.txt";
  {
    std::ofstream out(fichier, std::ios::binary);
    for (int i = 1; i <= 100000; ++i) out << "note " << i << " : une ligne du bloc note, comme on en tape\r\n";
  }
  std::fprintf(stderr, "bench_notepad: %s, %d repetitions\n", fichier.c_str(), o.reps);
  const double demarrage = Demarrage({"cp", "/dev/null", dossier + "vide"});
  std::vector<double> ouvrir, page, sauver, cp;
  for (int r = 0; r < o.reps; ++r) {
    headless::HeadlessWindow ui;
    Form f(ui, ui);
    EvChargement(f, dossier);
    ouvrir.push_back(Chrono([&] { EvMenu(f, MenuId::mnuBlocNote); }));
    if (f.fenetre.ModeCourant() != Mode::BlocNote) Echec("the notepad did not open");
    for (int i = 0; i < 20; ++i)
      page.push_back(Chrono([&] { RouteTouche(f, Champ::Txt, Touche::PageSuiv, 0, 0); }));
    cp.push_back(std::max(1e-4, TempsCommande({"cp", fichier, dossier + "copie.txt"}) - demarrage));
    sauver.push_back(Chrono([&] { EvMenu(f, MenuId::mnuEnregistrer); }));
    if (!ui.boxes.empty()) Echec("saving said: " + ui.boxes.front());
  }
  const double a = Minimum(ouvrir), b = Mediane(page), s = Minimum(sauver), c = Minimum(cp);
  Ligne("Notepad of 100,000 lines opened (Ctrl+B)", Ms(a), "100 ms", a / 0.1, "< 100 ms", a < 0.1, "read, first page shown");
  Ligne("Notepad page turn", Ms(b), "1 ms", b / 0.001, "< 1 ms", b < 0.001, "median of 20 Page Down, the page kept first");
  Ligne("Notepad saved (Ctrl+S)", Ms(s), Ms(c) + " cp", s / c, "<= 3x", s / c <= 3,
        "backup copy and file, both forced to the disk; cp's copy is not");
  return 0;
}
