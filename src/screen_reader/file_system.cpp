#include "screen_reader/file_system.h"

#include "data/files.h"

namespace lex {

std::string Joindre(std::string_view dossier, std::string_view nom) {
  std::string s(dossier);
  if (s.empty()) return std::string(nom);
  if (s.back() != '\\' && s.back() != '/') {
    const auto p = s.find_last_of("\\/");
    s += p == std::string::npos ? kSeparateur : s[p];
  }
  return s + std::string(nom);
}

}  // namespace lex
