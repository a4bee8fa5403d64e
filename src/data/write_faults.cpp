#include "data/write_faults.h"

#include <atomic>

namespace lex {
namespace {

// Blocks of the index file are written from a second thread: the count is shared.
std::atomic<bool> arme{false};
std::atomic<std::int64_t> compte{0};
std::atomic<std::int64_t> etape{0};
std::atomic<int> numero{0};
std::atomic<bool> ensuite{false};

}  // namespace

void ProgrammerPanne(const PanneEcriture& p) {
  arme.store(false);
  compte.store(0);
  etape.store(p.etape);
  numero.store(p.numero);
  ensuite.store(p.ensuite);
  arme.store(true);
}

void AnnulerPanne() { arme.store(false); }

int PanneAEtape() {
  if (!arme.load(std::memory_order_relaxed)) return 0;
  const std::int64_t n = compte.fetch_add(1) + 1;
  const std::int64_t e = etape.load();
  return n == e || (ensuite.load() && n > e) ? numero.load() : 0;
}

}  // namespace lex
