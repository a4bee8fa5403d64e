// Selected and added entries, kept per dictionary for the whole run.
#pragma once
#include <cstdint>
#include <map>
#include <set>
#include <vector>

namespace lex {

struct Selections {
  // Keyed by catalogue entry; the numbers are the dictionary's own entry numbers, in the
  // order they were selected (added).
  std::map<int, std::vector<std::int32_t>> TableSelection;
  std::map<int, std::vector<std::int32_t>> TableAjout;
  // Dictionaries whose number files were exported this run: saving keeps them.
  std::set<int> GardeNumeros;
};

}  // namespace lex
