// Writing new articles into a dictionary kept in alphabetical order, in one pass over it.
#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "data/article_order.h"
#include "data/safe_write.h"

namespace lex {

// What a change did to the dictionary's entry numbers, so that the numbers kept elsewhere (the
// selection, the additions) follow their entries.
struct Changement {
  // For each entry inserted, in file order, the number before the change of the entry it
  // went before (the old count + 1 at the end).
  std::vector<std::int32_t> inseresAvant;
  // For each entry inserted, the removed entry whose article it is, changed (0 for a new
  // article); empty when all are new.
  std::vector<std::int32_t> remplaces;
  // The entries removed, by their numbers before the change, ascending.
  std::vector<std::int32_t> retires;

  // The number after the change of the entry numbered n before it: a changed article's new
  // one; 0 when it was removed.
  std::int32_t Nouveau(std::int32_t n) const;
  // The numbers after the change of the entries inserted.
  std::vector<std::int32_t> NumerosInseres() const;
  // The same of the new articles alone: the additions.
  std::vector<std::int32_t> NumerosNouveaux() const;
};

// Copies the dictionary `source` into `cible`, each new article going before the first
// article of the dictionary for which RangeArticle is true (in a sorted dictionary, its
// alphabetical place), those left at the end. `cles` are the new articles' keys, already in
// the order AvantDans gives; `texte(i)` gives article i's text, its lines joined by CR LF.
// One empty line stands between articles. Does not validate `cible`.
Changement FusionneArticles(std::string_view source, EcritureSure& cible, const std::vector<ClesArticle>& cles,
                            const std::function<std::string(std::size_t)>& texte);

}  // namespace lex
