// Bringing the UTF-8 text of outside dictionaries to Windows-1252, the program's own text.
//
// A character that Windows-1252 holds is kept. Any other becomes its nearest Windows-1252
// form: its Unicode compatibility decomposition with the combining marks dropped ("ő" -> "o",
// "ﬁ" -> "fi"), or a small table for what has no decomposition (typographic dashes and
// spaces, the phonetic alphabet of pronunciations, box drawing, a few Greek and mathematical
// signs), and "?" when nothing fits. Every change is counted and the first few kept as
// examples, so that the user learns what the conversion did to the text.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lex::exchange {

class ReplieurAnsi {
 public:
  // How many examples are kept.
  static constexpr std::size_t kExemples = 5;

  ReplieurAnsi();

  // Appends the Windows-1252 form of `utf8` to `dest`. Bytes that are not UTF-8 are taken as
  // Windows-1252 already (a stray accented byte in an otherwise UTF-8 file) and not counted.
  void Replie(std::string_view utf8, std::string& dest);
  std::string Replie(std::string_view utf8) {
    std::string s;
    Replie(utf8, s);
    return s;
  }

  // Characters that were not kept as they were.
  std::size_t Changes() const { return changes_; }
  // The first different changes, "ő→o" in UTF-8 ("→?" when nothing fitted).
  const std::vector<std::string>& Exemples() const { return exemples_; }

 private:
  void Change(std::u32string_view avant, std::string_view apres);

  std::size_t changes_ = 0;
  std::vector<std::string> exemples_;
  std::vector<std::int32_t> composee_;  // reused: the code points of a line to compose
};

}  // namespace lex::exchange
