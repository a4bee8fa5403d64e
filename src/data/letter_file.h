// The letter file: 26 x 27 x 27 article numbers, one per line, for every one- to three-letter
// beginning of a key (A..Z, then @ or A..Z, then @ or A..Z, @ meaning no letter), each
// written with a leading blank when not negative and ended by CR LF.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lex {

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

// The file's bytes for a table.
std::string TexteLettres(const TableLettre& lettres);
// Writes the letter file (a rebuildable file: data/safe_write.h).
void EcrireFichierLettre(std::string_view nom, const TableLettre& lettres);

// The most a letter file worth reading can hold: a longer one is not read at all.
inline constexpr std::int64_t kLongueurMaxLettre = std::int64_t{TableLettre::kTaille} * 64;

// Reads the numbers back, each with the lenient numeric read, into `lettres`; false, with
// `lettres` untouched, when the file is missing, has fewer lines than the table or is longer
// than kLongueurMaxLettre (then it is not a letter file, and the index is rebuilt). Lines
// after the table's are not read.
bool LireFichierLettre(std::string_view nom, TableLettre& lettres);
// The same from the file's bytes.
bool LireTexteLettres(std::string_view texte, TableLettre& lettres);

// Whether the file has exactly the letter file's shape: kTaille lines, each one integer
// with blanks around it at most. A user's text file of that name is never taken for one.
bool EstFichierLettre(std::string_view nom);
bool EstTexteLettres(std::string_view texte);

}  // namespace lex
