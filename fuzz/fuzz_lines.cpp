// Line reading on any bytes: the lines put back together with LF give the text again, less
// the CR of each CR LF and the last line end; LireLignes on the file gives the same lines.
// An article cut from the same bytes never keeps a lone LF.
#include <cstdlib>
#include <string>
#include <string_view>

#include "data/dictionary_file.h"
#include "data/files.h"
#include "fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view texte(reinterpret_cast<const char*>(data), size);
  const auto lignes = lex::DecoupeLignes(texte);
  std::string attendu;
  for (std::size_t i = 0; i < size; ++i)
    if (!(texte[i] == '\r' && i + 1 < size && texte[i + 1] == '\n')) attendu += texte[i];
  if (!attendu.empty() && attendu.back() == '\n') attendu.pop_back();
  std::string joint;
  for (std::size_t i = 0; i < lignes.size(); ++i) joint.append(i ? "\n" : "").append(lignes[i]);
  if (joint != attendu || lex::MemoireLignes(texte) < static_cast<std::int64_t>(size)) std::abort();
  if (lex::LireLignes(lex::fuzz::Ecrit("lignes.txt", texte)) != lignes) std::abort();

  for (bool derniere : {false, true}) {
    const std::string article = lex::DecoupeArticle(std::string(texte), derniere);
    for (std::size_t i = 0; i < article.size(); ++i)
      if (article[i] == '\n' && (i == 0 || article[i - 1] != '\r')) std::abort();
  }
  return 0;
}
