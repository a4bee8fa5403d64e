// The screen font, the guide and the about text. The guide and the about text take the place
// of the index field's text, where they are read line by line; from the menu, OK or Escape
// brings the list of dictionaries back (F1 gives the guide over what the user is doing:
// controller/place.h).
#pragma once
#include <string>

namespace lex {

struct Form;
struct Reglages;
struct Police;

// The screen font the settings name (size 10 when theirs is out of reach).
Police PoliceReglee(const Reglages& r);

void mnuPoliceEcran_Click(Form& f);
// The guide's text, "aide.txt" of the program folder.
std::string TexteGuide(const Form& f);
void mnuAideTxt_Click(Form& f);
void mnuApropos_Click(Form& f);

}  // namespace lex
