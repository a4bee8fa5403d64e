#include "screen_reader/versions.h"

#include <string>

#include "screen_reader/folder_search.h"

namespace lex {
namespace {

bool Chiffre(char c) { return c >= '0' && c <= '9'; }

// The digits and dots from the first digit on.
std::string_view Nombres(std::string_view nom) {
  const auto debut = nom.find_first_of("0123456789");
  if (debut == std::string_view::npos) return {};
  std::size_t fin = debut;
  while (fin < nom.size() && (Chiffre(nom[fin]) || nom[fin] == '.')) ++fin;
  return nom.substr(debut, fin - debut);
}

Version Pointee(std::string_view s) {
  Version v;
  int n = 0;
  bool dedans = false;
  for (char c : s) {
    if (Chiffre(c)) {
      // A run of digits too long for a version is not one.
      if (n > 99999) return {};
      n = n * 10 + (c - '0');
      dedans = true;
    } else if (dedans) {
      v.push_back(n);
      n = 0;
      dedans = false;
    }
  }
  if (dedans) v.push_back(n);
  return v;
}

}  // namespace

Version VersionDossier(std::string_view nom) { return Pointee(Nombres(nom)); }

Version VersionInstallation(std::string_view nom) {
  const std::string_view s = Nombres(nom);
  if (s.find('.') != std::string_view::npos || s.size() >= 4) return Pointee(s);
  Version v;
  for (char c : s) v.push_back(c - '0');
  return v;
}

bool EstDossierJaws(std::string_view nom) {
  const std::string m = NomMajuscule(nom);
  return m.rfind("JAWS", 0) == 0 || m.rfind("JFW", 0) == 0;
}

}  // namespace lex
