#include "app/headless/text_field.h"

#include <algorithm>

#include "view/keys.h"

namespace lex::headless {

void TextField::SetText(std::string t) {
  text_ = std::move(t);
  remplace = false;
  caret_ = 0;
  length_ = 0;
}

void TextField::SetCaret(std::size_t p) {
  caret_ = std::min(p, text_.size());
  if (caret_ > 0 && caret_ < text_.size() && text_[caret_ - 1] == '\r' && text_[caret_] == '\n') --caret_;
  length_ = 0;
}

// Only CR LF ends a line, as the program counts lines: a lone LF is a character of its line.
bool TextField::FinDeLigneAvant(std::size_t p) const { return p >= 2 && text_[p - 2] == '\r' && text_[p - 1] == '\n'; }

std::size_t TextField::LineStart(std::size_t p) const {
  while (p > 0 && !FinDeLigneAvant(p)) --p;
  return p;
}

std::size_t TextField::LineEnd(std::size_t p) const {
  std::size_t e = text_.find("\r\n", p);
  return e == std::string::npos ? text_.size() : e;
}

std::size_t TextField::Line() const {
  std::size_t n = 1;
  for (std::size_t p = text_.find("\r\n"); p != std::string::npos && p + 2 <= caret_; p = text_.find("\r\n", p + 2)) ++n;
  return n;
}

std::size_t TextField::Column() const { return caret_ - LineStart(caret_) + 1; }

std::string TextField::CurrentLine() const {
  const std::size_t s = LineStart(caret_);
  return text_.substr(s, LineEnd(s) - s);
}

void TextField::GoTo(std::size_t line, std::size_t column) {
  std::size_t p = 0;
  for (std::size_t l = 1; l < line; ++l) {
    std::size_t e = text_.find("\r\n", p);
    if (e == std::string::npos) break;
    p = e + 2;
  }
  SetCaret(std::min(p + (column > 0 ? column - 1 : 0), LineEnd(p)));
}

void TextField::MoveLines(long delta) {
  const std::size_t colonne = caret_ - LineStart(caret_);
  std::size_t s = LineStart(caret_);
  for (; delta < 0 && s > 0; ++delta) s = LineStart(s - 2);
  for (; delta > 0; --delta) {
    std::size_t e = LineEnd(s);
    if (e >= text_.size()) break;
    s = e + 2;
  }
  SetCaret(std::min(s + colonne, LineEnd(s)));
}

void TextField::Insert(const std::string& s) {
  if (!editable) return;
  text_.erase(caret_, length_);
  text_.insert(caret_, s);
  SetCaret(caret_ + s.size());
}

void TextField::Key(int code, int shift, char ch) {
  const bool ctrl = (shift & kCtrl) != 0;
  switch (code) {
    case Touche::Gauche:
      if (caret_ > 0) SetCaret(caret_ >= 2 && text_.compare(caret_ - 2, 2, "\r\n") == 0 ? caret_ - 2 : caret_ - 1);
      return;
    case Touche::Droite:
      if (caret_ < text_.size()) SetCaret(text_.compare(caret_, 2, "\r\n") == 0 ? caret_ + 2 : caret_ + 1);
      return;
    // As in a GTK text view, an arrow with no line to go to goes to the start or the end of
    // the line it is on.
    case Touche::Haut:
      if (LineStart(caret_) == 0) SetCaret(0);
      else MoveLines(-1);
      return;
    case Touche::Bas:
      if (LineEnd(caret_) >= text_.size()) SetCaret(text_.size());
      else MoveLines(1);
      return;
    case Touche::PagePrec: MoveLines(-lignesPage); return;
    case Touche::PageSuiv: MoveLines(lignesPage); return;
    case Touche::Debut: SetCaret(ctrl ? 0 : LineStart(caret_)); return;
    case Touche::Fin: SetCaret(ctrl ? text_.size() : LineEnd(caret_)); return;
    case Touche::Suppr:
      if (editable && caret_ < text_.size()) {
        text_.erase(caret_, text_.compare(caret_, 2, "\r\n") == 0 ? 2 : 1);
        length_ = 0;
      }
      return;
    default: break;
  }
  if (ctrl || ch == 0) return;
  if (ch == 8) {
    if (editable && caret_ > 0) {
      const std::size_t n = caret_ >= 2 && text_.compare(caret_ - 2, 2, "\r\n") == 0 ? 2 : 1;
      text_.erase(caret_ - n, n);
      SetCaret(caret_ - n);
    }
  } else if (ch == 13) {
    Insert("\r\n");
  } else if (static_cast<unsigned char>(ch) >= 32) {
    Insert(std::string(1, ch));
  }
}

}  // namespace lex::headless
