#include "data/typed_article.h"

#include "data/files.h"

namespace lex {

std::vector<std::string> LignesSaisies(std::string_view texte) {
  std::vector<std::string> lignes;
  for (std::string& l : DecoupeLignes(texte)) {
    while (!l.empty() && l.back() == ' ') l.pop_back();
    if (l.empty() && lignes.empty()) return {};
    if (!l.empty()) lignes.push_back(std::move(l));
  }
  return lignes;
}

}  // namespace lex
