// A text file of articles to merge into a dictionary. A line holding "(", "[" or "," starts
// an article, keyed by what stands before that character; a line holding none of them goes
// on the article being read. Lines are trimmed, empty ones skipped. The file may be in
// Windows-1252 or UTF-8, with CR LF or LF line ends.
#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "data/article_order.h"
#include "data/files.h"

namespace lex {

struct ArticleImporte {
  // Where its lines lie in the file: the key lives in memory, the text stays on disk.
  std::int64_t debut = 0;
  std::int64_t fin = 0;
};

struct Importation {
  // In the order of AvantDans, the file's order among equal keys.
  std::vector<ClesArticle> cles;
  std::vector<ArticleImporte> articles;
  bool utf8 = false;
  // Lines before the first index line: there was no article to put them in.
  std::int64_t lignesPerdues = 0;
};

// Reads the file once to know its encoding and once to key its articles; `bip` sounds at its
// 100,000th line.
Importation LireImportation(std::string_view fichier, const std::function<void()>& bip);

// Reads articles of an import back, one at a time, in any order.
class LecteurArticles {
 public:
  LecteurArticles(std::string_view fichier, bool utf8);
  // The article's lines trimmed, empty ones left out, joined by CR LF.
  std::string Texte(const ArticleImporte& a);

 private:
  Fichier f_;
  bool utf8_;
  std::string fenetre_;  // bytes of the file from fenetreDebut_
  std::int64_t fenetreDebut_ = 0;
};

}  // namespace lex
