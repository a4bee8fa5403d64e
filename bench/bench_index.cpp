// Opening and reading a large dictionary: building its index, loading a current index, the
// memory the loaded index takes, and the interactive steps a user makes in it (a page, an
// article, a jump to a word, a typed letter, a page turn). See bench_common.h for the
// arguments and the output.
#include <malloc.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <new>
#include <sstream>

#include "bench_common.h"
#include "base/encoding.h"
#include "data/files.h"
#include "data/folding.h"
#include "data/index_file.h"
#include "random.h"
#include "search/index_lookup.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "controller/modes.h"
#include "controller/paging.h"
#include "view/keys.h"

// Allocation accounting for the memory measure: the live bytes (as the allocator hands them
// out, rounding included) and their peak while counting is on. Off, it costs one test.
namespace {
bool g_compte = false;
std::int64_t g_vivant = 0;
std::int64_t g_pic = 0;

void* Alloue(std::size_t n) {
  void* p = std::malloc(n ? n : 1);
  if (!p) throw std::bad_alloc();
  if (g_compte) {
    g_vivant += static_cast<std::int64_t>(malloc_usable_size(p));
    g_pic = std::max(g_pic, g_vivant);
  }
  return p;
}
void Libere(void* p) noexcept {
  if (p && g_compte) g_vivant -= static_cast<std::int64_t>(malloc_usable_size(p));
  std::free(p);
}
}  // namespace

void* operator new(std::size_t n) { return Alloue(n); }
void* operator new[](std::size_t n) { return Alloue(n); }
void operator delete(void* p) noexcept { Libere(p); }
void operator delete[](void* p) noexcept { Libere(p); }
void operator delete(void* p, std::size_t) noexcept { Libere(p); }
void operator delete[](void* p, std::size_t) noexcept { Libere(p); }

namespace {

using namespace lex;
using namespace lex::bench;

constexpr double kMilliseconde = 1e-3;


std::int64_t OctetsTextesEtCles(const IndexTable& t) {
  std::int64_t total = 0;
  for (std::int32_t i = 1; i <= t.NombreArticle(); ++i)
    total += static_cast<std::int64_t>(t.texte(i).size() + t.cle(i).size());
  return total;
}

// Child process: the memory an index takes once loaded, in a process that did nothing else.
int Memoire(const Options& o) {
  const std::int64_t avant = StatutOctets("VmRSS");
  IndexTable table;
  TableLettre lettres;
  g_compte = true;
  const EtatIndex etat = LireIndex(Fichiers(o), LongueurFichier(o.dict), table, lettres);
  const std::int64_t vivant = g_vivant;
  const std::int64_t pic = g_pic;
  g_compte = false;
  const std::int64_t hwm = StatutOctets("VmHWM");
  if (etat != EtatIndex::Charge) Echec("memory: the index is not current");
  std::printf("%lld %lld %lld %lld %d\n", static_cast<long long>(hwm - avant), static_cast<long long>(pic),
              static_cast<long long>(vivant), static_cast<long long>(OctetsTextesEtCles(table)),
              table.NombreArticle());
  return 0;
}

void Verifie(const Form& f, const headless::HeadlessWindow& ui, const char* etape) {
  if (!ui.boxes.empty() || f.fenetre.Termine)
    Echec(std::string(etape) + ": the program reported \"" + (ui.boxes.empty() ? "" : ui.boxes.front()) + "\"");
}

// How many times a whole-file measure goes over a file of `octets` bytes: about 64 MB in all.
int Passes(std::int64_t octets) {
  return static_cast<int>(std::clamp<std::int64_t>((std::int64_t{64} << 20) / std::max<std::int64_t>(octets, 1), 1, 1000));
}

std::vector<std::string> LanceCommande(std::vector<std::string> outil, const std::string& fichier, int fois) {
  for (int i = 0; i < fois; ++i) outil.push_back(fichier);
  return outil;
}

std::string Passant(int passes) {
  return passes > 1 ? ", " + std::to_string(passes) + " passes per timing" : std::string();
}


// The 40 lines of a page joined, straight from the table: the least a page can cost.
std::string PageBrute(const IndexTable& t, std::int32_t premier) {
  std::string page;
  const std::int32_t dernier = std::min(t.NombreArticle(), premier + kLignesPage - 1);
  for (std::int32_t i = premier; i <= dernier; ++i) {
    if (i > premier) page += "\r\n";
    page += t.texte(i);
  }
  return page;
}

// One open, one positioned read and one close of the article's bytes: the least an article
// can cost.
std::string LectureBrute(const std::string& fichier, std::int64_t debut, std::int64_t fin) {
  const int fd = ::open(fichier.c_str(), O_RDONLY);
  if (fd < 0) Echec("cannot open " + fichier);
  std::string s(static_cast<std::size_t>(fin - debut), ' ');
  if (::pread(fd, s.data(), s.size(), debut) < 0) Echec("pread failed");
  ::close(fd);
  return s;
}

std::string Interactif(const Resume& nous) {
  return Us(nous.mediane) + " (p99 " + Us(nous.p99) + ")";
}

std::string Details(const Resume& nous, const std::string& plus = {}) {
  std::string s = "median; pass on p99; max " + Us(nous.max) + ", n=" + std::to_string(nous.n);
  if (!plus.empty()) s += "; " + plus;
  return s;
}

// The input that took longest, for the notes (as UTF-8, the table being read on a terminal).
std::string Pire(const std::vector<double>& temps, const std::vector<std::string>& entrees) {
  if (temps.empty() || temps.size() != entrees.size()) return {};
  const auto i = static_cast<std::size_t>(std::max_element(temps.begin(), temps.end()) - temps.begin());
  return "slowest on \"" + AnsiVersUtf8(entrees[i]) + "\"";
}

// Wrong answers seen while timing: a benchmark that finds them says so.
std::string Faux(int nombre, const std::string& quoi, const std::string& exemple) {
  if (nombre == 0) return {};
  return "; WRONG " + std::to_string(nombre) + "x: " + quoi + " (first: \"" + AnsiVersUtf8(exemple) + "\")";
}

void LigneInteractive(const std::string& mesure, const std::vector<double>& nous, const std::vector<double>& ref,
                      const std::string& nomRef, const std::string& plus = {}) {
  const Resume r = Resumer(nous);
  const Resume rr = Resumer(ref);
  Ligne(mesure, Interactif(r), Us(rr.mediane) + " " + nomRef, r.mediane / std::max(rr.mediane, 1e-9), "p99 < 1000 us",
        r.p99 < kMilliseconde, Details(r, plus));
}

}  // namespace

