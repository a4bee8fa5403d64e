// Where new articles land, how the numbers kept for a dictionary follow them, and what the
// exchanges make of bad files.
#include <gtest/gtest.h>

#include <random>

#include "data/article_merge.h"
#include "data/article_order.h"
#include "data/index_table.h"
#include "selection/marks.h"
#include "selection/number_files.h"
#include "selection/selecting.h"
#include "selection/text_import.h"
#include "session.h"

using namespace lex;

namespace {

TEST(ArticleOrder, TheFourCasesOfPlacing) {
  struct Cas {
    const char* existante;
    const char* nouvelle;
    bool avant;
  } cas[] = {
      {"abd", "abc", true},          // neither has a head: whole keys
      {"abc", "abc", false},         // equal: the new one after the old
      {"abc (x)", "abc (w)", true},  // same head: whole keys decide
      {"abc (x)", "abc (y)", false},
      {"abd (x)", "abc (y)", true},  // heads decide
      {"abc (x)", "abc", true},      // a new line without head goes before an equal head
      {"abc (x)", "abd", false},
      {"abd", "abc, y", true},       // an existing line without head against a new head
      {"abc", "abc, y", false},
      {"\xE9t\xE9 (n.m.)", "etang (n.m.)", true},  // accents and blanks are folded away
      {"\xE9t\xE9 (n.f.)", "et\xE9 (n.m.)", false},
  };
  for (const Cas& c : cas) EXPECT_EQ(RangeArticle(c.existante, ClesDe(c.nouvelle)), c.avant) << c.existante << " / " << c.nouvelle;
}

// A batch sorted by AvantDans goes into a sorted dictionary in one pass only if the two never
// disagree: a line strictly before another is never placed after it, and the reverse. (An
// existing line whose head folds to nothing, "(x)", is one that nothing goes before.)
TEST(ArticleOrder, TheBatchOrderAgreesWithPlacing) {
  std::mt19937 alea(7);
  const std::string lettres = "ab (,[\xE9";
  const auto ligne = [&] {
    std::string s(1 + alea() % 5, ' ');
    for (char& c : s) c = lettres[alea() % lettres.size()];
    return s;
  };
  for (int i = 0; i < 20000; ++i) {
    const std::string x = ligne(), y = ligne();
    const ClesArticle cx = ClesDe(x), cy = ClesDe(y);
    if (Coupe(x) != std::string::npos && cx.tete.empty()) continue;
    if (AvantDans(cy, cx)) {
      EXPECT_TRUE(RangeArticle(x, cy)) << "'" << x << "' '" << y << "'";
    }
    if (AvantDans(cx, cy)) {
      EXPECT_FALSE(RangeArticle(x, cy)) << "'" << x << "' '" << y << "'";
    }
  }
}

std::string Fusion(test::DossierTemp& d, const std::string& dictio, const std::vector<std::string>& nouvelles,
                   Changement* ch = nullptr) {
  d.Ecrire("d.lex", dictio);
  std::vector<ClesArticle> cles;
  for (const std::string& n : nouvelles) cles.push_back(ClesDe(n.substr(0, n.find('\r'))));
  EcritureSure cible(d.Chemin("m.lex"), Donnees::Utilisateur);
  const Changement c = FusionneArticles(d.Chemin("d.lex"), cible, cles, [&](std::size_t i) { return nouvelles[i]; });
  cible.Valider();
  if (ch) *ch = c;
  return d.Lire("m.lex");
}

TEST(ArticleMerge, NewArticlesGoBetweenTheOldOnesWhichStayByteForByte) {
  test::DossierTemp d;
  Changement ch;
  EXPECT_EQ(Fusion(d, "\r\nb\r\nB\r\n\r\n\r\nd\r\nD\r\n", {"a,\r\nA", "c,", "c, 2", "e,"}, &ch),
            "\r\na,\r\nA\r\n\r\nb\r\nB\r\n\r\n\r\nc,\r\n\r\nc, 2\r\n\r\nd\r\nD\r\n\r\ne,\r\n");
  EXPECT_EQ(ch.inseresAvant, (std::vector<std::int32_t>{1, 2, 2, 3}));
  EXPECT_EQ(ch.NumerosInseres(), (std::vector<std::int32_t>{1, 3, 4, 6}));
  EXPECT_EQ(ch.Nouveau(1), 2);
  EXPECT_EQ(ch.Nouveau(2), 5);
  // The end of a file as it comes: without its last line end, with empty lines, or nothing.
  EXPECT_EQ(Fusion(d, "b\r\nB", {"c,"}), "b\r\nB\r\n\r\nc,\r\n");
  EXPECT_EQ(Fusion(d, "b\r\n\r\n\r\n", {"c,"}), "b\r\n\r\n\r\nc,\r\n");
  EXPECT_EQ(Fusion(d, "b\nB\n", {"c,", "d,"}), "b\nB\n\r\nc,\r\n\r\nd,\r\n");
  EXPECT_EQ(Fusion(d, "", {"c,", "d,"}), "c,\r\n\r\nd,\r\n");
}

TEST(Selection, NumbersFollowTheirEntriesAndInsertedOnesAreAdded) {
  Selections s;
  s.TableSelection[2] = {1, 3};
  s.TableAjout[2] = {2};
  Changement ch;
  ch.inseresAvant = {1, 3, 4};
  SuitChangement(s, 2, ch);
  EXPECT_EQ(s.TableSelection[2], (std::vector<std::int32_t>{2, 5}));
  EXPECT_EQ(s.TableAjout[2], (std::vector<std::int32_t>{3, 1, 4, 6}));
}

TEST(Marks, BoundsAndTheWayBack) {
  IndexTable t;
  const std::string l63(63, 'a'), l64(64, 'b');
  for (const std::string& l : {l63, l64, l64 + "c", std::string("s\xE9lection (n.f.)")}) t.Ajouter(l, "K", 0);
  t.Terminer(100);
  Selections s;
  s.TableAjout[1] = {3};
  TestAjout(t, s, 1);
  EXPECT_EQ(t.texte(3), std::string(64, 'b').substr(0, 63) + " ajout\xE9");
  for (std::int32_t n : {1, 2, 3, 4}) EXPECT_TRUE(Selectionne(s, t, 1, n));
  EXPECT_FALSE(Selectionne(s, t, 1, 2));
  EXPECT_EQ(t.texte(1), l63 + " s\xE9lectionn\xE9");
  EXPECT_EQ(t.texte(2), l64.substr(0, 63) + " s\xE9lect");
  EXPECT_EQ(t.texte(3), l64.substr(0, 63) + " SelAjo");
  EXPECT_EQ(t.cle(3), "K");
  for (std::int32_t n : {1, 2, 3, 4}) EXPECT_TRUE(Deselectionne(s, t, 1, n));
  EXPECT_FALSE(Deselectionne(s, t, 1, 4));
  EXPECT_EQ(t.texte(1), l63);
  EXPECT_EQ(t.texte(2), l64.substr(0, 63));
  EXPECT_EQ(t.texte(3), l64.substr(0, 63) + " ajout\xE9");
  // A word of the entry's own is no mark.
  EXPECT_EQ(t.texte(4), "s\xE9lection (n.f.)");
  EXPECT_TRUE(s.TableSelection[1].empty());
}

TEST(NumberFiles, WhatIsNoEntryOfTheDictionaryIsLeftOut) {
  test::DossierTemp d;
  d.Ecrire("n", "3\r\njunk\r\n-4\r\n0\r\n 12\r\n3\r\n" + std::string(10 << 20, '9') + "\r\n\r\n+2\n7abc\r\n5");
  const NumerosLus lus = LireNumeros(d.Chemin("n"), 12);
  EXPECT_EQ(lus.numeros, (std::vector<std::int32_t>{3, 12, 2, 7, 5}));
  EXPECT_EQ(lus.ignores, 4);
  EcrireNumeros(d.Chemin("e"), {3, 12});
  EXPECT_EQ(d.Lire("e"), " 3\r\n 12\r\n");
  EXPECT_EQ(NomFichierNumeros(d.Dossier(), kPrefixeSelection, "/ailleurs/lex.eng"), d.Chemin("s\xE9lectionlex.eng"));
}

TEST(TextImport, KeysContinuationsLineEndsAndEncodings) {
  test::DossierTemp d;
  const std::string longue(1 << 20, 'x');
  d.Ecrire("i.txt", "  perdue\n\nzoo, parc  \n  suite\n" + longue + "\nabc (n.)\r\n\xE9t\xE9 [t]");
  Importation imp = LireImportation(d.Chemin("i.txt"), [] {});
  EXPECT_FALSE(imp.utf8);
  EXPECT_EQ(imp.lignesPerdues, 1);
  ASSERT_EQ(imp.cles.size(), 3u);
  EXPECT_EQ(imp.cles[0].tete, "ABC");
  EXPECT_EQ(imp.cles[1].tete, "ETE");
  LecteurArticles lecteur(d.Chemin("i.txt"), imp.utf8);
  EXPECT_EQ(lecteur.Texte(imp.articles[2]), "zoo, parc\r\nsuite\r\n" + longue);
  EXPECT_EQ(lecteur.Texte(imp.articles[1]), "\xE9t\xE9 [t]");
  EXPECT_EQ(lecteur.Texte(imp.articles[0]), "abc (n.)");

  // UTF-8, with its mark, is read as the characters it means.
  d.Ecrire("u.txt", "\xEF\xBB\xBF\xC3\xA9t\xC3\xA9 (n.m.)\r\nsaison \xE2\x82\xAC \xE2\x88\x9E\r\n");
  imp = LireImportation(d.Chemin("u.txt"), [] {});
  ASSERT_TRUE(imp.utf8);
  EXPECT_EQ(LecteurArticles(d.Chemin("u.txt"), true).Texte(imp.articles[0]), "\xE9t\xE9 (n.m.)\r\nsaison \x80 ?");
}

TEST(TextImport, AFullDiskLeavesTheDictionaryAsItWas) {
  test::Session m;
  // A ".bak" file is read as it is: the first write is the working copy's.
  m.d.Ecrire("maj.bak", "abeille, bee\r\n");
  m.Charge();
  m.Ouvre();
  m.ui.answers.push_back({headless::Answer::Kind::File, Reponse::OK, "maj.bak"});
  ProgrammerPanne({2, 61, true});
  EvMenu(m.f, MenuId::mnuImporterTxt);
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find("disque plein"), std::string::npos);
  EXPECT_FALSE(m.f.catalogue[1].DicModifie);
  EXPECT_FALSE(FichierExistant(m.d.Chemin("lex.eng.bak")));
  EXPECT_EQ(m.f.dico.TableIndex.NombreArticle(), 2);
  EXPECT_TRUE(m.f.selections.TableAjout[1].empty());
  AnnulerPanne();
  m.ui.answers.push_back({headless::Answer::Kind::File, Reponse::OK, "maj.bak"});
  EvMenu(m.f, MenuId::mnuImporterTxt);
  EXPECT_TRUE(m.f.catalogue[1].DicModifie);
  EXPECT_EQ(m.d.Lire("lex.eng.bak"), "abeille, bee\r\n\r\nchat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n");
  EXPECT_EQ(m.d.Lire("lex.eng"), "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n");
}

// Selecting all of a result list selects those entries of the dictionary, by its own numbers.
TEST(Selection, AllOfAResultListIsThoseEntriesOfTheDictionary) {
  test::Session m;
  m.d.Ecrire("lex.eng", "a\r\n1\r\n\r\nb\r\nchat\r\n\r\nc\r\n2\r\n\r\nd\r\nchat\r\n");
  m.Charge();
  m.Ouvre();
  m.ui.answers.push_back({headless::Answer::Kind::Input, Reponse::OK, "chat"});
  EvMenu(m.f, MenuId::mnuRechercheChaine);
  ASSERT_EQ(m.f.fenetre.ModeCourant(), Mode::ListeResultats);
  EvMenu(m.f, MenuId::MnuSelectionTout);
  EXPECT_EQ(m.f.selections.TableSelection[1], (std::vector<std::int32_t>{2, 4}));
  EXPECT_EQ(m.ui.messages.back(), " 2 index s\xE9lectionn\xE9s");
  EXPECT_EQ(m.f.dico.TableIndex.texte(2), "b s\xE9lectionn\xE9");
}

}  // namespace
