// The notepad's file: its backup stays beside it, a page's edit takes the place of the lines
// it showed, and a file that would lose what it holds is never written back.
#include <gtest/gtest.h>

#include "notepad/notepad_file.h"
#include "test_support.h"

using namespace lex;

namespace {

TEST(Notepad, TheBackupStaysBesideTheNotepad) {
  EXPECT_EQ(NomSauvegardeBlocNote("/home/u/mes.notes/bloc.note.txt"), "/home/u/mes.notes/bloc.bak");
  EXPECT_EQ(NomSauvegardeBlocNote("C:\\a.b\\notes"), "C:\\a.b\\notes.bak");
  EXPECT_EQ(NomSauvegardeBlocNote("blocnote.txt"), "blocnote.bak");
}

TEST(Notepad, APageTakesThePlaceOfTheLinesItShowed) {
  BlocNote b;
  b.lignes = {"a", "b", "c", "d"};
  // The page showed b and c; the user added a line after b.
  EXPECT_EQ(SauveText(b, 2, 2, "b\r\nnouvelle\r\nc"), 3u);
  EXPECT_EQ(b.lignes, (std::vector<std::string>{"a", "b", "nouvelle", "c", "d"}));
  EXPECT_TRUE(b.modifie);
  // Kept again unchanged, nothing moves: the page now stands for three lines.
  b.modifie = false;
  EXPECT_EQ(SauveText(b, 2, 3, "b\r\nnouvelle\r\nc"), 3u);
  EXPECT_FALSE(b.modifie);
  EXPECT_EQ(b.lignes.size(), 5u);
  // A page emptied of its last line end keeps an empty last line.
  SauveText(b, 5, 1, "d\r\n");
  EXPECT_EQ(b.lignes.back(), "");
}

TEST(Notepad, WhatCannotBeShownIsNeverWrittenBack) {
  test::DossierTemp d;
  d.Ecrire("utf8.txt", "\xC3\xA9t\xC3\xA9\nsuite\n");
  BlocNote b = LireBlocNote(d.Chemin("utf8.txt"));
  EXPECT_TRUE(b.utf8);
  EXPECT_TRUE(b.lectureSeule.empty());
  EXPECT_EQ(b.lignes[0], "\xE9t\xE9");
  RangeBlocNote(b);
  EXPECT_EQ(d.Lire("utf8.txt"), "\xC3\xA9t\xC3\xA9\r\nsuite\r\n");

  d.Ecrire("cjk.txt", "\xE6\xBC\xA2\n");
  EXPECT_FALSE(LireBlocNote(d.Chemin("cjk.txt")).lectureSeule.empty());
  d.Ecrire("bin.txt", std::string("a\0b\r\n", 5));
  EXPECT_FALSE(LireBlocNote(d.Chemin("bin.txt")).lectureSeule.empty());
  EXPECT_TRUE(LireBlocNote(d.Chemin("absent.txt")).lignes.empty());
}

}  // namespace
