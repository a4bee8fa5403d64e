// A folder of this fuzzing process's own, removed when it ends, for the readers that take
// file names.
#pragma once
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace lex::fuzz {

// In memory when the system has such a folder: the files written are forced to the disk as the
// user's are, which costs nothing there.
inline std::filesystem::path Racine() {
  return std::filesystem::is_directory("/dev/shm") ? std::filesystem::path("/dev/shm")
                                                   : std::filesystem::temp_directory_path();
}

inline const std::string& Dossier() {
  static const std::string d = [] {
    const auto p = Racine() / ("lex-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(p);
    std::atexit([] {
      std::error_code ec;
      std::filesystem::remove_all(Racine() / ("lex-fuzz-" + std::to_string(::getpid())), ec);
    });
    return p.string() + "/";
  }();
  return d;
}

inline std::string Ecrit(const std::string& nom, std::string_view octets) {
  const std::string chemin = Dossier() + nom;
  std::ofstream(chemin, std::ios::binary | std::ios::trunc).write(octets.data(), static_cast<std::streamsize>(octets.size()));
  return chemin;
}

}  // namespace lex::fuzz
