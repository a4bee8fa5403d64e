#include "screen_reader/real_file_system.h"

#include <filesystem>

#include "data/files.h"

#ifdef _WIN32
#include <windows.h>

#include <cstdlib>
#endif

namespace lex {
namespace fs = std::filesystem;

std::vector<std::string> SystemeFichiersReel::Lecteurs() const {
  std::vector<std::string> lecteurs;
#ifdef _WIN32
  const DWORD masque = GetLogicalDrives();
  for (int i = 0; i < 26; ++i) {
    if (!(masque & (DWORD{1} << i))) continue;
    const std::string racine = std::string(1, static_cast<char>('A' + i)) + ":\\";
    const std::wstring large(racine.begin(), racine.end());
    if (GetDriveTypeW(large.c_str()) == DRIVE_FIXED) lecteurs.push_back(racine);
  }
#endif
  return lecteurs;
}

std::string SystemeFichiersReel::DonneesApplication() const {
#ifdef _WIN32
  if (const wchar_t* v = _wgetenv(L"APPDATA"); v && *v) return NomDepuisNatif(fs::path(v));
#endif
  return {};
}

std::vector<std::string> SystemeFichiersReel::SousDossiers(std::string_view dossier) const {
  std::vector<std::string> noms;
  std::error_code ec;
  fs::directory_iterator it(CheminNatif(dossier), fs::directory_options::skip_permission_denied, ec);
  for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
    std::error_code e;
    if (it->is_symlink(e) || !it->is_directory(e)) continue;
    noms.push_back(NomDepuisNatif(it->path().filename()));
  }
  return noms;
}

bool SystemeFichiersReel::EstDossier(std::string_view chemin) const {
  std::error_code ec;
  return fs::is_directory(CheminNatif(chemin), ec);
}

}  // namespace lex
