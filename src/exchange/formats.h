// The outside formats lex-import reads, and which one a file is in.
#pragma once
#include <filesystem>
#include <span>
#include <string_view>

#include "exchange/article.h"

namespace lex::exchange {

struct Format {
  std::string_view nom;  // as the user names it after --format
  // Whether the file (or folder) is in this format, judged from its name and first bytes;
  // never throws.
  bool (*reconnait)(const std::filesystem::path&);
  // Gives every article in the order of the source; throws ErreurImport for bad input.
  void (*lit)(const std::filesystem::path&, const Recepteur&);
};

// Every format, the most particular first: detection takes the first that recognises.
std::span<const Format> Formats();
// The format of that name, or nullptr.
const Format* FormatNomme(std::string_view nom);
// The format of the file, or ErreurImport naming the file (missing, or of no known format).
const Format& FormatDe(const std::filesystem::path& source);

}  // namespace lex::exchange
