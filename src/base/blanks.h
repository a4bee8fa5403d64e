// Index lines and font names are compared without their surrounding blanks.
#pragma once
#include <string>
#include <string_view>

namespace lex {

inline std::string_view Rogne(std::string_view s) {
  const auto d = s.find_first_not_of(' ');
  return d == std::string_view::npos ? std::string_view() : s.substr(d, s.find_last_not_of(' ') - d + 1);
}

inline std::string SansBlancs(std::string_view s) { return std::string(Rogne(s)); }

}  // namespace lex
