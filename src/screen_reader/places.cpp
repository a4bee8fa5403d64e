#include "screen_reader/places.h"

#include <algorithm>
#include <vector>

#include "screen_reader/folder_search.h"
#include "screen_reader/versions.h"

namespace lex {
namespace {

// Below "Documents and Settings": the profile, its "Application Data", "Freedom Scientific".
constexpr int kProfondeurProfils = 3;

// Below a "Freedom Scientific" folder: JAWS\<version>\settings\fra (or frc), the newest
// version that holds one. An older version left behind is listed too, and may come last.
std::optional<std::string> ReglagesJaws(const SystemeFichiers& fs, const std::string& freedom) {
  std::string jaws;
  if (!rechercherDossier(fs, freedom, "JAWS", jaws)) return std::nullopt;
  std::vector<std::string> versions = fs.SousDossiers(jaws);
  std::stable_sort(versions.begin(), versions.end(), [](const std::string& a, const std::string& b) {
    return VersionDossier(a) > VersionDossier(b);
  });
  for (const std::string& v : versions) {
    const std::string dossier = Joindre(jaws, v);
    for (const char* langue : {"fra", "frc"})
      if (auto r = SousChemin(fs, dossier, {"settings", langue})) return r;
  }
  return std::nullopt;
}

std::optional<std::string> LecteurC(const SystemeFichiers& fs) {
  for (const std::string& l : fs.Lecteurs())
    if (!l.empty() && (l[0] == 'C' || l[0] == 'c')) return l;
  return std::nullopt;
}

// The folders of `racine` that the older layout names, newest first (by name, then the last
// listed, as a walk that keeps the last one would).
std::vector<std::string> DossiersJaws(const SystemeFichiers& fs, const std::string& racine, bool jfw) {
  std::vector<std::string> noms;
  for (const std::string& n : fs.SousDossiers(racine))
    if (jfw ? EstDossierJaws(n) : NomMajuscule(n).rfind("JAWS", 0) == 0) noms.push_back(n);
  std::reverse(noms.begin(), noms.end());
  std::stable_sort(noms.begin(), noms.end(), [](const std::string& a, const std::string& b) {
    return VersionInstallation(a) > VersionInstallation(b);
  });
  return noms;
}

}  // namespace

std::optional<std::string> ChercheDossierAncien(const SystemeFichiers& fs) {
  for (const std::string& lecteur : fs.Lecteurs())
    for (const std::string& n : DossiersJaws(fs, lecteur, true))
      if (auto r = SousChemin(fs, Joindre(lecteur, n), {"settings", "fra"})) return r;
  return std::nullopt;
}

DossierTrouve ChercheDossierScripts(const SystemeFichiers& fs, std::string_view cheminScripts) {
  const std::string appdata = fs.DonneesApplication();
  std::string freedom;
  if (!appdata.empty() && rechercherDossier(fs, appdata, "Freedom Scientific", freedom))
    if (auto r = ReglagesJaws(fs, freedom)) return {*r, Origine::DonneesApplication};

  const auto c = LecteurC(fs);
  if (c) {
    const std::string documents = Joindre(*c, "Documents and Settings");
    if (fs.EstDossier(documents))
      if (auto f = recherche_dir(fs, documents, "Freedom Scientific", kProfondeurProfils))
        if (auto r = ReglagesJaws(fs, *f)) return {*r, Origine::DocumentsAndSettings};
  }
  if (auto r = ChercheDossierAncien(fs)) return {*r, Origine::AncienneDisposition};
  if (c) {
    const auto noms = DossiersJaws(fs, *c, false);
    if (!noms.empty()) return {Joindre(*c, noms.front()), Origine::RacineJaws};
  }
  if (!cheminScripts.empty()) {
    for (const char* langue : {"fra", "frc"})
      if (auto r = SousChemin(fs, cheminScripts, {"settings", langue})) return {*r, Origine::Memorise};
    if (fs.EstDossier(cheminScripts)) return {std::string(cheminScripts), Origine::Memorise};
  }
  return {kCheminScriptsDefaut, Origine::ParDefaut};
}

}  // namespace lex
