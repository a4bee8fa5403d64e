#include "base/numbers.h"

#include <limits>

namespace lex {

std::int32_t Val(std::string_view t) {
  std::size_t i = 0;
  while (i < t.size() && (t[i] == ' ' || t[i] == '\t')) ++i;
  bool negatif = false;
  if (i < t.size() && (t[i] == '-' || t[i] == '+')) negatif = t[i++] == '-';
  std::int64_t v = 0;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') {
    v = v * 10 + (t[i++] - '0');
    if (v > std::numeric_limits<std::int32_t>::max()) v = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  }
  if (negatif) v = -v;
  if (v > std::numeric_limits<std::int32_t>::max()) v = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(v);
}

std::string NombreImprime(std::int64_t n) {
  std::string s = std::to_string(n);
  if (n >= 0) s.insert(s.begin(), ' ');
  return s;
}

}  // namespace lex
