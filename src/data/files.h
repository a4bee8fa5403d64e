// Files and paths. A path is kept as the system gave it, in UTF-8 (the system's own bytes on
// Linux, its wide names on Windows, without loss), never squeezed through Windows-1252: a
// program folder named "Łódź" works. The names the user sees and types (dictionaries,
// suffixes) are Windows-1252 text of the core, turned into path text where they are joined to
// a folder (NomNatif), and paths are turned back into that text only to be shown
// (CheminAffiche). Failures raise the classic run-time errors.
#pragma once
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lex {

#ifdef _WIN32
inline constexpr char kSeparateur = '\\';
#else
inline constexpr char kSeparateur = '/';
#endif

std::filesystem::path CheminNatif(std::string_view chemin);
// A path from the file system, as core text.
std::string NomDepuisNatif(const std::filesystem::path& p);
// A name of the core (Windows-1252) as it is joined to a folder.
std::string NomNatif(std::string_view nomAnsi);
// A path as the user is shown it, in a message or a title ('?' for what Windows-1252 lacks).
std::string CheminAffiche(std::string_view chemin);

// The path with one folder separator at its end, added only when missing.
std::string ajoutbackslash(std::string_view chemin);
// The file name without its folder; cuts at either separator.
std::string NomFichSeul(std::string_view chemin);

// True when the file's length can be read; never reports anything.
bool FichierExistant(std::string_view nom);
// Length in bytes, or -1 when it cannot be read.
std::int64_t LongueurFichier(std::string_view nom);

// Copies through a safe write (data/safe_write.h), keeping the source's modification time:
// the destination is the old file or a whole copy, and a failed write raises ErreurEcriture.
void CopierFichier(std::string_view source, std::string_view destination);
void SupprimerFichier(std::string_view nom);
// Gives the file `ancien` the name `nouveau` in one step of the file system; a file already
// of that name is replaced, so callers check first.
void RenommerFichier(std::string_view ancien, std::string_view nouveau);

// The lines of a text file, each without its line end; a CR before LF belongs to the line
// end, so LF-only and mixed files read like CR LF ones. Error 53 when the file is missing;
// error 7 when its lines would take more than kMemoireLignes bytes (a file of empty lines
// takes many times its size), rather than holding the memory or dropping lines.
std::vector<std::string> LireLignes(std::string_view nom);
inline constexpr std::int64_t kMemoireLignes = std::int64_t{256} << 20;
// The same cut of text already in memory.
std::vector<std::string> DecoupeLignes(std::string_view texte);
// What the lines of `texte` take in memory as strings, in bytes (the estimate behind error 7).
std::int64_t MemoireLignes(std::string_view texte);
// Writes each line followed by CR LF, replacing the file through a safe write of the user's
// data (data/safe_write.h); a failure raises ErreurEcriture and leaves the old file.
void EcrireLignes(std::string_view nom, const std::vector<std::string>& lignes);

// Reads `longueur` bytes from `debut`; bytes past the end of the file stay blanks.
std::string LireOctets(std::string_view nom, std::int64_t debut, std::int64_t longueur);

// Maps an errno-style failure to the classic error number.
[[noreturn]] void ErreurFichier(const std::error_code& ec);

// Byte-exact reading. Files are written only through data/safe_write.h.
struct FermeFichier {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using Fichier = std::unique_ptr<std::FILE, FermeFichier>;
// Opens for reading only (every write goes through data/safe_write.h), or raises the classic
// error (53, 76, 70...).
Fichier OuvrirFichier(std::string_view nom);
// Opens for reading, or gives nullptr without a word.
Fichier OuvrirSiPossible(std::string_view nom);

}  // namespace lex
