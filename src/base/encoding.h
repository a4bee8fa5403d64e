// Windows-1252 is the core's text encoding: one byte is one character, so byte offsets in
// dictionary files are character counts. UTF-8 appears only at the edges (windows, file names).
#pragma once
#include <string>
#include <string_view>

namespace lex {

// UTF-8 to Windows-1252; a character that Windows-1252 cannot hold becomes '?'.
// Malformed UTF-8 bytes are taken as Latin-1 so that nothing is lost silently.
std::string Utf8VersAnsi(std::string_view utf8);

// Whether `s` holds at least one character beyond ASCII and is UTF-8 throughout (no malformed,
// overlong or surrogate sequence): text in Windows-1252 with accents practically never is.
bool EstUtf8(std::string_view s);
// Windows-1252 to UTF-8; the five undefined bytes map to the C1 control of the same value.
std::string AnsiVersUtf8(std::string_view ansi);

// Upper case of one Windows-1252 character (a-z, à-þ except ÷, š œ ž ÿ); ß and µ stay.
char MajusculeAnsi(char c);
std::string MajusculesAnsi(std::string_view texte);

}  // namespace lex

namespace lex {

// One character between Unicode and Windows-1252; '?' when Windows-1252 has no such character.
char AnsiDeUnicode(char32_t c);
char32_t UnicodeDeAnsi(char c);

}  // namespace lex
