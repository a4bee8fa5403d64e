// The lenient number reading against a reference made the long way, and the round trip of
// the numbers the program prints.
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

#include "base/numbers.h"

namespace {

// Blanks and tabs, a sign, digits; the value held at the 32-bit bounds.
std::int32_t Reference(std::string_view t) {
  std::size_t i = 0;
  while (i < t.size() && (t[i] == ' ' || t[i] == '\t')) ++i;
  bool negatif = false;
  if (i < t.size() && (t[i] == '-' || t[i] == '+')) negatif = t[i++] == '-';
  long double v = 0;
  for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i) v = std::min(v * 10 + (t[i] - '0'), 1e12L);
  if (negatif) v = -v;
  v = std::max<long double>(v, std::numeric_limits<std::int32_t>::min());
  v = std::min<long double>(v, std::numeric_limits<std::int32_t>::max());
  return static_cast<std::int32_t>(v);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view texte(reinterpret_cast<const char*>(data), size);
  if (lex::Val(texte) != Reference(texte)) std::abort();
  if (size >= 4) {
    std::int32_t n;
    std::memcpy(&n, data, 4);
    if (lex::Val(lex::NombreImprime(n)) != n) std::abort();
  }
  return 0;
}
