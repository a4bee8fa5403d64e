// A write that could not be made. It stays a LexError, so a procedure's trap reports it as
// any run-time error; code that can recover (a save, an export) catches it instead, tells the
// user which file and why, and goes on: the file that was to be replaced is still the old one.
#pragma once
#include <string>

#include "base/error.h"

namespace lex {

class ErreurEcriture : public LexError {
 public:
  // `numero` is the classic error: 61 disk full, 70 permission refused, 76 path not found...
  ErreurEcriture(int numero, std::string fichier);
  // The file that was to be written, as core text.
  const std::string& fichier() const { return fichier_; }

 private:
  std::string fichier_;
};

// The sentence for a message box (Windows-1252), naming the file and the reason:
// "Impossible d'écrire le fichier C:\lex\lex.eng : disque plein".
std::string MessageErreurEcriture(const ErreurEcriture& e);

}  // namespace lex
