// The three foldings of index text. Keys stored in index files are made with them, so any
// change here breaks look-ups against index files built earlier.
#pragma once
#include <string>
#include <string_view>

namespace lex {

// Accents folded, the full punctuation set (blank included) removed, upper-cased.
std::string Sansaccent(std::string_view texte);
// The same into `dest`, whose memory is reused: folding a million lines allocates nothing.
void SansaccentDans(std::string_view texte, std::string& dest);
// Compares Sansaccent(texte) with `cle` as strings compare (negative, zero, positive),
// folding only as far as the first difference: placing an article compares it with a million
// lines, which mostly differ from its key in their first letters.
int CompareSansaccent(std::string_view texte, std::string_view cle);
// Accents folded and upper-cased; blanks and punctuation kept.
std::string SansAccentSeul(std::string_view texte);
// Accents folded, the reduced set removed (comma, plus, brackets kept so that notes can be
// cut off a headword), upper-cased.
std::string SansaccentEpure(std::string_view texte);
// Same as SansaccentEpure, written to `dest`, which has room for twice the text; returns the
// key's length (index building folds a million lines without a temporary string).
std::size_t SansaccentEpureVers(std::string_view texte, char* dest);

// The word of `chaine` covering the 1-based `position`; any character of `separateur` ends a
// word. Throws error 5 for a position below 1.
std::string EXTRAITMOT_separateur(std::string_view chaine, int position, std::string_view separateur);
std::string EXTRAITMOT(std::string_view chaine, int position);

// How many characters two keys share from their start.
std::size_t PrefixeCommun(std::string_view a, std::string_view b);

}  // namespace lex
