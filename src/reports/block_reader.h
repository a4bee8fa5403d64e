// A file read forward in big blocks, for reports that look at a few bytes of every article of
// a dictionary: one read per block instead of one open, seek and read per article.
#pragma once
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

namespace lex {

class LecteurBlocs {
 public:
  // Tests use tiny blocks to cross every boundary.
  explicit LecteurBlocs(std::FILE* f, std::size_t bloc = std::size_t{1} << 20);
  // The bytes from `position` on, as far as the block that holds it goes: at least one,
  // unless the file ends there (then none). Going forward reads on; going back reads again.
  std::string_view Depuis(std::int64_t position);

 private:
  std::FILE* f_;
  std::vector<char> tampon_;
  std::int64_t base_ = 0;  // offset of tampon_[0] in the file
  std::size_t lus_ = 0;    // bytes of tampon_ that hold the file
};

}  // namespace lex
