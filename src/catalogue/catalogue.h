// The catalogue of dictionaries: nine built-in rows (the ninth, "Histoire", opens the history
// group), the history group, the added dictionaries, and "BLOC NOTE" always last.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lex {

struct CatalogueEntry {
  std::string Suffixe;
  std::string NomFichier;
  std::string NomDictio;
  std::string LigneListe;
  std::string LettreAppel = " ";
  bool OrdreAlpha = true;
  std::int32_t PositionDictio = 1;
  bool DicModifie = false;
};

class Catalogue {
 public:
  // Entries are numbered from 1 to NombreDictio(), as the lists and the configuration count them.
  std::int16_t NombreDictio() const { return static_cast<std::int16_t>(entrees_.size()); }
  CatalogueEntry& operator[](int i);
  const CatalogueEntry& operator[](int i) const;
  void Inserer(int avant, CatalogueEntry e);

  std::int16_t NombreHistoire = 0;
  std::vector<CatalogueEntry>& entrees() { return entrees_; }

 private:
  std::vector<CatalogueEntry> entrees_;
};

// The built-in entries 1..9 and "BLOC NOTE" (the catalogue is rebuilt from scratch).
void InitDictio(Catalogue& c, const std::string& dossierDictio);
// One configuration line after line 14: a new entry placed just before "BLOC NOTE". Names
// become file names in the dictionaries' folder and nowhere else: a line whose name or suffix
// could lead out of it is refused, and the French reason is returned (empty when accepted).
std::string LireLigneCatalogue(Catalogue& c, std::string_view ligne);
// Why `nom` cannot name a file of the dictionaries' folder, in French; empty when it can.
std::string DefautDeNom(std::string_view nom);
// The longest name the catalogue takes.
inline constexpr std::size_t kLongueurNomMax = 255;
// The configuration line of an added entry.
std::string LigneCatalogue(const CatalogueEntry& e);
// Display lines in one column, and the call letters in use.
void AjoutLettreAppelDictio(Catalogue& c);
// Dictionary file of an entry: folder, base name, ".", suffix.
std::string NomDictionnaire(const Catalogue& c, const std::string& dossierDictio, int i);
std::string NomIndex(const Catalogue& c, const std::string& dossierDictio, int i);
std::string NomLettre(const Catalogue& c, const std::string& dossierDictio, int i);

// Rows of the main list: 1..9, then the added entries after the history group, then "BLOC NOTE".
int EntreeDeLigne(const Catalogue& c, int rang);
int LigneDeEntree(const Catalogue& c, int entree);

}  // namespace lex
