// The few system calls a safe write needs, on POSIX and on Windows. Each answers 0 or the
// classic error number of the failure (61 disk full, 70 permission refused, 76 path not
// found, 57 device error...), and the safe write decides what to report.
#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>

namespace lex::systeme {

#ifdef _WIN32
using Poignee = void*;
#else
using Poignee = int;
#endif

// Answer of CreerNeuf when the name is taken: the caller tries another.
inline constexpr int kNomPris = -1;

// Creates `p`, which must not exist yet, open for writing only.
int CreerNeuf(const std::filesystem::path& p, Poignee& h);
int EcrireTout(Poignee h, const char* d, std::size_t n);
// Writes at `position` without moving the place where the next EcrireTout writes.
int EcrireA(Poignee h, std::int64_t position, const char* d, std::size_t n);
// Appends `longueur` bytes of the file `source`, from `debut`, to what `h` holds, the system
// copying them without a trip through the program's memory. kCopieImpossible, nothing
// written, where the system cannot: the caller then reads and writes them itself.
inline constexpr int kCopieImpossible = -2;
int CopierPlage(Poignee h, const std::filesystem::path& source, std::int64_t debut, std::int64_t longueur);
// Down to the disk itself, not only to the system's cache.
int Synchroniser(Poignee h);
int Fermer(Poignee h);

// 0 when `cible` is missing or may be replaced; 70 when it is a read-only file or a folder
// (a rename would replace a read-only file without a word, which the user did not want).
int CibleRemplacable(const std::filesystem::path& cible);
// Gives the new file the permission bits of the one it replaces (no such bits on Windows).
void CopierDroits(Poignee h, const std::filesystem::path& cible);
// Puts `de` in the place of `vers` in one step: a reader sees one or the other, never both.
int Remplacer(const std::filesystem::path& de, const std::filesystem::path& vers);
// Makes a replacement in `dossier` survive a power cut; failures are not reported, the file
// being already in place.
void SynchroniserDossier(const std::filesystem::path& dossier);
void Supprimer(const std::filesystem::path& p);

}  // namespace lex::systeme
