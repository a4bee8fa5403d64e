#include "reports/key_parts.h"

#include <algorithm>
#include <cstring>

#include "base/error.h"
#include "data/huge_pages.h"
#include "data/short_copy.h"

namespace lex {
namespace {

// Each key in its part: its length, the low half of its hash, its number when kept, then its
// bytes.
constexpr std::size_t kTeteSansNumero = 5;
constexpr std::size_t kCleMax = 255;
// About this many keys to a part, which keeps a part's table and bytes in the cache; and no
// more parts than the writes spread over them can follow without missing in the TLB.
constexpr unsigned kBitsParPartie = 12;
constexpr unsigned kBitsParties = 8;
// Pieces small enough that the parts' unfilled ends take little memory.
constexpr std::size_t kMorceau = std::size_t{1} << 14;
constexpr std::size_t kBlocMax = std::size_t{8} << 20;

std::uint64_t Lit64(const char* p) {
  std::uint64_t v;
  std::memcpy(&v, p, 8);
  return v;
}

std::uint64_t Hache(std::string_view cle) {
  // Keys are short: most are hashed from two words read at once (overlapping when shorter
  // than sixteen bytes), then mixed so that the high bits (the part) and the low bits (the
  // slot) both depend on every byte.
  constexpr std::uint64_t k1 = 0x9E3779B97F4A7C15ull, k2 = 0xC2B2AE3D27D4EB4Full;
  const char* p = cle.data();
  const std::size_t n = cle.size();
  std::uint64_t a, b;
  if (n >= 8) {
    a = Lit64(p);
    b = Lit64(p + n - 8);
    for (std::size_t i = 8; i + 8 < n; i += 8) a = (a ^ Lit64(p + i)) * k2 + (a >> 29);
  } else {
    a = b = 0;
    for (std::size_t i = 0; i < n; ++i) a |= std::uint64_t{static_cast<unsigned char>(p[i])} << (8 * i);
  }
  std::uint64_t h = (a ^ (n * k2)) * k1 ^ (b + n) * k2;
  h ^= h >> 31;
  h *= k1;
  h ^= h >> 29;
  return h;
}

std::uint32_t Lit32(const char* p) {
  std::uint32_t v;
  std::memcpy(&v, p, 4);
  return v;
}

std::size_t Longueur(const char* entree) { return static_cast<unsigned char>(entree[0]); }
std::uint32_t Hachage(const char* entree) { return Lit32(entree + 1); }

}  // namespace

ClesReparties::ClesReparties(std::size_t nombre, bool numeros) {
  unsigned bits = 0;
  while (bits < kBitsParties && (nombre >> (kBitsParPartie + bits)) > 0) ++bits;
  decalage_ = 64 - bits;
  Prepare(std::size_t{1} << bits, nombre, numeros);
}

ClesReparties::ClesReparties(std::size_t nombre, const ClesReparties& modele, bool numeros)
    : decalage_(modele.decalage_) {
  Prepare(modele.parties_.size(), nombre, numeros);
}

void ClesReparties::Prepare(std::size_t parties, std::size_t nombre, bool numeros) {
  tete_ = kTeteSansNumero + (numeros ? 4 : 0);
  parties_.resize(parties);
  pleins_.resize(parties);
  // Blocks for the keys expected (a key takes some twenty bytes) and a piece per part, in
  // blocks of a few megabytes, which the allocator keeps for the next comparison rather than
  // giving them back to the system to be cleared again.
  tailleBloc_ = std::clamp(nombre * 24 + parties * kMorceau, std::size_t{4} * kMorceau, kBlocMax);
}

void ClesReparties::NouveauMorceau(std::size_t n) {
  if (resteBloc_ < kMorceau) {
    blocs_.emplace_back(new char[tailleBloc_]);
    libre_ = blocs_.back().get();
    resteBloc_ = tailleBloc_;
    ConseilleGrandesPages(libre_, tailleBloc_);
  }
  Partie& p = parties_[n];
  if (p.debut) pleins_[n].push_back({p.debut, p.fin});
  p.debut = p.fin = libre_;
  p.limite = libre_ + kMorceau;
  libre_ += kMorceau;
  resteBloc_ -= kMorceau;
}

template <class F>
void ClesReparties::PourChaque(std::size_t n, F&& f) const {
  const auto parcourt = [&](const char* e, const char* fin) {
    for (; e < fin; e += tete_ + Longueur(e)) f(e);
  };
  for (const Morceau& m : pleins_[n]) parcourt(m.debut, m.fin);
  parcourt(parties_[n].debut, parties_[n].fin);
}

void ClesReparties::Ajouter(std::string_view cle, std::int32_t numero) {
  if (cle.size() > kCleMax) Erreur(5);
  const std::uint64_t h = Hache(cle);
  const std::size_t n = decalage_ < 64 ? h >> decalage_ : 0;
  Partie& p = parties_[n];
  const std::size_t taille = tete_ + cle.size();
  if (static_cast<std::size_t>(p.limite - p.fin) < taille) NouveauMorceau(n);
  // Written through a copy of the pointer: a store through a char pointer may change anything,
  // the part's own pointer included, which would then be read again after every store.
  char* e = p.fin;
  const auto h32 = static_cast<std::uint32_t>(h);
  e[0] = static_cast<char>(cle.size());
  std::memcpy(e + 1, &h32, 4);
  if (tete_ > kTeteSansNumero) std::memcpy(e + kTeteSansNumero, &numero, 4);
  CopieCourte(e + tete_, cle.data(), cle.size());
  p.fin = e + taille;
  ++p.nombre;
  ++nombre_;
}

void MarqueAbsents(const ClesReparties& ceux, const std::vector<const ClesReparties*>& autres, std::size_t debut,
                   std::size_t fin, std::vector<char>& absent) {
  for (const ClesReparties* a : autres)
    if (a->parties_.size() != ceux.parties_.size()) Erreur(5);
  if (fin > ceux.parties_.size() || ceux.tete_ == kTeteSansNumero) Erreur(5);
  // A slot: the key's hash's low half, its length and its bytes; a null address is a free slot.
  struct Case {
    std::uint32_t h;
    std::uint32_t longueur;
    const char* cle;
  };
  std::vector<Case> cases;
  for (std::size_t n = debut; n < fin; ++n) {
    if (ceux.parties_[n].nombre == 0) continue;
    std::size_t nombre = 0;
    for (const ClesReparties* a : autres) nombre += a->parties_[n].nombre;
    std::size_t taille = 16;
    while (taille < 2 * nombre) taille *= 2;
    const std::size_t masque = taille - 1;
    cases.assign(taille, {0, 0, nullptr});
    for (const ClesReparties* a : autres)
      a->PourChaque(n, [&, t = a->tete_](const char* e) {
        const std::uint32_t h = Hachage(e);
        std::size_t i = h & masque;
        while (cases[i].cle) i = (i + 1) & masque;
        cases[i] = {h, static_cast<std::uint32_t>(Longueur(e)), e + t};
      });
    ceux.PourChaque(n, [&](const char* e) {
      const std::uint32_t h = Hachage(e);
      const std::size_t longueur = Longueur(e);
      const char* cle = e + ceux.tete_;
      for (std::size_t i = h & masque; cases[i].cle; i = (i + 1) & masque)
        if (cases[i].h == h && cases[i].longueur == longueur && std::memcmp(cases[i].cle, cle, longueur) == 0)
          return;
      std::int32_t numero;
      std::memcpy(&numero, e + kTeteSansNumero, 4);
      if (numero < 0 || static_cast<std::size_t>(numero) >= absent.size()) Erreur(9);
      absent[static_cast<std::size_t>(numero)] = 1;
    });
  }
}

}  // namespace lex
