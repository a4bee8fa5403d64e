// The letter file reader and the test that tells the program's letter files from a user's
// file, on any bytes: what the test takes for a letter file must read, and a table read
// back, written and read again must not change.
#include <cstdlib>
#include <string_view>

#include "data/letter_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view texte(reinterpret_cast<const char*>(data), size);
  lex::TableLettre lues;
  const bool lu = lex::LireTexteLettres(texte, lues);
  if (lex::EstTexteLettres(texte) && !lu) std::abort();
  if (!lu) return 0;
  const std::string ecrit = lex::TexteLettres(lues);
  lex::TableLettre relues;
  if (!lex::EstTexteLettres(ecrit) || !lex::LireTexteLettres(ecrit, relues) || relues.valeurs() != lues.valeurs())
    std::abort();
  return 0;
}
