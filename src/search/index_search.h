// Searches in the index lines rather than in the definitions: the jump to a beginning of
// index, and a string anywhere in the index lines, forwards and backwards.
#pragma once

namespace lex {

struct Form;

void mnuRechercheindex(Form& f);
void mnuRechercheDansIndex(Form& f);
void RechercheDansIndexAvant(Form& f);
void RechercheDansIndexArriere(Form& f);

}  // namespace lex
