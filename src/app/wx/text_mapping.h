// The program counts "\r\n" as two characters of Windows-1252 text; a native text control
// holds UTF-8 with "\n" line ends and counts characters. These conversions keep the two in
// step. They need no toolkit, so they stay out of the window code.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace lex::wx {

// Program text to what the control shows: UTF-8, "\r\n" as "\n". A NUL cannot live in a
// native control and is shown as a blank, so that positions keep their meaning.
std::string VersControle(std::string_view ansi);
// The control's text back to program text: "\n" (not after "\r") becomes "\r\n".
std::string DepuisControle(std::string_view utf8);

// Positions in `ansi` (program text) and in the control showing VersControle(ansi). A position
// between CR and LF maps to the line end; positions past the end stay past it by as much.
std::size_t PositionControle(std::string_view ansi, std::size_t position);
std::size_t PositionProgramme(std::string_view ansi, std::size_t positionControle);

}  // namespace lex::wx
