// ".dict.dz" files: gzip whose header carries a table of independently compressed chunks
// (the "RA" field), so that a reader can decompress one definition without the whole file.
// dictd and StarDict dictionaries come so; plain gzip files read as well, whole.
#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lex {
class EcritureSure;
}

namespace lex::exchange {

// The uncompressed size of a chunk as dictzip makes them: the largest whose deflate output
// still fits the table's 16-bit sizes however badly it compresses.
inline constexpr std::size_t kMorceauDictzip = 58315;

// A ".dz" file opened for reading. Every failure (missing file, not gzip, truncated or damaged
// data) is an ErreurImport naming the file.
// A file of the source read whole, at once; an ErreurImport naming it when it cannot be.
std::string LitFichierSource(const std::filesystem::path& chemin);

class LecteurDictzip {
 public:
  explicit LecteurDictzip(const std::filesystem::path& chemin);

  // Whether the header holds the chunk table (random access possible).
  bool AccesDirect() const { return !morceaux_.empty() || longueurMorceau_ != 0; }
  // The whole uncompressed content, its checksum and length verified.
  std::string LireTout() const;
  // `longueur` bytes from `debut` of the uncompressed content, decompressing only the chunks
  // that hold them; without the table, read from the whole. Past the end is an error.
  std::string Lire(std::uint64_t debut, std::uint64_t longueur) const;
  // Uncompressed size, known from the table (or from the gzip trailer, modulo 2^32).
  std::uint64_t Taille() const { return taille_; }

 private:
  [[noreturn]] void Echec(const std::string& probleme) const;

  std::filesystem::path chemin_;
  std::string nom_;
  std::string octets_;  // the compressed file
  std::size_t debutDonnees_ = 0;
  std::size_t longueurMorceau_ = 0;
  std::vector<std::uint32_t> morceaux_;  // compressed size of each chunk
  std::vector<std::uint64_t> positions_;  // offset of each chunk in octets_
  std::uint64_t taille_ = 0;
};

// The data file of a dictionary, plain or gzip/dictzip, read forward once: ranges are asked in
// order of their start (several may overlap), and only the window from the last start on is
// kept, so that a large dictionary is never held whole, compressed or not.
class LecteurSequentiel {
 public:
  explicit LecteurSequentiel(const std::filesystem::path& chemin);
  ~LecteurSequentiel();
  LecteurSequentiel(const LecteurSequentiel&) = delete;
  LecteurSequentiel& operator=(const LecteurSequentiel&) = delete;

  // The bytes [debut, debut + longueur), valid until the next call; false when they go past
  // the end of the data. `debut` never goes back (std::logic_error). Damaged or truncated
  // compressed data is an ErreurImport naming the file.
  bool Lire(std::uint64_t debut, std::uint64_t longueur, std::string_view& octets);
  // Reads what is left up to the end, so that a file cut or damaged after the last range
  // asked for is found too (gzip's checksum and length are checked only there).
  void Finir();

 private:
  bool Produire();  // appends decompressed bytes to fenetre_; false at the end
  [[noreturn]] void Echec(const std::string& probleme) const;

  std::string nom_;
  std::FILE* f_ = nullptr;
  bool gzip_ = false, fin_ = false;
  struct Flux;
  Flux* z_ = nullptr;
  std::string entree_;   // compressed bytes read, not yet taken
  std::string fenetre_;  // decompressed bytes from base_ on
  std::uint64_t base_ = 0;
};

// Whether the file starts as gzip does.
bool EstGzip(const std::filesystem::path& chemin);

// Compresses `donnees` as dictzip does: chunks of kMorceauDictzip bytes, each ending on a
// full flush, their sizes in the header. `nom` goes in the header's name field when not empty.
// The table holds at most 32,761 chunks (1.9 GB): beyond, std::length_error.
std::string CompresseDictzip(std::string_view donnees, std::string_view nom = {},
                             std::size_t morceau = kMorceauDictzip);
// The same, straight into a file being written (data/safe_write.h).
void EcrireDictzip(EcritureSure& sortie, std::string_view donnees, std::string_view nom = {},
                   std::size_t morceau = kMorceauDictzip);

}  // namespace lex::exchange
