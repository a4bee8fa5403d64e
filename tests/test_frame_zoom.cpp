// The window's frame kept between runs and put back on the desktop, and the font size
// changed by steps from the keyboard and the wheel.
#include <gtest/gtest.h>

#include <filesystem>

#include "controller/window_frame.h"
#include "controller/zoom.h"
#include "session.h"

using namespace lex;

namespace {

bool Egal(const Cadre& a, const Cadre& b) {
  return a.x == b.x && a.y == b.y && a.largeur == b.largeur && a.hauteur == b.hauteur && a.place == b.place &&
         a.maximise == b.maximise;
}

std::string Texte(const Cadre& c) {
  return std::to_string(c.largeur) + "x" + std::to_string(c.hauteur) + "+" + std::to_string(c.x) + "+" +
         std::to_string(c.y) + (c.maximise ? " max" : "");
}

}  // namespace

TEST(Cadre, PutWithinTheDesktop) {
  const Cadre ecran{0, 0, 1280, 800, true, false};
  // First start: the default size, centred.
  EXPECT_EQ(Texte(CadreVisible(Cadre{}, ecran)), "1024x768+128+16");
  // A smaller desktop than the default: the whole of it.
  EXPECT_EQ(Texte(CadreVisible(Cadre{}, {0, 0, 800, 600, true, false})), "800x600+0+0");
  // A frame the user made small stays small where it was.
  EXPECT_EQ(Texte(CadreVisible({10, 20, 600, 400, true, false}, ecran)), "600x400+10+20");
  // Half past the right edge: moved back inside, its size kept.
  EXPECT_EQ(Texte(CadreVisible({900, 100, 700, 500, true, true}, ecran)), "700x500+580+100 max");
  // Larger than the desktop: as large as it.
  EXPECT_EQ(Texte(CadreVisible({-50, -30, 3000, 2000, true, false}, ecran)), "1280x800+0+0");
  // On a screen that is gone: back on this one, centred, at least the default size.
  EXPECT_EQ(Texte(CadreVisible({3000, 100, 600, 400, true, false}, ecran)), "1024x768+128+16");
  // A second screen to the right, with a panel at its top.
  const Cadre droite{1280, 32, 1920, 1048, true, false};
  EXPECT_EQ(Texte(CadreVisible({1400, 10, 800, 600, true, false}, droite)), "800x600+1400+32");
  EXPECT_EQ(Texte(CadreVisible(Cadre{}, droite)), "1024x768+1728+172");
}

TEST(Cadre, FileLinesAndDamage) {
  const Cadre c{-8, 40, 1100, 700, true, true};
  const auto lignes = LignesCadre(c);
  EXPECT_EQ(lignes, (std::vector<std::string>{"-8", "40", "1100", "700", "1"}));
  ASSERT_TRUE(CadreDeLignes(lignes));
  EXPECT_TRUE(Egal(*CadreDeLignes(lignes), c));
  EXPECT_TRUE(CadreDeLignes({" 1 ", "2", "800 ", "600", "0"}));
  for (const auto& abime : std::vector<std::vector<std::string>>{
           {"1", "2", "800", "600"},            // a line short
           {"1", "2", "800", "600px", "0"},     // not a number
           {"1", "", "800", "600", "0"},        // empty
           {"1", "2", "100", "600", "0"},       // too narrow to be a window
           {"1", "2", "800", "999999", "0"},    // taller than any desktop
           {"1", "2", "800", "600", "2"},       // neither maximised nor not
           {"99999999999", "2", "800", "600", "0"}})
    EXPECT_FALSE(CadreDeLignes(abime)) << abime[0] << " " << abime[2] << " " << abime[3] << " " << abime[4];
}

