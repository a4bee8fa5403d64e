// Opening what the user chose in a list of the catalogue: a dictionary, the history list or
// the notepad.
#pragma once
#include <cstdint>
#include <string>

#include "catalogue/opening.h"

namespace lex {

struct Form;

// Opens the row under the caret (in a list of the catalogue only).
void AppelDictionnaire(Form& f);
// The row under the caret (line - 2), or 0 on the title and blank lines.
int RangSousCurseur(const Form& f);
// What opening a dictionary tells the user on the way, through the window.
AvisOuverture AvisDe(Form& f);
// Opens `nomfic`, the file of the current dictionary, and shows its index on `entree`.
void OuvreEtMontre(Form& f, const std::string& nomfic, std::int32_t entree);

}  // namespace lex
