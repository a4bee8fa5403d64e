// Keys at a limit: where nothing can move, the user hears where they are instead of nothing.
#pragma once

namespace lex {

struct Form;

enum class Bord {
  Debut,       // the start of what the user is in: "début du dictionnaire", "début de la liste"...
  Fin,         // its end: "fin de l'article", "fin du guide"...
  HautDePage,  // the top line of a page, with a page before it
  BasDePage,   // the bottom line of a page, with a page after it
  DebutLigne,  // the start of the caret's line
  FinLigne,    // its end
};

// Says the limit `b` of what the user is in, after a beep when `bip`.
void AuBord(Form& f, Bord b, bool bip = false);

// A key the field moves its caret for by itself (arrows, Page Up and Page Down outside the
// pages, Home and End): when the caret cannot move, the limit is said and true returned, the
// key used; otherwise false, the key left to the field. The pages of the index, of a result
// list and of the notepad turn their own way (navigation.h): only the line's ends are said
// there.
bool ToucheAuBord(Form& f, int code, int shift);

}  // namespace lex
