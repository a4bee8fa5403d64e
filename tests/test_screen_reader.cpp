// The screen reader's folder found on a made-up tree of drives and folders, then the files
// copied into real folders: the places in their order, the versions, the question, what a
// wrong answer, a cancel or a refused write leaves, and the marker at start.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "app/headless/headless_window.h"
#include "app/headless/script.h"
#include "data/write_faults.h"
#include "screen_reader/install.h"
#include "screen_reader/places.h"
#include "screen_reader/real_file_system.h"
#include "screen_reader/remembered.h"
#include "screen_reader/startup_scripts.h"
#include "screen_reader/versions.h"
#include "test_support.h"

using namespace lex;

namespace {

// Windows drives and folders made up for the test ("C:\a\b"), listed in the order they were
// added; any other path is asked of the real disk, where the files are copied.
class FauxSysteme final : public SystemeFichiers {
 public:
  std::vector<std::string> lecteurs;
  std::string appdata;

  FauxSysteme& Ajoute(const std::string& chemin) {
    std::string dossier = chemin.substr(0, 3);  // "C:\"
    for (std::size_t debut = 3; debut < chemin.size();) {
      std::size_t fin = chemin.find('\\', debut);
      if (fin == std::string::npos) fin = chemin.size();
      const std::string nom = chemin.substr(debut, fin - debut);
      auto& liste = enfants_[dossier];
      if (std::find(liste.begin(), liste.end(), nom) == liste.end()) liste.push_back(nom);
      dossier = Joindre(dossier, nom);
      debut = fin + 1;
    }
    return *this;
  }
  std::vector<std::string> Lecteurs() const override { return lecteurs; }
  std::string DonneesApplication() const override { return appdata; }
  std::vector<std::string> SousDossiers(std::string_view d) const override {
    auto it = enfants_.find(std::string(d));
    return it == enfants_.end() ? reel_.SousDossiers(d) : it->second;
  }
  bool EstDossier(std::string_view c) const override {
    for (const auto& [d, noms] : enfants_)
      for (const auto& n : noms)
        if (Joindre(d, n) == c) return true;
    return reel_.EstDossier(c);
  }

 private:
  std::map<std::string, std::vector<std::string>> enfants_;
  SystemeFichiersReel reel_;
};

struct EcranNote final : Ecran {
  std::vector<std::string> dits;
  Mode mode() const override { return Mode::ListeDictionnaires; }
  void message(std::string t) override { dits.push_back(std::move(t)); }
  void Beep() override {}
};

const std::string kXp = "C:\\Documents and Settings\\";

DossierTrouve Cherche(const FauxSysteme& fs, const std::string& retenu = kCheminScriptsDefaut) {
  return ChercheDossierScripts(fs, retenu);
}

}  // namespace

