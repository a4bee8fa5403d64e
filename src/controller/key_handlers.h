// The four key handlers the window calls for every key reaching the index field (txt) or the
// rich text pane (Rtb). Each returns true when the key was used and must not reach the field.
#pragma once

namespace lex {

struct Form;

bool txt_KeyDown(Form& f, int code, int shift);
bool txt_KeyPress(Form& f, char caractere);
bool Rtb_KeyDown(Form& f, int code, int shift);
bool Rtb_KeyPress(Form& f, char caractere);

}  // namespace lex
