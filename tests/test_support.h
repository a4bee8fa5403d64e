// Temporary program folders and byte-exact files for tests.
#pragma once
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "data/files.h"

namespace lex::test {

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
  std::string Lire(const std::string& nom) const {
    std::ifstream in(CheminNatif(Chemin(nom)), std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
  }

 private:
  std::filesystem::path chemin_;
};

inline std::string Fixture(const std::string& nom) {
  std::ifstream in(std::string(LEX_FIXTURES) + "/" + nom, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

}  // namespace lex::test
