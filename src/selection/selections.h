// Selected and added entries, kept per dictionary for the whole run.
#pragma once
#include <cstdint>
#include <map>
#include <vector>

namespace lex {

struct Selections {
  // Keyed by catalogue entry; the numbers are the dictionary's own entry numbers.
  std::map<int, std::vector<std::int32_t>> TableSelection;
  std::map<int, std::vector<std::int32_t>> TableAjout;
};

}  // namespace lex
