#include "data/write_error.h"

#include <utility>

#include "data/files.h"

namespace lex {

ErreurEcriture::ErreurEcriture(int numero, std::string fichier) : LexError(numero), fichier_(std::move(fichier)) {}

std::string MessageErreurEcriture(const ErreurEcriture& e) {
  // The reason follows a colon inside the sentence: the error's own text, lower-cased first.
  std::string raison = LexError::Texte(e.numero());
  if (!raison.empty() && raison[0] >= 'A' && raison[0] <= 'Z') raison[0] = static_cast<char>(raison[0] - 'A' + 'a');
  return "Impossible d'\xE9" "crire le fichier " + CheminAffiche(e.fichier()) + " : " + raison;
}

}  // namespace lex
