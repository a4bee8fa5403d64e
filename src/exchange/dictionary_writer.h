// The articles a reader gives, made into a dictionary file of the program: Windows-1252, every
// line ended by CR LF, one empty line between two articles (none after the last, which is how
// the program reads its last article), in the program's alphabetical order.
//
// What the file cannot hold is refused, naming the entry: a line holding a NUL, CR or LF byte
// (an article would be cut in two, or its line ends shifted), an index line empty or made of
// blanks alone, an index line longer than kLongueurIndex characters. An empty definition line
// would end the article: it is left out. Articles whose keys are equal keep the order of the
// source, so that a dictionary exported and imported again comes back byte for byte.
//
// A million articles are held in about the size of the file they make: their text in a few
// large blocks, their keys in another, twenty-odd bytes of bookkeeping each.
#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "exchange/article.h"
#include "exchange/unicode_fold.h"

namespace lex::exchange {

// What a conversion did, for the user.
struct BilanEcriture {
  std::size_t articles = 0;
  std::size_t changes = 0;             // characters brought to Windows-1252
  std::vector<std::string> exemples;   // "ő→o", UTF-8
};

class EcrivainDictionnaire {
 public:
  // Longest index line kept, in characters: a headword longer than this is a broken source
  // (the longest of the free dictionaries is 73), and no list could show it.
  static constexpr std::size_t kLongueurIndex = 250;

  // `source` names the file read, in the errors.
  explicit EcrivainDictionnaire(std::string source);
  ~EcrivainDictionnaire();

  // Takes one article; throws ErreurImport for what the file cannot hold.
  void Ajoute(ArticleImporte&& a);
  // A Recepteur that gives each article to Ajoute.
  Recepteur Entree();
  std::size_t Nombre() const { return articles_.size(); }

  // Sorts the articles (unless the source's order is asked for: a dictionary without
  // alphabetical order, such as a chronology) and writes the file through the safe write
  // (data/safe_write.h): the target is the new file or untouched. Throws ErreurImport when
  // there is no article, ErreurEcriture when the file cannot be written.
  enum class Ordre { Alphabetique, Source };
  BilanEcriture Ecrit(const std::filesystem::path& cible, Ordre ordre = Ordre::Alphabetique);

 private:
  struct Place {
    std::uint32_t bloc;
    std::uint32_t debut;     // in the block
    std::uint32_t longueur;  // the article's lines, each with its CR LF
    std::uint32_t cle;       // the keys' start in the keys block
    std::uint16_t tete;      // the head key's length; 0: no head
    std::uint16_t entiere;   // the whole key's length
  };
  char* Reserve(std::size_t n, std::uint32_t& bloc, std::uint32_t& debut);
  std::string Endroit(std::size_t numero, const std::string& index) const;

  std::string source_;
  ReplieurAnsi replieur_;
  std::vector<std::unique_ptr<char[]>> blocs_;
  std::vector<std::size_t> tailles_;  // size of each block
  std::size_t rempli_ = 0;            // bytes used in the last block
  std::uint64_t taille_ = 0;          // of the file to write
  std::string cles_;
  std::vector<Place> articles_;
  std::string ligne_, article_;  // reused
};

}  // namespace lex::exchange
