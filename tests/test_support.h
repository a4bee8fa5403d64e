// Temporary program folders and byte-exact files for tests.
#pragma once
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "data/files.h"

namespace lex::test {

inline std::string Octets(const std::filesystem::path& chemin) {
  std::ifstream in(chemin, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

class DossierTemp {
 public:
  DossierTemp() {
    std::random_device rd;
    chemin_ = std::filesystem::temp_directory_path() / ("lex-test-" + std::to_string(rd()) + std::to_string(rd()));
    std::filesystem::create_directories(chemin_);
  }
  ~DossierTemp() {
    std::error_code ec;
    std::filesystem::remove_all(chemin_, ec);
  }
  // The folder as core text, ending with a separator.
  std::string Dossier() const { return ajoutbackslash(NomDepuisNatif(chemin_)); }
  // `nom` is a name of the core (Windows-1252), as the program joins it to its folder.
  std::string Chemin(const std::string& nom) const { return Dossier() + NomNatif(nom); }
  void Ecrire(const std::string& nom, const std::string& octets) const {
    std::ofstream(CheminNatif(Chemin(nom)), std::ios::binary) << octets;
  }
  std::string Lire(const std::string& nom) const { return Octets(CheminNatif(Chemin(nom))); }

 private:
  std::filesystem::path chemin_;
};

inline std::string Fixture(const std::string& nom) { return Octets(std::string(LEX_FIXTURES) + "/" + nom); }

}  // namespace lex::test
