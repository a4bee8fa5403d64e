// Finding an entry of the shown list from a folded beginning of index.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace lex {

struct Form;

struct Trouve {
  std::int32_t numero = 1;  // 1 when nothing shared a character
  bool exact = false;
};

// The entry whose key equals `plie`, or else the first one sharing the longest beginning with
// it. In a dictionary kept in alphabetical order the scan starts from the letter table and
// stops once the keys have passed `plie` for good.
Trouve MeilleureEntree(const Form& f, std::string_view plie);
// The first entry whose key begins with `prefixe`, or 0.
std::int32_t PremierCommencantPar(const Form& f, std::string_view prefixe);
// In a list of dictionaries: the row of the typed call letter, else of the typed name.
void PositionCatalogue(Form& f);
// The word at (or just before) 0-based `position`: letters, accented ones included.
std::string MotSousCurseur(const std::string& texte, std::size_t position);

}  // namespace lex
