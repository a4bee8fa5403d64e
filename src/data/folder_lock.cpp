#include "data/folder_lock.h"

#include "data/files.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace lex {
namespace {
constexpr const char* kNomVerrou = "lex.lock";
}  // namespace

#ifdef _WIN32

VerrouDossier::~VerrouDossier() { Rendre(); }

void VerrouDossier::Rendre() {
  if (poignee_) CloseHandle(poignee_);
  poignee_ = nullptr;
}

bool VerrouDossier::Prendre(const std::string& dossier) {
  const std::filesystem::path chemin = CheminNatif(dossier + kNomVerrou);
  // Shared with nobody while open; the file goes away with the last handle.
  HANDLE h = CreateFileW(chemin.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                         FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (h == INVALID_HANDLE_VALUE) return GetLastError() != ERROR_SHARING_VIOLATION;
  poignee_ = h;
  return true;
}

#else

VerrouDossier::~VerrouDossier() { Rendre(); }

void VerrouDossier::Rendre() {
  if (fd_ >= 0) close(fd_);
  fd_ = -1;
}

bool VerrouDossier::Prendre(const std::string& dossier) {
  const std::filesystem::path chemin = CheminNatif(dossier + kNomVerrou);
  const int fd = open(chemin.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return true;
  if (flock(fd, LOCK_EX | LOCK_NB) != 0) {
    close(fd);
    return false;
  }
  fd_ = fd;
  return true;
}

#endif

}  // namespace lex
