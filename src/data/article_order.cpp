#include "data/article_order.h"

#include "data/folding.h"

namespace lex {

std::size_t Coupe(std::string_view ligne) {
  for (char c : {'(', '[', ','})
    if (const std::size_t p = ligne.find(c); p != std::string_view::npos) return p;
  return std::string_view::npos;
}

ClesArticle ClesDe(std::string_view ligne) {
  const std::size_t p = Coupe(ligne);
  return {Sansaccent(ligne), p == std::string_view::npos ? std::string() : Sansaccent(ligne.substr(0, p))};
}

bool RangeArticle(std::string_view texte, const ClesArticle& nouveau) {
  const std::size_t p = Coupe(texte);
  if (p == std::string_view::npos)
    return CompareSansaccent(texte, nouveau.tete.empty() ? nouveau.entiere : nouveau.tete) > 0;
  const int tete = CompareSansaccent(texte.substr(0, p), nouveau.tete.empty() ? nouveau.entiere : nouveau.tete);
  // A new line without head against an existing head: equal places the new one first.
  if (nouveau.tete.empty()) return tete >= 0;
  return tete > 0 || (tete == 0 && CompareSansaccent(texte, nouveau.entiere) > 0);
}

bool AvantDans(const ClesArticle& a, const ClesArticle& b) {
  return AvantDans(a.tete, a.entiere, b.tete, b.entiere);
}

bool AvantDans(std::string_view teteA, std::string_view entiereA, std::string_view teteB,
               std::string_view entiereB) {
  const std::string_view pa = teteA.empty() ? entiereA : teteA;
  const std::string_view pb = teteB.empty() ? entiereB : teteB;
  if (pa != pb) return pa < pb;
  return entiereA < entiereB;
}

}  // namespace lex
