#include "controller/window_frame.h"

#include <algorithm>
#include <charconv>

#include "base/blanks.h"
#include "base/error.h"
#include "controller/form.h"
#include "data/files.h"
#include "data/write_error.h"

namespace lex {
namespace {

std::string FichierCadre(const Form& f) { return f.reglages.DossierProgramme + kFichierCadre; }

// A whole line that is one integer, blanks around it allowed; anything else is damage.
std::optional<int> Entier(const std::string& ligne) {
  const std::string t = SansBlancs(ligne);
  int n = 0;
  const auto [fin, erreur] = std::from_chars(t.data(), t.data() + t.size(), n);
  if (t.empty() || erreur != std::errc{} || fin != t.data() + t.size()) return std::nullopt;
  return n;
}

// Larger than any desktop: a file saying so was not written by the program.
constexpr int kCoteMax = 100000;

}  // namespace

std::vector<std::string> LignesCadre(const Cadre& c) {
  return {std::to_string(c.x), std::to_string(c.y), std::to_string(c.largeur), std::to_string(c.hauteur),
          c.maximise ? "1" : "0"};
}

std::optional<Cadre> CadreDeLignes(const std::vector<std::string>& lignes) {
  if (lignes.size() < 5) return std::nullopt;
  int v[5];
  for (int i = 0; i < 5; ++i) {
    const auto n = Entier(lignes[static_cast<std::size_t>(i)]);
    if (!n) return std::nullopt;
    v[i] = *n;
  }
  if (v[2] < kLargeurMin || v[3] < kHauteurMin || v[2] > kCoteMax || v[3] > kCoteMax) return std::nullopt;
  if (v[0] < -kCoteMax || v[0] > kCoteMax || v[1] < -kCoteMax || v[1] > kCoteMax) return std::nullopt;
  if (v[4] != 0 && v[4] != 1) return std::nullopt;
  return Cadre{v[0], v[1], v[2], v[3], true, v[4] == 1};
}

Cadre CadreVisible(const Cadre& voulu, const Cadre& ecran) {
  Cadre c = voulu;
  c.place = true;
  const int visibleX = std::max(0, std::min(voulu.x + voulu.largeur, ecran.x + ecran.largeur) - std::max(voulu.x, ecran.x));
  const int visibleY = std::max(0, std::min(voulu.y + voulu.hauteur, ecran.y + ecran.hauteur) - std::max(voulu.y, ecran.y));
  // Less than a quarter of it to be seen: the desktop changed since (a screen unplugged), and
  // the user could not even find the window to bring it back.
  const bool perdu = static_cast<long long>(visibleX) * visibleY * 4 <
                     static_cast<long long>(voulu.largeur) * voulu.hauteur;
  if (!voulu.place || perdu) {
    c.largeur = std::max(voulu.largeur, kLargeurDefaut);
    c.hauteur = std::max(voulu.hauteur, kHauteurDefaut);
  }
  c.largeur = std::clamp(c.largeur, std::min(kLargeurMin, ecran.largeur), ecran.largeur);
  c.hauteur = std::clamp(c.hauteur, std::min(kHauteurMin, ecran.hauteur), ecran.hauteur);
  if (!voulu.place || perdu) {
    c.x = ecran.x + (ecran.largeur - c.largeur) / 2;
    c.y = ecran.y + (ecran.hauteur - c.hauteur) / 2;
  } else {
    c.x = std::clamp(c.x, ecran.x, ecran.x + ecran.largeur - c.largeur);
    c.y = std::clamp(c.y, ecran.y, ecran.y + ecran.hauteur - c.hauteur);
  }
  return c;
}

void ChargeCadre(Form& f) {
  std::optional<Cadre> c;
  try {
    if (FichierExistant(FichierCadre(f))) c = CadreDeLignes(LireLignes(FichierCadre(f)));
  } catch (const LexError&) {
    // Unreadable is as good as missing: the window opens at its default place.
    OublieRapport();
  }
  f.ui.SetFrame(c.value_or(Cadre{}));
}

void GardeCadre(Form& f) {
  try {
    EcrireLignes(FichierCadre(f), LignesCadre(f.ui.GetFrame()));
  } catch (const ErreurEcriture& e) {
    // Only the window's place is lost: the next start opens it at the default one.
    OublieRapport();
    f.dlg.MessageBox(MessageErreurEcriture(e), Boutons::OK, Icone::Exclamation, kTitreBoites);
  }
}

}  // namespace lex
