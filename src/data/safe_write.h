// The one way the program writes a file. The new content goes into a temporary file beside
// the target, which then takes the target's place in one rename: a power cut or a crash at
// any moment leaves the old file or the new one, never a mixture, and a failed write leaves
// the old one untouched. A failure raises ErreurEcriture (data/write_error.h) and removes
// the temporary file.
#pragma once
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/system_file.h"

namespace lex {

enum class Donnees {
  // Dictionaries, their ".bak" copies, the configuration, number files, notepad, exports:
  // forced to the disk before the rename, and the rename itself after.
  Utilisateur,
  // Index and letter files: a cut may lose the new one, which the next opening rebuilds.
  Reconstructible,
};

// A file written by blocks (an index being built, a dictionary being copied). Nothing is
// visible at the target until Valider(); an object destroyed before that, or after a
// failure, leaves the target as it was and no temporary file. Each call is one write to the
// system: give it blocks, not bytes.
class EcritureSure {
 public:
  EcritureSure(std::string_view cible, Donnees genre);
  ~EcritureSure();
  EcritureSure(const EcritureSure&) = delete;
  EcritureSure& operator=(const EcritureSure&) = delete;

  void Ecrire(const char* p, std::size_t n);
  void Ecrire(std::string_view s) { Ecrire(s.data(), s.size()); }
  // Appends `longueur` bytes of the file `source` from `debut`, copied by the system where it
  // can: a dictionary's unchanged hundreds of megabytes need not pass through the program.
  void Copier(std::string_view source, std::int64_t debut, std::int64_t longueur);
  // Rewrites bytes already written (a header known only at the end); the next Ecrire still
  // goes on at the end.
  void EcrireA(std::int64_t position, const char* p, std::size_t n);
  // The new file will carry this modification time (a copy keeps its source's).
  void GarderDate(std::filesystem::file_time_type date) { date_ = date; }
  // The modification time of what was written so far, which the target keeps once in place.
  std::filesystem::file_time_type Date() const;
  // Puts the new content in the target's place.
  void Valider();

  const std::string& cible() const { return nom_; }

 private:
  [[noreturn]] void Echoue(int numero);
  void Verifie(int numero) {
    if (numero != 0) Echoue(numero);
  }
  void Defait();

  std::string nom_;
  std::filesystem::path cible_, temp_;
  Donnees genre_;
  systeme::Poignee h_{};
  bool ouvert_ = false;  // the handle is open
  bool temp_existe_ = false;
  int echec_ = 0;  // the error that ended this write, repeated to any later call
  std::optional<std::filesystem::file_time_type> date_;
};

// Replaces the file `nom` with exactly these bytes.
void EcrireFichierSur(std::string_view nom, std::string_view octets, Donnees genre);
// Replaces the file `nom` with these lines, each followed by CR LF.
void EcrireLignesSur(std::string_view nom, const std::vector<std::string>& lignes, Donnees genre);

// Whether a file name (without folder) is one the safe write gives its temporary files.
bool EstNomTemporaire(std::string_view nomSeul);
// Removes the temporary files that a crash or a cut left in `dossier` (to be called at start,
// before any write) and gives their number. Only names made by the safe write are touched.
// Never fails: what cannot be removed now will be at the next start.
int SupprimerTemporaires(std::string_view dossier);

}  // namespace lex
