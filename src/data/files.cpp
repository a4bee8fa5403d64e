#include "data/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>

#include "base/encoding.h"
#include "base/error.h"
#include "data/safe_write.h"

namespace lex {
namespace fs = std::filesystem;

fs::path CheminNatif(std::string_view chemin) { return fs::path(std::u8string(chemin.begin(), chemin.end())); }

std::string NomDepuisNatif(const fs::path& p) {
  std::u8string u = p.u8string();
  return std::string(u.begin(), u.end());
}

std::string NomNatif(std::string_view nomAnsi) { return AnsiVersUtf8(nomAnsi); }

std::string CheminAffiche(std::string_view chemin) { return Utf8VersAnsi(chemin); }

std::string ajoutbackslash(std::string_view chemin) {
  std::string s(chemin);
  if (s.empty() || (s.back() != '/' && s.back() != '\\')) s += kSeparateur;
  return s;
}

std::string NomFichSeul(std::string_view chemin) {
  auto p = chemin.find_last_of("/\\");
  return std::string(p == std::string_view::npos ? chemin : chemin.substr(p + 1));
}

std::int64_t LongueurFichier(std::string_view nom) {
  std::error_code ec;
  auto p = CheminNatif(nom);
  if (!fs::is_regular_file(p, ec)) return -1;
  auto n = fs::file_size(p, ec);
  return ec ? -1 : static_cast<std::int64_t>(n);
}

bool FichierExistant(std::string_view nom) { return LongueurFichier(nom) >= 0; }

void ErreurFichier(const std::error_code& ec) {
  switch (ec.value()) {
    case ENOENT: Erreur(53);
    case ENOTDIR: Erreur(76);
    case EACCES:
    case EPERM:
    case EROFS: Erreur(70);
    case ENOSPC: Erreur(61);
    case ENOMEM: Erreur(7);
    case ENAMETOOLONG:
    case EINVAL: Erreur(52);
    default: Erreur(5);
  }
}

namespace {
// A missing folder is "path not found", a missing file "file not found".
[[noreturn]] void ErreurOuverture(const fs::path& p) {
  std::error_code ec;
  if (p.has_parent_path() && !fs::is_directory(p.parent_path(), ec)) Erreur(76);
  ErreurFichier(std::error_code(errno ? errno : ENOENT, std::generic_category()));
}

}  // namespace

Fichier OuvrirFichier(std::string_view nom) {
  auto p = CheminNatif(nom);
  errno = 0;
  Fichier f(std::fopen(p.c_str(), "rb"));
  if (!f) ErreurOuverture(p);
  return f;
}

Fichier OuvrirSiPossible(std::string_view nom) {
  return Fichier(std::fopen(CheminNatif(nom).c_str(), "rb"));
}

void CopierFichier(std::string_view source, std::string_view destination) {
  Fichier f = OuvrirFichier(source);
  std::error_code ec;
  const auto date = fs::last_write_time(CheminNatif(source), ec);
  EcritureSure copie(destination, Donnees::Utilisateur);
  std::vector<char> tampon(std::size_t{1} << 20);
  std::size_t n;
  while ((n = std::fread(tampon.data(), 1, tampon.size(), f.get())) > 0) copie.Ecrire(tampon.data(), n);
  if (std::ferror(f.get())) Erreur(57);
  // The copy is the same dictionary: with the same date, its index stays current for it.
  if (!ec) copie.GarderDate(date);
  copie.Valider();
}

void SupprimerFichier(std::string_view nom) {
  std::error_code ec;
  if (!fs::remove(CheminNatif(nom), ec) && !ec) ec = std::make_error_code(std::errc::no_such_file_or_directory);
  if (ec) ErreurFichier(ec);
}

void RenommerFichier(std::string_view ancien, std::string_view nouveau) {
  std::error_code ec;
  fs::rename(CheminNatif(ancien), CheminNatif(nouveau), ec);
  if (ec) ErreurFichier(ec);
}

std::vector<std::string> DecoupeLignes(std::string_view tout) {
  std::vector<std::string> lignes;
  std::size_t debut = 0;
  while (debut < tout.size()) {
    std::size_t fin = tout.find('\n', debut);
    std::size_t suivant = fin == std::string_view::npos ? tout.size() : fin + 1;
    if (fin == std::string_view::npos) fin = tout.size();
    else if (fin > debut && tout[fin - 1] == '\r') --fin;
    lignes.emplace_back(tout.substr(debut, fin - debut));
    debut = suivant;
  }
  return lignes;
}

std::int64_t MemoireLignes(std::string_view tout) {
  const auto lignes = static_cast<std::int64_t>(std::count(tout.begin(), tout.end(), '\n')) + 1;
  return static_cast<std::int64_t>(tout.size()) + lignes * static_cast<std::int64_t>(sizeof(std::string));
}

std::vector<std::string> LireLignes(std::string_view nom) {
  Fichier f = OuvrirFichier(nom);
  if (LongueurFichier(nom) > kMemoireLignes) Erreur(7);
  std::string tout;
  char tampon[65536];
  std::size_t n;
  while ((n = std::fread(tampon, 1, sizeof tampon, f.get())) > 0) {
    tout.append(tampon, n);
    if (static_cast<std::int64_t>(tout.size()) > kMemoireLignes) Erreur(7);
  }
  // Each line costs a string of its own: a file of empty lines takes many times its size.
  if (MemoireLignes(tout) > kMemoireLignes) Erreur(7);
  return DecoupeLignes(tout);
}

void EcrireLignes(std::string_view nom, const std::vector<std::string>& lignes) {
  EcrireLignesSur(nom, lignes, Donnees::Utilisateur);
}

std::string LireOctets(std::string_view nom, std::int64_t debut, std::int64_t longueur) {
  if (debut < 0 || longueur < 0) Erreur(5);
  Fichier f = OuvrirFichier(nom);
  std::string tampon(static_cast<std::size_t>(longueur), ' ');
  if (longueur == 0) return tampon;
  if (std::fseek(f.get(), static_cast<long>(debut), SEEK_SET) != 0) return tampon;
  std::fread(tampon.data(), 1, tampon.size(), f.get());
  return tampon;
}

}  // namespace lex
