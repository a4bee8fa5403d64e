// The choice of the dictionary to compare the open one with: where the user was, to come
// back there, and the reports' parts as the controller hands them over.
#pragma once
#include <cstdint>

namespace lex {

struct Form;
struct PartiesRapports;

// The place of the page the choice was asked from, in the dictionary's own numbers: the
// first entry of the page and the entry the user was on.
struct PlaceAvantChoix {
  std::int32_t premier = 1;
  std::int32_t numero = 1;
};

PartiesRapports PartiesRapportsDe(Form& f);
// Enter or "OK" in the choice: the comparison with the dictionary on the caret's row.
void ValideChoixComparaison(Form& f);
// Escape or "Annuler" in the choice: the page the choice was asked from, as it was.
void AbandonneChoixComparaison(Form& f);

}  // namespace lex
