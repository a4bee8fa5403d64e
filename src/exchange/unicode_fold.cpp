#include "exchange/unicode_fold.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/encoding.h"

namespace lex::exchange {

namespace {

// What decomposition cannot give: signs with no compatibility form, or whose form is itself
// outside Windows-1252. Sorted by code point.
struct Substitut {
  char32_t c;
  const char* ansi;  // Windows-1252 bytes
};
constexpr Substitut kTable[] = {
    {0x0250, "a"},   {0x0251, "a"},  {0x0252, "o"},  {0x0254, "o"},   {0x0259, "e"},  {0x025A, "er"},
    {0x025B, "e"},   {0x025C, "e"},  {0x0261, "g"},  {0x0263, "g"},   {0x0265, "u"},  {0x026A, "i"},
    {0x0272, "gn"},  {0x0274, "n"},  {0x027E, "r"},  {0x0280, "r"},   {0x0281, "r"},  {0x0283, "sh"},
    {0x028A, "u"},   {0x028C, "a"},  {0x028E, "y"},  {0x0292, "zh"},  {0x0294, "'"},  {0x02B9, "'"},
    {0x02BA, "\""},  {0x02BB, "'"},  {0x02BC, "'"},  {0x02C8, "'"},   {0x02CC, ","},  {0x02D0, ":"},
    {0x02D1, ":"},   {0x0391, "A"},  {0x0392, "B"},  {0x0393, "G"},   {0x0394, "D"},  {0x0395, "E"},
    {0x0396, "Z"},   {0x0397, "E"},  {0x0398, "Th"}, {0x0399, "I"},   {0x039A, "K"},  {0x039B, "L"},
    {0x039C, "M"},   {0x039D, "N"},  {0x039E, "X"},  {0x039F, "O"},   {0x03A0, "P"},  {0x03A1, "R"},
    {0x03A3, "S"},   {0x03A4, "T"},  {0x03A5, "Y"},  {0x03A6, "Ph"},  {0x03A7, "Ch"}, {0x03A8, "Ps"},
    {0x03A9, "O"},   {0x03B1, "a"},  {0x03B2, "b"},  {0x03B3, "g"},   {0x03B4, "d"},  {0x03B5, "e"},
    {0x03B6, "z"},   {0x03B7, "e"},  {0x03B8, "th"}, {0x03B9, "i"},   {0x03BA, "k"},  {0x03BB, "l"},
    {0x03BC, "\xB5"}, {0x03BD, "n"}, {0x03BE, "x"},  {0x03BF, "o"},   {0x03C0, "p"},  {0x03C1, "r"},
    {0x03C2, "s"},   {0x03C3, "s"},  {0x03C4, "t"},  {0x03C5, "y"},   {0x03C6, "ph"}, {0x03C7, "ch"},
    {0x03C8, "ps"},  {0x03C9, "o"},  {0x200B, ""},   {0x200C, ""},    {0x200D, ""},   {0x2010, "-"},
    {0x2011, "-"},   {0x2012, "-"},  {0x2015, "\x97"}, {0x201B, "'"}, {0x201F, "\""}, {0x2028, " "},
    {0x2029, " "},   {0x2032, "'"},  {0x2033, "\""}, {0x2035, "`"},   {0x2043, "-"},  {0x2060, ""},
    {0x2190, "<-"},  {0x2191, "^"},  {0x2192, "->"}, {0x2193, "v"},   {0x2194, "<->"}, {0x21D0, "<="},
    {0x21D2, "=>"},  {0x21D4, "<=>"}, {0x2212, "-"}, {0x2215, "/"},   {0x2217, "*"},  {0x2219, "\xB7"},
    {0x221A, "V"},   {0x221E, "oo"}, {0x2227, "^"},  {0x2228, "v"},   {0x2248, "~"},  {0x2260, "/="},
    {0x2261, "=="},  {0x2264, "<="}, {0x2265, ">="}, {0x22C5, "\xB7"}, {0x2329, "<"},  {0x232A, ">"},
    {0x2502, "|"},   {0x2503, "|"},
    {0x25CF, "o"},   {0x25E6, "o"},  {0x2713, "v"},  {0x27E8, "<"},   {0x27E9, ">"},  {0x3000, " "},
    {0x3008, "<"},   {0x3009, ">"},  {0xFEFF, ""},
};

// Box drawing, the Jargon File's tables: lines stay lines, every corner and crossing a "+".
const char* BoiteAnsi(char32_t c) {
  if (c < 0x2500 || c > 0x257F) return nullptr;
  switch (c) {
    case 0x2500: case 0x2501: case 0x2504: case 0x2505: case 0x2508: case 0x2509: case 0x254C:
    case 0x254D: case 0x2550:
      return "-";
    case 0x2502: case 0x2503: case 0x2506: case 0x2507: case 0x250A: case 0x250B: case 0x254E:
    case 0x254F: case 0x2551:
      return "|";
    default:
      return "+";
  }
}

const char* Substitution(char32_t c) {
  if (const char* b = BoiteAnsi(c)) return b;
  const auto* fin = std::end(kTable);
  const auto* p = std::lower_bound(std::begin(kTable), fin, c, [](const Substitut& s, char32_t x) { return s.c < x; });
  return p != fin && p->c == c ? p->ansi : nullptr;
}

// The byte of `c` when Windows-1252 holds it. The five C1 controls that stand for its undefined
// bytes when a dictionary is exported are given back as those bytes, so that a dictionary
// exported and imported again comes back whole.
bool EnAnsi(char32_t c, char& b) {
  b = AnsiDeUnicode(c);
  return b != '?' || c == U'?';
}

bool EstMarque(UChar32 c) {
  const auto type = static_cast<UCharCategory>(u_charType(c));
  return type == U_NON_SPACING_MARK || type == U_ENCLOSING_MARK || type == U_COMBINING_SPACING_MARK;
}

const icu::Normalizer2& Normaliseur(UNormalization2Mode mode, const char* nom) {
  UErrorCode e = U_ZERO_ERROR;
  const icu::Normalizer2* n = icu::Normalizer2::getInstance(nullptr, nom, mode, e);
  if (U_FAILURE(e) || n == nullptr) throw std::runtime_error("ICU : normalisation indisponible");
  return *n;
}

const icu::Normalizer2& Nfc() {
  static const icu::Normalizer2& n = Normaliseur(UNORM2_COMPOSE, "nfc");
  return n;
}
const icu::Normalizer2& Nfkc() {
  static const icu::Normalizer2& n = Normaliseur(UNORM2_COMPOSE, "nfkc");
  return n;
}
const icu::Normalizer2& Nfkd() {
  static const icu::Normalizer2& n = Normaliseur(UNORM2_DECOMPOSE, "nfkc");
  return n;
}

icu::UnicodeString Normalise(const icu::Normalizer2& n, const icu::UnicodeString& s) {
  UErrorCode e = U_ZERO_ERROR;
  icu::UnicodeString r = n.normalize(s, e);
  return U_FAILURE(e) ? s : r;
}

// The nearest Windows-1252 form of one character that Windows-1252 does not hold.
std::string Approche(char32_t c) {
  if (const char* s = Substitution(c)) return s;
  const icu::UnicodeString seul(static_cast<UChar32>(c));
  // The compatibility composition first: "ǅ" is "Dž", both letters in Windows-1252.
  {
    const icu::UnicodeString k = Normalise(Nfkc(), seul);
    std::string r;
    bool tout = k != seul;
    for (int32_t i = 0; tout && i < k.length(); i = k.moveIndex32(i, 1)) {
      char b;
      if (EnAnsi(static_cast<char32_t>(k.char32At(i)), b))
        r += b;
      else
        tout = false;
    }
    if (tout) return r;
  }
  const icu::UnicodeString d = Normalise(Nfkd(), seul);
  if (d == seul) return EstMarque(static_cast<UChar32>(c)) ? "" : "?";
  std::string r;
  for (int32_t i = 0; i < d.length(); i = d.moveIndex32(i, 1)) {
    const UChar32 x = d.char32At(i);
    char b;
    if (EstMarque(x)) continue;
    if (EnAnsi(static_cast<char32_t>(x), b))
      r += b;
    else if (const char* s = Substitution(static_cast<char32_t>(x)))
      r += s;
    else
      r += '?';
  }
  return r;
}

void AjouteUtf8(std::string& out, char32_t c) {
  char tampon[U8_MAX_LENGTH];
  int32_t n = 0;
  UBool erreur = false;
  U8_APPEND(reinterpret_cast<uint8_t*>(tampon), n, U8_MAX_LENGTH, static_cast<UChar32>(c), erreur);
  if (!erreur) out.append(tampon, static_cast<std::size_t>(n));
}

}  // namespace

ReplieurAnsi::ReplieurAnsi() {
  // The normalisation data is loaded now, so that a broken ICU shows at once.
  Nfc();
  Nfkc();
  Nfkd();
}

void ReplieurAnsi::Change(std::u32string_view avant, std::string_view apres) {
  ++changes_;
  if (exemples_.size() >= kExemples) return;
  std::string e;
  for (char32_t c : avant) AjouteUtf8(e, c);
  e += "\xE2\x86\x92";  // →
  e += AnsiVersUtf8(apres);
  if (std::find(exemples_.begin(), exemples_.end(), e) == exemples_.end()) exemples_.push_back(std::move(e));
}

void ReplieurAnsi::Replie(std::string_view s, std::string& dest) {
  const auto* octets = reinterpret_cast<const uint8_t*>(s.data());
  const auto n = static_cast<int32_t>(s.size());
  const std::size_t depart = dest.size();
  // Most text is Windows-1252 already: one pass that only copies.
  int32_t i = 0;
  bool simple = true;
  while (i < n) {
    if (octets[i] < 0x80) {
      dest += static_cast<char>(octets[i++]);
      continue;
    }
    const int32_t debut = i;
    UChar32 c;
    U8_NEXT(octets, i, n, c);
    char b;
    if (c < 0) {
      i = debut + 1;
      if (!EnAnsi(UnicodeDeAnsi(static_cast<char>(octets[debut])), b)) {
        simple = false;
        break;
      }
      dest += b;
    } else if (EnAnsi(static_cast<char32_t>(c), b)) {
      dest += b;
    } else {
      simple = false;
      break;
    }
  }
  if (simple) return;

  // A character to change: the line is composed first, so that a letter followed by its
  // combining accent ("e" + U+0301) becomes the accented letter Windows-1252 holds.
  dest.resize(depart);
  composee_.clear();
  for (i = 0; i < n;) {
    const int32_t debut = i;
    UChar32 c;
    U8_NEXT(octets, i, n, c);
    if (c < 0) {
      composee_.push_back(static_cast<UChar32>(UnicodeDeAnsi(static_cast<char>(octets[debut]))));
      i = debut + 1;
    } else {
      composee_.push_back(c);
    }
  }
  const icu::UnicodeString u = Normalise(
      Nfc(), icu::UnicodeString::fromUTF32(composee_.data(), static_cast<int32_t>(composee_.size())));
  for (int32_t k = 0; k < u.length(); k = u.moveIndex32(k, 1)) {
    const auto c = static_cast<char32_t>(u.char32At(k));
    char b;
    if (EnAnsi(c, b)) {
      dest += b;
      continue;
    }
    const std::string a = Approche(c);
    dest += a;
    Change(std::u32string_view(&c, 1), a);
  }
}

}  // namespace lex::exchange
