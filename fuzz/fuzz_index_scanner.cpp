// The index scanner against a plain line-by-line reading of the same bytes, with block and
// reserve sizes chosen by the input so that every boundary case is reached: the index lines
// and their offsets must be the same.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "data/index_scanner.h"

namespace {

using Lignes = std::vector<std::pair<std::string, std::int64_t>>;

// The first non-empty line of the file and after each empty line, CR before LF not counted.
Lignes Reference(const std::string& s) {
  Lignes r;
  bool index = true;
  for (std::size_t p = 0; p < s.size();) {
    const std::size_t nl = s.find('\n', p);
    const std::size_t fin = nl == std::string::npos ? s.size() : nl;
    std::size_t l = fin - p;
    if (nl != std::string::npos && l > 0 && s[fin - 1] == '\r') --l;
    if (l == 0) {
      index = true;
    } else if (index) {
      r.emplace_back(s.substr(p, l), static_cast<std::int64_t>(p));
      index = false;
    }
    p = nl == std::string::npos ? s.size() : nl + 1;
  }
  return r;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  std::string texte(reinterpret_cast<const char*>(data) + 2, size - 2);
  // From one block to 16 of them (each block read is a task of its own: no more).
  const std::size_t bloc = std::max<std::size_t>(1, texte.size() / (1 + data[0] % 16));
  const std::size_t reserve = 1 + data[1] % 32;
  Lignes lues;
  if (!texte.empty()) {
    std::FILE* f = ::fmemopen(texte.data(), texte.size(), "rb");
    if (!f) std::abort();
    {
      lex::LecteurIndex l(f, bloc, reserve);
      std::string_view ligne;
      std::int64_t offset = 0;
      while (l.Suivante(ligne, offset)) lues.emplace_back(std::string(ligne), offset);
    }
    std::fclose(f);
  }
  if (lues != Reference(texte)) std::abort();
  return 0;
}
