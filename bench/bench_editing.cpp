// The editing of entries in a large dictionary, run as the user runs it in the scripted window:
//  - one article typed and written (Ctrl+N, OK), one changed by a line added (Ctrl+M, OK), one
//    changed so that it moves (its index line retyped), one deleted (Ctrl+F5, Yes): each
//    writes the working copy, forced to the disk, and shifts the index; against `cp
//    DICTIONARY OUT` and `cp DICTIONARY OUT && sync -f OUT` on the same file in the same run;
//  - duplicate articles removed (Ctrl+F6, Yes) from a copy of the dictionary in which every
//    100th article follows itself, and looked for in vain in the dictionary itself, against
//    `sort` of the same file;
//  - the peak memory all of this adds.
// Medians of the repetitions. See bench_common.h for the arguments and the output.
#include <malloc.h>

#include <filesystem>
#include <fstream>

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

// In the copy with duplicates, every kPas-th article is written twice in a row: the order
// stays alphabetical, so that the dictionary is opened as the plain one is.
constexpr std::int32_t kPas = 100;

// A program folder holding one dictionary. Its first opening builds the index files; they
// are kept aside and put back between rounds, with the working copy dropped, so that every
// round opens the dictionary as it was without scanning it again.
class Dossier {
 public:
  // `source` is copied in, when given.
  Dossier(const std::string& chemin, const std::string& source) : chemin_(chemin) {
    fs::remove_all(chemin_);
    fs::create_directories(chemin_ + "garde");
    if (!source.empty()) fs::copy_file(source, Dictio());
  }
  std::string Dictio() const { return chemin_ + "lex.eng"; }
  const std::string& Chemin() const { return chemin_; }
  // After the first opening: the index files it built.
  void Garde() {
    for (const fs::directory_entry& e : fs::directory_iterator(chemin_))
      if (EstIndex(e)) {
        fs::copy_file(e.path(), chemin_ + "garde/" + e.path().filename().string());
        gardes_.push_back(e.path().filename().string());
      }
    if (gardes_.empty()) Echec("no index file was written in " + chemin_);
  }
  void Remet() const {
    fs::remove(Dictio() + ".bak");
    for (const fs::directory_entry& e : fs::directory_iterator(chemin_))
      if (EstIndex(e)) fs::remove(e.path());
    for (const std::string& nom : gardes_) fs::copy_file(chemin_ + "garde/" + nom, chemin_ + nom);
  }

 private:
  static bool EstIndex(const fs::directory_entry& e) {
    const std::string nom = e.path().filename().string();
    return e.is_regular_file() && (nom.rfind("index.", 0) == 0 || nom.rfind("lettre.", 0) == 0);
  }
  std::string chemin_;
  std::vector<std::string> gardes_;
};

// The copy of `source` (indexed in `t`) in which every kPas-th article but the last is
// written a second time right after itself; returns how many were.
std::int32_t EcrireDoubles(const IndexTable& t, const std::string& source, const std::string& cible) {
  std::ifstream in(source, std::ios::binary);
  std::ofstream out(cible, std::ios::binary);
  std::string tampon;
  const auto copie = [&](std::int64_t debut, std::int64_t fin) {
    in.seekg(debut);
    tampon.resize(static_cast<std::size_t>(fin - debut));
    if (!in.read(tampon.data(), static_cast<std::streamsize>(tampon.size()))) Echec("cannot read " + source);
    out.write(tampon.data(), static_cast<std::streamsize>(tampon.size()));
  };
  const std::int32_t n = t.NombreArticle();
  std::int64_t fait = 0;
  std::int32_t doubles = 0;
  for (std::int32_t i = kPas; i < n; i += kPas) {
    copie(fait, t.position(i + 1));
    copie(t.position(i), t.position(i + 1));
    fait = t.position(i + 1);
    ++doubles;
  }
  copie(fait, LongueurFichier(source));
  if (!out.flush()) Echec("cannot write " + cible);
  return doubles;
}

