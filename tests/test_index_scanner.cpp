#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "data/index_scanner.h"
#include "test_support.h"

using namespace lex;

namespace {

// Index lines as the file format defines them, line by line: the first non-empty line after
// an empty one (or the file's start), with its offset.
std::vector<std::pair<std::string, std::int64_t>> Reference(const std::string& s) {
  std::vector<std::pair<std::string, std::int64_t>> r;
  bool index = true;
  for (std::size_t p = 0; p < s.size();) {
    std::size_t nl = s.find('\n', p);
    std::size_t fin = nl == std::string::npos ? s.size() : nl;
    std::size_t l = fin - p;
    if (nl != std::string::npos && l > 0 && s[fin - 1] == '\r') --l;
    if (l == 0) index = true;
    else if (index) {
      r.emplace_back(s.substr(p, l), static_cast<std::int64_t>(p));
      index = false;
    }
    p = nl == std::string::npos ? s.size() : nl + 1;
  }
  return r;
}

std::vector<std::pair<std::string, std::int64_t>> Lues(const test::DossierTemp& d, std::size_t bloc, std::size_t reserve) {
  std::FILE* f = std::fopen(CheminNatif(d.Chemin("d.txt")).c_str(), "rb");
  std::vector<std::pair<std::string, std::int64_t>> r;
  {
    LecteurIndex l(f, bloc, reserve);
    std::string_view ligne;
    std::int64_t offset;
    while (l.Suivante(ligne, offset)) r.emplace_back(std::string(ligne), offset);
  }
  std::fclose(f);
  return r;
}

}  // namespace

// Every block boundary, unfinished line and line-end mix must give the index lines a plain
// line-by-line reading gives.
TEST(IndexScanner, AgreesWithALineByLineReadingAcrossBlocks) {
  std::mt19937 gen(12345);
  const char* morceaux[] = {"\r\n", "\n", "\r\n\r\n", "\n\n", "\r", "a", "mot", "\xE9t\xE9", " ", "\r\n\r\n\r\n"};
  test::DossierTemp d;
  for (int essai = 0; essai < 300; ++essai) {
    std::string s;
    const int n = static_cast<int>(gen() % 60);
    for (int i = 0; i < n; ++i) s += morceaux[gen() % 10];
    if (gen() % 5 == 0) s += std::string(gen() % 50, 'x');  // a line longer than the room kept
    d.Ecrire("d.txt", s);
    const auto attendu = Reference(s);
    for (auto [bloc, reserve] : {std::pair{1, 1}, {3, 2}, {7, 4}, {64, 8}, {1 << 19, 1 << 16}})
      ASSERT_EQ(Lues(d, static_cast<std::size_t>(bloc), static_cast<std::size_t>(reserve)), attendu)
          << "essai " << essai << " bloc " << bloc;
  }
}

TEST(IndexScanner, EmptyLineSearch) {
  const std::string s = "abc\r\ndef\n\r\nxyz\n\nfin\r\n";
  const char* base = s.c_str();
  EXPECT_EQ(ProchaineLigneVide(base, base + s.size() - 2), base + 9);
  EXPECT_EQ(ProchaineLigneVide(base + 10, base + s.size() - 2), base + 15);
  EXPECT_EQ(ProchaineLigneVide(base + 16, base + s.size() - 2), nullptr);
  const std::string longue = std::string(100, 'a') + "\n" + std::string(50, 'b') + "\r\n\r\n";
  EXPECT_EQ(ProchaineLigneVide(longue.c_str(), longue.c_str() + longue.size() - 2), longue.c_str() + 153);
}