int main(int argc, char** argv) {
  const bool memoire = argc >= 2 && std::strcmp(argv[1], "--memoire") == 0;
  const Options o = LireOptions(argc - (memoire ? 1 : 0), argv + (memoire ? 1 : 0));
  if (memoire) return Memoire(o);

  std::filesystem::create_directories(o.work);
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  f.dico.fichiers = Fichiers(o);
  f.dico.OrdreAlpha = true;
  const std::int64_t taille = LongueurFichier(o.dict);
  if (taille < 0) Echec("cannot read " + o.dict);
  std::fprintf(stderr, "bench_index: %s (%lld bytes), %d repetitions\n", o.dict.c_str(),
               static_cast<long long>(taille), o.reps);
  auto bip = [&ui] { ui.Beep(); };

  // Building the index, against counting the lines of the same file. One untimed round of
  // each first, so that both find the file in the page cache. A small file is passed several
  // times to one tool process (and indexed as many times), so that the tool's start does not
  // swamp its reading.
  {
    const int passes = Passes(taille);
    const double demarrage = Demarrage({"wc", "/dev/null"});
    const std::vector<std::string> wc = LanceCommande({"wc", "-l"}, o.dict, passes);
    TempsCommande(wc);
    ConstruireIndex(f.dico.fichiers, true, f.dico.TableIndex, f.dico.Lettres, bip);
    std::vector<double> nous, ref;
    for (int r = 0; r < o.reps; ++r) {
      // Each build leaves 144 bytes per article to be written back; let that happen between
      // the measures rather than during the next one.
      ::sync();
      ref.push_back(std::max(1e-7, TempsCommande(wc) - demarrage) / passes);
      ::sync();
      nous.push_back(Chrono([&] {
                       for (int p = 0; p < passes; ++p)
                         ConstruireIndex(f.dico.fichiers, true, f.dico.TableIndex, f.dico.Lettres, bip);
                     }) /
                     passes);
    }
    const double a = Minimum(nous), b = Minimum(ref);
    Ligne("InitIndex (ConstruireIndex)", Ms(a), Ms(b) + " wc -l", a / b, "<= 4x", a / b <= 4.0,
          "best of " + std::to_string(o.reps) + Passant(passes) + "; " +
              std::to_string(f.dico.TableIndex.NombreArticle()) + " articles; wc start " + Ms(demarrage) +
              " taken off");
  }

  // A file whose index line is 100 MB long (a damaged dictionary, or not one at all): the
  // build must take time in proportion to the line, not to its square. Measured against
  // four builds of a line of 25 MB, and, for scale, against wc -l of the long one.
  {
    auto ecrit = [&](const std::string& nom, int mo) {
      std::ofstream out(nom, std::ios::binary);
      const std::string bloc(std::size_t{1} << 20, 'x');
      for (int i = 0; i < mo; ++i) out << bloc;
      out << "\r\ndef\r\n";
    };
    const std::string longue = o.work + "/ligne-longue.lex", quart = o.work + "/ligne-quart.lex";
    ecrit(longue, 100);
    ecrit(quart, 25);
    auto construit = [&](const std::string& nom, std::size_t attendu) {
      const FichiersIndex fl{nom, o.work + "/index.ligne", o.work + "/lettre.ligne"};
      IndexTable t;
      TableLettre l;
      const double s = Chrono([&] { ConstruireIndex(fl, true, t, l, [] {}); });
      if (t.NombreArticle() != 1 || t.texte(1).size() != attendu << 20) Echec("long line: wrong table");
      return s;
    };
    const double demarrage = Demarrage({"wc", "/dev/null"});
    std::vector<double> nous, quatre, wc;
    for (int r = 0; r < std::min(o.reps, 3); ++r) {
      wc.push_back(std::max(1e-7, TempsCommande({"wc", "-l", longue}) - demarrage));
      quatre.push_back(4 * construit(quart, 25));
      nous.push_back(construit(longue, 100));
    }
    const double a = Minimum(nous), b = Minimum(quatre);
    Ligne("InitIndex, one index line of 100 MB", Ms(a), Ms(b) + " 4 x 25 MB", a / b, "<= 1.5x (linear)", a / b <= 1.5,
          "best of " + std::to_string(std::min(o.reps, 3)) + "; " + Fois(a / Minimum(wc)) +
              " wc -l; the table holds the whole line and its key");
    for (const std::string& n : {longue, quart, o.work + "/index.ligne", o.work + "/lettre.ligne"})
      std::filesystem::remove(n);
  }

  // Opening with a current index, against reading the index file through cat.
  {
    const std::int64_t tailleIndex = LongueurFichier(f.dico.fichiers.index);
    const int passes = Passes(tailleIndex);
    const double demarrage = Demarrage({"cat", "/dev/null"});
    const std::vector<std::string> cat = LanceCommande({"cat"}, f.dico.fichiers.index, passes);
    auto litIndex = [&] {
      // Each pass replaces the table of the one before, as opening another dictionary does.
      IndexTable t;
      TableLettre l;
      double s = Chrono([&] {
        for (int p = 0; p < passes; ++p)
          if (LireIndex(f.dico.fichiers, taille, t, l) != EtatIndex::Charge) Echec("LireIndex: index not current");
      });
      if (t.NombreArticle() != f.dico.TableIndex.NombreArticle()) Echec("LireIndex: wrong article count");
      return s / passes;
    };
    ::sync();
    TempsCommande(cat);
    litIndex();
    std::vector<double> nous, ref;
    for (int r = 0; r < o.reps; ++r) {
      ref.push_back(std::max(1e-7, TempsCommande(cat) - demarrage) / passes);
      nous.push_back(litIndex());
    }
    const double a = Minimum(nous), b = Minimum(ref);
    Ligne("Opening, current index (LireIndex)", Ms(a), Ms(b) + " cat index", a / b, "<= 3x", a / b <= 3.0,
          "best of " + std::to_string(o.reps) + Passant(passes) + "; index file " +
              Mo(static_cast<double>(tailleIndex)) + "; cat start " + Ms(demarrage) + " taken off");
    // From here on the table is the one an opening loads (index lines cut at 70).
    if (LireIndex(f.dico.fichiers, taille, f.dico.TableIndex, f.dico.Lettres) != EtatIndex::Charge)
      Echec("LireIndex: index not current");
  }

  // Memory, measured in a fresh process that only loads the index.
  {
    const std::string moi = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string sortie = SortieCommande({moi, "--memoire", "--dict", o.dict, "--work", o.work});
    std::istringstream in(sortie);
    long long rss = 0, pic = 0, vivant = 0, utile = 0;
    int n = 0;
    if (!(in >> rss >> pic >> vivant >> utile >> n)) Echec("memory: unexpected output \"" + sortie + "\"");
    const double u = static_cast<double>(std::max(1LL, utile));
    const std::string ref = Mo(u) + " lines+keys";
    Ligne("Memory of the loaded index (peak RSS growth)", Mo(static_cast<double>(rss)), ref,
          static_cast<double>(rss) / u, "< 2.5x", static_cast<double>(rss) / u < 2.5,
          "VmHWM after LireIndex - VmRSS before, fresh process; " + std::to_string(n) + " entries");
    Ligne("Memory of the loaded index (allocation peak)", Mo(static_cast<double>(pic)), ref,
          static_cast<double>(pic) / u, "< 2.5x", static_cast<double>(pic) / u < 2.5,
          "peak live heap bytes during LireIndex; " + Mo(static_cast<double>(vivant)) + " still held after");
  }

  const IndexTable& table = f.dico.TableIndex;
  const std::int32_t n = table.NombreArticle();
  if (n < 1) Echec("empty dictionary");
  Hasard h(20240601);
  EntrerIndex(f, 1, Annonce::Non);

  // A page shown.
  {
    std::vector<double> nous, ref;
    std::size_t controle = 0;
    for (int k = 0; k < 2000; ++k) {
      const auto premier = static_cast<std::int32_t>(1 + h.Entier(static_cast<std::size_t>(n)));
      f.fenetre.PremierIndexAffiche = premier;
      nous.push_back(Chrono([&] { InitTableIndex(f); }));
      ref.push_back(Chrono([&] { controle += PageBrute(table, premier).size(); }));
      if (ui.txt.Text().size() != PageBrute(table, f.fenetre.PremierIndexAffiche).size()) Echec("page: wrong text");
    }
    Verifie(f, ui, "page");
    Garde(controle);
    LigneInteractive("Page of 40 lines shown (InitTableIndex)", nous, ref, "join",
                     "ref: the 40 lines joined from the table");
  }

  // An article read.
  {
    std::vector<double> nous, ref;
    std::size_t octets = 0;
    for (int k = 0; k < 2000; ++k) {
      const auto i = static_cast<std::int32_t>(1 + h.Entier(static_cast<std::size_t>(n)));
      std::string article;
      nous.push_back(Chrono([&] { article = f.liste.Lit(i); }));
      const Etendue e = f.liste.EtendueArticle(i);
      std::string brut;
      ref.push_back(Chrono([&] { brut = LectureBrute(o.dict, e.debut, e.fin); }));
      const std::string_view tete = table.texte(i).substr(0, 20);
      if (i > 1 && article.compare(0, tete.size(), tete) != 0) Echec("article: wrong text");
      octets += article.size();
    }
    Verifie(f, ui, "article");
    LigneInteractive("Article read (LitDictio)", nous, ref, "pread",
                     "ref: open+pread+close; mean article " + std::to_string(octets / 2000) + " bytes");
  }

  // The sorted keys, for the reference look-ups.
  std::vector<std::string_view> cles;
  cles.reserve(static_cast<std::size_t>(n));
  for (std::int32_t i = 1; i <= n; ++i) cles.push_back(table.cle(i));
  std::sort(cles.begin(), cles.end());
  auto chercheBrut = [&](std::string_view plie) {
    return static_cast<std::size_t>(std::lower_bound(cles.begin(), cles.end(), plie) - cles.begin());
  };

  // A jump to the best entry for a word (the look-up behind following a word of an article):
  // words of the index as they are, in the plural, and cut short.
  {
    std::vector<double> nous, ref;
    std::vector<std::string> entrees;
    int exacts = 0, manques = 0;
    std::string premierManque;
    std::size_t controle = 0;
    while (nous.size() < 2000) {
      const auto i = static_cast<std::int32_t>(1 + h.Entier(static_cast<std::size_t>(n)));
      std::string mot = Sansaccent(MotSousCurseur(std::string(table.texte(i)), 0));
      if (mot.empty()) continue;
      const std::size_t forme = h.Entier(4);
      if (forme == 2) mot += "S";
      if (forme == 3) mot.resize(1 + h.Entier(mot.size()));
      Trouve t;
      nous.push_back(Chrono([&] { t = MeilleureEntree(f.liste, mot); }));
      entrees.push_back(mot);
      std::size_t j = 0;
      ref.push_back(Chrono([&] { j = chercheBrut(mot); }));
      controle += j;
      const bool existe = j < cles.size() && cles[j] == mot;
      exacts += t.exact ? 1 : 0;
      if (existe && !t.exact) {
        if (manques++ == 0) premierManque = mot;
      }
    }
    Verifie(f, ui, "jump");
    Garde(controle);
    LigneInteractive("Jump to a word (MeilleureEntree)", nous, ref, "bsearch",
                     "ref: binary search over the sorted keys; " + std::to_string(exacts) + " exact hits; " +
                         Pire(nous, entrees) + Faux(manques, "an equal key not found", premierManque));
  }

  // Letters typed in the index (each key: PremierCommencantPar through PositionIndex, and the
  // page shown on the entry found).
  {
    std::vector<double> nous, ref;
    std::vector<std::string> entrees;
    int introuvables = 0;
    std::string premierIntrouvable;
    std::size_t controle = 0;
    for (int mots = 0; mots < 500;) {
      const auto i = static_cast<std::int32_t>(1 + h.Entier(static_cast<std::size_t>(n)));
      const std::string_view texte = table.texte(i);
      if (texte.empty()) continue;
      ++mots;
      ToucheBas(f, Champ::Txt, Touche::Debut, 0);
      for (std::size_t c = 0; c < std::min<std::size_t>(6, texte.size()); ++c) {
        const char lettre = texte[c];
        if (static_cast<unsigned char>(lettre) < 32) break;
        nous.push_back(Chrono([&] { Caractere(f, Champ::Txt, 0, UnicodeDeAnsi(lettre)); }));
        entrees.push_back(f.fenetre.DebutIndexCherche);
        // The letters typed begin an index line, so its entry must be found.
        if (ui.Message().find("introuvable") != std::string::npos) {
          if (introuvables++ == 0) premierIntrouvable = f.fenetre.DebutIndexCherche;
          break;
        }
        const std::string plie = SansaccentEpure(f.fenetre.DebutIndexCherche);
        ref.push_back(Chrono([&] {
          const std::size_t j = chercheBrut(plie);
          controle += PageBrute(table, static_cast<std::int32_t>(std::min<std::size_t>(j + 1, static_cast<std::size_t>(n)))).size();
        }));
      }
    }
    Verifie(f, ui, "typed letters");
    Garde(controle);
    LigneInteractive("Typed letter (PositionIndex)", nous, ref, "bsearch+join",
                     "ref: binary search and the page joined; " + Pire(nous, entrees) +
                         Faux(introuvables, "\"introuvable\" for the beginning of an index line", premierIntrouvable));
  }

  // Page Down.
  {
    std::vector<double> nous, ref;
    std::size_t controle = 0;
    for (int k = 0; k < 400; ++k) {
      f.fenetre.PremierIndexAffiche = static_cast<std::int32_t>(1 + h.Entier(static_cast<std::size_t>(n)));
      InitTableIndex(f);
      for (int p = 0; p < 5; ++p) {
        const std::int32_t suivant = f.fenetre.PremierIndexAffiche + kLignesPage;
        nous.push_back(Chrono([&] { ToucheBas(f, Champ::Txt, Touche::PageSuiv, 0); }));
        if (suivant <= n) {
          if (f.fenetre.PremierIndexAffiche != suivant) Echec("page down: the page did not turn");
          ref.push_back(Chrono([&] { controle += PageBrute(table, suivant).size(); }));
        }
      }
    }
    Verifie(f, ui, "page down");
    Garde(controle);
    LigneInteractive("Page Down (Indexsuivant)", nous, ref, "join", "ref: the 40 lines joined from the table");
  }
  return 0;
}
