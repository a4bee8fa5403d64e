#include "exchange/article.h"

#include <utility>

namespace lex::exchange {

namespace {

std::string Phrase(const std::string& fichier, const std::string& endroit, const std::string& probleme) {
  std::string s = fichier;
  if (!endroit.empty()) s += ", " + endroit;
  return s + " : " + probleme;
}

}  // namespace

ErreurImport::ErreurImport(std::string fichier, std::string endroit, std::string probleme)
    : std::runtime_error(Phrase(fichier, endroit, probleme)),
      fichier_(std::move(fichier)),
      endroit_(std::move(endroit)),
      probleme_(std::move(probleme)) {}

}  // namespace lex::exchange
