// One record of the index file, as the builder and the updater write and read it.
#pragma once
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "data/index_file.h"
#include "data/short_copy.h"

namespace lex {

inline void PoseChamp(char* dest, std::string_view s) {
  // A copy of a fixed size is a few vector stores; a memset of a varying size is a call.
  static constexpr char kBlancs[kTailleChamp + 1] =
      "                                                                      ";
  std::memcpy(dest, kBlancs, kTailleChamp);
  CopieCourte(dest, s.data(), std::min(s.size(), kTailleChamp));
}

inline void PoseValeur(char* dest, std::int32_t v) {
  auto u = static_cast<std::uint32_t>(v);
  for (int i = 0; i < 4; ++i) dest[i] = static_cast<char>((u >> (8 * i)) & 0xFF);
}

inline std::int32_t LitValeur(const char* p) {
  std::uint32_t u = 0;
  for (int i = 0; i < 4; ++i) u |= static_cast<std::uint32_t>(static_cast<unsigned char>(p[i])) << (8 * i);
  return static_cast<std::int32_t>(u);
}

// The record through which every index-file write goes; its key field keeps what it last
// held, which is what the two header records carry.
struct Enreg {
  char octets[kTailleEnreg];
  Enreg() { std::memset(octets, ' ', kTailleEnreg); }
  void Index(std::string_view s) { PoseChamp(octets, s); }
  void Cle(std::string_view s) { PoseChamp(octets + kTailleChamp, s); }
  void Valeur(std::int32_t v) { PoseValeur(octets + 2 * kTailleChamp, v); }
};

// The dictionary's date as record 2's key field holds it.
inline std::string TexteDate(std::int64_t date) { return "T" + std::to_string(date); }

// The two header records: the version, the count and the last key written; the dictionary's
// date and length.
inline void PoseEnTete(char* tete, std::int32_t nombre, std::string_view derniereCle, std::int64_t date,
                       std::int32_t taille) {
  Enreg enreg;
  enreg.Cle(derniereCle);
  enreg.Index(kVersionIndex);
  enreg.Valeur(nombre);
  std::memcpy(tete, enreg.octets, kTailleEnreg);
  enreg.Index("");
  enreg.Cle(TexteDate(date));
  enreg.Valeur(taille);
  std::memcpy(tete + kTailleEnreg, enreg.octets, kTailleEnreg);
}

}  // namespace lex
