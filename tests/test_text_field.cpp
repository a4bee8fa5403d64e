// The scripted window's field: what it does with the keys the program leaves to it must match
// the program's own count of lines, whatever bytes an index line holds.
#include <gtest/gtest.h>

#include "app/headless/text_field.h"
#include "view/keys.h"

using namespace lex;
using lex::headless::TextField;

TEST(TextField, OnlyCrLfEndsALine) {
  TextField t;
  // Index lines starting or ending with a lone LF, and one with a lone CR.
  t.SetText("\nabc\r\nd\ne\r\n\rf\r\n\n");
  EXPECT_EQ(t.CurrentLine(), "\nabc");
  t.Key(Touche::Bas, 0, 0);
  EXPECT_EQ(t.Line(), 2u);
  EXPECT_EQ(t.CurrentLine(), "d\ne");
  t.Key(Touche::Bas, 0, 0);
  t.Key(Touche::Bas, 0, 0);
  EXPECT_EQ(t.Line(), 4u);
  EXPECT_EQ(t.CurrentLine(), "\n");
  t.Key(Touche::Bas, 0, 0);  // the last line: nowhere to go
  EXPECT_EQ(t.Line(), 4u);
  for (int i = 0; i < 5; ++i) t.Key(Touche::Haut, 0, 0);
  EXPECT_EQ(t.Line(), 1u);
  EXPECT_EQ(t.Caret(), 0u);
}

TEST(TextField, PagesByItsPageHeight) {
  TextField t;
  std::string texte;
  for (int i = 1; i <= 100; ++i) texte += "ligne " + std::to_string(i) + (i < 100 ? "\r\n" : "");
  t.SetText(texte);
  t.lignesPage = 26;
  t.Key(Touche::PageSuiv, 0, 0);
  EXPECT_EQ(t.CurrentLine(), "ligne 27");
  t.Key(Touche::PageSuiv, 0, 0);
  t.Key(Touche::PageSuiv, 0, 0);
  t.Key(Touche::PageSuiv, 0, 0);
  EXPECT_EQ(t.CurrentLine(), "ligne 100");
  t.Key(Touche::PagePrec, 0, 0);
  EXPECT_EQ(t.CurrentLine(), "ligne 74");
}
