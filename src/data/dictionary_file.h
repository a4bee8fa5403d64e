// Reading articles back from a dictionary file by byte offset. The file is never held whole
// in memory: each read opens it, seeks, reads and closes it, so no handle outlives a command.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace lex {

// Where an article lies: its start offset, the offset of what follows it, and whether it is
// the last one (the last article keeps its length up to the end of the file).
struct Etendue {
  std::int64_t debut = 0;
  std::int64_t fin = 0;
  bool derniere = false;
};

// The article text: index line and definition lines joined by "\r\n", no trailing line end.
// A separator line end is removed unless the article is the last, then one more line end
// once; both are the file's real line ends (CR LF or LF), and LF alone inside the article is
// given back as CR LF.
std::string LireArticle(std::string_view fichier, const Etendue& e);

// Turns the raw bytes of an article, as read from the file, into its text (same rules).
std::string DecoupeArticle(std::string raw, bool derniere);

}  // namespace lex
