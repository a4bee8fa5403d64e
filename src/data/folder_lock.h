// One program per folder: a lock file in the program folder, held for as long as the program
// runs. The system releases it when the process ends, however it ends, so a crash leaves
// nothing stuck.
#pragma once
#include <string>

namespace lex {

class VerrouDossier {
 public:
  VerrouDossier() = default;
  ~VerrouDossier();
  VerrouDossier(const VerrouDossier&) = delete;
  VerrouDossier& operator=(const VerrouDossier&) = delete;

  // Takes the lock of `dossier` (ending with a separator); false when another program holds
  // it. A folder where no lock file can be made is not refused: it is someone's only copy.
  bool Prendre(const std::string& dossier);
  // Once the program has written its last file, another may start on the folder.
  void Rendre();

 private:
#ifdef _WIN32
  void* poignee_ = nullptr;
#else
  int fd_ = -1;
#endif
};

}  // namespace lex
