#include "base/encoding.h"

#include <array>
#include <cstdint>

namespace lex {
namespace {

// Code points of bytes 0x80..0x9F; the undefined ones keep their own value.
constexpr std::array<char32_t, 32> kC1 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char VersAnsi(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  for (std::size_t i = 0; i < kC1.size(); ++i)
    if (kC1[i] == cp) return static_cast<char>(0x80 + i);
  return '?';
}

void AjouteUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

}  // namespace

std::string Utf8VersAnsi(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (std::size_t i = 0; i < s.size();) {
    auto b = static_cast<unsigned char>(s[i]);
    int n = b < 0x80 ? 0 : (b >> 5) == 6 ? 1 : (b >> 4) == 14 ? 2 : (b >> 3) == 30 ? 3 : -1;
    bool ok = n >= 0 && i + n < s.size();
    char32_t cp = n <= 0 ? b : (b & (0x3F >> n));
    for (int k = 1; ok && k <= n; ++k) {
      auto c = static_cast<unsigned char>(s[i + k]);
      if ((c & 0xC0) != 0x80) ok = false;
      cp = (cp << 6) | (c & 0x3F);
    }
    // An overlong form ("\xC0\xAF" for "/") is not UTF-8: it must not smuggle in a character.
    static constexpr char32_t kMinimum[] = {0, 0x80, 0x800, 0x10000};
    if (ok && n > 0 && cp < kMinimum[n]) ok = false;
    if (!ok) {  // not UTF-8: keep the byte as Latin-1
      out += static_cast<char>(b);
      ++i;
      continue;
    }
    out += VersAnsi(cp);
    i += n + 1;
  }
  return out;
}

bool EstUtf8(std::string_view s) {
  bool horsAscii = false;
  for (std::size_t i = 0; i < s.size();) {
    const auto b = static_cast<unsigned char>(s[i]);
    if (b < 0x80) {
      ++i;
      continue;
    }
    horsAscii = true;
    const int n = (b >> 5) == 6 ? 1 : (b >> 4) == 14 ? 2 : (b >> 3) == 30 ? 3 : -1;
    if (n < 0 || i + static_cast<std::size_t>(n) >= s.size()) return false;
    char32_t cp = b & (0x3F >> n);
    for (int k = 1; k <= n; ++k) {
      const auto c = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
      if ((c & 0xC0) != 0x80) return false;
      cp = (cp << 6) | (c & 0x3F);
    }
    static constexpr char32_t kMinimum[] = {0, 0x80, 0x800, 0x10000};
    if (cp < kMinimum[n] || (cp >= 0xD800 && cp <= 0xDFFF) || cp > 0x10FFFF) return false;
    i += static_cast<std::size_t>(n) + 1;
  }
  return horsAscii;
}

std::string AnsiVersUtf8(std::string_view s) {
  std::string out;
  out.reserve(s.size() + s.size() / 8);
  for (char ch : s) {
    auto b = static_cast<unsigned char>(ch);
    AjouteUtf8(out, b >= 0x80 && b < 0xA0 ? kC1[b - 0x80] : char32_t{b});
  }
  return out;
}

char MajusculeAnsi(char c) {
  auto b = static_cast<unsigned char>(c);
  if (b >= 'a' && b <= 'z') return static_cast<char>(b - 32);
  if (b >= 0xE0 && b <= 0xFE && b != 0xF7) return static_cast<char>(b - 32);
  switch (b) {
    case 0x9A: return static_cast<char>(0x8A);
    case 0x9C: return static_cast<char>(0x8C);
    case 0x9E: return static_cast<char>(0x8E);
    case 0xFF: return static_cast<char>(0x9F);
    default: return c;
  }
}

std::string MajusculesAnsi(std::string_view texte) {
  std::string out(texte);
  for (char& c : out) c = MajusculeAnsi(c);
  return out;
}

}  // namespace lex

namespace lex {

char AnsiDeUnicode(char32_t c) { return VersAnsi(c); }

char32_t UnicodeDeAnsi(char c) {
  const auto b = static_cast<unsigned char>(c);
  return b >= 0x80 && b < 0xA0 ? kC1[b - 0x80] : b;
}

}  // namespace lex
