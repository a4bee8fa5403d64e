// How the definition searches see an article: line breaks read as blanks, capitals folded
// unless the case is respected.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace lex {

// Each line break ("\r\n") becomes one blank, so that a phrase broken over two lines is found
// as typed ("chat noir" in "chat\r\nnoir"). The text gets shorter by one character per break;
// PositionDansArticle turns a position found in it back into a caret position of the article.
std::string FormeRecherche(std::string_view texte);
// The 0-based position in `texte` of the character found at `position` in FormeRecherche(texte).
std::size_t PositionDansArticle(std::string_view texte, std::size_t position);

// The index line of an article's text: everything before its first CR.
std::string ExtraitIndexDictio(std::string_view texte);

// What the definition searches look for: the string as typed, or in capitals (no accent folding).
std::string AiguilleDefinitions(std::string_view chaine, bool respectCasse);

// The first (or last) place where `aiguille`, prepared by AiguilleDefinitions, occurs in an
// article's text as the searches across articles see it: put through FormeRecherche when it
// holds a blank, in capitals unless the case is respected. The result is a caret position of
// `texte` (npos when absent; an empty needle is never found).
std::size_t OccurrenceArticle(std::string_view texte, std::string_view aiguille, bool respectCasse, bool derniere);

// In the text of the shown field: the first occurrence starting at or after `debut`, or the
// last one starting before `limite`; npos when there is none. Both compare in capitals unless
// the case is respected.
std::size_t ChercheAvant(std::string_view texte, std::string_view aiguille, bool respectCasse, std::size_t debut);
std::size_t TestRechercheChaineArriere(std::string_view texte, std::string_view aiguille, bool respectCasse,
                                       std::size_t limite);

}  // namespace lex
