#include "data/system_file.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <algorithm>

namespace lex::systeme {

#ifdef _WIN32

namespace {
int Numero(DWORD e) {
  switch (e) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return 61;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: return 70;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH: return 76;
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE: return 52;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY: return 7;
    default: return 57;
  }
}
int Echec() { return Numero(GetLastError()); }
}  // namespace

int CreerNeuf(const std::filesystem::path& p, Poignee& h) {
  h = CreateFileW(p.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (h != INVALID_HANDLE_VALUE) return 0;
  const DWORD e = GetLastError();
  return e == ERROR_FILE_EXISTS || e == ERROR_ALREADY_EXISTS ? kNomPris : Numero(e);
}

int EcrireTout(Poignee h, const char* d, std::size_t n) {
  while (n > 0) {
    const DWORD morceau = static_cast<DWORD>(std::min<std::size_t>(n, std::size_t{1} << 30));
    DWORD ecrits = 0;
    if (!WriteFile(h, d, morceau, &ecrits, nullptr)) return Echec();
    if (ecrits == 0) return 61;
    d += ecrits;
    n -= ecrits;
  }
  return 0;
}

int EcrireA(Poignee h, std::int64_t position, const char* d, std::size_t n) {
  LARGE_INTEGER zero{}, ici{}, voulu{};
  voulu.QuadPart = position;
  if (!SetFilePointerEx(h, zero, &ici, FILE_CURRENT) || !SetFilePointerEx(h, voulu, nullptr, FILE_BEGIN)) return Echec();
  const int r = EcrireTout(h, d, n);
  if (!SetFilePointerEx(h, ici, nullptr, FILE_BEGIN) && r == 0) return Echec();
  return r;
}

int CopierPlage(Poignee, const std::filesystem::path&, std::int64_t, std::int64_t) { return kCopieImpossible; }

int Synchroniser(Poignee h) { return FlushFileBuffers(h) ? 0 : Echec(); }

int Fermer(Poignee h) { return CloseHandle(h) ? 0 : Echec(); }

int CibleRemplacable(const std::filesystem::path& cible) {
  const DWORD a = GetFileAttributesW(cible.c_str());
  if (a == INVALID_FILE_ATTRIBUTES) return 0;
  return (a & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) ? 70 : 0;
}

void CopierDroits(Poignee, const std::filesystem::path&) {}

int Remplacer(const std::filesystem::path& de, const std::filesystem::path& vers) {
  return MoveFileExW(de.c_str(), vers.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ? 0 : Echec();
}

// MOVEFILE_WRITE_THROUGH has already made the replacement itself durable.
void SynchroniserDossier(const std::filesystem::path&) {}

void Supprimer(const std::filesystem::path& p) { DeleteFileW(p.c_str()); }

#else

namespace {
int Numero(int e) {
  switch (e) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return 61;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
    case EISDIR: return 70;
    // For a write, a missing name is a missing folder: the file itself is created.
    case ENOENT:
    case ENOTDIR: return 76;
    case ENAMETOOLONG:
    case EINVAL: return 52;
    case ENOMEM: return 7;
    default: return 57;
  }
}
int Echec() { return Numero(errno); }
}  // namespace

int CreerNeuf(const std::filesystem::path& p, Poignee& h) {
  do {
    h = ::open(p.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  } while (h < 0 && errno == EINTR);
  if (h >= 0) return 0;
  return errno == EEXIST ? kNomPris : Echec();
}

// Writes all of it, a call at a time: `ecrire(d, n, deja)` writes from `d` what it can and
// says how much, or -1 with errno set.
template <class F>
int EcrireEnBoucle(const char* d, std::size_t n, F ecrire) {
  std::int64_t deja = 0;
  while (n > 0) {
    const ssize_t e = ecrire(d, n, deja);
    if (e < 0) {
      if (errno == EINTR) continue;
      return Echec();
    }
    if (e == 0) return 61;
    d += e;
    n -= static_cast<std::size_t>(e);
    deja += e;
  }
  return 0;
}

int EcrireTout(Poignee h, const char* d, std::size_t n) {
  return EcrireEnBoucle(d, n, [h](const char* p, std::size_t k, std::int64_t) { return ::write(h, p, k); });
}

int EcrireA(Poignee h, std::int64_t position, const char* d, std::size_t n) {
  return EcrireEnBoucle(d, n, [h, position](const char* p, std::size_t k, std::int64_t deja) {
    return ::pwrite(h, p, k, static_cast<off_t>(position + deja));
  });
}

int CopierPlage(Poignee h, const std::filesystem::path& source, std::int64_t debut, std::int64_t longueur) {
#ifdef __linux__
  const int s = ::open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (s < 0) return Echec();
  off_t depuis = static_cast<off_t>(debut);
  std::int64_t copies = 0;
  int r = 0;
  while (copies < longueur) {
    const ssize_t n = ::copy_file_range(s, &depuis, h, nullptr, static_cast<std::size_t>(longueur - copies), 0);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0 && copies == 0 && (errno == EXDEV || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP)) {
      r = kCopieImpossible;
      break;
    }
    if (n < 0) {
      r = Echec();
      break;
    }
    if (n == 0) {  // the source is shorter than said
      r = 62;
      break;
    }
    copies += n;
  }
  ::close(s);
  return r;
#else
  (void)h, (void)source, (void)debut, (void)longueur;
  return kCopieImpossible;
#endif
}

int Synchroniser(Poignee h) {
#ifdef F_FULLFSYNC
  // On macOS fsync stops at the drive's cache.
  if (::fcntl(h, F_FULLFSYNC) == 0) return 0;
#endif
  return ::fsync(h) == 0 ? 0 : Echec();
}

// A failed close can be the first news of a failed write (network file systems): it counts.
int Fermer(Poignee h) { return ::close(h) == 0 || errno == EINTR ? 0 : Echec(); }

int CibleRemplacable(const std::filesystem::path& cible) {
  struct stat st;
  if (::stat(cible.c_str(), &st) != 0) return 0;
  if (S_ISDIR(st.st_mode)) return 70;
  // A file without any write permission is read-only, even for an administrator.
  if ((st.st_mode & 0222) == 0 || ::access(cible.c_str(), W_OK) != 0) return 70;
  return 0;
}

void CopierDroits(Poignee h, const std::filesystem::path& cible) {
  struct stat st;
  if (::stat(cible.c_str(), &st) == 0 && S_ISREG(st.st_mode)) (void)::fchmod(h, st.st_mode & 07777);
}

int Remplacer(const std::filesystem::path& de, const std::filesystem::path& vers) {
  return ::rename(de.c_str(), vers.c_str()) == 0 ? 0 : Echec();
}

void SynchroniserDossier(const std::filesystem::path& dossier) {
  const int d = ::open(dossier.empty() ? "." : dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (d < 0) return;
  (void)::fsync(d);
  ::close(d);
}

void Supprimer(const std::filesystem::path& p) { ::unlink(p.c_str()); }

#endif

}  // namespace lex::systeme
