// Reading a text line by line: the field wraps a long line over several lines of the screen,
// and the arrows move by those, so Ctrl+Up and Ctrl+Down give each line of the text whole.
#pragma once
#include "view/mode.h"

namespace lex {

struct Form;

// The modes whose text is read line by line with Ctrl+Up and Ctrl+Down.
inline bool LectureParParagraphes(Mode m) { return m == Mode::Article || SaisieArticle(m); }

// Caret to the start of the next line of the shown field, that line announced whole; on the
// last line a beep and "fin de l'article", the caret left where it is.
void ParagrapheSuivant(Form& f);
// The same backwards; on the first line a beep and "début de l'article".
void ParagraphePrecedent(Form& f);

}  // namespace lex
