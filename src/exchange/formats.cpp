#include "exchange/formats.h"

#include <system_error>

#include "exchange/dictd.h"
#include "exchange/stardict.h"
#include "exchange/mythes.h"
#include "exchange/tab_separated.h"
#include "exchange/verbiste.h"

namespace lex::exchange {

namespace {

// The tab-separated text stays last: any text with a tab on its first line looks like it.
constexpr Format kFormats[] = {
    {"dictd", EstDictd, LitDictd},
    {"stardict", EstStarDict, LitStarDict},
    {"mythes", EstMyThes, LitMyThes},
    {"verbiste", EstVerbiste, LitVerbiste},
    {"tabulations", EstTabulations, LitTabulations},
};

}  // namespace

std::span<const Format> Formats() { return kFormats; }

const Format* FormatNomme(std::string_view nom) {
  for (const Format& f : kFormats)
    if (f.nom == nom) return &f;
  return nullptr;
}

const Format& FormatDe(const std::filesystem::path& source) {
  std::error_code ec;
  if (!std::filesystem::exists(source, ec))
    throw ErreurImport(source.string(), "", "fichier introuvable");
  for (const Format& f : kFormats)
    if (f.reconnait(source)) return f;
  std::string noms;
  for (const Format& f : kFormats) noms += (noms.empty() ? "" : ", ") + std::string(f.nom);
  throw ErreurImport(source.string(), "", "format inconnu (formats lus : " + noms + ")");
}

}  // namespace lex::exchange
