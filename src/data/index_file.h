// Index and letter files: built from the dictionary in one pass, read back on opening so that
// a large dictionary is not scanned at every start.
//
// Index file: fixed 144-byte records (70-character index line, 70-character key, both padded
// with blanks and cut at 70; a little-endian signed 32-bit value). Record 1 holds the version
// "1.20" and the article count, record 2 the dictionary's length at indexing time, record
// k + 2 article k with the offset of its index line.
// Letter file: 26 x 27 x 27 article numbers, one per line, for every one- to three-letter
// beginning of a key (A..Z, then @ or A..Z, then @ or A..Z, @ meaning no letter).
#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "data/index_table.h"

namespace lex {

inline constexpr std::size_t kTailleEnreg = 144;
inline constexpr std::size_t kTailleChamp = 70;
inline constexpr const char* kVersionIndex = "1.20";

class TableLettre {
 public:
  TableLettre() { valeurs_.fill(1); }
  // Letters are 'A'..'Z' for the first, '@'..'Z' for the other two.
  std::int32_t& operator()(char l1, char l2, char l3) { return valeurs_[Rang(l1, l2, l3)]; }
  std::int32_t operator()(char l1, char l2, char l3) const { return valeurs_[Rang(l1, l2, l3)]; }
  static constexpr std::size_t kTaille = 26 * 27 * 27;
  std::array<std::int32_t, kTaille>& valeurs() { return valeurs_; }
  const std::array<std::int32_t, kTaille>& valeurs() const { return valeurs_; }

 private:
  static std::size_t Rang(char l1, char l2, char l3) {
    return static_cast<std::size_t>(l1 - 'A') * 729 + static_cast<std::size_t>(l2 - '@') * 27 +
           static_cast<std::size_t>(l3 - '@');
  }
  std::array<std::int32_t, kTaille> valeurs_;
};

struct FichiersIndex {
  std::string dictio;
  std::string index;
  std::string lettre;
};

// Scans the dictionary, writes the index file (and the letter file when `ordreAlpha`), and
// fills the table with the whole index lines and keys. `bip` is the progress signal.
void ConstruireIndex(const FichiersIndex& f, bool ordreAlpha, IndexTable& table, TableLettre& lettres,
                     const std::function<void()>& bip);

// Fills the letter table from the keys of the table (file order).
void RemplirTableLettre(const IndexTable& table, TableLettre& lettres, int& compteurBip,
                        const std::function<void()>& bip);

enum class EtatIndex {
  Charge,      // the table and the letter table were loaded
  Version,     // another version: rebuild without a word
  Perime,      // stale, truncated or inconsistent: rebuild, saying so
};

// Reads an existing index file and its letter file into memory when they are current for a
// dictionary of `tailleDictio` bytes; the table is left empty otherwise.
EtatIndex LireIndex(const FichiersIndex& f, std::int64_t tailleDictio, IndexTable& table, TableLettre& lettres);

// The version field of record 1, blanks trimmed ("" when the file cannot be read).
std::string VersionIndex(std::string_view fichierIndex);

}  // namespace lex
