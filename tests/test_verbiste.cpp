// Verbiste's tables: verbs and templates in XML make one article per verb, one line per
// tense, with the pronouns French elides; and what damaged files give.
#include <gtest/gtest.h>

#include <fstream>

#include "exchange/verbiste.h"
#include "test_support.h"

using namespace lex::exchange;

namespace {

std::string Personnes(std::initializer_list<const char*> fins) {
  std::string s;
  for (const char* f : fins) s += std::string(f) == "-" ? "<p></p>" : "<p><i>" + std::string(f) + "</i></p>";
  return s;
}

// "aim:er": every tense, "ess:uyer" two variants at some persons, "pl:euvoir" only the third
// persons, "est:er" nothing but its infinitive, "bat:tre" an empty ending (the radical alone).
const std::string kConjugaisons = R"(<?xml version="1.0"?>
<!DOCTYPE conjugation-fr [ <!ELEMENT conjugation-fr (template+)> ]>
<conjugation-fr>
<template name="aim:er">
 <infinitive><infinitive-present><p><i>er</i></p></infinitive-present></infinitive>
 <indicative><present>)" + Personnes({"e", "es", "e", "ons", "ez", "ent"}) + R"(</present>
  <imperfect>)" + Personnes({"ais", "ais", "ait", "ions", "iez", "aient"}) + R"(</imperfect></indicative>
 <subjunctive><present>)" + Personnes({"e", "es", "e", "ions", "iez", "ent"}) + R"(</present></subjunctive>
 <imperative><imperative-present>)" + Personnes({"e", "ons", "ez"}) + R"(</imperative-present></imperative>
 <participle><present-participle><p><i>ant</i></p></present-participle>
  <past-participle>)" + Personnes({"\xC3\xA9", "\xC3\xA9s", "\xC3\xA9" "e", "\xC3\xA9" "es"}) + R"(</past-participle></participle>
</template>
<template name="ess:uyer">
 <indicative><present><p><i>uie</i><i>uye</i></p>)" + Personnes({"uies", "uie", "uyons", "uyez", "uient"}) + R"(</present></indicative>
</template>
<template name="pl:euvoir">
 <indicative><present>)" + Personnes({"-", "-", "eut", "-", "-", "euvent"}) + R"(</present></indicative>
 <subjunctive><present>)" + Personnes({"-", "-", "euve", "-", "-", "-"}) + R"(</present></subjunctive>
</template>
<template name="bat:tre">
 <indicative><present>)" + Personnes({"s", "s", "", "tons", "tez", "tent"}) + R"(</present></indicative>
</template>
<template name="est:er">
 <infinitive><infinitive-present><p><i>er</i></p></infinitive-present></infinitive>
 <indicative><present>)" + Personnes({"-", "-", "-", "-", "-", "-"}) + R"(</present></indicative>
</template>
</conjugation-fr>
)";

const std::string kVerbes = R"(<?xml version="1.0"?>
<verbs-fr>
<v><i> aimer
</i> <t>aim:er</t></v>
<v><i>habiter</i> <t>aim:er</t></v>
<v><i>hacher</i> <t>aim:er</t> <aspirate-h/></v>
<v><i>essuyer</i> <t>ess:uyer</t></v>
<v><i>pleuvoir</i> <t>pl:euvoir</t></v>
<v><i>d&#xE9;battre</i> <t>bat:tre</t></v>
<v><i>ester</i> <t>est:er</t></v>
</verbs-fr>
)";

class Verbiste : public ::testing::Test {
 protected:
  void Ecrit(const std::string& verbes, const std::string& conjugaisons) {
    std::ofstream(Dossier() / "verbs-fr.xml", std::ios::binary) << verbes;
    std::ofstream(Dossier() / "conjugation-fr.xml", std::ios::binary) << conjugaisons;
  }
  std::filesystem::path Dossier() const { return std::filesystem::path(dossier_.Dossier()); }
  std::vector<ArticleImporte> Lit(const std::filesystem::path& chemin) {
    std::vector<ArticleImporte> lus;
    LitVerbiste(chemin, [&](ArticleImporte&& a) { lus.push_back(std::move(a)); });
    return lus;
  }
  // The file, place and problem of the error, or "" when the tables were read.
  std::string Erreur(const std::string& verbes, const std::string& conjugaisons) {
    Ecrit(verbes, conjugaisons);
    try {
      Lit(Dossier());
    } catch (const ErreurImport& e) {
      return std::filesystem::path(e.fichier()).filename().string() + " | " + e.endroit() + " | " + e.probleme();
    }
    return "";
  }
  lex::test::DossierTemp dossier_;
};

