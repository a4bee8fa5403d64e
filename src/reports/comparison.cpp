#include "reports/comparison.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <future>

#include "data/index_file.h"

namespace lex {
namespace {

// What Sansaccent removes from a SansaccentEpure key: the characters SansaccentEpure keeps to
// cut notes off a headword, and the blanks that pad an index file's field.
constexpr std::array<bool, 256> Retires() {
  std::array<bool, 256> r{};
  for (char c : {',', '+', '(', ')', '[', ']', ' '}) r[static_cast<unsigned char>(c)] = true;
  return r;
}
constexpr std::array<bool, 256> kRetires = Retires();

constexpr std::uint64_t kUns = ~std::uint64_t{0} / 255;

// Whether one of the eight bytes of w may have to go: a byte below "0" (the blank, brackets,
// comma and plus sign are among them), "[" or "]". Digits and letters never need a look.
bool PeutRetirer(std::uint64_t w) {
  const auto nul = [](std::uint64_t v) { return (v - kUns) & ~v & (kUns * 0x80); };
  return (((w - kUns * '0') & ~w & (kUns * 0x80)) | nul(w ^ (kUns * '[')) | nul(w ^ (kUns * ']'))) != 0;
}

}  // namespace

std::string_view CleComparee(std::string_view cleIndex, char* tampon) {
  const std::string_view cle = cleIndex.substr(0, kTailleChamp);
  // Most keys hold nothing to remove, which eight bytes at a time tell: they are their own
  // compared form.
  bool aVoir = false;
  if (cle.size() >= 8) {
    std::uint64_t w;
    for (std::size_t i = 0; i + 8 <= cle.size() && !aVoir; i += 8) {
      std::memcpy(&w, cle.data() + i, 8);
      aVoir = PeutRetirer(w);
    }
    std::memcpy(&w, cle.data() + cle.size() - 8, 8);
    aVoir = aVoir || PeutRetirer(w);
  } else {
    for (char c : cle) aVoir = aVoir || kRetires[static_cast<unsigned char>(c)];
  }
  if (!aVoir) return cle;
  char* p = tampon;
  for (char c : cle) {
    *p = c;
    p += kRetires[static_cast<unsigned char>(c)] ? 0 : 1;
  }
  return {tampon, static_cast<std::size_t>(p - tampon)};
}

Comparaison CompareAvecIndex(const DictionnaireOuvert& dico, std::string_view fichierIndex, std::int64_t tailleDictio,
                             const std::function<void()>& bip) {
  const EnTeteIndex tete = LireEnTeteIndex(fichierIndex, tailleDictio);
  if (tete.etat != LectureIndex::Lue) return {tete.etat, {}};
  const IndexTable& table = dico.TableIndex;
  const std::int32_t nombre = table.NombreArticle();
  // The other index is read in two halves, each on a thread of its own, while the open
  // dictionary's keys are made on this one: the processor's cores share the work. Where no
  // thread can be started, each half is read when it is waited for.
  const ClesReparties modele(static_cast<std::size_t>(std::max(nombre, tete.nombre)));
  const std::int32_t moitie = tete.nombre / 2;
  ClesReparties premiere(static_cast<std::size_t>(moitie), modele, false);
  ClesReparties seconde(static_cast<std::size_t>(tete.nombre - moitie), modele, false);
  ClesReparties ouvertes(static_cast<std::size_t>(nombre), modele, true);
  // Declared after the sets they fill: leaving early waits for them before the sets go.
  constexpr auto kPolitique = std::launch::async | std::launch::deferred;
  std::future<bool> lecture1 =
      std::async(kPolitique, [&] { return LireClesIndex(fichierIndex, 0, moitie, premiere); });
  std::future<bool> lecture2 =
      std::async(kPolitique, [&] { return LireClesIndex(fichierIndex, moitie, tete.nombre - moitie, seconde); });
  char tampon[kTailleChamp];
  int compteur = 0;
  for (std::int32_t i = 1; i <= nombre; ++i) {
    if (++compteur == 5000) {
      bip();
      compteur = 0;
    }
    ouvertes.Ajouter(CleComparee(table.cle(i), tampon), i);
  }
  const bool lue1 = lecture1.get();
  if (!lecture2.get() || !lue1) return {LectureIndex::ARefaire, {}};

  // The parts are matched in two halves as well.
  std::vector<char> absent(static_cast<std::size_t>(nombre) + 1, 0);
  const std::vector<const ClesReparties*> autres = {&premiere, &seconde};
  const std::size_t milieu = ouvertes.Parties() / 2;
  std::future<void> marque = std::async(kPolitique, [&] { MarqueAbsents(ouvertes, autres, 0, milieu, absent); });
  MarqueAbsents(ouvertes, autres, milieu, ouvertes.Parties(), absent);
  marque.get();

  // The dictionary's own index, whatever list the page shows: its extents are the articles'.
  const ListeAffichee index(dico);
  Comparaison c;
  for (std::int32_t i = 1; i <= nombre; ++i) {
    if (!absent[static_cast<std::size_t>(i)]) continue;
    const Etendue e = index.EtendueArticle(i);
    c.absents.push_back({i, static_cast<std::int32_t>(e.debut), static_cast<std::int32_t>(e.fin)});
  }
  return c;
}

}  // namespace lex
