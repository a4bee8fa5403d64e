// An in-memory multi-line edit control: what a plain edit field does with the keys the
// program leaves to it. Text is Windows-1252 with "\r\n" line ends; the caret never sits
// between CR and LF.
#pragma once
#include <cstddef>
#include <string>

#include "view/window.h"

namespace lex::headless {

class TextField {
 public:
  void SetText(std::string t);
  const std::string& Text() const { return text_; }
  void SetCaret(std::size_t p);
  std::size_t Caret() const { return caret_; }
  std::size_t Length() const { return length_; }
  void SetSelectionLength(std::size_t n) { length_ = n; }
  bool editable = true;
  // A character typed that Windows-1252 cannot hold was stored as "?".
  bool remplace = false;
  // Lines that Page Up and Page Down move by: the lines the field shows.
  long lignesPage = kLignesVisibles;

  // Line and column of the caret, from 1.
  std::size_t Line() const;
  std::size_t Column() const;
  void GoTo(std::size_t line, std::size_t column);
  std::string CurrentLine() const;

  // A key the program did not use: code is the virtual key code, shift the modifier bits,
  // ch the character the key produces (0 for none).
  void Key(int code, int shift, char ch);

 private:
  bool FinDeLigneAvant(std::size_t p) const;
  std::size_t LineStart(std::size_t p) const;
  std::size_t LineEnd(std::size_t p) const;
  void MoveLines(long delta);
  void Insert(const std::string& s);

  std::string text_;
  std::size_t caret_ = 0;
  std::size_t length_ = 0;
};

}  // namespace lex::headless
