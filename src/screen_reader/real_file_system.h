// The file-system port over the real disk.
#pragma once
#include "screen_reader/file_system.h"

namespace lex {

class SystemeFichiersReel final : public SystemeFichiers {
 public:
  std::vector<std::string> Lecteurs() const override;
  std::string DonneesApplication() const override;
  std::vector<std::string> SousDossiers(std::string_view dossier) const override;
  bool EstDossier(std::string_view chemin) const override;
};

}  // namespace lex
