// Verbiste's two files on any bytes: the input up to its first NUL byte is verbs-fr.xml, the
// rest conjugation-fr.xml. Either refused with a French reason naming one of the two files,
// or read into articles whose lines hold no line break.
#include <cstdlib>
#include <string>
#include <string_view>

#include "exchange/verbiste.h"
#include "fuzz_folder.h"

namespace {

void Verifie(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lex::exchange;
  const std::string_view octets(reinterpret_cast<const char*>(data), size);
  const std::size_t nul = octets.find('\0');
  const std::string verbes = lex::fuzz::Ecrit("verbs-fr.xml", octets.substr(0, nul));
  const std::string conjugaisons =
      lex::fuzz::Ecrit("conjugation-fr.xml", nul == std::string_view::npos ? std::string_view() : octets.substr(nul + 1));
  try {
    LitVerbiste(lex::fuzz::Dossier(), [](ArticleImporte&& a) {
      Verifie(!a.index.empty() && !a.definition.empty());
      Verifie(a.index.find_first_of("\r\n") == std::string::npos);
      for (const std::string& l : a.definition) Verifie(l.find_first_of("\r\n") == std::string::npos);
    });
  } catch (const ErreurImport& x) {
    Verifie(!x.probleme().empty() && (x.fichier() == verbes || x.fichier() == conjugaisons));
  }
  return 0;
}
