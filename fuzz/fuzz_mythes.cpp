// A thesaurus on any bytes: either refused with a French reason naming the file, or read into
// articles whose lines hold neither a line break nor a NUL byte and are valid UTF-8, whatever
// encoding the first line names.
#include <unicode/utf8.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "exchange/mythes.h"
#include "fuzz_folder.h"

namespace {

void Verifie(bool condition) {
  if (!condition) std::abort();
}

void VerifieLigne(std::string_view s) {
  Verifie(s.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos);
  for (int32_t i = 0, n = static_cast<int32_t>(s.size()); i < n;) {
    UChar32 c;
    U8_NEXT(s.data(), i, n, c);
    Verifie(c >= 0);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lex::exchange;
  const std::string source = lex::fuzz::Ecrit("thes.dat", std::string_view(reinterpret_cast<const char*>(data), size));
  try {
    LitMyThes(source, [](ArticleImporte&& a) {
      VerifieLigne(a.index);
      Verifie(!a.definition.empty());
      for (const std::string& l : a.definition) VerifieLigne(l);
    });
  } catch (const ErreurImport& x) {
    Verifie(!x.probleme().empty() && x.fichier() == source);
  }
  return 0;
}
