#include <gtest/gtest.h>

#include <filesystem>

#include "base/error.h"
#include "data/files.h"
#include "test_support.h"

using namespace lex;

TEST(Files, LinesEndAtLfWithOrWithoutCr) {
  EXPECT_EQ(DecoupeLignes("a\r\nb\nc\r\rd"), (std::vector<std::string>{"a", "b", "c\r\rd"}));
  EXPECT_EQ(DecoupeLignes("\r\n\n"), (std::vector<std::string>{"", ""}));
  EXPECT_EQ(DecoupeLignes(""), std::vector<std::string>{});
  EXPECT_EQ(DecoupeLignes("\rfin\r\n\r"), (std::vector<std::string>{"\rfin", "\r"}));
}

// A file of empty lines would take thirty times its size as strings: past the cap it is
// refused with "out of memory" before any line is made; a smaller one is read whole.
TEST(Files, LinesThatWouldTakeTooMuchMemoryAreRefused) {
  test::DossierTemp d;
  const auto lignesVides = static_cast<std::size_t>(kMemoireLignes / (sizeof(std::string) + 1)) + 1;
  d.Ecrire("vide.txt", std::string(lignesVides, '\n'));
  EXPECT_GT(MemoireLignes(d.Lire("vide.txt")), kMemoireLignes);
  try {
    LireLignes(d.Chemin("vide.txt"));
    ADD_FAILURE() << "read whole";
  } catch (const LexError& e) {
    EXPECT_EQ(e.numero(), 7);
  }
  d.Ecrire("vide.txt", std::string(lignesVides / 64, '\n'));
  EXPECT_EQ(LireLignes(d.Chemin("vide.txt")).size(), lignesVides / 64);
  // Too long a file is refused on its length alone.
  std::filesystem::resize_file(CheminNatif(d.Chemin("vide.txt")), static_cast<std::uintmax_t>(kMemoireLignes) + 1);
  EXPECT_THROW(LireLignes(d.Chemin("vide.txt")), LexError);
}
