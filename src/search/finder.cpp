#include "search/finder.h"

#include <cstring>
#include <vector>

#include "base/encoding.h"

namespace lex {
namespace {

// A rough frequency of each byte in French dictionary text (higher is commoner), to pick the
// byte that a scan for one byte stops at least often.
int Frequence(unsigned char c) {
  static const char* const ordre = "esaitnrulodcpm\xE9vqfbghj\xE0x\xE8y\xEAzkw";
  if (c == ' ') return 1000;
  if (c == '\r' || c == '\n') return 300;
  if (c >= 'a' && c <= 'z') return 200 - static_cast<int>(std::strchr(ordre, c) - ordre) * 5;
  if (c >= 'A' && c <= 'Z') return Frequence(static_cast<unsigned char>(c + 32)) / 8;
  if (c >= 0xE0) return 40;
  if (c == ',' || c == '.' || c == '\'') return 100;
  if (c >= '0' && c <= '9') return 30;
  return 10;
}

}  // namespace

Chercheur::Chercheur(std::string_view motif, bool majuscules) : motif_(motif) {
  for (std::size_t c = 0; c < 256; ++c) {
    const char brut = static_cast<char>(c);
    table_[c] = static_cast<unsigned char>(majuscules ? MajusculeAnsi(brut) : brut);
  }
  if (motif_.empty()) return;
  // In capitals a letter stands for two bytes of the text: its frequency is that of both.
  std::array<int, 256> frequenceVue{};
  for (std::size_t c = 0; c < 256; ++c) frequenceVue[table_[c]] += Frequence(static_cast<unsigned char>(c));
  for (std::size_t j = 1; j < motif_.size(); ++j)
    if (frequenceVue[static_cast<unsigned char>(motif_[j])] < frequenceVue[static_cast<unsigned char>(motif_[rare_])])
      rare_ = j;
  for (std::size_t c = 0; c < 256 && nombreFormes_ < 2; ++c)
    if (table_[c] == static_cast<unsigned char>(motif_[rare_])) formes_[nombreFormes_++] = static_cast<char>(c);
}

const char* Chercheur::Premier(const char* debut, const char* fin) const {
  const std::size_t m = motif_.size();
  if (m == 0 || fin - debut < static_cast<std::ptrdiff_t>(m)) return nullptr;
  // memchr, which the C library makes very fast, goes from one place of the rare byte to the
  // next; each form of it is looked for again only once passed.
  const char* const limite = fin - (m - rare_) + 1;  // past the last place the rare byte may sit
  const char* prochain[2] = {nullptr, nullptr};
  auto cherche = [&](int f, const char* depuis) {
    prochain[f] = depuis < limite ? static_cast<const char*>(std::memchr(depuis, formes_[static_cast<std::size_t>(f)],
                                                                         static_cast<std::size_t>(limite - depuis)))
                                  : nullptr;
  };
  for (int f = 0; f < nombreFormes_; ++f) cherche(f, debut + rare_);
  for (;;) {
    const int f = prochain[0] == nullptr || (prochain[1] != nullptr && prochain[1] < prochain[0]) ? 1 : 0;
    const char* r = prochain[f];
    if (r == nullptr) return nullptr;
    const char* d = r - rare_;
    std::size_t j = 0;
    while (j < m && table_[static_cast<unsigned char>(d[j])] == static_cast<unsigned char>(motif_[j])) ++j;
    if (j == m) return d;
    cherche(f, r + 1);
  }
}

}  // namespace lex
