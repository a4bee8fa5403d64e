#include "data/huge_pages.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace lex {

void ConseilleGrandesPages([[maybe_unused]] void* p, [[maybe_unused]] std::size_t n) {
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  constexpr std::uintptr_t kGrande = std::uintptr_t{2} << 20;
  const auto debut = (reinterpret_cast<std::uintptr_t>(p) + kGrande - 1) & ~(kGrande - 1);
  const auto fin = (reinterpret_cast<std::uintptr_t>(p) + n) & ~(kGrande - 1);
  if (fin > debut) ::madvise(reinterpret_cast<void*>(debut), fin - debut, MADV_HUGEPAGE);
#endif
}

}  // namespace lex
