#include "data/folding.h"

#include <algorithm>
#include <array>

#include "base/encoding.h"
#include "base/error.h"

namespace lex {
namespace {

// Folding is applied character by character: an accented letter becomes its plain letters,
// a removed character disappears, everything else is upper-cased. The replacements never
// produce a character that a later step would touch again, so one pass equals the
// sequence replace-all / remove-all / upper-case.
// Each character becomes at most two.
struct Sortie {
  char c[2] = {0, 0};
  unsigned char n = 0;
  void Pose(std::string_view s) {
    n = static_cast<unsigned char>(s.size());
    for (std::size_t i = 0; i < s.size(); ++i) c[i] = s[i];
  }
};
struct Table {
  std::array<Sortie, 256> sortie;
};

Table Construit(std::string_view ponctuation) {
  Table t;
  for (int b = 0; b < 256; ++b) t.sortie[b].Pose(std::string(1, MajusculeAnsi(static_cast<char>(b))));
  for (char c : ponctuation) t.sortie[static_cast<unsigned char>(c)].Pose("");
  // Accent list, lower-case then upper-case forms, with their replacement.
  const std::string_view accents = "\xE5\xE1`\xE0\xE2\xE4\xE3\xE6\xE7\xE9\xE8\xEA\xEB\xEC\xED\xEE\xEF\xF1\xF3\xF2\xF4\xF6\xF5\xF8\x9C\xFA\xF9\xFB\xFC\xFD";
  const char* remplace[30] = {"A", "A", "A", "A", "A", "A", "A", "AE", "C", "E", "E", "E", "E", "I", "I", "I", "I", "N",
                              "O", "O", "O", "O", "O", "O", "OE", "U", "U", "U", "U", "Y"};
  for (std::size_t i = 0; i < accents.size(); ++i) {
    t.sortie[static_cast<unsigned char>(accents[i])].Pose(remplace[i]);
    t.sortie[static_cast<unsigned char>(MajusculeAnsi(accents[i]))].Pose(remplace[i]);
  }
  return t;
}

// Small tilde, tilde, #, both double quotes, blank, comma, ; ! . - + ' left quote, () {} [] \ /
const Table& TableComplete() {
  static const Table t = Construit(std::string_view("\x98~#\x93\x94 ,;!.-+'\x91(){}[]\\/"));
  return t;
}
const Table& TableEpure() {
  static const Table t = Construit(std::string_view("\x98~#\x93\x94 ;!.-'\x91{}\\/"));
  return t;
}
const Table& TableSeule() {
  static const Table t = Construit(std::string_view());
  return t;
}

std::string Plie(std::string_view texte, const Table& t) {
  std::string out;
  out.reserve(texte.size());
  for (char c : texte) {
    const Sortie& x = t.sortie[static_cast<unsigned char>(c)];
    out.append(x.c, x.n);
  }
  return out;
}

}  // namespace

std::string Sansaccent(std::string_view texte) { return Plie(texte, TableComplete()); }

int CompareSansaccent(std::string_view texte, std::string_view cle) {
  const Table& t = TableComplete();
  std::size_t k = 0;
  for (char c : texte) {
    const Sortie& x = t.sortie[static_cast<unsigned char>(c)];
    for (unsigned char j = 0; j < x.n; ++j, ++k) {
      if (k == cle.size()) return 1;
      const auto a = static_cast<unsigned char>(x.c[j]), b = static_cast<unsigned char>(cle[k]);
      if (a != b) return a < b ? -1 : 1;
    }
  }
  return k == cle.size() ? 0 : -1;
}
std::string SansAccentSeul(std::string_view texte) { return Plie(texte, TableSeule()); }

void SansaccentDans(std::string_view texte, std::string& dest) {
  const Table& t = TableComplete();
  dest.resize(2 * texte.size());
  char* p = dest.data();
  for (char c : texte) {
    const Sortie& x = t.sortie[static_cast<unsigned char>(c)];
    p[0] = x.c[0];
    p[1] = x.c[1];
    p += x.n;
  }
  dest.resize(static_cast<std::size_t>(p - dest.data()));
}
std::string SansaccentEpure(std::string_view texte) { return Plie(texte, TableEpure()); }

std::size_t SansaccentEpureVers(std::string_view texte, char* dest) {
  const Table& t = TableEpure();
  char* p = dest;
  for (char c : texte) {
    const Sortie& x = t.sortie[static_cast<unsigned char>(c)];
    p[0] = x.c[0];
    p[1] = x.c[1];
    p += x.n;
  }
  return static_cast<std::size_t>(p - dest);
}

std::string EXTRAITMOT_separateur(std::string_view chaine, int position, std::string_view separateur) {
  if (position < 1) Erreur(5);
  auto estSep = [&](std::size_t i) { return separateur.find(chaine[i - 1]) != std::string_view::npos; };
  auto pos = static_cast<std::size_t>(position);
  if (pos > chaine.size() || estSep(pos)) return {};
  std::size_t i = pos;
  while (i != 1 && !estSep(i)) --i;
  if (estSep(i)) ++i;
  std::string mot;
  while (i <= chaine.size() && !estSep(i)) mot += chaine[i++ - 1];
  return mot;
}

std::string EXTRAITMOT(std::string_view chaine, int position) {
  return EXTRAITMOT_separateur(chaine, position, " ");
}

std::size_t PrefixeCommun(std::string_view a, std::string_view b) {
  const std::size_t n = std::min(a.size(), b.size());
  std::size_t i = 0;
  while (i < n && a[i] == b[i]) ++i;
  return i;
}

}  // namespace lex
