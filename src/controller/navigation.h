// Moving in the index: lines, 40-line pages, start and end, typed beginnings, following a word
// of an article to its own entry and coming back.
#pragma once
#include <cstdint>

namespace lex {

struct Form;

// Each returns true when it handled the key itself (the field must not move its caret too).
bool FlecheHaut(Form& f);
bool FlecheBas(Form& f);
bool Indexprecedent(Form& f);
bool Indexsuivant(Form& f);
bool AppelDebutIndex(Form& f);
bool AppelFinIndex(Form& f);

void BakSpaceIndex(Form& f);
void SuiteIndex(Form& f);
void RetourSuiteIndex(Form& f);
void parlerIndex(Form& f);

// A typed character: in a list of dictionaries a call letter of its own, in the index one
// more letter of the typed beginning; then the place it leads to.
void TapeCaractere(Form& f, char c);
// Places the page on the typed beginning (DebutIndexCherche), or the list of dictionaries on
// the typed call letter or name.
void PositionIndex(Form& f);
// Page on entry `numero` of the shown list, caret on its line, line announced.
void MontreEntree(Form& f, std::int32_t numero);

}  // namespace lex
