// What every dictionary file made by import must be, checked on its bytes: CR LF after every
// line and nowhere else, no NUL, one empty line between two articles and none at either end,
// index lines neither blank nor too long, in the program's order. Gives its articles, each
// as its lines joined by CR LF.
#pragma once
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "data/article_order.h"
#include "exchange/dictionary_writer.h"

namespace lex::fuzz {

inline void Verifie(bool condition) {
  if (!condition) std::abort();
}

inline std::vector<std::string> ArticlesDuDictionnaire(const std::string& chemin, bool trie) {
  std::string octets;
  {
    FILE* f = std::fopen(chemin.c_str(), "rb");
    Verifie(f != nullptr);
    char tampon[4096];
    for (std::size_t n; (n = std::fread(tampon, 1, sizeof tampon, f)) > 0;) octets.append(tampon, n);
    std::fclose(f);
  }
  Verifie(octets.ends_with("\r\n") && octets.find('\0') == std::string::npos);
  std::vector<std::string> articles;
  bool index = true, vide = false;
  std::string precedent;
  for (std::size_t p = 0; p < octets.size();) {
    const std::size_t fin = octets.find("\r\n", p);
    const std::string_view ligne(octets.data() + p, fin - p);
    Verifie(ligne.find_first_of("\r\n") == std::string_view::npos);
    if (ligne.empty()) {
      Verifie(!index && !vide);  // one empty line, between two articles
      index = vide = true;
    } else if (index) {
      Verifie(ligne.size() <= exchange::EcrivainDictionnaire::kLongueurIndex);
      Verifie(ligne.find_first_not_of(" \t\xA0") != std::string_view::npos);
      if (trie && !articles.empty()) Verifie(!AvantDans(ClesDe(ligne), ClesDe(precedent)));
      precedent = ligne;
      articles.emplace_back(ligne);
      index = vide = false;
    } else {
      articles.back() += "\r\n";
      articles.back() += ligne;
    }
    p = fin + 2;
  }
  Verifie(!vide);
  return articles;
}

}  // namespace lex::fuzz
