#include "data/safe_write.h"

#include <atomic>
#include <chrono>
#include <random>

#include "data/files.h"
#include "data/write_error.h"
#include "data/write_faults.h"

namespace lex {
namespace fs = std::filesystem;
namespace {

// "~lex" + 12 hexadecimal digits + ".tmp": rare enough among a user's files that start-up can
// remove every file so named without asking.
constexpr std::string_view kDebutTemp = "~lex";
constexpr std::string_view kFinTemp = ".tmp";
constexpr std::size_t kChiffresTemp = 12;

std::uint64_t Melange(std::uint64_t x) {
  x += 0x9E3779B97F4A7C15ull;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
  return x ^ (x >> 31);
}

std::uint64_t Graine() {
  std::uint64_t g = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  try {
    std::random_device rd;
    g ^= (static_cast<std::uint64_t>(rd()) << 32) ^ rd();
  } catch (...) {  // no random source: the clock alone, the creation retries on a clash
  }
  return g;
}

std::string NomTemporaire() {
  static const std::uint64_t graine = Graine();
  static std::atomic<std::uint64_t> suite{0};
  std::uint64_t x = Melange(graine + suite.fetch_add(1));
  std::string nom(kDebutTemp);
  for (std::size_t i = 0; i < kChiffresTemp; ++i, x >>= 4) nom += "0123456789abcdef"[x & 15];
  return nom.append(kFinTemp);
}

// A link is followed, so that the file it names is replaced and the link kept.
fs::path SuitLiens(fs::path p) {
  std::error_code ec;
  for (int i = 0; i < 16 && fs::is_symlink(p, ec); ++i) {
    fs::path lien = fs::read_symlink(p, ec);
    if (ec) break;
    p = lien.is_absolute() ? lien : p.parent_path() / lien;
  }
  return p;
}

}  // namespace

EcritureSure::EcritureSure(std::string_view cible, Donnees genre)
    : nom_(cible), cible_(SuitLiens(CheminNatif(cible))), genre_(genre) {
  Verifie(PanneAEtape());
  Verifie(systeme::CibleRemplacable(cible_));
  const fs::path dossier = cible_.parent_path();
  for (int essai = 0;; ++essai) {
    temp_ = dossier / NomTemporaire();
    const int r = systeme::CreerNeuf(temp_, h_);
    if (r == 0) break;
    if (r != systeme::kNomPris || essai == 100) Echoue(r == systeme::kNomPris ? 70 : r);
  }
  ouvert_ = temp_existe_ = true;
  systeme::CopierDroits(h_, cible_);
}

EcritureSure::~EcritureSure() { Defait(); }

void EcritureSure::Defait() {
  if (ouvert_) systeme::Fermer(h_);
  if (temp_existe_) systeme::Supprimer(temp_);
  ouvert_ = temp_existe_ = false;
}

void EcritureSure::Echoue(int numero) {
  echec_ = numero;
  Defait();
  throw ErreurEcriture(numero, nom_);
}

void EcritureSure::Ecrire(const char* p, std::size_t n) {
  Verifie(echec_ ? echec_ : ouvert_ ? 0 : 5);
  Verifie(PanneAEtape());
  Verifie(systeme::EcrireTout(h_, p, n));
}

void EcritureSure::Copier(std::string_view source, std::int64_t debut, std::int64_t longueur) {
  Verifie(echec_ ? echec_ : ouvert_ ? 0 : 5);
  Verifie(PanneAEtape());
  if (longueur <= 0) return;
  const int r = systeme::CopierPlage(h_, CheminNatif(source), debut, longueur);
  if (r != systeme::kCopieImpossible) {
    Verifie(r);
    return;
  }
  Fichier f = OuvrirFichier(source);
  if (std::fseek(f.get(), static_cast<long>(debut), SEEK_SET) != 0) Erreur(62);
  std::vector<char> tampon(static_cast<std::size_t>(std::min<std::int64_t>(longueur, std::int64_t{1} << 20)));
  while (longueur > 0) {
    const auto n = static_cast<std::size_t>(std::min<std::int64_t>(longueur, static_cast<std::int64_t>(tampon.size())));
    if (std::fread(tampon.data(), 1, n, f.get()) != n) Erreur(62);
    Verifie(systeme::EcrireTout(h_, tampon.data(), n));
    longueur -= static_cast<std::int64_t>(n);
  }
}

void EcritureSure::EcrireA(std::int64_t position, const char* p, std::size_t n) {
  Verifie(echec_ ? echec_ : ouvert_ ? 0 : 5);
  Verifie(PanneAEtape());
  Verifie(systeme::EcrireA(h_, position, p, n));
}

std::filesystem::file_time_type EcritureSure::Date() const {
  if (date_) return *date_;
  std::error_code ec;
  return fs::last_write_time(temp_, ec);
}

void EcritureSure::Valider() {
  Verifie(echec_ ? echec_ : ouvert_ ? 0 : 5);
  Verifie(PanneAEtape());
  if (genre_ == Donnees::Utilisateur) Verifie(systeme::Synchroniser(h_));
  ouvert_ = false;
  Verifie(systeme::Fermer(h_));
  if (date_) {
    std::error_code ec;  // without its date the file is only rebuilt or copied once more
    fs::last_write_time(temp_, *date_, ec);
  }
  Verifie(systeme::Remplacer(temp_, cible_));
  temp_existe_ = false;
  if (genre_ == Donnees::Utilisateur) systeme::SynchroniserDossier(cible_.parent_path());
}

void EcrireFichierSur(std::string_view nom, std::string_view octets, Donnees genre) {
  EcritureSure e(nom, genre);
  e.Ecrire(octets);
  e.Valider();
}

void EcrireLignesSur(std::string_view nom, const std::vector<std::string>& lignes, Donnees genre) {
  std::size_t taille = 0;
  for (const auto& l : lignes) taille += l.size() + 2;
  std::string tout;
  tout.reserve(taille);
  for (const auto& l : lignes) tout.append(l).append("\r\n");
  EcrireFichierSur(nom, tout, genre);
}

bool EstNomTemporaire(std::string_view n) {
  if (n.size() != kDebutTemp.size() + kChiffresTemp + kFinTemp.size() || !n.starts_with(kDebutTemp) ||
      !n.ends_with(kFinTemp))
    return false;
  for (char c : n.substr(kDebutTemp.size(), kChiffresTemp))
    if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'))) return false;
  return true;
}

int SupprimerTemporaires(std::string_view dossier) {
  std::error_code ec;
  fs::directory_iterator it(CheminNatif(dossier.empty() ? std::string_view(".") : dossier), ec);
  int n = 0;
  for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
    std::error_code e2;
    if (EstNomTemporaire(NomDepuisNatif(it->path().filename())) && it->is_regular_file(e2) &&
        fs::remove(it->path(), e2))
      ++n;
  }
  return n;
}

}  // namespace lex
