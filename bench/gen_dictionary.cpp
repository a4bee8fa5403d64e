// gen_dictionary ARTICLES OUTPUT SEED
//
// Writes a large dictionary in the program's own format for the benchmarks: Windows-1252,
// CR LF after every line, one empty line after each article, articles sorted by (head key,
// whole key) folded with Sansaccent, as an alphabetical dictionary is kept. Headwords are
// made of French- and English-looking syllables with some accents; some index lines carry a
// note in brackets ("(n.m.)"), some are locutions, names or acronyms, a very few are longer
// than an index-file field. Each article has 1 to 8 definition lines.
//
// The word "ornithorynque" (kMotPlante) is planted in about 1% of the articles, once each, in
// one definition line, and occurs nowhere else, so that searches have a known hit rate. The
// exact count is printed and written to OUTPUT.info with the other figures.
//
// The same arguments always give the same bytes, whatever the platform.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "data/folding.h"
#include "random.h"

namespace {

using lex::bench::Hasard;

constexpr const char* kMotPlante = "ornithorynque";
constexpr double kTauxPlante = 0.01;
// Bump when the output changes, so that cached files are made again.
constexpr int kVersionGenerateur = 1;

// Word parts (Windows-1252), as three-digit octal escapes so that a following letter is never
// read into one.
const char* const kPrefixes[] = {"",  "",   "",    "",      "",      "",    "",     "",    "re",
                                 "d\351", "pr\351", "in", "con", "dis", "sur", "sous", "anti", "trans",
                                 "over", "un", "m\351ta", "auto", "inter", "ex", "com", "des"};
const char* const kSyllabes[] = {
    "ba",  "be",  "bi",  "bo",  "bu",  "ca",  "ce",  "ci",  "co",  "cu",  "cha", "che", "chi", "cho", "da",
    "de",  "di",  "do",  "du",  "fa",  "fe",  "fi",  "fo",  "ga",  "ge",  "gi",  "go",  "gu",  "gra", "gre",
    "gri", "gro", "la",  "le",  "li",  "lo",  "lu",  "ma",  "me",  "mi",  "mo",  "mu",  "na",  "ne",  "ni",
    "no",  "pa",  "pe",  "pi",  "po",  "pra", "pre", "pro", "qua", "que", "qui", "ra",  "re",  "ri",  "ro",
    "ru",  "sa",  "se",  "si",  "so",  "su",  "ta",  "te",  "ti",  "to",  "tu",  "tra", "tre", "tri", "tro",
    "va",  "ve",  "vi",  "vo",  "ste", "sto", "bla", "ble", "cla", "cle", "fla", "flo", "pla", "plo", "spa",
    "spe", "tha", "the", "sha", "shi", "wa",  "wi",  "ya",  "zo",  "ka",  "ou",  "oi",  "eau", "ai",  "au",
    "an",  "on",  "in",  "en",  "un",  "ar",  "or",  "ir",  "el",  "al",  "il",
    "\351",        "t\351",         "r\351",         "d\351",        "l\350",        "m\352",
    "f\352",       "ch\342",        "c\364",         "g\342",        "\347a",     "\347o",
    "n\357",       "b\373",         "p\350",         "v\351",        "s\351",        "cr\351",
    "c\234u",   "\234u",      "gl\364",        "\356le",    "pr\351",       "\342ge"};
const char* const kSuffixes[] = {"",     "",     "",     "",     "",      "",      "tion", "ment", "ette",
                                 "eur",  "euse", "ique", "isme", "iste",  "able",  "ure",  "age",  "ier",
                                 "i\350re", "esse", "ance", "ence", "ing", "ness", "ly", "er", "ed",
                                 "ous",  "al",   "ful",  "ity",  "\351",  "\351e", "oir", "ade", "ard",
                                 "et",   "ot",   "ine",  "s",    "x",     "que",   "ght",  "ship", "ward"};
const char* const kNotes[] = {" (n.m.)", " (n.f.)", " (v.)",   " (adj.)",  " (adv.)",  " (n.m.pl.)", " (v.pr.)",
                              " [vieilli]", " [fam.]", ", e",   ", euse",   " (n.)",    " (vt)",      " (vi)"};
const char* const kOutils[] = {"le",   "la",   "les",  "de",   "du",   "des",   "un",    "une",  "et",   "ou",
                               "qui",  "que",  "dans", "pour", "par",  "sur",   "avec",  "en",   "est",  "au",
                               "aux",  "ce",   "se",   "ne",   "pas",  "plus",  "tr\350s", "o\371", "\340",
                               "the",  "of",   "and",  "to",   "a",    "in",    "is",    "for",  "with", "as",
                               "by",   "or",   "that", "this", "from", "voir",  "cf.",   "syn.", "ant.", "fig."};
const char* const kDebutsDefinition[] = {"(n.m.) ", "(n.f.) ", "(v.) ", "(adj.) ", "(adv.) ", "Fig. ", "Fam. ",
                                         "Litt. ", "Techn. ", "Vx. "};

std::string Mot(Hasard& h) {
  std::string m = h.Parmi(kPrefixes);
  const int n = h.Chance(0.3) ? 1 : h.Chance(0.7) ? 2 : 3;
  for (int i = 0; i < n; ++i) m += h.Parmi(kSyllabes);
  m += h.Parmi(kSuffixes);
  return m;
}

char Majuscule(char c) {
  const auto u = static_cast<unsigned char>(c);
  if (u >= 'a' && u <= 'z') return static_cast<char>(u - 32);
  if (u >= 0xE0 && u <= 0xFE && u != 0xF7) return static_cast<char>(u - 32);
  if (u == 0x9C) return static_cast<char>(0x8C);
  return c;
}

std::string LigneIndex(Hasard& h) {
  if (h.Chance(0.0001)) {
    // Longer than an index-file field: the index file keeps 70 characters of it.
    std::string l = Mot(h);
    while (l.size() <= 80) l += " " + Mot(h);
    return l;
  }
  const double r = static_cast<double>(h.Entier(10000)) / 10000.0;
  std::string m = Mot(h);
  if (r < 0.70) return m;
  if (r < 0.78) return m + h.Parmi(kNotes);
  if (r < 0.83) {
    m[0] = Majuscule(m[0]);
    return m;
  }
  if (r < 0.88) return m + " " + Mot(h);
  if (r < 0.91) return m + "-" + Mot(h);
  if (r < 0.94) {
    static const char* const kElisions[] = {"l'", "d'", "s'", "l\222"};
    return h.Parmi(kElisions) + m;
  }
  if (r < 0.96) {
    std::string sigle;
    const int n = h.Entre(2, 5);
    for (int i = 0; i < n; ++i) sigle += static_cast<char>('A' + h.Entier(26));
    return sigle;
  }
  if (r < 0.97) return m + " " + std::to_string(h.Entre(1, 4));
  return m;
}

struct Entree {
  std::string ligne;
  std::string tete;   // Sansaccent of the part before the first "(", "[" or ","
  std::string entier; // Sansaccent of the whole line
};

// The word that other articles may cite: the index line up to its first blank, bracket or
// comma.
std::string_view Vedette(std::string_view ligne) {
  const std::size_t fin = ligne.find_first_of(" ([,");
  return ligne.substr(0, fin);
}

bool Contient(std::string_view texte, std::string_view mot) { return texte.find(mot) != std::string_view::npos; }

std::string LigneDefinition(Hasard& h, const std::vector<Entree>& entrees, bool premiere, bool plante) {
  std::string l;
  if (premiere && h.Chance(0.3)) l += h.Parmi(kDebutsDefinition);
  const int n = h.Entre(6, 20);
  const int place = plante ? h.Entre(0, n - 1) : -1;
  for (int i = 0; i < n; ++i) {
    if (i > 0) l += h.Chance(0.07) ? ", " : " ";
    if (i == place) {
      l += kMotPlante;
      continue;
    }
    if (h.Chance(0.5)) {
      l += h.Parmi(kOutils);
    } else if (h.Chance(0.3)) {
      l += Vedette(entrees[h.Entier(entrees.size())].ligne);
    } else {
      if (h.Chance(0.03)) l += "l\222";
      if (h.Chance(0.02)) l += "\253";
      l += Mot(h);
      if (h.Chance(0.02)) l += "\273";
    }
  }
  if (h.Chance(0.7) && l.back() != '.') l += ".";
  return l;
}

class Sortie {
 public:
  explicit Sortie(const char* nom) : f_(std::fopen(nom, "wb")) {
    if (!f_) {
      std::perror(nom);
      std::exit(1);
    }
    tampon_.reserve(kTaille + 4096);
  }
  ~Sortie() { Fermer(); }
  void Ligne(std::string_view l) {
    tampon_.append(l).append("\r\n");
    octets_ += l.size() + 2;
    if (tampon_.size() >= kTaille) Vider();
  }
  void Fermer() {
    if (!f_) return;
    Vider();
    if (std::fclose(f_) != 0) {
      std::perror("fclose");
      std::exit(1);
    }
    f_ = nullptr;
  }
  std::uint64_t octets() const { return octets_; }

