// Walks a dictionary file once, in big blocks, and gives its index lines with their offsets.
// Only index lines are cut out: inside an article the walk looks for the next empty line
// alone, which is what makes indexing a large dictionary fast. The next block is read while
// the current one is walked, so the copy from the file overlaps the work.
#pragma once
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <string_view>

namespace lex {

class LecteurIndex {
 public:
  // Blocks of `bloc` bytes, with `reserve` bytes before each for an unfinished line; tests
  // use tiny ones to cross every boundary.
  explicit LecteurIndex(std::FILE* f, std::size_t bloc = std::size_t{1} << 19, std::size_t reserve = 1 << 16);
  ~LecteurIndex();
  LecteurIndex(const LecteurIndex&) = delete;
  LecteurIndex& operator=(const LecteurIndex&) = delete;
  // The next index line (without its line end) and the offset of its first byte; false at
  // the end of the file. The line stays valid until the next call.
  bool Suivante(std::string_view& ligne, std::int64_t& offset);

 private:
  void Remplir();
  void Anticipe();

  std::FILE* f_;
  std::size_t bloc_, reserve_;
  // Bytes that nothing reads before they are written: no time spent clearing them. A long
  // line grows its buffer with realloc, which moves large blocks without copying them.
  struct Libere {
    void operator()(char* p) const { std::free(p); }
  };
  struct Tampon {
    std::unique_ptr<char, Libere> octets;
    std::size_t taille = 0;
    explicit Tampon(std::size_t n);
    void Agrandir(std::size_t n);
    char* data() const { return octets.get(); }
    std::size_t size() const { return taille; }
    char& operator[](std::size_t i) const { return octets.get()[i]; }
  };
  Tampon t_;        // the block being walked, after room for a carried line start
  Tampon suivant_;  // the block being read
  std::future<std::size_t> lecture_;
  std::size_t p_ = 0, fin_ = 0;
  std::int64_t base_ = 0;  // offset in the file of t_[0]
  std::size_t sansFin_ = 0;  // bytes from p_ known to hold no line end
  bool eof_ = false;
  // Inside an article: p_ is a line end whose next line may be the empty separator.
  bool dansArticle_ = false;
};

// The start of the first empty line that follows a line end at or after p and before
// `limite`, or nullptr. Two readable bytes must follow `limite`.
const char* ProchaineLigneVide(const char* p, const char* limite);

}  // namespace lex