TEST_F(Verbiste, EachVerbAnArticleEachTenseALine) {
  Ecrit(kVerbes, kConjugaisons);
  const auto lus = Lit(Dossier());
  ASSERT_EQ(lus.size(), 7u);
  EXPECT_EQ(lus[0].index, "aimer");
  EXPECT_EQ(lus[0].definition,
            (std::vector<std::string>{
                "Indicatif pr\xC3\xA9sent : j'aime, tu aimes, il aime, nous aimons, vous aimez, ils aiment",
                "Indicatif imparfait : j'aimais, tu aimais, il aimait, nous aimions, vous aimiez, ils aimaient",
                "Subjonctif pr\xC3\xA9sent : que j'aime, que tu aimes, qu'il aime, que nous aimions, que vous aimiez, "
                "qu'ils aiment",
                "Imp\xC3\xA9ratif pr\xC3\xA9sent : aime, aimons, aimez",
                "Participe pr\xC3\xA9sent : aimant",
                "Participe pass\xC3\xA9 : aim\xC3\xA9, aim\xC3\xA9s, aim\xC3\xA9" "e, aim\xC3\xA9" "es",
            }));
  // The mute h elides, the aspirate h does not.
  EXPECT_TRUE(lus[1].definition[0].starts_with("Indicatif pr\xC3\xA9sent : j'habite, tu ")) << lus[1].definition[0];
  EXPECT_TRUE(lus[2].definition[2].starts_with("Subjonctif pr\xC3\xA9sent : que je hache, ")) << lus[2].definition[2];
  EXPECT_EQ(lus[3].definition, std::vector<std::string>{
                                   "Indicatif pr\xC3\xA9sent : j'essuie/essuye, tu essuies, il essuie, nous essuyons, "
                                   "vous essuyez, ils essuient"});
  EXPECT_EQ(lus[4].definition, (std::vector<std::string>{"Indicatif pr\xC3\xA9sent : il pleut, ils pleuvent",
                                                         "Subjonctif pr\xC3\xA9sent : qu'il pleuve"}));
  EXPECT_EQ(lus[5].index, "d\xC3\xA9" "battre");
  EXPECT_EQ(lus[5].definition[0],
            "Indicatif pr\xC3\xA9sent : je d\xC3\xA9" "bats, tu d\xC3\xA9" "bats, il d\xC3\xA9" "bat, nous d\xC3\xA9"
            "battons, vous d\xC3\xA9" "battez, ils d\xC3\xA9" "battent");
  EXPECT_EQ(lus[6].definition, std::vector<std::string>{"Infinitif pr\xC3\xA9sent : ester"});
  // Either file leads to the other.
  EXPECT_EQ(Lit(Dossier() / "verbs-fr.xml").size(), 7u);
  EXPECT_EQ(Lit(Dossier() / "conjugation-fr.xml").size(), 7u);
}

TEST_F(Verbiste, DamagedTablesNameTheFileAndThePlace) {
  EXPECT_EQ(Erreur(kVerbes, "<?xml version=\"1.0\"?>\n<conjugation-fr>\n<template name=\"aim:er\">\n</conjugation-fr>\n"),
            "conjugation-fr.xml | ligne 4 | XML mal form\xC3\xA9 : balise fermante qui ne correspond pas \xC3\xA0 la "
            "balise ouverte");
  EXPECT_EQ(Erreur("<verbs-fr>\n<v><i>aimer</i><t>aim:er</t></v>\n<v><i>aimer</i <t>aim:er</t></v>\n</verbs-fr>",
                   kConjugaisons),
            "verbs-fr.xml | ligne 3 | XML mal form\xC3\xA9 : balise fermante mal form\xC3\xA9" "e");
  EXPECT_EQ(Erreur("<verbs-fr><v><i>aimer</i><t>aim:er</t></v>\n<v><i>finir</i><t>fin:ir</t></v></verbs-fr>",
                   kConjugaisons),
            "verbs-fr.xml | entr\xC3\xA9" "e 2 (finir) | le mod\xC3\xA8le \xC2\xAB fin:ir \xC2\xBB n'existe pas dans "
            "conjugation-fr.xml");
  EXPECT_EQ(Erreur("<verbs-fr><v><i>finir</i><t>aim:er</t></v></verbs-fr>", kConjugaisons),
            "verbs-fr.xml | entr\xC3\xA9" "e 1 (finir) | l'infinitif ne se termine pas par \xC2\xAB er \xC2\xBB "
            "comme le veut le mod\xC3\xA8le \xC2\xAB aim:er \xC2\xBB");
  EXPECT_EQ(Erreur("", kConjugaisons), "verbs-fr.xml |  | fichier vide");
  EXPECT_EQ(Erreur(kConjugaisons, kConjugaisons),
            "verbs-fr.xml |  | l'\xC3\xA9l\xC3\xA9ment racine est \xC2\xAB conjugation-fr \xC2\xBB au lieu de \xC2\xAB "
            "verbs-fr \xC2\xBB");
  std::filesystem::remove(Dossier() / "conjugation-fr.xml");
  EXPECT_FALSE(EstVerbiste(Dossier()));
  try {
    Lit(Dossier() / "verbs-fr.xml");
    ADD_FAILURE() << "read without its templates";
  } catch (const ErreurImport& e) {
    EXPECT_EQ(std::filesystem::path(e.fichier()).filename(), "conjugation-fr.xml");
    EXPECT_EQ(e.probleme(), "fichier introuvable");
  }
}

TEST_F(Verbiste, RecognisedByItsFiles) {
  Ecrit(kVerbes, kConjugaisons);
  EXPECT_TRUE(EstVerbiste(Dossier()));
  EXPECT_TRUE(EstVerbiste(Dossier() / "verbs-fr.xml"));
  EXPECT_FALSE(EstVerbiste(Dossier() / "verbs-it.xml"));
  std::ofstream(Dossier() / "autre.xml") << kVerbes;
  EXPECT_FALSE(EstVerbiste(Dossier() / "autre.xml"));
}

}  // namespace
