#include <gtest/gtest.h>

#include <random>

#include "data/files.h"
#include "data/index_scanner.h"
#include "test_support.h"

using namespace lex;

namespace {

using Lignes = std::vector<std::pair<std::string, std::int64_t>>;

// Index lines as the file format defines them, line by line: the first non-empty line after
// an empty one (or the file's start), with its offset. A line followed by CR was cut before
// CR LF.
Lignes Reference(const std::string& s) {
  Lignes r;
  bool index = true;
  std::size_t p = 0;
  for (const std::string& l : DecoupeLignes(s)) {
    if (index && !l.empty()) r.emplace_back(l, static_cast<std::int64_t>(p));
    index = l.empty();
    p += l.size() + (s.compare(p + l.size(), 2, "\r\n") == 0 ? 2 : 1);
  }
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
    for (auto [bloc, reserve] :
         {std::pair<std::size_t, std::size_t>{1, 1}, {3, 2}, {7, 4}, {64, 8}, {1 << 19, 1 << 16}}) {
      Fichier f = OuvrirFichier(d.Chemin("d.txt"));
      LecteurIndex lecteur(f.get(), bloc, reserve);
      Lignes lues;
      std::string_view ligne;
      std::int64_t offset;
      while (lecteur.Suivante(ligne, offset)) lues.emplace_back(std::string(ligne), offset);
      ASSERT_EQ(lues, attendu) << "essai " << essai << " bloc " << bloc;
    }
  }
}
