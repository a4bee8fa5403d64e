#include "reports/other_index.h"

#include <bit>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "base/blanks.h"
#include "data/files.h"
#include "data/index_file.h"
#include "reports/comparison.h"

namespace lex {
namespace {

// A key field without the blanks that pad it. Most of the field is padding: it is looked at
// sixteen bytes at a time from its end.
std::string_view SansBlancsFinaux(const char* champ) {
  std::size_t n = kTailleChamp;
#if defined(__SSE2__)
  const __m128i blancs = _mm_set1_epi8(' ');
  const auto nonBlancs = [&](std::size_t debut) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(champ + debut));
    return ~static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(v, blancs))) & 0xFFFFu;
  };
  // Sixteen bytes ending at n, as long as they are all blanks; then the first sixteen, which
  // may overlap what was seen.
  for (; n >= 16; n -= 16)
    if (const unsigned m = nonBlancs(n - 16)) return {champ, n - 16 + static_cast<std::size_t>(std::bit_width(m))};
  if (n == 0) return {};
  const unsigned m = nonBlancs(0) & ((1u << n) - 1);
  return {champ, static_cast<std::size_t>(std::bit_width(m))};
#else
  while (n > 0 && champ[n - 1] == ' ') --n;
  return {champ, n};
#endif
}

std::int32_t Valeur(const char* enreg) {
  const char* p = enreg + 2 * kTailleChamp;
  std::uint32_t u = 0;
  for (int i = 0; i < 4; ++i) u |= static_cast<std::uint32_t>(static_cast<unsigned char>(p[i])) << (8 * i);
  return static_cast<std::int32_t>(u);
}

}  // namespace

EnTeteIndex LireEnTeteIndex(std::string_view fichierIndex, std::int64_t tailleDictio) {
  Fichier f = OuvrirSiPossible(fichierIndex);
  if (!f) return {LectureIndex::Absente};
  const std::int64_t longueur = LongueurFichier(fichierIndex);
  char tete[2 * kTailleEnreg];
  // Two header records at least: a file cut shorter does not even say its version whole.
  if (longueur < static_cast<std::int64_t>(sizeof tete) || std::fread(tete, 1, sizeof tete, f.get()) != sizeof tete)
    return {LectureIndex::ARefaire};
  if (Rogne(std::string_view(tete, kTailleChamp)) != kVersionIndex) return {LectureIndex::Version};
  const std::int32_t nombre = Valeur(tete);
  // Exactly as many records as the header counts: one more or one less means the count
  // cannot be trusted, and neither can the keys.
  if (nombre < 0 || longueur != (static_cast<std::int64_t>(nombre) + 2) * static_cast<std::int64_t>(kTailleEnreg))
    return {LectureIndex::ARefaire};
  if (Valeur(tete + kTailleEnreg) != tailleDictio) return {LectureIndex::ARefaire};
  return {LectureIndex::Lue, nombre};
}

bool LireClesIndex(std::string_view fichierIndex, std::int32_t premier, std::int32_t nombre, ClesReparties& cles) {
  Fichier f = OuvrirSiPossible(fichierIndex);
  if (!f || premier < 0 || nombre < 0) return false;
  const std::int64_t debut = (static_cast<std::int64_t>(premier) + 2) * static_cast<std::int64_t>(kTailleEnreg);
  if (std::fseek(f.get(), static_cast<long>(debut), SEEK_SET) != 0) return false;
  // A read small enough to land in the cache, where the keys are taken from it.
  constexpr std::size_t kParLecture = 1024;
  std::vector<char> tampon(kParLecture * kTailleEnreg);
  char cle[kTailleChamp];
  for (std::int32_t lus = 0; lus < nombre;) {
    const std::size_t voulus = std::min<std::size_t>(kParLecture, static_cast<std::size_t>(nombre - lus));
    if (std::fread(tampon.data(), kTailleEnreg, voulus, f.get()) != voulus) return false;
    for (std::size_t r = 0; r < voulus; ++r) {
      const char* champ = tampon.data() + r * kTailleEnreg + kTailleChamp;
      cles.Ajouter(CleComparee(SansBlancsFinaux(champ), cle), premier + lus + static_cast<std::int32_t>(r) + 1);
    }
    lus += static_cast<std::int32_t>(voulus);
  }
  return true;
}

}  // namespace lex