// One command as the user gives it: its time (the user's typing left out) and the resident
// memory it adds at its peak. Older writes are forced to the disk first, so that neither
// side of a ratio pays for the other's. The heap freed by earlier rounds is given back
// first: reused, it would hide what the command takes.
class Mesure {
 public:
  Mesure() {
    ::sync();
    malloc_trim(0);
    avant_ = StatutOctets("VmRSS");
    std::ofstream("/proc/self/clear_refs") << "5";
  }
  template <class F>
  void Temps(F&& travail) {
    secondes_ += Chrono(travail);
  }
  double Fin(std::int64_t& memoire) const {
    memoire = std::max(memoire, StatutOctets("VmHWM") - avant_);
    return secondes_;
  }

 private:
  std::int64_t avant_ = 0;
  double secondes_ = 0;
};

void Verifie(bool ok, const Programme& p, const std::string& quoi) {
  if (ok) return;
  std::string dit = p.ui.Message();
  if (!p.ui.boxes.empty()) dit += " / " + p.ui.boxes.back();
  Echec(quoi + " did not do what the user asked (the program said: " + dit + ")");
}

// The message line says `mots` (it may pad them with blanks).
bool Dit(const Programme& p, const std::string& mots) { return p.ui.Message().find(mots) != std::string::npos; }

enum class Operation { Creation, Ajout, Deplacement, Effacement, Nombre };

const char* const kNoms[] = {
    "New article (Ctrl+N, OK)",
    "Article changed, a line added (Ctrl+M, OK)",
    "Article changed, index line retyped: it moves (Ctrl+M, OK)",
    "Article deleted (Ctrl+F5, Yes)",
};

// The operation on the entry the user is on; `tour` tells the first change of the round
// from the second, so that the two do not type the same text.
double Fais(Programme& p, Operation op, int tour, std::int64_t& memoire) {
  const std::int32_t avant = p.Nombre(), depart = p.f.liste.NumeroDictio(p.f.EntreeCourante());
  const std::string suffixe = tour == 0 ? "" : " bis";
  // The index line a new or moved article gets; a second move takes it elsewhere again.
  const std::string mot = op == Operation::Creation ? "lexicographe" + suffixe
                          : tour == 0                ? "lexicologue"
                                                     : "morphologue";
  p.ui.boxes.clear();
  Mesure m;
  switch (op) {
    case Operation::Creation:
      m.Temps([&] { EvMenu(p.f, MenuId::mnuCreationIndex); });
      Verifie(p.f.fenetre.ModeCourant() == Mode::CreationIndex, p, "Ctrl+N");
      p.ui.SetLineText(mot + "\r\n(n.m.) auteur de dictionnaires, un article tap\xE9 dans le champ" +
                       "\r\nvoir lexique");
      m.Temps([&] { EvBouton(p.f, Bouton::CmdDic); });
      Verifie(p.Nombre() == avant + 1 && Dit(p, " ajout\xE9"), p, "a new article");
      break;
    case Operation::Ajout:
    case Operation::Deplacement: {
      m.Temps([&] { EvMenu(p.f, MenuId::mnuModifIndex); });
      Verifie(p.f.fenetre.ModeCourant() == Mode::ModificationIndex, p, "Ctrl+M");
      std::string texte = p.ui.GetLineText();
      if (op == Operation::Deplacement) {
        const std::size_t fin = texte.find_first_of("\r\n");
        if (fin == std::string::npos) Echec("the article changed has no definition");
        texte = mot + texte.substr(fin);
      }
      p.ui.SetLineText(texte + "\r\nune ligne ajout\xE9" "e" + suffixe);
      m.Temps([&] { EvBouton(p.f, Bouton::CmdDic); });
      Verifie(p.Nombre() == avant && Dit(p, " modifi\xE9"), p, "a change");
      break;
    }
    case Operation::Effacement:
      p.ui.answers.push_back({headless::Answer::Kind::Button, Reponse::Yes, {}});
      m.Temps([&] { EvMenu(p.f, MenuId::mnuEffaceIndex); });
      Verifie(p.Nombre() == avant - 1 && p.ui.answers.empty() && Dit(p, "index supprim\xE9"), p,
              "a deletion");
      break;
    case Operation::Nombre: break;
  }
  const double t = m.Fin(memoire);
  Verifie(p.f.fenetre.ModeCourant() == Mode::Index, p, kNoms[static_cast<int>(op)]);
  // A typed article is shown where it went: its alphabetical place, not where the user was.
  if (op == Operation::Creation || op == Operation::Deplacement) {
    const std::int32_t ici = p.f.liste.NumeroDictio(p.f.EntreeCourante());
    // The entry's text in memory may carry the mark of an addition.
    Verifie(p.f.dico.TableIndex.texte(ici).find(mot) != std::string_view::npos && ici != depart, p,
            kNoms[static_cast<int>(op)]);
  }
  return t;
}

