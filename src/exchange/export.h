// The way back: a dictionary of this program written in a free format that other readers
// open, in UTF-8. Importing what is written gives the same dictionary file, byte for byte.
#pragma once
#include <cstddef>
#include <filesystem>
#include <vector>

namespace lex::exchange {

struct BilanExport {
  std::size_t articles = 0;
  std::vector<std::filesystem::path> fichiers;  // what was written
};

// StarDict: `base`.ifo, `base`.idx and `base`.dict.dz (dictzip, so that readers reach each
// definition at random access). The definition is the article's lines after its index line,
// joined by "\n" (plain text, sametypesequence=m); the .idx is in StarDict's order; the data in
// the dictionary's own order, which its reader follows to keep equal keys as they were.
// 64-bit offsets when the data passes 4 GB.
BilanExport ExporteStarDict(const std::filesystem::path& dictionnaire, const std::filesystem::path& base);

// Tab-separated text, UTF-8: one line per article, its index line, a tab, its definition
// lines joined by "\n" (and "\t", "\\" for a tab and a backslash), as lex-import reads it.
BilanExport ExporteTabulations(const std::filesystem::path& dictionnaire, const std::filesystem::path& sortie);

// Both throw ErreurImport (exchange/article.h) when the dictionary cannot be read, and
// ErreurEcriture (data/write_error.h) when a file cannot be written; then the files this
// export had already written are taken away, and the one that failed is left as it was.

}  // namespace lex::exchange
