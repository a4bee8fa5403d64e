// lex-export's way back: a dictionary written as StarDict or tab-separated text and imported
// again is the same file, byte for byte; the StarDict files are what other readers expect
// (the .idx in StarDict's order, each definition reachable through the dictzip table); a
// failed export leaves nothing behind.
#include <gtest/gtest.h>

#include <fstream>

#include "data/write_error.h"
#include "exchange/dictionary_writer.h"
#include "exchange/dictzip.h"
#include "exchange/export.h"
#include "exchange/stardict.h"
#include "exchange/tab_separated.h"
#include "test_support.h"

using namespace lex::exchange;

namespace {

// A dictionary as the program keeps it (Windows-1252, CR LF, one empty line between articles)
// in its order. Equal keys whose order StarDict's would change ("chat" before "Chat", "âcre"
// before "acre"), two homographs, bytes of 0x80-0x9F, a tab and backslashes inside lines, an
// article without definition.
const std::string kDictionnaire =
    "\xE2" "cre\r\nqui irrite\r\n\r\n"
    "acre\r\nmesure agraire\r\n\r\n"
    "b\x9C" "uf\r\nanimal\r\n\x93" "entre guillemets\x94 \x96 tiret\r\n\r\n"
    "c:\\dos\r\nchemin\\n pas une fin de ligne\r\ncolonne\tsuivante\r\n\r\n"
    "chat\r\nf\xE9lin\r\n\r\n"
    "Chat\r\nnom propre\r\n\r\n"
    "seul\r\n\r\n"
    "z\xE8" "bre\r\npremier\r\n\r\n"
    "z\xE8" "bre\r\nsecond\r\n";

class Export : public ::testing::Test {
 protected:
  std::filesystem::path Chemin(const std::string& nom) { return lex::CheminNatif(dossier_.Chemin(nom)); }
  std::filesystem::path Dictionnaire() {
    const auto f = Chemin("essai.lex");
    std::ofstream(f, std::ios::binary) << kDictionnaire;
    return f;
  }
  // Imports with the reader given, as lex-import does, and gives the file's bytes.
  std::string Importe(void (*lit)(const std::filesystem::path&, const Recepteur&), const std::filesystem::path& source) {
    EcrivainDictionnaire ecrivain(source.string());
    lit(source, ecrivain.Entree());
    const auto cible = Chemin("retour.lex");
    ecrivain.Ecrit(cible);
    return lex::test::Octets(cible);
  }
  lex::test::DossierTemp dossier_;
};

TEST_F(Export, StarDictComesBackByteForByte) {
  const auto bilan = ExporteStarDict(Dictionnaire(), Chemin("essai"));
  EXPECT_EQ(bilan.articles, 9u);
  ASSERT_EQ(bilan.fichiers.size(), 3u);
  EXPECT_EQ(Importe(LitStarDict, Chemin("essai.ifo")), kDictionnaire);

  const std::string ifo = lex::test::Octets(Chemin("essai.ifo"));
  EXPECT_NE(ifo.find("wordcount=9\n"), std::string::npos) << ifo;
  EXPECT_NE(ifo.find("sametypesequence=m\n"), std::string::npos) << ifo;
  // The .idx: StarDict's order (ASCII case ignored first, then bytes), and each definition
  // read back through the chunk table as another reader does.
  const std::string idx = lex::test::Octets(Chemin("essai.idx"));
  EXPECT_NE(ifo.find("idxfilesize=" + std::to_string(idx.size()) + "\n"), std::string::npos);
  LecteurDictzip dz(Chemin("essai.dict.dz"));
  ASSERT_TRUE(dz.AccesDirect());
  std::vector<std::string> mots, definitions;
  for (std::size_t p = 0; p < idx.size();) {
    const std::string mot(idx.data() + p);
    p += mot.size() + 1;
    auto nombre = [&] {
      std::uint32_t n = 0;
      for (int i = 0; i < 4; ++i) n = (n << 8) | static_cast<unsigned char>(idx[p++]);
      return n;
    };
    const std::uint32_t debut = nombre(), taille = nombre();
    mots.push_back(mot);
    definitions.push_back(dz.Lire(debut, taille));
  }
  EXPECT_EQ(mots, (std::vector<std::string>{"acre", "b\xC5\x93uf", "c:\\dos", "Chat", "chat", "seul", "z\xC3\xA8" "bre",
                                            "z\xC3\xA8" "bre", "\xC3\xA2" "cre"}));
  EXPECT_EQ(definitions[1], "animal\n\xE2\x80\x9C" "entre guillemets\xE2\x80\x9D \xE2\x80\x93 tiret");
  EXPECT_EQ(definitions[5], "");
  EXPECT_EQ(definitions[6], "premier");
  EXPECT_EQ(definitions[7], "second");
}

TEST_F(Export, TabSeparatedComesBackByteForByte) {
  const auto bilan = ExporteTabulations(Dictionnaire(), Chemin("essai.txt"));
  EXPECT_EQ(bilan.articles, 9u);
  const std::string texte = lex::test::Octets(Chemin("essai.txt"));
  EXPECT_NE(texte.find("c:\\\\dos\tchemin\\\\n pas une fin de ligne\\ncolonne\\tsuivante\n"), std::string::npos) << texte;
  EXPECT_EQ(Importe(LitTabulations, Chemin("essai.txt")), kDictionnaire);
}

TEST_F(Export, AFailedExportLeavesNothing) {
  // No dictionary: named, nothing written.
  try {
    ExporteStarDict(Chemin("absent.lex"), Chemin("sortie"));
    ADD_FAILURE() << "pas d'erreur";
  } catch (const ErreurImport& e) {
    EXPECT_NE(std::string(e.what()).find("absent.lex"), std::string::npos);
  }
  // The .ifo cannot be written (a folder has its name): the .dict.dz and .idx already written
  // are taken away.
  std::filesystem::create_directory(Chemin("bloque.ifo"));
  EXPECT_THROW(ExporteStarDict(Dictionnaire(), Chemin("bloque")), lex::ErreurEcriture);
  EXPECT_FALSE(std::filesystem::exists(Chemin("bloque.dict.dz")));
  EXPECT_FALSE(std::filesystem::exists(Chemin("bloque.idx")));
  EXPECT_THROW(ExporteTabulations(Dictionnaire(), Chemin("manque/essai.txt")), lex::ErreurEcriture);
}

}  // namespace
