#include "reports/block_reader.h"

#include "base/error.h"

namespace lex {

LecteurBlocs::LecteurBlocs(std::FILE* f, std::size_t bloc) : f_(f), tampon_(bloc) {}

std::string_view LecteurBlocs::Depuis(std::int64_t position) {
  if (position < 0) Erreur(5);
  if (position < base_ || position >= base_ + static_cast<std::int64_t>(lus_)) {
    // The file stands where the last block ended: the next block follows on without a seek.
    if (position != base_ + static_cast<std::int64_t>(lus_) &&
        std::fseek(f_, static_cast<long>(position), SEEK_SET) != 0)
      return {};
    base_ = position;
    lus_ = std::fread(tampon_.data(), 1, tampon_.size(), f_);
    if (lus_ == 0) return {};
  }
  const auto debut = static_cast<std::size_t>(position - base_);
  return {tampon_.data() + debut, lus_ - debut};
}

}  // namespace lex
