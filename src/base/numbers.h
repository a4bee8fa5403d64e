// Numbers in the program's text files are read leniently and written the classic way.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace lex {

// Skips leading blanks, reads an optional sign and digits, stops at the first other
// character; no digits reads as 0, and a value too large is held at the 32-bit bounds.
std::int32_t Val(std::string_view texte);

// A number as printed to a file: a leading blank for a non-negative value (" 12", "-3").
std::string NombreImprime(std::int64_t n);

}  // namespace lex