TEST(Cadre, KeptFromOneRunToTheNextAndAFailedWriteStillEnds) {
  test::Session s;
  s.Charge();
  EXPECT_FALSE(s.ui.GetFrame().place);
  s.ui.SetFrame({30, 40, 900, 700, true, false});
  EvFermeture(s.f);
  ASSERT_TRUE(s.ui.quit);
  EXPECT_EQ(s.d.Lire("fenetre.ini"), "30\r\n40\r\n900\r\n700\r\n0\r\n");

  headless::HeadlessWindow ui;
  Form f(ui, ui);
  EvChargement(f, s.d.Dossier());
  EXPECT_TRUE(Egal(ui.GetFrame(), {30, 40, 900, 700, true, false}));
  // Something that cannot be replaced now stands where the frame goes: the program says so and
  // ends all the same, its configuration written.
  const auto chemin = CheminNatif(s.d.Chemin("fenetre.ini"));
  std::filesystem::remove(chemin);
  std::filesystem::create_directories(chemin / "dedans");
  ui.SetFrame({1, 2, 1000, 750, true, true});
  f.reglages.PoliceTaille = "14";
  EvFermeture(f);
  EXPECT_TRUE(ui.quit);
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0].rfind("Impossible d'\xE9" "crire le fichier ", 0), 0u) << ui.boxes[0];
  EXPECT_NE(ui.boxes[0].find("fenetre.ini"), std::string::npos) << ui.boxes[0];
  EXPECT_NE(s.d.Lire("lex301.INI").find("\r\n14\r\n"), std::string::npos);
}

TEST(Zoom, StepsAndTheirEnds) {
  EXPECT_EQ(TailleVoisine(10, 1), 12);
  EXPECT_EQ(TailleVoisine(10, -1), 8);
  EXPECT_EQ(TailleVoisine(11, 1), 12);
  EXPECT_EQ(TailleVoisine(11, -1), 10);
  EXPECT_EQ(TailleVoisine(36, 1), 48);
  EXPECT_EQ(TailleVoisine(72, 1), 0);
  EXPECT_EQ(TailleVoisine(100, -1), 72);
  EXPECT_EQ(TailleVoisine(8, -1), 0);
  EXPECT_EQ(TailleVoisine(6, 1), 8);
  EXPECT_EQ(SensZoom(Touche::Plus, kCtrl | kShift), 1);
  EXPECT_EQ(SensZoom(Touche::PaveMoins, kCtrl), -1);
  EXPECT_EQ(SensZoom(Touche::Plus, 0), 0);
  EXPECT_EQ(SensZoom(Touche::Plus, kCtrl | kAlt), 0);  // AltGr types
}

TEST(Zoom, TheWheelUnderCtrlAddsPartNotchesUp) {
  test::Session s;
  s.Charge();
  // Without Ctrl the wheel scrolls the field.
  EXPECT_FALSE(EvMolette(s.f, 120, 120, 0));
  EXPECT_EQ(s.f.reglages.PoliceTaille, "10");
  // A fine wheel: three thirds of a notch make one step.
  EXPECT_TRUE(EvMolette(s.f, 40, 120, kCtrl));
  EXPECT_TRUE(EvMolette(s.f, 40, 120, kCtrl));
  EXPECT_EQ(s.ui.Font().taille, 10);
  EXPECT_TRUE(EvMolette(s.f, 40, 120, kCtrl));
  EXPECT_EQ(s.ui.Font().taille, 12);
  EXPECT_EQ(s.ui.Message(), " taille des caract\xE8res 12");
  // Two notches at once, then a part notch back that does nothing, and a whole one back.
  EXPECT_TRUE(EvMolette(s.f, 240, 120, kCtrl));
  EXPECT_EQ(s.f.reglages.PoliceTaille, "16");
  EXPECT_TRUE(EvMolette(s.f, 60, 120, kCtrl));
  EXPECT_TRUE(EvMolette(s.f, -60, 120, kCtrl));
  EXPECT_EQ(s.ui.Font().taille, 16);
  EXPECT_TRUE(EvMolette(s.f, -120, 120, kCtrl));
  EXPECT_EQ(s.ui.Font().taille, 14);
}
