#include "catalogue/management.h"

#include <map>
#include <set>

#include "base/error.h"

namespace lex {

bool NomDeFichierPermis(std::string_view nom) {
  if (nom.empty() || nom.size() > kLongueurNomMax || nom == "." || nom == "..") return false;
  if (nom.back() == ' ' || nom.back() == '.' || nom.front() == ' ') return false;
  for (char ch : nom)
    if (static_cast<unsigned char>(ch) < 32 || std::string_view("\\/:*?\"<>|").find(ch) != std::string_view::npos)
      return false;
  return true;
}

std::string LettresUtilisees(const Catalogue& c) {
  std::string lettres;
  for (int i = 1; i <= c.NombreDictio(); ++i)
    if (c[i].LettreAppel != " " && !c[i].LettreAppel.empty()) lettres += c[i].LettreAppel;
  return lettres;
}

namespace {

// The number entry `d` takes when entries are inserted (decalage 1) or entry `depuis` is
// removed (decalage -1) there; 0 for the entry removed.
int Nouveau(int d, int depuis, int decalage) {
  if (d < depuis) return d;
  if (decalage < 0 && d == depuis) return 0;
  return d + decalage;
}

template <class Valeur>
void Decale(std::map<int, Valeur>& table, int depuis, int decalage) {
  std::map<int, Valeur> nouvelle;
  for (auto& [d, v] : table)
    if (const int n = Nouveau(d, depuis, decalage)) nouvelle.emplace(n, std::move(v));
  table = std::move(nouvelle);
}

void DecaleSelections(Selections& s, int depuis, int decalage) {
  Decale(s.TableSelection, depuis, decalage);
  Decale(s.TableAjout, depuis, decalage);
  std::set<int> garde;
  for (int d : s.GardeNumeros)
    if (const int n = Nouveau(d, depuis, decalage)) garde.insert(n);
  s.GardeNumeros = std::move(garde);
}

}  // namespace

void InsereDictio(Catalogue& c, Selections& s, int avant, CatalogueEntry e, bool histoire) {
  // Outside the history group nothing goes above it or after "BLOC NOTE".
  if (histoire) {
    if (avant < 10 || avant > 10 + c.NombreHistoire) Erreur(9);
  } else if (avant < 10 + c.NombreHistoire || avant > c.NombreDictio()) {
    Erreur(9);
  }
  DecaleSelections(s, avant, 1);
  c.Inserer(avant, std::move(e));
  if (histoire) ++c.NombreHistoire;
}

void RetireDictio(Catalogue& c, Selections& s, int i) {
  if (i < 10 || i >= c.NombreDictio()) Erreur(9);
  DecaleSelections(s, i, -1);
  c.entrees().erase(c.entrees().begin() + (i - 1));
  if (i <= 9 + c.NombreHistoire) --c.NombreHistoire;
}

}  // namespace lex
