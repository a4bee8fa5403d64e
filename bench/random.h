// A small pseudo-random generator whose output is the same on every platform and standard
// library (the distributions of <random> are not), so that a seed always gives the same
// dictionary and the same benchmark samples.
#pragma once
#include <cstddef>
#include <cstdint>

namespace lex::bench {

class Hasard {
 public:
  explicit Hasard(std::uint64_t graine) : etat_(graine) {}

  // SplitMix64.
  std::uint64_t Suivant() {
    std::uint64_t z = (etat_ += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
  }
  // Uniform in [0, n); the tiny modulo bias does not matter here.
  std::size_t Entier(std::size_t n) { return n ? static_cast<std::size_t>(Suivant() % n) : 0; }
  // Uniform in [a, b].
  int Entre(int a, int b) { return a + static_cast<int>(Entier(static_cast<std::size_t>(b - a + 1))); }
  // True with probability p.
  bool Chance(double p) { return static_cast<double>(Suivant() >> 11) * 0x1.0p-53 < p; }

  template <class T, std::size_t N>
  const T& Parmi(const T (&liste)[N]) {
    return liste[Entier(N)];
  }

 private:
  std::uint64_t etat_;
};

// Mixes two numbers into an independent seed (one stream per article).
inline std::uint64_t Melange(std::uint64_t a, std::uint64_t b) {
  Hasard h(a ^ (b * 0xD6E8FEB86659FD93ull));
  h.Suivant();
  return h.Suivant();
}

}  // namespace lex::bench
