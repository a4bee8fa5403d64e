#include "data/index_update.h"

#include <cstdio>
#include <memory>

#include "base/error.h"
#include "data/files.h"
#include "data/folding.h"
#include "data/index_record.h"
#include "data/safe_write.h"

namespace lex {

bool SuitRetouche(const FichiersIndex& f, const EtatDictio& ancien, bool ordreAlpha, const Recomposition& rc,
                  IndexTable& table, TableLettre& lettres, const std::function<void()>& bip) {
  if (!IndexCourant(f, ancien, table.NombreArticle())) return false;
  ErrorTrap trap(" sur InitIndex");
  // The tables first: whatever happens to the files, the dictionary is read from them.
  table.Recomposer(rc.morceaux, static_cast<std::int32_t>(rc.taille), SansaccentEpureVers);
  int compteurBip = 0;
  RemplirTableLettre(table, lettres, compteurBip, bip);
  Fichier vieux = OuvrirFichier(f.index);
  EcritureSure idx(f.index, Donnees::Reconstructible);
  {
    char place[2 * kTailleEnreg];
    std::memset(place, ' ', sizeof place);
    idx.Ecrire(place, sizeof place);
  }
  constexpr std::size_t kParBloc = 8192;
  const auto bloc = std::make_unique_for_overwrite<char[]>(kParBloc * kTailleEnreg);
  // Record 1 carries the key field of the last record, as a build leaves it.
  char derniereCle[kTailleChamp];
  std::memset(derniereCle, ' ', sizeof derniereCle);
  std::int32_t nombre = 0;
  std::string cle;
  for (const IndexTable::Morceau& m : rc.morceaux) {
    if (m.dernier < m.premier) {
      Enreg e;
      e.Index(m.texte);
      cle = SansaccentEpure(m.texte);
      e.Cle(cle);
      e.Valeur(m.position);
      idx.Ecrire(e.octets, kTailleEnreg);
      std::memcpy(derniereCle, e.octets + kTailleChamp, kTailleChamp);
      ++nombre;
      continue;
    }
    if (std::fseek(vieux.get(), static_cast<long>((m.premier + 1) * static_cast<std::int64_t>(kTailleEnreg)),
                   SEEK_SET) != 0)
      Erreur(62);
    for (std::int32_t k = m.premier; k <= m.dernier;) {
      const auto n = std::min<std::size_t>(kParBloc, static_cast<std::size_t>(m.dernier - k + 1));
      if (std::fread(bloc.get(), kTailleEnreg, n, vieux.get()) != n) Erreur(62);
      for (std::size_t r = 0; r < n; ++r) {
        char* v = bloc.get() + r * kTailleEnreg + 2 * kTailleChamp;
        PoseValeur(v, static_cast<std::int32_t>(LitValeur(v) + m.decalage));
      }
      idx.Ecrire(bloc.get(), n * kTailleEnreg);
      std::memcpy(derniereCle, bloc.get() + (n - 1) * kTailleEnreg + kTailleChamp, kTailleChamp);
      k += static_cast<std::int32_t>(n);
      nombre += static_cast<std::int32_t>(n);
    }
  }
  vieux.reset();
  const EtatDictio nouveau = LireEtatDictio(f.dictio);
  char tete[2 * kTailleEnreg];
  PoseEnTete(tete, nombre, std::string_view(derniereCle, kTailleChamp), nouveau.date,
             static_cast<std::int32_t>(rc.taille));
  idx.EcrireA(0, tete, sizeof tete);
  // The letter file first: an index found current never stands beside an old letter file.
  if (ordreAlpha) EcrireFichierLettre(f.lettre, lettres);
  idx.Valider();
  return true;
}

}  // namespace lex
