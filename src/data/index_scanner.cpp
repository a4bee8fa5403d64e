#include "data/index_scanner.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <future>
#include <new>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace lex {
namespace {
// Two bytes past the data are always readable, so that a line end can look at the next line.
constexpr std::size_t kMarge = 2;

inline bool VideApres(const char* q) { return q[1] == '\n' || (q[1] == '\r' && q[2] == '\n'); }

// The next line end in [p, fin), or nullptr. Index lines are short: a call to memchr costs
// more than looking at them sixteen bytes at a time here.
inline const char* FinDeLigne(const char* p, const char* fin) {
#if defined(__SSE2__)
  const __m128i nl = _mm_set1_epi8('\n');
  for (; p + 16 <= fin; p += 16) {
    const auto m = static_cast<unsigned>(
        _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)), nl)));
    if (m != 0) return p + std::countr_zero(m);
  }
#endif
  return static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(fin - p)));
}
}  // namespace

const char* ProchaineLigneVide(const char* p, const char* limite) {
#if defined(__SSE2__)
  // Sixteen bytes at a time, from three overlapping views of them: the bits are the line
  // ends followed by an empty line, so the loop branches about once per article.
  const __m128i nl = _mm_set1_epi8('\n'), cr = _mm_set1_epi8('\r');
  for (; p + 16 <= limite; p += 16) {
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 1));
    const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 2));
    const __m128i bnl = _mm_cmpeq_epi8(b, nl);
    const __m128i suivi = _mm_or_si128(bnl, _mm_and_si128(_mm_cmpeq_epi8(b, cr), _mm_cmpeq_epi8(c, nl)));
    const auto vides = static_cast<unsigned>(_mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(a, nl), suivi)));
    if (vides != 0) return p + std::countr_zero(vides) + 1;
  }
#endif
  while (p < limite) {
    const char* q = static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(limite - p)));
    if (!q) return nullptr;
    if (VideApres(q)) return q + 1;
    p = q + 1;
  }
  return nullptr;
}

LecteurIndex::Tampon::Tampon(std::size_t n) : octets(static_cast<char*>(std::malloc(n))), taille(n) {
  if (!octets) throw std::bad_alloc();
}

void LecteurIndex::Tampon::Agrandir(std::size_t n) {
  char* p = static_cast<char*>(std::realloc(octets.get(), n));
  if (!p) throw std::bad_alloc();
  (void)octets.release();
  octets.reset(p);
  taille = n;
}

LecteurIndex::LecteurIndex(std::FILE* f, std::size_t bloc, std::size_t reserve)
    : f_(f), bloc_(bloc), reserve_(reserve), t_(reserve + bloc + kMarge), suivant_(t_.size()),
      p_(reserve), fin_(reserve), base_(-static_cast<std::int64_t>(reserve)) {
  Anticipe();
}

LecteurIndex::~LecteurIndex() {
  if (lecture_.valid()) lecture_.wait();
}

void LecteurIndex::Anticipe() {
  const std::size_t taille = reserve_ + bloc_ + kMarge;
  // The buffer of a long line, swapped out once the line ended, is not kept for good.
  if (suivant_.size() != taille) suivant_ = Tampon(taille);
  lecture_ = std::async(std::launch::async,
                        [f = f_, d = suivant_.data() + reserve_, n = bloc_] { return std::fread(d, 1, n, f); });
}

void LecteurIndex::Remplir() {
  const std::size_t n = lecture_.get();
  if (n == 0) {
    eof_ = true;
    return;
  }
  const std::int64_t debutDonnees = base_ + static_cast<std::int64_t>(fin_);
  const std::size_t reste = fin_ - p_;
  if (reste <= reserve_) {
    std::memcpy(suivant_.data() + reserve_ - reste, t_.data() + p_, reste);
    std::swap(t_, suivant_);
    p_ = reserve_ - reste;
    fin_ = reserve_ + n;
  } else {
    // A line longer than the room before the block grows at the start of a buffer that at
    // least doubles when too small: a line of any length costs time in proportion to it.
    if (p_ > 0) std::memmove(t_.data(), t_.data() + p_, reste);
    p_ = 0;
    const std::size_t voulu = reste + n + kMarge;
    if (t_.size() < voulu) t_.Agrandir(std::max(voulu, 2 * t_.size()));
    std::memcpy(t_.data() + reste, suivant_.data() + reserve_, n);
    fin_ = reste + n;
  }
  base_ = debutDonnees - static_cast<std::int64_t>(fin_ - n);
  t_[fin_] = t_[fin_ + 1] = '\0';
  Anticipe();
}

bool LecteurIndex::Suivante(std::string_view& ligne, std::int64_t& offset) {
  for (;;) {
    if (dansArticle_) {
      const std::size_t limite = eof_ ? fin_ : (fin_ >= kMarge ? fin_ - kMarge : 0);
      const char* vide = p_ < limite ? ProchaineLigneVide(t_.data() + p_, t_.data() + limite) : nullptr;
      if (!vide) {
        if (eof_) return false;
        p_ = std::max(p_, limite);
        Remplir();
        continue;
      }
      p_ = static_cast<std::size_t>(vide - t_.data());
      dansArticle_ = false;
    }
    if (p_ >= fin_) {
      if (eof_) return false;
      Remplir();
      continue;
    }
    // Bytes already searched stay searched when a long line takes several blocks.
    const char* nl = FinDeLigne(t_.data() + p_ + sansFin_, t_.data() + fin_);
    if (!nl && !eof_) {
      sansFin_ = fin_ - p_;
      Remplir();
      continue;
    }
    sansFin_ = 0;
    const std::size_t fin = nl ? static_cast<std::size_t>(nl - t_.data()) : fin_;
    std::size_t longueur = fin - p_;
    if (nl && longueur > 0 && t_[fin - 1] == '\r') --longueur;
    const std::size_t depart = p_;
    p_ = fin;  // on the line end (or the end of the data)
    if (longueur == 0) {  // a separator: the next line may be the index line
      if (nl) ++p_;
      continue;
    }
    ligne = {t_.data() + depart, longueur};
    offset = base_ + static_cast<std::int64_t>(depart);
    dansArticle_ = true;
    return true;
  }
}

}  // namespace lex
