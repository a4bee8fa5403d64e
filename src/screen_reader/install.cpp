#include "screen_reader/install.h"

#include <vector>

#include "base/error.h"
#include "screen_reader/copy.h"
#include "screen_reader/folder_search.h"
#include "screen_reader/places.h"
#include "screen_reader/versions.h"

namespace lex {
namespace {

const Version kVersion37 = {3, 7};

// The version named by the last folder of the path that the older layout names.
Version VersionDuChemin(const std::string& chemin) {
  std::size_t fin = chemin.size();
  while (fin > 0) {
    const auto p = chemin.find_last_of("\\/", fin - 1);
    const std::size_t debut = p == std::string::npos ? 0 : p + 1;
    const std::string_view nom = std::string_view(chemin).substr(debut, fin - debut);
    if (EstDossierJaws(nom)) return VersionInstallation(nom);
    if (p == std::string::npos) break;
    fin = p;
  }
  return {};
}

}  // namespace

Confirmation jaws(const std::string& nom, const ContexteScripts& c) {
  ErrorTrap trap("sur jaws");
  const DossierTrouve trouve = ChercheDossierScripts(c.fs, c.CheminScripts);
  if (trouve.origine == Origine::AncienneDisposition) return jawsAncien(nom, c);
  Confirmation r = ConfirmeDossier(c.dlg, c.fs, trouve.chemin);
  if (r.issue != Issue::Installee) return r;
  if (!CopieScripts(c.dlg, c.DossierProgramme, r.dossier, {{nom + ".jdf", nom + ".jdf"}, {nom + ".jcf", nom + ".jcf"}})
           .reussie)
    r.issue = Issue::Echouee;
  return r;
}

Confirmation jawsAncien(const std::string& nom, const ContexteScripts& c) {
  ErrorTrap trap("sur jaws");
  const std::string propose = ChercheDossierAncien(c.fs).value_or(kDossierAncienDefaut);
  Confirmation r = ConfirmeDossier(c.dlg, c.fs, propose);
  if (r.issue != Issue::Installee) return r;
  const Version v = VersionDuChemin(r.dossier);
  const bool avant37 = !v.empty() && v < kVersion37;
  const std::string scripts = avant37 ? nom + "35" : nom;
  const std::vector<FichierScript> fichiers = {{nom + ".jdf", nom + ".jdf"},
                                               {scripts + ".jss", nom + ".jss"},
                                               {scripts + ".jsb", nom + ".jsb"},
                                               {nom + ".jcf", nom + ".jcf"}};
  const Copie copie = CopieScripts(c.dlg, c.DossierProgramme, r.dossier, fichiers);
  if (!copie.reussie) r.issue = Issue::Echouee;
  else if (copie.copies > 0)
    c.ecran.message(avant37 ? "scripts version <3.7 copi\xE8s" : "scripts version >3.7 copi\xE8s");
  return r;
}

}  // namespace lex
