#include "data/dictionary_file.h"

#include "data/files.h"
#include "base/error.h"

namespace lex {
namespace {

bool RetireFinDeLigne(std::string& s) {
  if (s.size() >= 2 && s.compare(s.size() - 2, 2, "\r\n") == 0) {
    s.resize(s.size() - 2);
    return true;
  }
  if (!s.empty() && s.back() == '\n') {
    s.pop_back();
    return true;
  }
  return false;
}

}  // namespace

std::string DecoupeArticle(std::string s, bool derniere) {
  if (!derniere) RetireFinDeLigne(s);
  RetireFinDeLigne(s);
  if (s.find('\n') == std::string::npos) return s;
  std::string out;
  out.reserve(s.size() + 16);
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '\n' && (i == 0 || s[i - 1] != '\r')) out += '\r';
    out += s[i];
  }
  return out;
}

std::string LireArticle(std::string_view fichier, const Etendue& e) {
  if (e.fin < e.debut) Erreur(5);
  return DecoupeArticle(LireOctets(fichier, e.debut, e.fin - e.debut), e.derniere);
}

}  // namespace lex
