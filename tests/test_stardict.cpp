// StarDict dictionaries made in the test: 32- and 64-bit offsets, synonyms, typed parts and
// markup, and the damaged files that must be named with their place.
#include <gtest/gtest.h>

#include <fstream>

#include "exchange/dictzip.h"
#include "exchange/stardict.h"
#include "import_support.h"
#include "test_support.h"

using namespace lex::exchange;

namespace {

std::string GrosBout(std::uint64_t n, int octets) {
  std::string s;
  for (int i = octets - 1; i >= 0; --i) s += static_cast<char>((n >> (8 * i)) & 0xFF);
  return s;
}

struct Source {
  int bits = 32;
  std::string types = "m";
  std::string dict;
  std::vector<std::tuple<std::string, std::uint64_t, std::uint64_t>> idx;  // in StarDict's order
  std::vector<std::pair<std::string, std::uint32_t>> syn;
  // A definition placed at the end of the data, filed under `mot`.
  void Mot(const std::string& mot, const std::string& definition) {
    idx.emplace_back(mot, dict.size(), definition.size());
    dict += definition;
  }
  std::string Idx() const {
    std::string s;
    for (const auto& [mot, debut, n] : idx) s += mot + '\0' + GrosBout(debut, bits / 8) + GrosBout(n, 4);
    return s;
  }
  std::string Syn() const {
    std::string s;
    for (const auto& [mot, cible] : syn) s += mot + '\0' + GrosBout(cible, 4);
    return s;
  }
  std::string Ifo(std::size_t mots) const {
    std::string s = "StarDict's dict ifo file\nversion=3.0.0\nbookname=Essai\nwordcount=" + std::to_string(mots) +
                    "\nidxfilesize=" + std::to_string(Idx().size()) + "\nidxoffsetbits=" + std::to_string(bits) + "\n";
    if (!types.empty()) s += "sametypesequence=" + types + "\n";
    if (!syn.empty()) s += "synwordcount=" + std::to_string(syn.size()) + "\n";
    return s;
  }
};

using lex::test::Lignes;

class StarDict : public ::testing::Test {
 protected:
  std::filesystem::path Chemin(const std::string& nom) { return lex::CheminNatif(dossier_.Chemin(nom)); }
  std::filesystem::path Ecrit(const std::string& nom, const std::string& octets) {
    std::ofstream(Chemin(nom), std::ios::binary) << octets;
    return Chemin(nom);
  }
  // Writes the dictionary `nom` (its .dict compressed or not); gives the .ifo.
  std::filesystem::path Ecrit(const std::string& nom, const Source& s, bool dz, std::size_t mots = SIZE_MAX) {
    Ecrit(nom + ".idx", s.Idx());
    if (!s.syn.empty()) Ecrit(nom + ".syn", s.Syn());
    if (dz)
      Ecrit(nom + ".dict.dz", CompresseDictzip(s.dict, "", 50));
    else
      Ecrit(nom + ".dict", s.dict);
    return Ecrit(nom + ".ifo", s.Ifo(mots == SIZE_MAX ? s.idx.size() : mots));
  }
  std::vector<Lignes> Lit(const std::filesystem::path& f) { return lex::test::Articles(LitStarDict, f); }
  std::string Erreur(const std::filesystem::path& f, const std::string& fichier) {
    return lex::test::Refus(LitStarDict, f, fichier);
  }
  lex::test::DossierTemp dossier_;
};

// Three words written in the data in the order chat, âne, zèbre; the .idx lists them in
// StarDict's order (âne's first byte is beyond ASCII, so it comes last).
Source Animaux(int bits) {
  Source s;
  s.bits = bits;
  s.Mot("chat", "f\xC3\xA9lin\nqui miaule");
  s.Mot("\xC3\xA2ne", "baudet");
  s.Mot("z\xC3\xA8" "bre", "ray\xC3\xA9\r\n\n  \xC3\xA0 rayures ");
  std::swap(s.idx[1], s.idx[2]);  // chat, zèbre, âne
  s.syn = {{"minet", 0}, {"matou", 0}, {"bourricot", 2}};
  return s;
}

TEST_F(StarDict, WordsInTheDataOrderAndSynonymsAfterTheirWord) {
  const std::vector<Lignes> attendu = {
      {"chat", "f\xC3\xA9lin", "qui miaule"},
      {"minet", "f\xC3\xA9lin", "qui miaule"},
      {"matou", "f\xC3\xA9lin", "qui miaule"},
      {"\xC3\xA2ne", "baudet"},
      {"bourricot", "baudet"},
      // A plain-text definition keeps its blanks; CR LF ends a line as LF does.
      {"z\xC3\xA8" "bre", "ray\xC3\xA9", "  \xC3\xA0 rayures "},
  };
  for (int bits : {32, 64}) {
    for (bool dz : {false, true}) {
      const std::string nom = "animaux" + std::to_string(bits) + (dz ? "dz" : "");
      const auto ifo = Ecrit(nom, Animaux(bits), dz);
      EXPECT_EQ(Lit(ifo), attendu) << nom;
      for (const char* fin : {".ifo", ".idx", ".dict", ""}) {
        std::filesystem::path p = Chemin(nom + fin);
        if (std::string(fin) == ".dict" && dz) p = Chemin(nom + ".dict.dz");
        EXPECT_TRUE(EstStarDict(p)) << p;
      }
    }
  }
  EXPECT_FALSE(EstStarDict(Ecrit("autre.ifo", "pas StarDict\nwordcount=1\n")));
}

TEST_F(StarDict, TypedPartsAndMarkupBecomeText) {
  Source s;
  s.types = "";
  // Each part says its type: plain text, HTML, a sound (its size before it), XDXF. The
  // headword that markup repeats at its top is not kept.
  s.Mot("pomme", std::string("mfruit\0", 7) + "h<b>pomme</b><br>le fruit &amp; l'arbre<br/>&#233;t&#xE9;<p>fin" +
                     '\0' + "W" + GrosBout(3, 4) + "\x01\x02\x03" +
                     "x<k>pomme</k>\n<def>malus &lt;latin&gt;</def>");
  s.Mot("poire", std::string("tpwar\0", 6) + "mfruit");
  EXPECT_EQ(Lit(Ecrit("types", s, false)),
            (std::vector<Lignes>{{"pomme", "fruit", "le fruit & l'arbre", "\xC3\xA9t\xC3\xA9", "fin",
                                  "malus <latin>"},
                                 {"poire", "pwar", "fruit"}}));
  // A declared sequence: the last part without its NUL.
  Source h;
  h.types = "th";
  h.Mot("poire", std::string("pwar\0", 5) + "poire<br>un fruit");
  EXPECT_EQ(Lit(Ecrit("sequence", h, true)), (std::vector<Lignes>{{"poire", "pwar", "un fruit"}}));
}

TEST_F(StarDict, DamagedFilesAreNamedWithThePlace) {
  const Source s = Animaux(32);
  EXPECT_EQ(Erreur(Ecrit("compte", s, false, 4), "compte.idx"),
            " | il contient 3 mots, le fichier .ifo en annonce 4 (wordcount)");
  // A definition past the end of the data: zèbre's size grown.
  Source loin = s;
  std::get<2>(loin.idx[1]) += 5;
  EXPECT_EQ(Erreur(Ecrit("loin", loin, true), "loin.idx"),
            "entr\xC3\xA9" "e 2 (z\xC3\xA8" "bre) | la d\xC3\xA9" "finition d\xC3\xA9passe la fin du fichier loin.dict.dz");
  // The .idx cut inside its last entry.
  Ecrit("coupe", s, false);
  const std::string idx = s.Idx();
  Ecrit("coupe.idx", idx.substr(0, idx.size() - 3));
  EXPECT_EQ(Erreur(Chemin("coupe.ifo"), "coupe.idx"), "entr\xC3\xA9" "e 3 (\xC3\xA2ne) | fichier tronqu\xC3\xA9");
  // A synonym pointing past the words.
  Source syn = s;
  syn.syn.push_back({"fant\xC3\xB4me", 3});
  EXPECT_EQ(Erreur(Ecrit("syn", syn, false), "syn.syn"),
            "entr\xC3\xA9" "e 4 (fant\xC3\xB4me) | renvoie au mot 3 alors que le fichier .idx en a 3");
  // The .ifo's first line, its offsets' width, and empty files.
  Ecrit("entete", s, false);
  EXPECT_EQ(Erreur(Ecrit("entete.ifo", "StarDict dict\nwordcount=3\n"), "entete.ifo"),
            "ligne 1 | \xC2\xAB StarDict's dict ifo file \xC2\xBB attendu");
  EXPECT_EQ(Erreur(Ecrit("entete.ifo", "StarDict's dict ifo file\nwordcount=3\nidxoffsetbits=48\n"), "entete.ifo"),
            "ligne 3 | idxoffsetbits vaut 32 ou 64, pas \xC2\xAB 48 \xC2\xBB");
  Ecrit("vide.idx", "");
  Ecrit("vide.dict", "");
  EXPECT_EQ(Erreur(Ecrit("vide.ifo", "StarDict's dict ifo file\nwordcount=0\n"), "vide.idx"), " | fichier vide");
  // A compressed data file cut short.
  Ecrit("dz", s, true);
  const std::string dz = CompresseDictzip(s.dict, "", 50);
  Ecrit("dz.dict.dz", dz.substr(0, dz.size() - 12));
  EXPECT_NE(Erreur(Chemin("dz.ifo"), "dz.dict.dz"), "lu sans erreur");
}

}  // namespace
