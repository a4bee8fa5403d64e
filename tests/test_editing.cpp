// Editing entries on a machine that fails, and with text a dictionary cannot hold: the typing
// is never lost, the dictionary file and the last good working copy stay whole.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "controller/buttons.h"
#include "controller/events.h"
#include "data/files.h"
#include "data/index_file.h"
#include "data/write_faults.h"
#include "session.h"
#include "view/keys.h"

using namespace lex;

namespace {

constexpr const char* kDictio = "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n";

struct Edition : test::Session {
  Edition() {
    Charge();
    Ouvre();
  }
  // A new article typed in the field, then "OK".
  void Cree(const std::string& texte) {
    EvMenu(f, MenuId::mnuCreationIndex);
    ui.SetLineText(texte);
    EvBouton(f, Bouton::CmdDic);
  }
};

TEST(Edition, UnDisquePleinGardeLaSaisieEtLesFichiers) {
  Edition m;
  m.Cree("abeille\r\nbee");
  ASSERT_EQ(m.d.Lire("lex.eng.bak"), "abeille\r\nbee\r\n\r\n" + std::string(kDictio));
  m.ui.boxes.clear();
  ProgrammerPanne({1, 61, true});
  m.Cree("zebre\r\nzebra");
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find(m.d.Chemin("lex.eng.bak") + " : disque plein"), std::string::npos) << m.ui.boxes[0];
  // Still typing, the text there; the files as they were.
  EXPECT_EQ(m.f.fenetre.ModeCourant(), Mode::CreationIndex);
  EXPECT_EQ(m.ui.GetLineText(), "zebre\r\nzebra");
  EXPECT_EQ(m.d.Lire("lex.eng"), kDictio);
  EXPECT_EQ(m.d.Lire("lex.eng.bak"), "abeille\r\nbee\r\n\r\n" + std::string(kDictio));
  EXPECT_EQ(m.f.dico.TableIndex.NombreArticle(), 3);
  AnnulerPanne();
  EvBouton(m.f, Bouton::CmdDic);
  EXPECT_EQ(m.f.fenetre.ModeCourant(), Mode::Index);
  EXPECT_EQ(m.f.dico.TableIndex.NombreArticle(), 4);
  EXPECT_EQ(m.f.dico.TableIndex.texte(4), "zebre ajout\xE9");
}

// A change follows the index by shifting its records, not by reading the dictionary again:
// a record that a rebuild would write otherwise is still there after two changes.
TEST(Edition, LIndexSuitLesChangementsSansEtreRefait) {
  Edition m;
  std::string idx = m.d.Lire("index.lex.eng");
  const std::size_t chien = idx.find("chien (n.)");
  ASSERT_NE(chien, std::string::npos);
  idx.replace(chien, 5, "CHIEN");
  // Written in place, so that the index stays the current one of the dictionary.
  {
    std::fstream io(CheminNatif(m.d.Chemin("index.lex.eng")), std::ios::in | std::ios::out | std::ios::binary);
    io.seekp(static_cast<std::streamoff>(chien));
    io.write("CHIEN", 5);
  }
  m.Cree("abeille");
  m.Cree("zebre");
  const std::string apres = m.d.Lire("index.lex.eng");
  EXPECT_NE(apres.find("CHIEN (n.)"), std::string::npos);
  EXPECT_NE(apres.find("zebre"), std::string::npos);
}

TEST(Edition, UnIndexQuiNePeutSEcrireEstGardeEnMemoire) {
  Edition m;
  // The working copy is written, then the letter file cannot be.
  std::filesystem::remove(CheminNatif(m.d.Chemin("lettre.lex.eng")));
  std::filesystem::create_directory(CheminNatif(m.d.Chemin("lettre.lex.eng")));
  m.Cree("baleine\r\nwhale");
  std::filesystem::remove(CheminNatif(m.d.Chemin("lettre.lex.eng")));
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find("l'index est gard\xE9 en m\xE9moire"), std::string::npos) << m.ui.boxes[0];
  EXPECT_EQ(m.f.fenetre.ModeCourant(), Mode::Index);
  ASSERT_EQ(m.f.dico.TableIndex.NombreArticle(), 3);
  EXPECT_EQ(m.f.dico.TableIndex.texte(1), "baleine ajout\xE9");
  EXPECT_EQ(m.f.dico.TableIndex.position(2), 18);
  // The next change finds the index file stale and builds it again.
  m.Cree("zebre");
  ASSERT_EQ(m.f.dico.TableIndex.NombreArticle(), 4);
  IndexTable t;
  TableLettre l;
  EXPECT_EQ(LireIndex(m.f.dico.fichiers, t, l), EtatIndex::Charge);
  EXPECT_EQ(t.NombreArticle(), 4);
}

// Between two changes the working copy vanished, or was made read-only: the user is told,
// the typing stays, and no file of theirs changes.
TEST(Edition, UneCopieDeTravailDisparueOuProtegeeEstDiteEtLeDictionnaireReste) {
  Edition m;
  m.Cree("abeille");
  SupprimerFichier(m.d.Chemin("lex.eng.bak"));
  m.ui.boxes.clear();
  m.Cree("zebre");
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_EQ(m.d.Lire("lex.eng"), kDictio);
  EXPECT_FALSE(FichierExistant(m.d.Chemin("lex.eng.bak")));
  EXPECT_EQ(m.ui.GetLineText(), "zebre");

  Edition p;
  p.Cree("abeille");
  const std::string copie = p.d.Lire("lex.eng.bak");
  std::filesystem::permissions(CheminNatif(p.d.Chemin("lex.eng.bak")), std::filesystem::perms::owner_read);
  p.ui.boxes.clear();
  p.Cree("zebre");
  ASSERT_EQ(p.ui.boxes.size(), 1u);
  EXPECT_NE(p.ui.boxes[0].find(p.d.Chemin("lex.eng.bak")), std::string::npos) << p.ui.boxes[0];
  EXPECT_EQ(p.d.Lire("lex.eng.bak"), copie);
  EXPECT_EQ(p.d.Lire("lex.eng"), kDictio);
  EXPECT_EQ(p.f.fenetre.ModeCourant(), Mode::CreationIndex);
}

TEST(Edition, UneLigneDIndexTresLongueEtDesCaracteresRemplaces) {
  Edition m;
  const std::string longue(10000, 'x');
  m.Cree(longue + "   \r\n   \r\ndef");
  EXPECT_NE(m.d.Lire("lex.eng.bak").find("dog\r\n\r\n" + longue + "\r\ndef\r\n"), std::string::npos);
  // The index file keeps its 70-character field; the message says the whole line.
  const std::string idx = m.d.Lire("index.lex.eng");
  EXPECT_EQ(idx.substr(4 * kTailleEnreg, kTailleChamp), std::string(kTailleChamp, 'x'));
  EXPECT_EQ(m.ui.messages.back(), " " + longue + " ajout\xE9");

  EvMenu(m.f, MenuId::mnuCreationIndex);
  m.ui.SetLineText("z?");
  m.ui.txt.remplace = true;
  EvBouton(m.f, Bouton::CmdDic);
  EXPECT_EQ(m.ui.messages.back(), " z? ajout\xE9, caract\xE8res remplac\xE9s");
}

}  // namespace
