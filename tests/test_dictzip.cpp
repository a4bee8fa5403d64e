// dictzip files: what the writer makes must be gzip to any reader and random access to a
// dictzip reader (each chunk of the table decompresses alone), and the reader must take
// plain gzip too and name the file when the data is cut or damaged.
#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>

#include "exchange/article.h"
#include "exchange/dictzip.h"
#include "test_support.h"

using namespace lex::exchange;

namespace {

// Text that does not compress to nothing: a few words drawn by a fixed sequence.
std::string Texte(std::size_t n) {
  static const char* const mots[] = {"chat ", "chien ", "oiseau\n", "ornithorynque ", "\xC3\xA9t\xC3\xA9 ", "lex "};
  std::string s;
  std::uint32_t x = 12345;
  while (s.size() < n) {
    x = x * 1103515245u + 12345u;
    s += mots[(x >> 16) % 6];
  }
  s.resize(n);
  return s;
}

// gzip made by zlib itself, without the chunk table.
std::string Gzip(const std::string& s) {
  z_stream z{};
  deflateInit2(&z, 6, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
  std::string out(deflateBound(&z, s.size()) + 32, '\0');
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(s.data()));
  z.avail_in = static_cast<uInt>(s.size());
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  EXPECT_EQ(deflate(&z, Z_FINISH), Z_STREAM_END);
  out.resize(out.size() - z.avail_out);
  deflateEnd(&z);
  return out;
}

// Raw inflate of `n` bytes of `s` from `debut`, as an outside reader decompresses one chunk.
std::string Inflate(const std::string& s, std::size_t debut, std::size_t n, int bits) {
  z_stream z{};
  inflateInit2(&z, bits);
  std::string out(1 << 20, '\0');
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(s.data() + debut));
  z.avail_in = static_cast<uInt>(n);
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  const int r = inflate(&z, Z_SYNC_FLUSH);
  EXPECT_TRUE(r == Z_OK || r == Z_STREAM_END) << r;
  out.resize(out.size() - z.avail_out);
  inflateEnd(&z);
  return out;
}

std::uint32_t U16(const std::string& s, std::size_t i) {
  return static_cast<unsigned char>(s[i]) | (static_cast<unsigned char>(s[i + 1]) << 8);
}

class Dictzip : public ::testing::Test {
 protected:
  std::filesystem::path Ecrit(const std::string& nom, const std::string& octets) {
    const auto f = lex::CheminNatif(dossier_.Chemin(nom));
    std::ofstream(f, std::ios::binary) << octets;
    return f;
  }
  lex::test::DossierTemp dossier_;
};

TEST_F(Dictzip, TheTableLetsAnyReaderDecompressEachChunkAlone) {
  const std::string texte = Texte(3 * kMorceauDictzip + 1234);
  const std::string dz = CompresseDictzip(texte, "essai.dict");
  // Any gzip reader gets the text back.
  EXPECT_EQ(Inflate(dz, 0, dz.size(), 15 + 16), texte);
  // The header as dictd reads it: FEXTRA and FNAME, then "RA", version 1, the chunk length
  // and count, the compressed sizes.
  ASSERT_EQ(static_cast<unsigned char>(dz[3]), 4 | 8);
  const std::size_t xlen = U16(dz, 10);
  ASSERT_EQ(dz.substr(12, 2), "RA");
  EXPECT_EQ(U16(dz, 16), 1u);
  EXPECT_EQ(U16(dz, 18), kMorceauDictzip);
  const std::size_t nombre = U16(dz, 20);
  ASSERT_EQ(nombre, 4u);
  EXPECT_EQ(xlen, 10 + 2 * nombre);
  std::size_t p = 12 + xlen;
  ASSERT_EQ(dz.substr(p, 11), std::string("essai.dict\0", 11));
  p += 11;
  for (std::size_t i = 0; i < nombre; ++i) {
    const std::size_t taille = U16(dz, 22 + 2 * i);
    EXPECT_EQ(Inflate(dz, p, taille, -15), texte.substr(i * kMorceauDictzip, kMorceauDictzip)) << "morceau " << i;
    p += taille;
  }
  // After the chunks: the final block and the trailer alone.
  EXPECT_EQ(dz.size() - p, 2u + 8u);
}

TEST_F(Dictzip, RangesAcrossChunksAndWholeReads) {
  // Small chunks, so that a range spans several; a plain gzip file reads the same.
  const std::string texte = Texte(5000);
  const auto dz = Ecrit("a.dict.dz", CompresseDictzip(texte, "", 700));
  const auto gz = Ecrit("b.dict.dz", Gzip(texte));
  LecteurDictzip table(dz), simple(gz);
  EXPECT_TRUE(table.AccesDirect());
  EXPECT_FALSE(simple.AccesDirect());
  for (auto* l : {&table, &simple}) {
    EXPECT_EQ(l->Taille(), texte.size());
    EXPECT_EQ(l->LireTout(), texte);
    for (auto [debut, n] : {std::pair<std::size_t, std::size_t>{0, 1}, {699, 2}, {650, 2000}, {4999, 1}, {0, 5000}, {1400, 0}})
      EXPECT_EQ(l->Lire(debut, n), texte.substr(debut, n)) << debut << "+" << n;
    EXPECT_THROW(l->Lire(4990, 11), ErreurImport);
  }
  // Read forward in overlapping ranges, as the readers do after sorting by offset.
  for (const auto& f : {dz, gz}) {
    LecteurSequentiel s(f);
    std::string_view v;
    for (std::size_t debut = 0; debut + 300 <= texte.size(); debut += 170) {
      ASSERT_TRUE(s.Lire(debut, 300, v));
      EXPECT_EQ(v, std::string_view(texte).substr(debut, 300));
    }
    EXPECT_FALSE(s.Lire(4900, 101, v));
  }
  // Empty data makes a valid file too.
  LecteurDictzip vide(Ecrit("vide.dz", CompresseDictzip("")));
  EXPECT_EQ(vide.LireTout(), "");
}

TEST_F(Dictzip, CutOrDamagedDataNamesTheFile) {
  const std::string texte = Texte(4000);
  const std::string dz = CompresseDictzip(texte, "", 700);
  auto echoue = [&](const std::string& octets, bool sequentiel) {
    const auto f = Ecrit("casse.dict.dz", octets);
    try {
      if (sequentiel) {
        LecteurSequentiel s(f);
        std::string_view v;
        s.Lire(0, texte.size(), v);
        s.Finir();
      } else {
        LecteurDictzip(f).LireTout();
      }
    } catch (const ErreurImport& e) {
      EXPECT_NE(std::string(e.what()).find("casse.dict.dz"), std::string::npos) << e.what();
      return true;
    }
    return false;
  };
  for (std::size_t coupe : {std::size_t{5}, std::size_t{30}, dz.size() / 2, dz.size() - 9, dz.size() - 1}) {
    EXPECT_TRUE(echoue(dz.substr(0, coupe), false)) << "coupé à " << coupe;
    EXPECT_TRUE(echoue(dz.substr(0, coupe), true)) << "coupé à " << coupe;
  }
  std::string abime = dz;
  abime[dz.size() / 2] = static_cast<char>(abime[dz.size() / 2] ^ 0x55);
  EXPECT_TRUE(echoue(abime, false));
  EXPECT_TRUE(echoue("", false));
  EXPECT_TRUE(echoue("pas du tout compress\xC3\xA9", false));
}

}  // namespace
