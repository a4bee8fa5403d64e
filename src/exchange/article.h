// What every reader of an outside format gives, and what goes wrong with its files.
//
// Readers give articles in UTF-8, as the outside formats hold them; bringing the text to
// Windows-1252, sorting the articles and writing the dictionary file is done once, after the
// reader, by the writer (dictionary_writer.h).
#pragma once
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lex::exchange {

// One article: its index line, then its definition lines; no line holds a line break. UTF-8.
struct ArticleImporte {
  std::string index;
  std::vector<std::string> definition;
};

// Called once per article, in the order of the source.
using Recepteur = std::function<void(ArticleImporte&&)>;

// A file that cannot be read as its format says: which file, where in it (a line, an entry:
// "ligne 12", "entrée 3 (chat)"), and what is wrong, all in French, UTF-8. what() gives the
// whole sentence the user is shown.
class ErreurImport : public std::runtime_error {
 public:
  ErreurImport(std::string fichier, std::string endroit, std::string probleme);
  const std::string& fichier() const { return fichier_; }
  const std::string& endroit() const { return endroit_; }
  const std::string& probleme() const { return probleme_; }

 private:
  std::string fichier_, endroit_, probleme_;
};

}  // namespace lex::exchange
