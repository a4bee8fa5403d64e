#include "app/wx/text_mapping.h"

#include "base/encoding.h"

namespace lex::wx {
namespace {
bool FinDeLigne(std::string_view t, std::size_t i) { return t[i] == '\r' && i + 1 < t.size() && t[i + 1] == '\n'; }
}  // namespace

std::string VersControle(std::string_view ansi) {
  std::string s;
  s.reserve(ansi.size());
  for (std::size_t i = 0; i < ansi.size(); ++i) {
    if (FinDeLigne(ansi, i)) continue;  // the LF that follows stands for the pair
    s += ansi[i] == '\0' ? ' ' : ansi[i];
  }
  return AnsiVersUtf8(s);
}

std::string DepuisControle(std::string_view utf8) {
  const std::string ansi = Utf8VersAnsi(utf8);
  std::string s;
  s.reserve(ansi.size() + ansi.size() / 16);
  for (std::size_t i = 0; i < ansi.size(); ++i) {
    if (ansi[i] == '\n' && (i == 0 || ansi[i - 1] != '\r')) s += '\r';
    s += ansi[i];
  }
  return s;
}

std::size_t PositionControle(std::string_view ansi, std::size_t position) {
  std::size_t c = 0, i = 0;
  for (; i < position && i < ansi.size(); ++i)
    if (!FinDeLigne(ansi, i)) ++c;
  return c + (position - i);
}

std::size_t PositionProgramme(std::string_view ansi, std::size_t positionControle) {
  std::size_t c = 0, i = 0;
  for (; c < positionControle && i < ansi.size(); ++c) i += FinDeLigne(ansi, i) ? 2 : 1;
  return i + (positionControle - c);
}

}  // namespace lex::wx
