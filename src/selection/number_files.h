// The number files of a dictionary: its added and its selected entries, one number a line,
// beside it in the dictionaries' folder, so that they outlive the run.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lex {

inline constexpr std::string_view kPrefixeAjout = "ajout";
inline constexpr std::string_view kPrefixeSelection = "s\xE9lection";

// "ajout" or "sélection" followed by the dictionary file's own name (lex.eng), in the
// dictionaries' folder.
std::string NomFichierNumeros(const std::string& dossierDictio, std::string_view prefixe,
                              std::string_view fichierDictio);

void EcrireNumeros(std::string_view fichier, const std::vector<std::int32_t>& numeros);

struct NumerosLus {
  std::vector<std::int32_t> numeros;  // each once, in the file's order
  std::int32_t ignores = 0;           // lines that were no entry of the dictionary
};
// Reads a number file against a dictionary of `nombreArticle` entries: a line that is no
// number, or no entry of it, is counted and left out.
NumerosLus LireNumeros(std::string_view fichier, std::int32_t nombreArticle);

}  // namespace lex
