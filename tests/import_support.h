// What a reader of an outside format gives, as the tests of the readers compare it.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "exchange/article.h"

namespace lex::test {

// An article as its lines: the index line, then the definition.
using Lignes = std::vector<std::string>;

// The articles `lit` (LitDictd, LitStarDict...) gives for the file `f`.
template <class Lecteur>
std::vector<Lignes> Articles(Lecteur lit, const std::filesystem::path& f) {
  std::vector<Lignes> lus;
  lit(f, [&](exchange::ArticleImporte&& a) {
    Lignes l{a.index};
    l.insert(l.end(), a.definition.begin(), a.definition.end());
    lus.push_back(l);
  });
  return lus;
}

// "place | problem" of the error `lit` gives for `f`, after checking that it names `fichier`;
// "lu sans erreur" when it gives none.
template <class Lecteur>
std::string Refus(Lecteur lit, const std::filesystem::path& f, const std::string& fichier) {
  try {
    Articles(lit, f);
  } catch (const exchange::ErreurImport& e) {
    EXPECT_NE(std::string(e.what()).find(fichier), std::string::npos) << e.what();
    return e.endroit() + " | " + e.probleme();
  }
  return "lu sans erreur";
}

}  // namespace lex::test
