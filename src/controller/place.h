// Where the user is in the open dictionary, kept when they leave it by any way so that it
// reopens there; and the guide opened with F1 over whatever the user was doing, which gives
// way to it again exactly as it was.
#pragma once
#include <cstdint>

namespace lex {

struct Form;

// The dictionary's own entry the user is on, whatever they are doing over the open
// dictionary: the index line under the caret, the entry behind a result list's line, the
// article being read, and while an article is typed, the notepad or the guide is over it, the
// entry they were on before. 0 when no dictionary is open or it has no entry.
std::int32_t EntreeDuDictionnaire(const Form& f);
// That entry kept as the open dictionary's position, which it reopens on (and which the
// configuration keeps from one run to the next).
void GardePosition(Form& f);

// The notepad is being edited, shown or under the guide.
bool BlocNoteEnCours(const Form& f);

// F1: the guide over what the user is doing, Escape or "OK" bringing it back.
void ToucheAide(Form& f);
// Escape or "OK" in a guide that F1 opened: back to the screen it covered, caret where it
// was, that line announced. False when the guide came from the menu.
bool RetourDuGuide(Form& f);

}  // namespace lex
