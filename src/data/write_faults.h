// A seam through which tests make the safe writes fail as a full disk or a refused permission
// would, at a chosen step, to check that nothing is lost when they do. Every step of a safe
// write that touches the disk counts as one: creating the temporary file, each block written
// into it, and the final flush and replacement. Left alone it costs one atomic load a step.
#pragma once
#include <cstdint>

namespace lex {

struct PanneEcriture {
  std::int64_t etape = 1;  // the step that fails, counted from 1 from the moment it is armed
  int numero = 61;         // the error it fails with: 61 disk full, 70 permission refused...
  bool ensuite = false;    // every later step fails too (a disk that stays full)
};

// Arms the fault and starts counting steps afresh; replaces any fault armed before.
void ProgrammerPanne(const PanneEcriture& p);
void AnnulerPanne();

// For the safe write: called at each step, gives the error number to fail with, or 0.
int PanneAEtape();

}  // namespace lex
