// Copying a few bytes in fixed-size pieces: a copy of a short length that the compiler knows
// to be bounded is inlined as "rep movs", and a call to memcpy for a few bytes costs more
// than the copy itself.
#pragma once
#include <cstddef>
#include <cstring>

namespace lex {

inline void CopieCourte(char* d, const char* s, std::size_t n) {
  for (; n >= 16; n -= 16, d += 16, s += 16) std::memcpy(d, s, 16);
  if (n & 8) {
    std::memcpy(d, s, 8);
    d += 8;
    s += 8;
  }
  if (n & 4) {
    std::memcpy(d, s, 4);
    d += 4;
    s += 4;
  }
  if (n & 2) {
    std::memcpy(d, s, 2);
    d += 2;
    s += 2;
  }
  if (n & 1) *d = *s;
}

}  // namespace lex
