// dictd dictionaries as FreeDict, FOLDOC and the Jargon File make them: the index line taken
// from the entry, the names' block, the database's own entries left out, and the damaged
// files that must be named.
#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>

#include "exchange/dictd.h"
#include "exchange/dictzip.h"
#include "import_support.h"
#include "test_support.h"

using namespace lex::exchange;

namespace {

std::string Base64(std::uint64_t n) {
  static const char* const c = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string s;
  do {
    s.insert(s.begin(), c[n % 64]);
    n /= 64;
  } while (n);
  return s;
}

std::string Gzip(const std::string& s) {
  z_stream z{};
  deflateInit2(&z, 9, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
  std::string out(deflateBound(&z, s.size()) + 32, '\0');
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(s.data()));
  z.avail_in = static_cast<uInt>(s.size());
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  deflate(&z, Z_FINISH);
  out.resize(out.size() - z.avail_out);
  deflateEnd(&z);
  return out;
}

struct Source {
  std::string dict;
  std::vector<std::pair<std::string, std::pair<std::size_t, std::size_t>>> index;
  // Adds an entry and files it under the given headwords.
  void Entree(const std::string& texte, std::initializer_list<std::string> mots) {
    for (const auto& m : mots) index.push_back({m, {dict.size(), texte.size()}});
    dict += texte;
  }
  std::string Index() const {
    auto tri = index;
    std::sort(tri.begin(), tri.end());  // alphabetical, as dictfmt files them
    std::string s;
    for (const auto& [mot, place] : tri) s += mot + "\t" + Base64(place.first) + "\t" + Base64(place.second) + "\n";
    return s;
  }
};

using lex::test::Lignes;

class Dictd : public ::testing::Test {
 protected:
  std::filesystem::path Ecrit(const std::string& nom, const std::string& octets) {
    const auto f = lex::CheminNatif(dossier_.Chemin(nom));
    std::ofstream(f, std::ios::binary) << octets;
    return f;
  }
  std::vector<Lignes> Lit(const std::filesystem::path& f) { return lex::test::Articles(LitDictd, f); }
  std::string Erreur(const std::filesystem::path& f, const std::string& fichier) {
    return lex::test::Refus(LitDictd, f, fichier);
  }
  lex::test::DossierTemp dossier_;
};

Source Exemple() {
  Source s;
  s.Entree("00-database-info\nThis is the database's own text.\n", {"00databaseinfo", "00-database-url"});
  // FreeDict: the headword, its pronunciation and part of speech on the first line.
  s.Entree("cat /k\xC3\xA6t/ <n>\n1. chat\n   2. m\xC3\xA9g\xC3\xA8re  \n", {"cat"});
  // Filed under a folded headword.
  s.Entree("Achilles' heel /\xC9\x99t\xCA\x83ilshi\xCB\x90l/\ntalon d'Achille\n", {"achilles heel"});
  // FOLDOC: the names' block, then the text after an empty line, indented. The articles of
  // one entry come in the index's order.
  s.Entree("exclamation mark\n!\nexcl\n\n   <character> The character \"!\".\n\n   (1998-09-17)\n\n",
           {"!", "exclamation mark", "excl"});
  // Jargon File: the headword alone, then the text.
  s.Entree("hacker\n n.\n\n    [originally, someone who makes furniture with an axe]\n", {"hacker"});
  // No line of the entry names the headword it is filed under.
  s.Entree("prefix\natto-\n\n   <unit> An SI prefix.\n", {"kilo"});
  return s;
}

TEST_F(Dictd, ArticlesInTheDataFilesOrderHeadedByTheirOwnLine) {
  const Source s = Exemple();
  const auto index = Ecrit("essai.index", s.Index());
  Ecrit("essai.dict.dz", CompresseDictzip(s.dict, "", 64));
  const std::vector<Lignes> attendu = {
      {"cat", "/k\xC3\xA6t/ <n>", "1. chat", "2. m\xC3\xA9g\xC3\xA8re"},
      {"Achilles' heel", "/\xC9\x99t\xCA\x83ilshi\xCB\x90l/", "talon d'Achille"},
      {"!", "exclamation mark", "excl", "<character> The character \"!\".", "(1998-09-17)"},
      {"excl", "exclamation mark", "!", "<character> The character \"!\".", "(1998-09-17)"},
      {"exclamation mark", "!", "excl", "<character> The character \"!\".", "(1998-09-17)"},
      {"hacker", "n.", "[originally, someone who makes furniture with an axe]"},
      {"kilo", "prefix", "atto-", "<unit> An SI prefix."},
  };
  EXPECT_EQ(Lit(index), attendu);
  // Named by any of its files or their common base; plain gzip and no compression read alike.
  for (const char* nom : {"essai.dict.dz", "essai"}) {
    EXPECT_TRUE(EstDictd(lex::CheminNatif(dossier_.Chemin(nom)))) << nom;
    EXPECT_EQ(Lit(lex::CheminNatif(dossier_.Chemin(nom))), attendu) << nom;
  }
  Ecrit("gz.index", s.Index());
  Ecrit("gz.dict.dz", Gzip(s.dict));
  EXPECT_EQ(Lit(lex::CheminNatif(dossier_.Chemin("gz.dict.dz"))), attendu);
  const auto plat = Ecrit("plat.index", s.Index());
  Ecrit("plat.dict", s.dict);
  EXPECT_TRUE(EstDictd(plat));
  EXPECT_EQ(Lit(plat), attendu);
  // An index without its data file, or a file of another format, is not taken.
  EXPECT_FALSE(EstDictd(Ecrit("seul.index", s.Index())));
  Ecrit("tab.index", "chat\tfelin\n");
  Ecrit("tab.dict", "x");
  EXPECT_FALSE(EstDictd(lex::CheminNatif(dossier_.Chemin("tab.index"))));
}

TEST_F(Dictd, DamagedFilesAreNamedWithThePlace) {
  const Source s = Exemple();
  Ecrit("a.dict", s.dict);
  // A character outside the alphabet in the third line.
  std::string index = s.Index();
  const auto l3 = index.find('\n', index.find('\n') + 1) + 1;
  index[index.find('\t', l3) + 1] = '-';
  EXPECT_EQ(Erreur(Ecrit("a.index", index), "a.index"),
            "ligne 3 | position ou longueur illisible (base 64 attendue : A-Z, a-z, 0-9, + et /)");
  // An entry that goes past the end of the data file.
  Ecrit("b.dict", s.dict);
  const auto b = Ecrit("b.index", s.Index() + "zebra\t" + Base64(s.dict.size() - 3) + "\tE\n");
  EXPECT_EQ(Erreur(b, "b.index"), "ligne 10 (zebra) | la d\xC3\xA9" "finition d\xC3\xA9passe la fin du fichier b.dict");
  // A missing length field.
  EXPECT_EQ(Erreur(Ecrit("c.index", "chat\tA\n"), "c.index").substr(0, 9), "ligne 1 |");
  // A compressed data file cut short.
  Ecrit("d.index", s.Index());
  const std::string dz = CompresseDictzip(s.dict, "", 64);
  Ecrit("d.dict.dz", dz.substr(0, dz.size() - 20));
  EXPECT_NE(Erreur(lex::CheminNatif(dossier_.Chemin("d.index")), "d.dict.dz"), "lu sans erreur");
  // Empty files.
  Ecrit("e.dict", s.dict);
  EXPECT_EQ(Erreur(Ecrit("e.index", ""), "e.index"), " | fichier vide");
  Ecrit("f.dict", "");
  EXPECT_EQ(Erreur(Ecrit("f.index", s.Index()), "f.dict"), " | fichier vide");
}

}  // namespace
