#include <gtest/gtest.h>

#include "base/error.h"
#include "data/files.h"
#include "test_support.h"

using namespace lex;

TEST(Files, LinesEndAtLfWithOrWithoutCr) {
  EXPECT_EQ(DecoupeLignes("\ra\r\nb\n\r\n\nc\r\rd\r\n"), (std::vector<std::string>{"\ra", "b", "", "", "c\r\rd"}));
  EXPECT_EQ(DecoupeLignes("x\n\r"), (std::vector<std::string>{"x", "\r"}));
  EXPECT_EQ(DecoupeLignes(""), std::vector<std::string>{});
}

// A file of empty lines would take thirty times its size as strings: past the cap it is
// refused with "out of memory" before any line is made; a smaller one is read whole.
TEST(Files, LinesThatWouldTakeTooMuchMemoryAreRefused) {
  test::DossierTemp d;
  const auto lignesVides = static_cast<std::size_t>(kMemoireLignes / (sizeof(std::string) + 1)) + 1;
  d.Ecrire("vide.txt", std::string(lignesVides, '\n'));
  try {
    LireLignes(d.Chemin("vide.txt"));
    ADD_FAILURE() << "read whole";
  } catch (const LexError& e) {
    EXPECT_EQ(e.numero(), 7);
  }
  d.Ecrire("vide.txt", std::string(lignesVides / 64, '\n'));
  EXPECT_EQ(LireLignes(d.Chemin("vide.txt")).size(), lignesVides / 64);
}
