// Index and letter files: built from the dictionary in one pass, read back on opening so that
// a large dictionary is not scanned at every start.
//
// Index file: fixed 144-byte records (70-character index line, 70-character key, both padded
// with blanks and cut at 70; a little-endian signed 32-bit value). Record 1 holds the version
// "1.20" and the article count, record 2 the dictionary's length at indexing time, record
// k + 2 article k with the offset of its index line. The key fields of records 1 and 2 mean
// nothing to other readers: record 1's holds the last key written, record 2's the
// dictionary's modification time ("T" and a number), which says whether the index is current.
// The letter file is data/letter_file.h's.
#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "data/index_table.h"
#include "data/letter_file.h"

namespace lex {

inline constexpr std::size_t kTailleEnreg = 144;
inline constexpr std::size_t kTailleChamp = 70;
inline constexpr const char* kVersionIndex = "1.20";

struct FichiersIndex {
  std::string dictio;
  std::string index;
  std::string lettre;
};

// Scans the dictionary, writes the index file (and the letter file when `ordreAlpha`), and
// fills the table with the whole index lines and keys. `bip` is the progress signal. Both
// files go through safe writes: a failure (ErreurEcriture) leaves the old ones, and the
// letter file is replaced before the index file, so that an index found current never
// stands beside a letter file of another dictionary.
void ConstruireIndex(const FichiersIndex& f, bool ordreAlpha, IndexTable& table, TableLettre& lettres,
                     const std::function<void()>& bip);

// The same tables without writing any file: what a dictionary opens from when its index
// cannot be written.
void ConstruireTables(std::string_view dictio, IndexTable& table, TableLettre& lettres,
                      const std::function<void()>& bip);

// Fills the letter table from the keys of the table (file order).
void RemplirTableLettre(const IndexTable& table, TableLettre& lettres, int& compteurBip,
                        const std::function<void()>& bip);

// What an index records of its dictionary, to tell whether it still describes it.
struct EtatDictio {
  std::int64_t taille = -1;  // in bytes; -1 when the file cannot be read
  std::int64_t date = 0;     // modification time, in ticks of the file system's clock
  bool operator==(const EtatDictio&) const = default;
};
EtatDictio LireEtatDictio(std::string_view nom);

enum class EtatIndex {
  Charge,      // the table and the letter table were loaded
  Version,     // another version: rebuild without a word
  Perime,      // stale, truncated or inconsistent: rebuild, saying so
};

// Reads an existing index file and its letter file into memory when they are current for
// the dictionary `f.dictio`: its length and its modification time must both be those the
// index recorded, so that a dictionary changed to the same length is indexed again. The
// table is left empty otherwise. An index written before the time was recorded is stale.
EtatIndex LireIndex(const FichiersIndex& f, IndexTable& table, TableLettre& lettres);
// Earlier form, kept while callers move to the one above: `tailleDictio` is the length the
// caller measured (as before); the modification time is now read from `f.dictio` and
// checked as well.
EtatIndex LireIndex(const FichiersIndex& f, std::int64_t tailleDictio, IndexTable& table, TableLettre& lettres);

// Whether the index file of `f` is of this version, holds `nombre` articles, and was made
// for the dictionary in the state `dictio`: what updating it in place of a rebuild needs.
bool IndexCourant(const FichiersIndex& f, const EtatDictio& dictio, std::int32_t nombre);

// The version field of record 1, blanks trimmed ("" when the file cannot be read).
std::string VersionIndex(std::string_view fichierIndex);

// Whether the file has the shape of an index file of this program, of any version: whole
// records, a version mark (digits and dots) in record 1, a blank index field in record 2,
// and as many records as record 1 counts articles. A user's file of that name is never
// taken for one. Reads two records.
bool EstFichierIndex(std::string_view nom);

}  // namespace lex
