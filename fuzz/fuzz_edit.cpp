// A dictionary of any bytes, a few of its articles removed and new ones put in: the index
// brought up to date by shifting offsets must be, byte for byte, the one a rebuild of the new
// file writes, and every article kept must read as it did.
#include <cstdlib>
#include <string>
#include <string_view>

#include "data/article_edit.h"
#include "data/files.h"
#include "data/index_file.h"
#include "data/index_update.h"
#include "data/open_dictionary.h"
#include "fuzz_folder.h"

namespace {

using namespace lex;

std::string Lit(const std::string& nom) {
  std::string s;
  if (Fichier f = OuvrirSiPossible(nom)) {
    char b[4096];
    for (std::size_t n; (n = std::fread(b, 1, sizeof b, f.get())) > 0;) s.append(b, n);
  }
  return s;
}

// An article as read, without the empty lines the first and the last are read with.
std::string Texte(const DictionnaireOuvert& d, std::int32_t i) {
  std::string a = ListeAffichee(d).Lit(i);
  a.erase(0, a.find_first_not_of("\r\n"));
  const std::size_t fin = a.find_last_not_of("\r\n");
  a.erase(fin == std::string::npos ? 0 : fin + 1);
  return a;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const unsigned retire = data[0], insere = data[1];
  const std::string_view octets(reinterpret_cast<const char*>(data) + 2, size - 2);
  const std::string d = fuzz::Dossier();
  DictionnaireOuvert vieux;
  vieux.fichiers = {fuzz::Ecrit("d.lex", octets), d + "i", d + "l"};
  ConstruireIndex(vieux.fichiers, true, vieux.TableIndex, vieux.Lettres, [] {});
  const std::int32_t n = vieux.TableIndex.NombreArticle();

  Retouche r;
  if (n > 0 && retire % 3 != 0) r.retires.push_back(static_cast<std::int32_t>(retire % n) + 1);
  if (n > 1 && retire % 5 == 0) r.retires.push_back(n);
  if (r.retires.size() == 2 && r.retires[0] >= r.retires[1]) r.retires.pop_back();
  if (insere % 2 == 0) r.inseres.push_back({static_cast<std::int32_t>(insere % (n + 1)) + 1, "nouveau (x)\r\nun", 0});

  DictionnaireOuvert neuf;
  neuf.fichiers = {d + "e.lex", d + "i", d + "l"};
  const EtatDictio ancien = LireEtatDictio(vieux.fichiers.dictio);
  Recomposition rc;
  {
    EcritureSure cible(neuf.fichiers.dictio, Donnees::Reconstructible);
    rc = EcritRetouche(vieux.fichiers.dictio, cible, vieux.TableIndex, r);
    cible.Valider();
  }
  // The tables are changed in a copy: the old ones still read the old file.
  DictionnaireOuvert suivi;
  suivi.fichiers = neuf.fichiers;
  ConstruireTables(vieux.fichiers.dictio, suivi.TableIndex, suivi.Lettres, [] {});
  {
    SuiviIndex index(suivi.fichiers, ancien, n, LireEtatDictio(suivi.fichiers.dictio), rc);
    if (!index.Actif()) std::abort();
    IndexTable::Ancien avant;
    index.Termine(true, suivi.TableIndex, suivi.Lettres, [] {}, avant);
  }
  const std::string index = Lit(d + "i"), lettres = Lit(d + "l");

  neuf.fichiers.index = d + "i2";
  neuf.fichiers.lettre = d + "l2";
  ConstruireIndex(neuf.fichiers, true, neuf.TableIndex, neuf.Lettres, [] {});
  if (Lit(d + "i2") != index || Lit(d + "l2") != lettres) std::abort();
  const IndexTable& a = suivi.TableIndex;
  const IndexTable& b = neuf.TableIndex;
  if (a.NombreArticle() != b.NombreArticle()) std::abort();
  for (std::int32_t i = 1; i <= a.NombreArticle(); ++i)
    if (a.position(i) != b.position(i) || a.texte(i) != b.texte(i) || a.cle(i) != b.cle(i)) std::abort();
  if (a.position(a.NombreArticle() + 1) != b.position(b.NombreArticle() + 1)) std::abort();

  for (std::int32_t k = 1; k <= n; ++k) {
    const std::int32_t m = rc.changement.Nouveau(k);
    if (m != 0 && Texte(vieux, k) != Texte(neuf, m)) std::abort();
  }
  return 0;
}
