// Finding an entry of a list from a folded beginning of index.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "data/open_dictionary.h"

namespace lex {

struct Trouve {
  std::int32_t numero = 1;  // 1 when nothing shared a character
  bool exact = false;
};

// The entry whose key equals `plie`, or else the first one sharing the longest beginning with
// it. In a dictionary kept in alphabetical order the scan starts from the letter table and
// stops once the keys have passed `plie` for good.
Trouve MeilleureEntree(const ListeAffichee& liste, std::string_view plie);
// The first entry whose key begins with `prefixe`, or 0.
std::int32_t PremierCommencantPar(const ListeAffichee& liste, std::string_view prefixe);
// The word at (or just before) 0-based `position`: letters, accented ones included.
std::string MotSousCurseur(const std::string& texte, std::size_t position);

}  // namespace lex
