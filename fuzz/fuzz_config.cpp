// The configuration reader on any bytes: whatever it accepts, the lines written back when
// leaving must be read again without a refusal, into a catalogue of the same size, and
// writing that one again must give the same lines.
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/config.h"
#include "data/files.h"

namespace {

struct Lu {
  lex::Catalogue c;
  lex::Reglages r;
  std::int16_t rang = 1;
  std::vector<std::string> refus;
};

Lu Lire(const std::vector<std::string>& lignes) {
  Lu l;
  l.r.DossierProgramme = l.r.DossierDictio = "/lex/";
  l.r.FichierConfig = "/lex/lex301.INI";
  lex::InitDictio(l.c, l.r.DossierDictio);
  l.refus = lex::LireConfig(lignes, l.c, l.r, l.rang);
  lex::AjoutLettreAppelDictio(l.c);
  return l;
}

// What leaving writes, as the start after it reads it: CR LF line ends.
std::vector<std::string> Ecrit(const Lu& l) {
  std::string texte;
  for (const std::string& ligne : lex::LignesConfig(l.c, l.r, false, lex::EntreeDeLigne(l.c, l.rang)))
    texte += ligne + "\r\n";
  return lex::DecoupeLignes(texte);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Lu premier = Lire(lex::DecoupeLignes(std::string_view(reinterpret_cast<const char*>(data), size)));
  const int n = premier.c.NombreDictio();
  if (n < 10 || n > lex::kEntreesMax || premier.c.NombreHistoire < 0 || premier.c.NombreHistoire > n - 10)
    std::abort();
  const std::vector<std::string> lignes = Ecrit(premier);
  const Lu second = Lire(lignes);
  if (!second.refus.empty() || second.c.NombreDictio() != n || Ecrit(second) != lignes) std::abort();
  return 0;
}
