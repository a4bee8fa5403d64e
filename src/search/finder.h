// Finding a fixed string in large buffers of dictionary text, in capitals or as it stands,
// without copying or converting the text first.
#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lex {

class Chercheur {
 public:
  // With `majuscules`, every byte of the text is compared in Windows-1252 capitals, so `motif`
  // must already be in capitals.
  Chercheur(std::string_view motif, bool majuscules);

  std::size_t taille() const { return motif_.size(); }
  // A byte of the text as it is compared.
  unsigned char Vu(char c) const { return table_[static_cast<unsigned char>(c)]; }
  // The first occurrence lying wholly in [debut, fin), or nullptr. An empty pattern is never found.
  const char* Premier(const char* debut, const char* fin) const;

 private:
  std::string motif_;
  std::array<unsigned char, 256> table_{};
  // The pattern's rarest byte in dictionary text, its place in the pattern, and the bytes of
  // the text that compare equal to it (two for a letter in capitals).
  std::size_t rare_ = 0;
  std::array<char, 2> formes_{};
  int nombreFormes_ = 0;
};

}  // namespace lex
