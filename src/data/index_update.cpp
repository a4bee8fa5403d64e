#include "data/index_update.h"

#include <cstdio>
#include <memory>

#include "base/error.h"
#include "data/files.h"
#include "data/folding.h"
#include "data/index_record.h"

namespace lex {
namespace {

std::unique_ptr<EcritureSure> EcritIndex(const FichiersIndex& f, const EtatDictio& nouveau, const Recomposition& rc) {
  Fichier vieux = OuvrirFichier(f.index);
  auto idx = std::make_unique<EcritureSure>(f.index, Donnees::Reconstructible);
  {
    char place[2 * kTailleEnreg];
    std::memset(place, ' ', sizeof place);
    idx->Ecrire(place, sizeof place);
  }
  constexpr std::size_t kParBloc = 8192;
  const auto bloc = std::make_unique_for_overwrite<char[]>(kParBloc * kTailleEnreg);
  // Record 1 carries the key field of the last record, as a build leaves it.
  char derniereCle[kTailleChamp];
  std::memset(derniereCle, ' ', sizeof derniereCle);
  std::int32_t nombre = 0;
  for (const IndexTable::Morceau& m : rc.morceaux) {
    if (m.dernier < m.premier) {
      Enreg e;
      e.Index(m.texte);
      e.Cle(SansaccentEpure(m.texte));
      e.Valeur(m.position);
      idx->Ecrire(e.octets, kTailleEnreg);
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
      idx->Ecrire(bloc.get(), n * kTailleEnreg);
      std::memcpy(derniereCle, bloc.get() + (n - 1) * kTailleEnreg + kTailleChamp, kTailleChamp);
      k += static_cast<std::int32_t>(n);
      nombre += static_cast<std::int32_t>(n);
    }
  }
  char tete[2 * kTailleEnreg];
  PoseEnTete(tete, nombre, std::string_view(derniereCle, kTailleChamp), nouveau.date,
             static_cast<std::int32_t>(nouveau.taille));
  idx->EcrireA(0, tete, sizeof tete);
  return idx;
}

}  // namespace

SuiviIndex::SuiviIndex(const FichiersIndex& f, const EtatDictio& ancien, std::int32_t nombre,
                       const EtatDictio& nouveau, const Recomposition& rc)
    : f_(f), rc_(rc) {
  if (!IndexCourant(f, ancien, nombre)) return;
  actif_ = true;
  ecriture_ = std::async(std::launch::async, [this, nouveau] { return EcritIndex(f_, nouveau, rc_); });
}

SuiviIndex::~SuiviIndex() {
  if (!ecriture_.valid()) return;
  try {
    ecriture_.get();  // the new index, never put in place, goes with its temporary file
  } catch (...) {
  }
}

void SuiviIndex::Termine(bool ordreAlpha, IndexTable& table, TableLettre& lettres, const std::function<void()>& bip,
                         IndexTable::Ancien& ancien) {
  ErrorTrap trap(" sur InitIndex");
  // The tables first: whatever happens to the files, the dictionary is read from them.
  ancien = table.Recomposer(rc_.morceaux, static_cast<std::int32_t>(rc_.taille), SansaccentEpureVers);
  int compteurBip = 0;
  RemplirTableLettre(table, lettres, compteurBip, bip);
  std::unique_ptr<EcritureSure> idx = ecriture_.get();
  if (ordreAlpha) EcrireFichierLettre(f_.lettre, lettres);
  idx->Valider();
}

}  // namespace lex
