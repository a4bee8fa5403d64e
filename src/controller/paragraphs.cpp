#include "controller/paragraphs.h"

#include <cstdint>
#include <string>

#include "base/error.h"
#include "controller/form.h"
#include "controller/limits.h"
#include "controller/line_helpers.h"

namespace lex {
namespace {

// An article ends with "\r\n": that ends its last line and begins no empty one to stop on.
std::int32_t LignesDuTexte(const std::string& texte) {
  const std::int32_t n = numeroTxt(texte, texte.size());
  return n > 1 && texte.ends_with("\r\n") ? n - 1 : n;
}

}  // namespace

void ParagrapheSuivant(Form& f) {
  ErrorTrap trap(" sur ParagrapheSuivant");
  const std::string texte = TexteChamp(f);
  const std::int32_t n = numeroTxt(texte, CurseurChamp(f));
  if (n >= LignesDuTexte(texte)) AuBord(f, Bord::Fin, true);
  else SurNumero(f, texte, n + 1);
}

void ParagraphePrecedent(Form& f) {
  ErrorTrap trap(" sur ParagraphePrecedent");
  const std::string texte = TexteChamp(f);
  const std::int32_t n = numeroTxt(texte, CurseurChamp(f));
  if (n <= 1) AuBord(f, Bord::Debut, true);
  else SurNumero(f, texte, n - 1);
}

}  // namespace lex