TEST(ScreenReaderSearch, EachPlaceWinsOverTheOnesAfterIt) {
  FauxSysteme fs;
  fs.lecteurs = {"C:\\", "D:\\"};
  fs.Ajoute("E:\\Retenu\\Settings\\frc");
  EXPECT_EQ(Cherche(fs, "E:\\Retenu").chemin, "E:\\Retenu\\Settings\\frc");
  fs.Ajoute("C:\\JAWS41").Ajoute("C:\\JAWS50").Ajoute("C:\\Jaws45");
  EXPECT_EQ(Cherche(fs, "E:\\Retenu").chemin, "C:\\JAWS50");
  EXPECT_EQ(Cherche(fs).origine, Origine::RacineJaws);
  fs.Ajoute("D:\\JFW\\SETTINGS\\FRA");
  EXPECT_EQ(Cherche(fs).chemin, "D:\\JFW\\SETTINGS\\FRA");
  EXPECT_EQ(Cherche(fs).origine, Origine::AncienneDisposition);
  fs.Ajoute(kXp + "jean\\Application Data\\Freedom Scientific\\JAWS\\6.0\\Settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, kXp + "jean\\Application Data\\Freedom Scientific\\JAWS\\6.0\\Settings\\fra");
  // Listed after "jean", the shared profile is still walked first.
  fs.Ajoute(kXp + "All Users\\Application Data\\FREEDOM SCIENTIFIC\\jaws\\6.0\\settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, kXp + "All Users\\Application Data\\FREEDOM SCIENTIFIC\\jaws\\6.0\\settings\\fra");
  EXPECT_EQ(Cherche(fs).origine, Origine::DocumentsAndSettings);
  fs.appdata = "C:\\Users\\jean\\AppData\\Roaming";
  fs.Ajoute(fs.appdata + "\\Freedom Scientific\\JAWS\\2024\\Settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, fs.appdata + "\\Freedom Scientific\\JAWS\\2024\\Settings\\fra");
  EXPECT_EQ(Cherche(fs).origine, Origine::DonneesApplication);
}

TEST(ScreenReaderSearch, TheNewestVersionHoldingFrenchSettingsIsKept) {
  FauxSysteme fs;
  fs.lecteurs = {"C:\\"};
  const std::string jaws = kXp + "All Users\\Application Data\\Freedom Scientific\\JAWS\\";
  // Listed oldest last; the newest holds no settings at all; 11.0 has only Canadian French.
  fs.Ajoute(jaws + "2020").Ajoute(jaws + "11.0\\Settings\\frc");
  fs.Ajoute(jaws + "9.0\\Settings\\fra").Ajoute(jaws + "5.0\\Settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, jaws + "11.0\\Settings\\frc");
  fs.Ajoute(jaws + "11.0\\Settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, jaws + "11.0\\Settings\\fra");
}

TEST(ScreenReaderSearch, WithoutTheWindowsPlacesTheRememberedFolderThenTheDefault) {
  FauxSysteme fs;
  // No C: drive: its usual folders on another drive are not looked at.
  fs.lecteurs = {"D:\\"};
  fs.Ajoute("D:\\Documents and Settings\\All Users\\Freedom Scientific\\JAWS\\6.0\\settings\\fra");
  EXPECT_EQ(Cherche(fs).chemin, kCheminScriptsDefaut);
  EXPECT_EQ(Cherche(fs).origine, Origine::ParDefaut);
  EXPECT_EQ(Cherche(fs, "").chemin, kCheminScriptsDefaut);

  // As on Linux: no drives, and a folder chosen last time that is still there.
  test::DossierTemp d;
  SystemeFichiersReel reel;
  EXPECT_EQ(ChercheDossierScripts(reel, d.Dossier()).chemin, d.Dossier());
  EXPECT_EQ(ChercheDossierScripts(reel, d.Dossier()).origine, Origine::Memorise);
  EXPECT_EQ(ChercheDossierScripts(reel, d.Chemin("parti")).origine, Origine::ParDefaut);
}

TEST(ScreenReaderSearch, VersionsReadFromFolderNames) {
  EXPECT_EQ(VersionInstallation("JAWS35"), (Version{3, 5}));
  EXPECT_EQ(VersionInstallation("jaws 3.7"), (Version{3, 7}));
  EXPECT_EQ(VersionInstallation("JAWS2020"), (Version{2020}));
  EXPECT_TRUE(VersionInstallation("JFW").empty());
  EXPECT_GT(VersionDossier("2024"), VersionDossier("11.0"));
  EXPECT_GT(VersionDossier("11.0"), VersionDossier("9.0"));
  EXPECT_GT(VersionDossier("9.0"), VersionDossier("Settings"));
  EXPECT_TRUE(EstDossierJaws("Jfw") && EstDossierJaws("JAWS40") && !EstDossierJaws("MesJAWS"));
}

namespace {

// A program folder holding the files to copy, and a session of the question.
struct Installation {
  test::DossierTemp programme, cible;
  std::ostringstream sortie;
  headless::HeadlessWindow ui{sortie};
  EcranNote ecran;
  FauxSysteme fs;

  Installation() {
    programme.Ecrire("lex.jdf", ".LEX.lexe.\r\n");
    programme.Ecrire("lex.jcf", "[Options]\r\nTypingEcho=0\r\n");
  }
  ~Installation() { AnnulerPanne(); }
  ContexteScripts Contexte() { return {programme.Dossier(), kCheminScriptsDefaut, ui, ecran, fs}; }
  void Repond(const std::string& texte) {
    ui.answers.push_back({headless::Answer::Kind::Input, Reponse::OK, texte, 0});
  }
  Confirmation Jaws() { return jaws("lex", Contexte()); }
  // The folder each question proposed, as shown.
  std::vector<std::string> Proposes() const {
    std::vector<std::string> r;
    const std::string s = sortie.str(), cle = "\"default\":\"";
    for (auto p = s.find(cle); p != std::string::npos; p = s.find(cle, p + 1)) {
      std::string v;
      for (auto q = p + cle.size(); q < s.size() && s[q] != '"'; ++q) v += s[q] == '\\' ? s[++q] : s[q];
      r.push_back(v);
    }
    return r;
  }
};

}  // namespace

TEST(ScreenReaderInstall, TheFilesGoToTheFolderChosenReplacingOlderCopies) {
  Installation i;
  i.cible.Ecrire("lex.jcf", "ancienne");
  i.Repond(CheminAffiche(i.cible.Dossier()));  // with its final separator
  const Confirmation r = i.Jaws();
  EXPECT_EQ(r.issue, Issue::Installee);
  EXPECT_EQ(i.ui.prompts, std::vector<std::string>{"Chemin des scripts de jaws"});
  EXPECT_EQ(i.cible.Lire("lex.jcf"), i.programme.Lire("lex.jcf"));
  EXPECT_EQ(i.cible.Lire("lex.jdf"), i.programme.Lire("lex.jdf"));
  EXPECT_TRUE(i.ui.boxes.empty());
}

TEST(ScreenReaderInstall, FilesMissingFromTheProgramFolderAreSkipped) {
  Installation i;
  std::filesystem::remove(CheminNatif(i.programme.Chemin("lex.jdf")));
  i.Repond(CheminAffiche(i.cible.Dossier()));
  EXPECT_EQ(i.Jaws().issue, Issue::Installee);
  EXPECT_TRUE(FichierExistant(i.cible.Chemin("lex.jcf")));
  EXPECT_FALSE(FichierExistant(i.cible.Chemin("lex.jdf")));
  EXPECT_TRUE(i.ui.boxes.empty());
}

TEST(ScreenReaderInstall, AFolderThatIsNotOneOrACancelCopiesNothing) {
  Installation i;
  i.cible.Ecrire("fichier", "x");
  for (const std::string& reponse : {i.cible.Chemin("absent"), i.cible.Chemin("fichier"), std::string()}) {
    i.ui.boxes.clear();
    i.Repond(CheminAffiche(reponse));
    const Issue attendue = reponse.empty() ? Issue::Annulee : Issue::CheminInconnu;
    EXPECT_EQ(i.Jaws().issue, attendue) << reponse;
    EXPECT_EQ(i.ui.boxes, reponse.empty() ? std::vector<std::string>{} : std::vector<std::string>{"chemin inconnu"});
  }
  EXPECT_FALSE(FichierExistant(i.cible.Chemin("lex.jcf")));
  EXPECT_EQ(i.cible.Lire("fichier"), "x");
}

TEST(ScreenReaderInstall, AFolderThatRefusesTheWriteIsToldAndKeepsItsOldCopy) {
  Installation i;
  i.cible.Ecrire("lex.jdf", "ancienne");
  i.Repond(CheminAffiche(i.cible.Dossier()));
  ProgrammerPanne({1, 70, true});
  EXPECT_EQ(i.Jaws().issue, Issue::Echouee);
  AnnulerPanne();
  ASSERT_EQ(i.ui.boxes.size(), 1u);
  EXPECT_EQ(i.ui.boxes[0], "Impossible d'\xE9" "crire le fichier " + CheminAffiche(i.cible.Chemin("lex.jdf")) +
                               " : permission refus\xE9" "e");
  EXPECT_EQ(i.cible.Lire("lex.jdf"), "ancienne");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(CheminNatif(i.cible.Dossier())), {}), 1);
}

TEST(ScreenReaderInstall, TheOlderLayoutCopiesTheScriptsOfItsVersion) {
  struct Cas {
    const char* dossier;
    const char* jss;  // what lex.jss holds once copied
    const char* annonce;
  };
  for (const Cas& cas : {Cas{"JAWS35", "3.5", "scripts version <3.7 copi\xE8s"},
                         Cas{"JAWS37", "3.7", "scripts version >3.7 copi\xE8s"},
                         Cas{"JFW", "3.7", "scripts version >3.7 copi\xE8s"}}) {
    Installation i;
    i.programme.Ecrire("lex.jss", "3.7");
    i.programme.Ecrire("lex35.jss", "3.5");
    i.programme.Ecrire("lex35.jsb", "3.5 compil\xE9");
    const std::string reglages = i.cible.Dossier() + cas.dossier + "/settings/fra";
    std::filesystem::create_directories(CheminNatif(reglages));
    // Only the older layout on the drives: jaws hands over, and proposes its folder.
    i.fs.lecteurs = {"C:\\", "D:\\"};
    i.fs.Ajoute("D:\\JFW\\Settings\\fra");
    i.Repond(CheminAffiche(reglages));
    EXPECT_EQ(i.Jaws().issue, Issue::Installee) << cas.dossier;
    EXPECT_EQ(i.Proposes(), std::vector<std::string>{"D:\\JFW\\Settings\\fra"});
    EXPECT_EQ(test::Octets(CheminNatif(reglages + "/lex.jss")), cas.jss) << cas.dossier;
    // lex.jsb exists only for 3.5: from 3.7 on it is skipped.
    EXPECT_EQ(FichierExistant(reglages + "/lex.jsb"), std::string(cas.jss) == "3.5") << cas.dossier;
    EXPECT_FALSE(FichierExistant(reglages + "/lex35.jss"));
    EXPECT_TRUE(FichierExistant(reglages + "/lex.jcf"));
    EXPECT_EQ(i.ecran.dits, std::vector<std::string>{cas.annonce}) << cas.dossier;
  }
}

TEST(ScreenReaderInstall, TheOlderLayoutProposesItsFolderOrItsDefault) {
  Installation i;
  i.fs.lecteurs = {"C:\\", "D:\\"};
  EXPECT_EQ(jawsAncien("lex", i.Contexte()).issue, Issue::Annulee);
  i.fs.Ajoute("D:\\JAWS35\\settings\\fra").Ajoute("D:\\JAWS37\\settings\\fra").Ajoute("D:\\JAWS40");
  EXPECT_EQ(i.Jaws().issue, Issue::Annulee);
  i.fs.lecteurs = {};
  EXPECT_EQ(jawsAncien("lex", i.Contexte()).issue, Issue::Annulee);
  EXPECT_EQ(i.Proposes(), (std::vector<std::string>{"C:\\JAWS", "D:\\JAWS37\\settings\\fra", "C:\\JAWS"}));
  EXPECT_TRUE(i.ecran.dits.empty());
}

namespace {

struct Demarrage : Installation {
  std::string Marqueur() { return programme.Chemin("verjaws.ini"); }
  void Demarre() { ScriptsAuDemarrage(programme.Dossier(), ui, ecran, fs); }
};

}  // namespace

TEST(ScreenReaderStartup, TheMarkerGoesOnceTheUserIsDoneWithTheQuestion) {
  Demarrage d;
  d.Demarre();  // no marker: no question
  EXPECT_TRUE(d.ui.prompts.empty());

  d.programme.Ecrire("verjaws.ini", "");
  d.Repond(CheminAffiche(d.cible.Chemin("absent")));
  d.Demarre();
  EXPECT_TRUE(FichierExistant(d.Marqueur())) << "chemin inconnu: asked again at the next start";

  d.Repond(CheminAffiche(d.cible.Dossier()));
  ProgrammerPanne({1, 61, true});
  d.Demarre();
  AnnulerPanne();
  EXPECT_TRUE(FichierExistant(d.Marqueur())) << "failed copy: asked again at the next start";
  EXPECT_FALSE(FichierExistant(d.programme.Chemin(kFichierCheminScripts)));

  d.Repond(CheminAffiche(d.cible.Dossier()));
  d.Demarre();
  EXPECT_FALSE(FichierExistant(d.Marqueur()));
  EXPECT_TRUE(FichierExistant(d.cible.Chemin("lex.jcf")));

  // Next time, the folder chosen is the one proposed.
  EXPECT_EQ(CheminScriptsRetenu(d.programme.Dossier()), d.cible.Dossier().substr(0, d.cible.Dossier().size() - 1));
  d.programme.Ecrire("verjaws.ini", "");
  d.Demarre();
  EXPECT_EQ(d.Proposes().back(), CheminAffiche(CheminScriptsRetenu(d.programme.Dossier())));
  EXPECT_FALSE(FichierExistant(d.Marqueur())) << "cancelled: the user chose not to install";
}

TEST(ScreenReaderScript, OnlyWhatComesFirstReachesStartUpAndFoldersStayInside) {
  for (const bool avant : {true, false}) {
    test::DossierTemp d;
    d.Ecrire("verjaws.ini", "");
    std::istringstream script(avant ? "# start-up\nmkdir a/b\nanswer input x\nshow\n" : "show\nanswer input x\n");
    std::ostringstream sortie;
    EXPECT_EQ(headless::RunScript(d.Dossier(), script, sortie), 0);
    const std::string s = sortie.str();
    const auto debut = s.find("{\"ev\":\"input\"");
    ASSERT_NE(debut, std::string::npos) << s;
    const std::string question = s.substr(debut, s.find('\n', debut) - debut);
    EXPECT_EQ(question.find("\"answer\":\"x\"") != std::string::npos, avant) << question;
    EXPECT_EQ(std::filesystem::is_directory(CheminNatif(d.Chemin("a/b"))), avant);
  }
  for (const char* hors : {"mkdir ../dehors", "mkdir a/../../dehors", "mkdir /tmp/dehors"}) {
    test::DossierTemp d;
    std::istringstream script(hors);
    std::ostringstream sortie;
    EXPECT_EQ(headless::RunScript(d.Dossier(), script, sortie), 2) << hors;
  }
}
