// StarDict dictionaries: an ".ifo" describing them, an ".idx" of words with the place of
// their definition (32- or 64-bit offsets), a ".dict" or ".dict.dz" holding the definitions,
// and optionally a ".syn" of synonyms pointing into the ".idx".
#pragma once
#include <filesystem>

#include "exchange/article.h"

namespace lex::exchange {

// Whether `chemin` (any of the files, or their common base name) names a StarDict
// dictionary: an .ifo that says so, with its .idx (or .idx.gz) and .dict (or .dict.dz).
bool EstStarDict(const std::filesystem::path& chemin);

// Gives each word of the .idx as an article, in the order of the data file (the .idx is in
// StarDict's own order), each synonym of the .syn right after the word it points to, with the
// same definition. Definitions of plain text ("m", "l", "t", "y") become their lines; markup
// ("h" HTML, "x" XDXF, "g" Pango, "k") is stripped to its text, a line break or a paragraph
// starting a line; pictures, sounds and other binary parts are left out.
void LitStarDict(const std::filesystem::path& chemin, const Recepteur& recepteur);

}  // namespace lex::exchange
