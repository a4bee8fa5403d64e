// Duplicate articles: those whose whole text is that of an earlier article of the same
// dictionary. A dictionary may hold a million articles in hundreds of megabytes, so it is read
// once forward in big blocks and only a 128-bit print of each article's text is kept (24 bytes
// an article); articles of equal prints are then read again and compared byte for byte, so
// that two distinct articles can never be taken one for the other, whatever the prints say.
//
// An article's text is what reading shows (data/dictionary_file.h, DecoupeArticle): the
// separator after it, and the last article's missing one, do not count, and an LF-only line
// end equals a CR LF one. Its bytes are those from its index line to the next index line; the
// empty lines before the first index line belong to no text here.
//
// A dictionary shorter than its table says (changed behind the program's back) raises error
// 62 "Lecture après la fin du fichier" rather than reading what is no longer there: the
// report would lead to deleting entries, and must not rest on a file the table no longer
// describes. A table whose offsets go backwards raises error 5.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/index_table.h"

namespace lex {

// The entries (numbers from 1, ascending) of the dictionary `fichier`, indexed in `table`,
// whose article's whole text equals that of an earlier article; the first of equal articles
// is never listed.
std::vector<std::int32_t> ArticlesDoubles(std::string_view fichier, const IndexTable& table);

namespace doubles {

struct Empreinte {
  std::uint64_t a = 0;
  std::uint64_t b = 0;
  bool operator==(const Empreinte&) const = default;
};
using FonctionEmpreinte = Empreinte (*)(std::string_view texte);

// The print of a text: two 64-bit lanes of independent constants.
Empreinte EmpreinteTexte(std::string_view texte);

// The text of an article from its raw bytes, as DecoupeArticle gives it, without a copy when
// the article has no LF-only line end (else in `tampon`, which the result then points into).
std::string_view TexteArticle(std::string_view brut, bool derniere, std::string& tampon);

// The same search, reading blocks of `bloc` bytes (articles read again, windows of a quarter
// of that) and printing texts with `empreinte`: tests cross every boundary with tiny blocks,
// and force prints to collide.
std::vector<std::int32_t> ArticlesDoubles(std::string_view fichier, const IndexTable& table, std::size_t bloc,
                                          FonctionEmpreinte empreinte);

}  // namespace doubles
}  // namespace lex
