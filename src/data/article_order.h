// Where a new article goes in a dictionary kept in alphabetical order: before the first
// existing article for which RangeArticle answers true, at the end when none does.
#pragma once
#include <string>
#include <string_view>

namespace lex {

// The two keys of an article, folded from its index line: the whole line, and its head (the
// part before the first "(", or else the first "[", or else the first ","; empty when the
// line holds none of them).
struct ClesArticle {
  std::string entiere;
  std::string tete;
};
ClesArticle ClesDe(std::string_view ligneIndex);
// Where the head of an index line ends: the first "(", or else "[", or else ","; npos when
// the line holds none of them.
std::size_t Coupe(std::string_view ligneIndex);

// Whether the new article of keys `nouveau` goes before the existing index line `texte`.
// Articles sharing a head are ordered by their whole keys, heads order the rest; a new line
// without head goes before an existing one whose head equals it. The line is folded only as
// far as the comparison needs.
bool RangeArticle(std::string_view texte, const ClesArticle& nouveau);

// An order of new articles among themselves that agrees with RangeArticle, so that a batch
// sorted by it can be merged into a sorted dictionary in one pass.
bool AvantDans(const ClesArticle& a, const ClesArticle& b);
// The same on keys kept elsewhere than in a ClesArticle: a million articles being sorted keep
// theirs in one block of memory, not in two strings each.
bool AvantDans(std::string_view teteA, std::string_view entiereA, std::string_view teteB,
               std::string_view entiereB);

}  // namespace lex