 private:
  void Vider() {
    if (!tampon_.empty() && std::fwrite(tampon_.data(), 1, tampon_.size(), f_) != tampon_.size()) {
      std::perror("fwrite");
      std::exit(1);
    }
    tampon_.clear();
  }
  static constexpr std::size_t kTaille = 1 << 22;
  std::FILE* f_;
  std::string tampon_;
  std::uint64_t octets_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("%d\n", kVersionGenerateur);
    return 0;
  }
  if (argc != 4) {
    std::fprintf(stderr, "usage: %s ARTICLES OUTPUT SEED\n       %s --version\n", argv[0], argv[0]);
    return 2;
  }
  const long long nombre = std::atoll(argv[1]);
  const char* sortie = argv[2];
  const std::uint64_t graine = std::strtoull(argv[3], nullptr, 10);
  if (nombre < 1 || nombre > 5'000'000) {
    std::fprintf(stderr, "ARTICLES must be between 1 and 5000000 (offsets are 32-bit)\n");
    return 2;
  }

  Hasard h(graine);
  std::vector<Entree> entrees(static_cast<std::size_t>(nombre));
  for (Entree& e : entrees) {
    do e.ligne = LigneIndex(h);
    while (Contient(e.ligne, kMotPlante));
    std::size_t coupe = e.ligne.find('(');
    if (coupe == std::string::npos) coupe = e.ligne.find('[');
    if (coupe == std::string::npos) coupe = e.ligne.find(',');
    e.entier = lex::Sansaccent(e.ligne);
    e.tete = coupe == std::string::npos ? e.entier : lex::Sansaccent(std::string_view(e.ligne).substr(0, coupe));
  }
  std::sort(entrees.begin(), entrees.end(), [](const Entree& a, const Entree& b) {
    if (a.tete != b.tete) return a.tete < b.tete;
    if (a.entier != b.entier) return a.entier < b.entier;
    return a.ligne < b.ligne;
  });
  for (Entree& e : entrees) {
    std::string().swap(e.tete);
    std::string().swap(e.entier);
  }