std::string Quote(const std::string& s) { return "'" + s + "'"; }

}  // namespace

int main(int argc, char** argv) {
  const Options o = LireOptions(argc, argv);
  Dossier simple(o.work + "/edition/", o.dict), doubles(o.work + "/doubles/", "");
  const std::string sortie = o.work + "/reference.out", vide = o.work + "/vide";
  std::fprintf(stderr, "bench_editing: %s, %d repetitions\n", o.dict.c_str(), o.reps);

  // First openings: the index files built, and the copy with duplicates made from the
  // plain dictionary's offsets.
  std::int32_t nombre = 0, ajoutes = 0;
  {
    Programme p(simple.Chemin());
    nombre = p.Nombre();
    ajoutes = EcrireDoubles(p.f.dico.TableIndex, simple.Dictio(), doubles.Dictio());
  }
  simple.Garde();
  { Programme p(doubles.Chemin()); }
  doubles.Garde();
  const std::int64_t taille = LongueurFichier(simple.Dictio()), tailleDoubles = LongueurFichier(doubles.Dictio());
  std::fprintf(stderr, "bench_editing: %d articles; %d written twice in %s\n", nombre, ajoutes,
               doubles.Dictio().c_str());

  const double demarrageSh = TempsCommande({"sh", "-c", "true"});
  const double demarrageCp = Demarrage({"cp", "/dev/null", vide});
  const double demarrageTri = Demarrage({"env", "LC_ALL=C", "sort", "/dev/null"});
  const auto cp = [&] {
    fs::remove(sortie);
    ::sync();
    return std::max(1e-4, TempsCommande({"cp", simple.Dictio(), sortie}) - demarrageCp);
  };
  const auto cpSync = [&] {
    fs::remove(sortie);
    ::sync();
    return std::max(1e-4, TempsCommande({"sh", "-c", "cp " + Quote(simple.Dictio()) + " " + Quote(sortie) +
                                                         " && sync -f " + Quote(sortie)}) -
                              demarrageSh);
  };
  const auto tri = [&](const std::string& fichier) {
    fs::remove(sortie);
    ::sync();
    return std::max(1e-4, TempsCommande({"env", "LC_ALL=C", "sort", fichier}, sortie) - demarrageTri);
  };

  constexpr int kOps = static_cast<int>(Operation::Nombre);
  std::vector<double> premiere[kOps], seconde[kOps], refCp, refSync, refTri, refTriSimple, retrait, recherche;
  std::int64_t memoireEdition = 0, memoireDoubles = 0;
  std::int32_t retires = 0;
  bool doublesDansLeSimple = false;
  for (int r = 0; r < o.reps; ++r) {
    for (int k = 0; k < kOps; ++k) {
      const auto op = static_cast<Operation>(k);
      refCp.push_back(cp());
      refSync.push_back(cpSync());
      simple.Remet();
      Programme p(simple.Chemin());
      // In the middle of the dictionary: the change goes through the index's own shifting, with
      // articles on either side to copy.
      if (op != Operation::Creation) p.f.PlaceSurEntree(p.Nombre() / 2);
      premiere[k].push_back(Fais(p, op, 0, memoireEdition));
      seconde[k].push_back(Fais(p, op, 1, memoireEdition));
      std::fprintf(stderr, "  round %d, %s: %.3f s then %.3f s\n", r + 1, kNoms[k], premiere[k].back(),
                   seconde[k].back());
    }

    refTri.push_back(tri(doubles.Dictio()));
    {
      doubles.Remet();
      Programme p(doubles.Chemin());
      const std::int32_t avant = p.Nombre();
      p.ui.answers.push_back({headless::Answer::Kind::Button, Reponse::Yes, {}});
      Mesure m;
      m.Temps([&] { EvMenu(p.f, MenuId::mnuEffaceArticleDouble); });
      retrait.push_back(m.Fin(memoireDoubles));
      retires = avant - p.Nombre();
      Verifie(retires >= ajoutes && p.ui.answers.empty() &&
                  Dit(p, std::to_string(retires) + " articles doubles supprim\xE9s"),
              p, "the removal of duplicates");
    }
    refTriSimple.push_back(tri(simple.Dictio()));
    {
      simple.Remet();
      Programme p(simple.Chemin());
      const std::int32_t avant = p.Nombre();
      // Should the plain dictionary hold duplicates, the question is left unanswered: No.
      Mesure m;
      m.Temps([&] { EvMenu(p.f, MenuId::mnuEffaceArticleDouble); });
      recherche.push_back(m.Fin(memoireDoubles));
      Verifie(p.Nombre() == avant, p, "the search for duplicates");
      if (!Dit(p, "aucun article double")) doublesDansLeSimple = true;
    }
    std::fprintf(stderr, "  round %d, duplicates: %.3f s removed, %.3f s none found\n", r + 1, retrait.back(),
                 recherche.back());
  }
  fs::remove(sortie);
  fs::remove(vide);

  const double c = Mediane(refCp), s = Mediane(refSync);
  for (int k = 0; k < kOps; ++k) {
    const double a = Mediane(premiere[k]), b = Mediane(seconde[k]);
    // The slower of the two is the row: a user meets both.
    const bool laPremiere = a >= b;
    const double x = laPremiere ? a : b;
    const std::string autre = laPremiere ? "the second (source: the working copy) took " + Ms(b)
                                         : "the first (source: the dictionary) took " + Ms(a);
    const std::string quelle = laPremiere ? "first change (no working copy yet); "
                                          : "second change (the old working copy freed by the rename); ";
    // What cp leaves in memory, the program must put on the disk before the rename: the flush
    // alone may take more than the target leaves.
    const std::string flush = "; the working copy is forced to the disk (fsync), cp's is not: cp && sync -f takes " +
                              Fois(s / c) + " cp";
    Ligne(std::string(kNoms[k]) + ", index shifted", Ms(x), Ms(c) + " cp", x / c, "<= 2x", x / c <= 2,
          quelle + autre + flush +
              (x / c <= 2  ? ""
               : s / c > 2 ? ", so the flush alone already misses the target"
                           : ", the program's own work misses the target"));
    Ligne(std::string(kNoms[k]) + ", against a synced copy", Ms(x), Ms(s) + " cp+sync -f", x / s, "-", std::nullopt,
          "cp DICT OUT && sync -f OUT, the copy made to survive a power cut as the program's must; the program also "
          "rewrites the index file (144 bytes an entry)");
  }
  const double d = Mediane(retrait), t = Mediane(refTri);
  Ligne("Duplicate articles removed (Ctrl+F6, Yes)", Ms(d), Ms(t) + " sort", d / t, "<= 3x", d / t <= 3,
        std::to_string(retires) + " removed of " + std::to_string(nombre + ajoutes) +
            " articles (every 100th written twice, " + Mo(static_cast<double>(tailleDoubles)) +
            "); LC_ALL=C sort of the same file, on every core; working copy forced to the disk, index shifted");
  const double e = Mediane(recherche), u = Mediane(refTriSimple);
  Ligne("Duplicate articles looked for, none found (Ctrl+F6)", Ms(e), Ms(u) + " sort", e / u, "<= 3x", e / u <= 3,
        !doublesDansLeSimple ? "the dictionary itself: \"aucun article double\"; LC_ALL=C sort of the same file"
                            : "the dictionary itself holds duplicates: the question was answered No");
  const double quart = static_cast<double>(taille) / 4;
  Ligne("Memory added by an article's change (peak)", Mo(static_cast<double>(memoireEdition)),
        Mo(static_cast<double>(taille)) + " dictionary",
        static_cast<double>(memoireEdition) / static_cast<double>(taille), "< 0.25x",
        static_cast<double>(memoireEdition) < quart,
        "highest of every new, changed, moved and deleted article; the dictionary is never held in memory");
  Ligne("Memory added by the duplicates' search and removal (peak)", Mo(static_cast<double>(memoireDoubles)),
        Mo(static_cast<double>(tailleDoubles)) + " dictionary",
        static_cast<double>(memoireDoubles) / static_cast<double>(tailleDoubles), "< 0.25x",
        static_cast<double>(memoireDoubles) < static_cast<double>(tailleDoubles) / 4,
        "a 128-bit print per article, the file read by blocks");
  return 0;
}
