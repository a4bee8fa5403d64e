#include "data/index_file.h"

#include <bit>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <future>
#include <limits>
#include <memory>
#include <vector>

#include "base/error.h"
#include "data/files.h"
#include "data/folding.h"
#include "data/index_record.h"
#include "data/index_scanner.h"
#include "data/safe_write.h"
#include "data/short_copy.h"

namespace lex {
namespace {

std::string_view SansBlancsFinaux(const char* p, std::size_t n) {
  // Fields are mostly padding: look at it eight bytes at a time, from the end.
  constexpr std::uint64_t kHuitBlancs = 0x2020202020202020ull;
  if constexpr (std::endian::native == std::endian::little) {
    while (n >= 8) {
      std::uint64_t mot;
      std::memcpy(&mot, p + n - 8, 8);
      if (const std::uint64_t ecart = mot ^ kHuitBlancs) return {p, n - static_cast<std::size_t>(std::countl_zero(ecart)) / 8};
      n -= 8;
    }
  }
  while (n > 0 && p[n - 1] == ' ') --n;
  return {p, n};
}

std::int32_t Offset32(std::int64_t v) {
  if (v > std::numeric_limits<std::int32_t>::max()) Erreur(6);
  return static_cast<std::int32_t>(v);
}

bool EstLettre(char c) { return c >= 'A' && c <= 'Z'; }
bool EstLettreOuAro(char c) { return c >= '@' && c <= 'Z'; }

// Where the letter loop is, for the diagnostic line of a failed build.
struct Diagnostic {
  char l1 = '@', l2 = '@', l3 = '@';
  std::int32_t article = 0;
  const IndexTable* table = nullptr;
};
Diagnostic* diagnosticEnCours = nullptr;

}  // namespace

void RemplirTableLettre(const IndexTable& table, TableLettre& lettres, int& compteurBip,
                        const std::function<void()>& bip) {
  lettres = TableLettre();
  std::string precedent;
  char prec2 = '@', prec3 = '@';
  for (std::int32_t k = 1; k <= table.NombreArticle(); ++k) {
    if (diagnosticEnCours) diagnosticEnCours->article = k;
    if (++compteurBip == 20000) {
      bip();
      compteurBip = 0;
    }
    std::string_view cle = table.cle(k);
    std::size_t coupe = cle.find('(');
    if (coupe == std::string_view::npos) coupe = cle.find('[');
    if (coupe == std::string_view::npos) coupe = cle.find(',');
    if (coupe == 0) continue;
    if (coupe != std::string_view::npos) cle = cle.substr(0, coupe);
    std::string_view prefixe = cle.substr(0, 3);
    if (!(prefixe > std::string_view(precedent))) continue;
    if (!EstLettre(prefixe[0])) continue;
    char l1 = prefixe[0];
    char l2 = prefixe.size() >= 2 ? prefixe[1] : '@';
    char l3 = prefixe.size() == 3 ? prefixe[2] : '@';
    if (!EstLettreOuAro(l2)) l2 = l3 = 'A';
    else if (!EstLettreOuAro(l3)) l3 = 'A';
    if (diagnosticEnCours) *diagnosticEnCours = {l1, l2, l3, k, &table};
    const std::int32_t herite = lettres(l1, prec2, prec3);
    for (char s2 = static_cast<char>(prec2 + 1); s2 <= 'Z'; ++s2)
      for (char s3 = static_cast<char>(prec3 + 1); s3 <= 'Z'; ++s3) lettres(l1, s2, s3) = herite;
    lettres(l1, l2, l3) = k;
    precedent.assign(prefixe);
    prec2 = l2;
    prec3 = l3;
  }
}

void ConstruireIndex(const FichiersIndex& f, bool ordreAlpha, IndexTable& table, TableLettre& lettres,
                     const std::function<void()>& bip) {
  Diagnostic diag;
  diag.table = &table;
  diagnosticEnCours = &diag;
  struct Remise {
    ~Remise() { diagnosticEnCours = nullptr; }
  } remise;
  ErrorTrap trap(" sur InitIndex", [&diag] {
    std::string texte;
    if (diag.table && diag.article >= 1 && diag.article <= diag.table->NombreArticle())
      texte = std::string(diag.table->texte(diag.article));
    return "l=" + std::string{diag.l1} + ";" + std::string{diag.l2} + ";" + std::string{diag.l3} + ";" +
           std::to_string(diag.article) + ";" + texte;
  });

  Fichier dic = OuvrirFichier(f.dictio);
  // The time is taken before the scan: a change made while it runs makes the index stale.
  const EtatDictio avant = LireEtatDictio(f.dictio);
  EcritureSure idx(f.index, Donnees::Reconstructible);
  // The two header records are written at the end, when the count is known.
  {
    char place[2 * kTailleEnreg];
    std::memset(place, ' ', sizeof place);
    idx.Ecrire(place, sizeof place);
  }

  table.Vider();
  std::int64_t taille = LongueurFichier(f.dictio);
  if (taille > 0) table.Reserver(static_cast<std::size_t>(taille / 200 + 16));

  // Records are made in place in a block; a full block is written while the next one fills.
  constexpr std::size_t kParBloc = 8192;
  // Left unset: a small dictionary touches a page of them, not megabytes.
  constexpr std::size_t kOctetsBloc = kTailleEnreg * kParBloc;
  std::unique_ptr<char[]> blocs[2] = {std::make_unique_for_overwrite<char[]>(kOctetsBloc),
                                      std::make_unique_for_overwrite<char[]>(kOctetsBloc)};
  int courant = 0;
  // Declared after `idx`: if the build fails, the write under way ends before the temporary
  // file is discarded.
  std::future<void> ecriture;
  const auto attendEcriture = [&ecriture] {
    if (ecriture.valid()) ecriture.get();  // a failed write is raised here
  };
  std::size_t enBloc = 0;
  std::string_view cle;
  std::int32_t nombre = 0;
  int compteurBip = 0;
  LecteurIndex lecteur(dic.get());
  std::string_view ligne;
  std::int64_t offset = 0;
  while (lecteur.Suivante(ligne, offset)) {
    ++nombre;
    cle = table.AjouterPlie(ligne, Offset32(offset), SansaccentEpureVers);
    char* r = blocs[courant].get() + enBloc * kTailleEnreg;
    PoseChamp(r, ligne);
    PoseChamp(r + kTailleChamp, cle);
    PoseValeur(r + 2 * kTailleChamp, Offset32(offset));
    if (++enBloc == kParBloc) {
      attendEcriture();
      ecriture = std::async(std::launch::async,
                            [&idx, d = blocs[courant].get()] { idx.Ecrire(d, kOctetsBloc); });
      courant ^= 1;
      enBloc = 0;
    }
    if (++compteurBip == 25000) {
      bip();
      compteurBip = 0;
    }
  }
  attendEcriture();
  if (enBloc) idx.Ecrire(blocs[courant].get(), enBloc * kTailleEnreg);
  dic.reset();

  taille = LongueurFichier(f.dictio);
  char tete[2 * kTailleEnreg];
  PoseEnTete(tete, nombre, cle, avant.date, Offset32(taille));
  idx.EcrireA(0, tete, sizeof tete);

  table.Terminer(Offset32(taille));
  RemplirTableLettre(table, lettres, compteurBip, bip);
  if (ordreAlpha) EcrireFichierLettre(f.lettre, lettres);
  idx.Valider();
}

void ConstruireTables(std::string_view dictio, IndexTable& table, TableLettre& lettres,
                      const std::function<void()>& bip) {
  ErrorTrap trap(" sur InitIndex");
  Fichier dic = OuvrirFichier(dictio);
  table.Vider();
  int compteurBip = 0;
  LecteurIndex lecteur(dic.get());
  std::string_view ligne;
  std::int64_t offset = 0;
  while (lecteur.Suivante(ligne, offset)) {
    table.AjouterPlie(ligne, Offset32(offset), SansaccentEpureVers);
    if (++compteurBip == 25000) {
      bip();
      compteurBip = 0;
    }
  }
  dic.reset();
  table.Terminer(Offset32(LongueurFichier(dictio)));
  RemplirTableLettre(table, lettres, compteurBip, bip);
}

std::string VersionIndex(std::string_view fichierIndex) {
  Fichier f = OuvrirSiPossible(fichierIndex);
  if (!f) return {};
  char tete[kTailleChamp];
  if (std::fread(tete, 1, kTailleChamp, f.get()) != kTailleChamp) return {};
  std::string_view v = SansBlancsFinaux(tete, kTailleChamp);
  while (!v.empty() && v.front() == ' ') v.remove_prefix(1);
  return std::string(v);
}

EtatDictio LireEtatDictio(std::string_view nom) {
  EtatDictio e;
  e.taille = LongueurFichier(nom);
  std::error_code ec;
  const auto date = std::filesystem::last_write_time(CheminNatif(nom), ec);
  if (!ec) e.date = static_cast<std::int64_t>(date.time_since_epoch().count());
  return e;
}

namespace {

// The header of an index file of any version, as this program writes it: a version mark of
// digits and dots, record 2's index field blank, whole records, as many as counted.
bool EnTeteDuProgramme(const char* tete, std::int64_t longueur) {
  if (longueur % static_cast<std::int64_t>(kTailleEnreg) != 0) return false;
  const std::string_view version = SansBlancsFinaux(tete, kTailleChamp);
  if (version.empty() || version.find_first_not_of("0123456789.") != std::string_view::npos) return false;
  if (!SansBlancsFinaux(tete + kTailleEnreg, kTailleChamp).empty()) return false;
  const std::int32_t nombre = LitValeur(tete + 2 * kTailleChamp);
  const std::int32_t taille = LitValeur(tete + kTailleEnreg + 2 * kTailleChamp);
  return nombre >= 0 && taille >= 0 &&
         (static_cast<std::int64_t>(nombre) + 2) * static_cast<std::int64_t>(kTailleEnreg) <= longueur;
}

EtatIndex LitIndex(const FichiersIndex& f, const EtatDictio& dictio, IndexTable& table, TableLettre& lettres) {
  table.Vider();
  if (VersionIndex(f.index) != kVersionIndex) return EtatIndex::Version;
  Fichier idx = OuvrirSiPossible(f.index);
  if (!idx) return EtatIndex::Perime;
  char tete[2 * kTailleEnreg];
  if (std::fread(tete, 1, sizeof tete, idx.get()) != sizeof tete) return EtatIndex::Perime;
  if (!EnTeteDuProgramme(tete, LongueurFichier(f.index))) return EtatIndex::Perime;
  const std::int32_t nombre = LitValeur(tete + 2 * kTailleChamp);
  const std::int32_t taille = LitValeur(tete + kTailleEnreg + 2 * kTailleChamp);
  const std::string_view date = SansBlancsFinaux(tete + kTailleEnreg + kTailleChamp, kTailleChamp);
  if (taille != dictio.taille || date != TexteDate(dictio.date)) return EtatIndex::Perime;

  table.Reserver(static_cast<std::size_t>(nombre));
  constexpr std::size_t kParLecture = 8192;
  const auto tampon = std::make_unique_for_overwrite<char[]>(kParLecture * kTailleEnreg);
  std::int64_t precedente = -1;
  for (std::int32_t lus = 0; lus < nombre;) {
    std::size_t voulus = std::min<std::size_t>(kParLecture, static_cast<std::size_t>(nombre - lus));
    if (std::fread(tampon.get(), kTailleEnreg, voulus, idx.get()) != voulus) {
      table.Vider();
      return EtatIndex::Perime;
    }
    for (std::size_t r = 0; r < voulus; ++r) {
      const char* e = tampon.get() + r * kTailleEnreg;
      std::int32_t pos = LitValeur(e + 2 * kTailleChamp);
      // Offsets must rise strictly inside the file, or the articles would be read wrongly.
      if (pos <= precedente || pos >= taille) {
        table.Vider();
        return EtatIndex::Perime;
      }
      precedente = pos;
      table.Ajouter(SansBlancsFinaux(e, kTailleChamp), SansBlancsFinaux(e + kTailleChamp, kTailleChamp), pos);
    }
    lus += static_cast<std::int32_t>(voulus);
  }
  table.Terminer(taille);

  if (!LireFichierLettre(f.lettre, lettres)) {
    table.Vider();
    return EtatIndex::Perime;
  }
  return EtatIndex::Charge;
}

}  // namespace

bool IndexCourant(const FichiersIndex& f, const EtatDictio& dictio, std::int32_t nombre) {
  if (VersionIndex(f.index) != kVersionIndex) return false;
  Fichier idx = OuvrirSiPossible(f.index);
  char tete[2 * kTailleEnreg];
  if (!idx || std::fread(tete, 1, sizeof tete, idx.get()) != sizeof tete) return false;
  return EnTeteDuProgramme(tete, LongueurFichier(f.index)) && LitValeur(tete + 2 * kTailleChamp) == nombre &&
         LitValeur(tete + kTailleEnreg + 2 * kTailleChamp) == dictio.taille &&
         SansBlancsFinaux(tete + kTailleEnreg + kTailleChamp, kTailleChamp) == TexteDate(dictio.date);
}

EtatIndex LireIndex(const FichiersIndex& f, IndexTable& table, TableLettre& lettres) {
  return LitIndex(f, LireEtatDictio(f.dictio), table, lettres);
}

EtatIndex LireIndex(const FichiersIndex& f, std::int64_t tailleDictio, IndexTable& table, TableLettre& lettres) {
  return LitIndex(f, {tailleDictio, LireEtatDictio(f.dictio).date}, table, lettres);
}

bool EstFichierIndex(std::string_view nom) {
  const std::int64_t longueur = LongueurFichier(nom);
  if (longueur < static_cast<std::int64_t>(2 * kTailleEnreg)) return false;
  Fichier f = OuvrirSiPossible(nom);
  char tete[2 * kTailleEnreg];
  return f && std::fread(tete, 1, sizeof tete, f.get()) == sizeof tete && EnTeteDuProgramme(tete, longueur);
}

}  // namespace lex