  static const int kPoidsLignes[] = {22, 20, 16, 13, 10, 8, 6, 5};  // 1 .. 8 definition lines
  Sortie out(sortie);
  std::uint64_t plantes = 0, lignes = 0;
  for (std::size_t k = 0; k < entrees.size(); ++k) {
    Hasard ha(lex::bench::Melange(graine, k + 1));
    int tirage = static_cast<int>(ha.Entier(100));
    int nLignes = 1;
    while (tirage >= kPoidsLignes[nLignes - 1]) tirage -= kPoidsLignes[nLignes++ - 1];
    const bool plante = ha.Chance(kTauxPlante);
    const int lignePlante = plante ? ha.Entre(0, nLignes - 1) : -1;
    out.Ligne(entrees[k].ligne);
    for (int i = 0; i < nLignes; ++i) {
      std::string l;
      do l = LigneDefinition(ha, entrees, i == 0, i == lignePlante);
      while (i != lignePlante && Contient(l, kMotPlante));
      out.Ligne(l);
    }
    out.Ligne("");
    plantes += plante ? 1 : 0;
    lignes += static_cast<std::uint64_t>(nLignes) + 2;
  }
  out.Fermer();

  const std::string info = std::string(sortie) + ".info";
  std::FILE* fi = std::fopen(info.c_str(), "wb");
  if (!fi) {
    std::perror(info.c_str());
    return 1;
  }
  std::fprintf(fi,
               "generator=%d\nseed=%llu\narticles=%lld\nbytes=%llu\nlines=%llu\nplanted_word=%s\nplanted_articles=%llu\n",
               kVersionGenerateur, static_cast<unsigned long long>(graine), nombre,
               static_cast<unsigned long long>(out.octets()), static_cast<unsigned long long>(lignes), kMotPlante,
               static_cast<unsigned long long>(plantes));
  std::fclose(fi);
  std::printf("%s: %lld articles, %llu bytes, \"%s\" in %llu articles (%.3f%%)\n", sortie, nombre,
              static_cast<unsigned long long>(out.octets()), kMotPlante, static_cast<unsigned long long>(plantes),
              100.0 * static_cast<double>(plantes) / static_cast<double>(nombre));
  return 0;
}
