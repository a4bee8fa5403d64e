#include "editing/duplicates.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "base/error.h"
#include "data/dictionary_file.h"
#include "data/files.h"

namespace lex {
namespace doubles {
namespace {

constexpr std::size_t kBloc = std::size_t{1} << 20;

constexpr std::uint64_t kCle0 = 0xa0761d6478bd642fULL, kCle1 = 0xe7037ed1a0b428dbULL;
constexpr std::uint64_t kCle2 = 0x8ebc6af09c88c6e3ULL, kCle3 = 0x589965cc75374cc3ULL;
constexpr std::uint64_t kMult1 = 0x9e3779b97f4a7c15ULL, kMult2 = 0xc2b2ae3d27d4eb4fULL;
constexpr std::uint64_t kGraine1 = 0x165667b19e3779f9ULL, kGraine2 = 0x27d4eb2f165667c5ULL;

inline std::uint64_t Rotation(std::uint64_t x, int r) { return (x << r) | (x >> (64 - r)); }

// The two halves of the 128-bit product folded together: every input bit reaches many
// output bits in one instruction.
inline std::uint64_t Produit(std::uint64_t a, std::uint64_t b) {
#if defined(__SIZEOF_INT128__)
  __extension__ using Large = unsigned __int128;
  const Large p = static_cast<Large>(a) * b;
  return static_cast<std::uint64_t>(p) ^ static_cast<std::uint64_t>(p >> 64);
#else
  const std::uint64_t aH = a >> 32, aB = a & 0xffffffffULL, bH = b >> 32, bB = b & 0xffffffffULL;
  const std::uint64_t hh = aH * bH, hb = aH * bB, bh = aB * bH, bb = aB * bB;
  const std::uint64_t milieu = (bb >> 32) + (hb & 0xffffffffULL) + (bh & 0xffffffffULL);
  const std::uint64_t bas = (milieu << 32) | (bb & 0xffffffffULL);
  const std::uint64_t haut = hh + (hb >> 32) + (bh >> 32) + (milieu >> 32);
  return bas ^ haut;
#endif
}

inline std::uint64_t Finale(std::uint64_t x) {
  x ^= x >> 33;
  x *= 0xff51afd7ed558ccdULL;
  x ^= x >> 33;
  x *= 0xc4ceb9fe1a85ec53ULL;
  return x ^ (x >> 33);
}

inline std::uint64_t Mot(const char* p) {
  std::uint64_t v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

bool RetireFinDeLigne(std::string_view& s) {
  if (s.ends_with("\r\n")) {
    s.remove_suffix(2);
    return true;
  }
  if (s.ends_with('\n')) {
    s.remove_suffix(1);
    return true;
  }
  return false;
}

// The dictionary read forward: the bytes of each article in turn, as one piece even when it
// crosses the end of a block.
class LecteurSuivi {
 public:
  LecteurSuivi(std::FILE* f, std::int64_t debut, std::size_t bloc) : f_(f), bloc_(bloc), tampon_(bloc), base_(debut) {
    if (debut > 0 && std::fseek(f_, static_cast<long>(debut), SEEK_SET) != 0) Erreur(62);
  }

  // The bytes [debut, fin); `debut` is where the last article asked for ended.
  std::string_view Article(std::int64_t debut, std::int64_t fin) {
    while (fin > base_ + static_cast<std::int64_t>(lus_)) {
      // The unfinished article goes to the front, and a whole block is read after it.
      const auto depuis = static_cast<std::size_t>(debut - base_);
      const std::size_t garde = lus_ - depuis;
      if (garde > 0 && depuis > 0) std::memmove(tampon_.data(), tampon_.data() + depuis, garde);
      base_ = debut;
      lus_ = garde;
      if (tampon_.size() < garde + bloc_) tampon_.resize(garde + bloc_);
      const std::size_t n = std::fread(tampon_.data() + lus_, 1, tampon_.size() - lus_, f_);
      if (n == 0) Erreur(std::ferror(f_) ? 57 : 62);
      lus_ += n;
    }
    return {tampon_.data() + (debut - base_), static_cast<std::size_t>(fin - debut)};
  }

 private:
  std::FILE* f_;
  std::size_t bloc_;
  std::vector<char> tampon_;
  std::int64_t base_;    // offset in the file of tampon_[0]
  std::size_t lus_ = 0;  // bytes of tampon_ that hold the file
};

// Articles read again one by one, in any order but mostly forward: a window of the file
// serves those that lie in it, and going on forward fetches a big block at once, so that a
// dictionary holding a copy of itself is read through rather than jumped in, a system call
// per article.
class LecteurFenetre {
 public:
  // Going forward reads a quarter of `bloc`; a jump, 4 KB at most (the system's page).
  LecteurFenetre(std::string_view fichier, const IndexTable& table, std::size_t bloc)
      : f_(OuvrirFichier(fichier)), table_(table), avant_(std::max<std::size_t>(bloc / 4, 1)),
        saut_(std::min<std::size_t>(avant_, 4096)) {}

  // The article's text, with the very cut the user's reading makes.
  std::string Texte(std::int32_t i) {
    const std::int64_t debut = table_.position(i), fin = table_.position(i + 1);
    const auto longueur = static_cast<std::size_t>(fin - debut);
    if (longueur == 0) return {};
    if (debut < base_ || fin > base_ + static_cast<std::int64_t>(lus_)) Charger(debut, longueur);
    const char* p = tampon_.data() + (debut - base_);
    return DecoupeArticle(std::string(p, longueur), i == table_.NombreArticle());
  }

 private:
  void Charger(std::int64_t debut, std::size_t longueur) {
    const std::int64_t finFenetre = base_ + static_cast<std::int64_t>(lus_);
    const bool enAvant = debut >= base_ && debut - finFenetre < static_cast<std::int64_t>(avant_);
    const std::size_t taille = std::max(longueur, enAvant ? avant_ : saut_);
    if (tampon_.size() < taille) tampon_.resize(taille);
    lus_ = 0;
    if (debut != courant_ && std::fseek(f_.get(), static_cast<long>(debut), SEEK_SET) != 0) Erreur(62);
    base_ = debut;
    lus_ = std::fread(tampon_.data(), 1, taille, f_.get());
    courant_ = debut + static_cast<std::int64_t>(lus_);
    if (lus_ < longueur) Erreur(std::ferror(f_.get()) ? 57 : 62);
  }

  Fichier f_;
  const IndexTable& table_;
  std::size_t avant_, saut_;
  std::vector<char> tampon_;
  std::int64_t base_ = 0;     // offset in the file of tampon_[0]
  std::size_t lus_ = 0;       // bytes of tampon_ that hold the file
  std::int64_t courant_ = 0;  // where the next read without a seek starts
};

struct Signature {
  Empreinte empreinte;
  std::int32_t numero;
};

}  // namespace

Empreinte EmpreinteTexte(std::string_view texte) {
  const char* p = texte.data();
  std::size_t reste = texte.size();
  std::uint64_t h1 = kGraine1, h2 = kGraine2;
  // Each lane's step is one-to-one in its state, so what came before is never lost; a
  // sixteen-byte piece that makes one product vanish still moves the other lane.
  auto avance = [&](std::uint64_t a, std::uint64_t b) {
    h1 = Rotation(h1 + Produit(a ^ kCle0, b ^ kCle1), 31) * kMult1;
    h2 = Rotation(h2 ^ Produit(b ^ kCle2, a ^ kCle3), 29) * kMult2;
  };
  for (; reste >= 16; p += 16, reste -= 16) avance(Mot(p), Mot(p + 8));
  if (reste > 0) {
    char fin[16] = {};
    std::memcpy(fin, p, reste);
    avance(Mot(fin), Mot(fin + 8));
  }
  const auto longueur = static_cast<std::uint64_t>(texte.size());
  return {Finale(h1 ^ longueur), Finale(h2 ^ (longueur * kMult1))};
}

std::string_view TexteArticle(std::string_view brut, bool derniere, std::string& tampon) {
  if (!derniere) RetireFinDeLigne(brut);
  RetireFinDeLigne(brut);
  std::size_t k = brut.find('\n');
  while (k != std::string_view::npos && k > 0 && brut[k - 1] == '\r') k = brut.find('\n', k + 1);
  if (k == std::string_view::npos) return brut;
  tampon.assign(brut.data(), k);
  for (; k < brut.size(); ++k) {
    if (brut[k] == '\n' && (k == 0 || brut[k - 1] != '\r')) tampon += '\r';
    tampon += brut[k];
  }
  return tampon;
}

std::vector<std::int32_t> ArticlesDoubles(std::string_view fichier, const IndexTable& table, std::size_t bloc,
                                          FonctionEmpreinte empreinte) {
  const std::int32_t n = table.NombreArticle();
  if (n < 2) return {};
  if (bloc == 0) Erreur(5);
  std::vector<Signature> signatures;
  signatures.reserve(static_cast<std::size_t>(n));
  {
    Fichier f = OuvrirFichier(fichier);
    if (LongueurFichier(fichier) < table.position(n + 1)) Erreur(62);
    LecteurSuivi lecteur(f.get(), table.position(1), bloc);
    std::string tampon;
    for (std::int32_t i = 1; i <= n; ++i) {
      const std::int64_t debut = table.position(i), fin = table.position(i + 1);
      if (debut < 0 || fin < debut) Erreur(5);
      signatures.push_back({empreinte(TexteArticle(lecteur.Article(debut, fin), i == n, tampon)), i});
    }
  }
  std::sort(signatures.begin(), signatures.end(), [](const Signature& x, const Signature& y) {
    if (x.empreinte.a != y.empreinte.a) return x.empreinte.a < y.empreinte.a;
    if (x.empreinte.b != y.empreinte.b) return x.empreinte.b < y.empreinte.b;
    return x.numero < y.numero;
  });

  struct Groupe {
    std::size_t debut, fin;  // in signatures
  };
  std::vector<Groupe> groupes;
  for (std::size_t g = 0; g < signatures.size();) {
    std::size_t h = g + 1;
    while (h < signatures.size() && signatures[h].empreinte == signatures[g].empreinte) ++h;
    if (h - g > 1) groupes.push_back({g, h});
    g = h;
  }
  if (groupes.empty()) return {};
  // Taken in the order of their first articles, groups read the first ones forward, and the
  // copies too when they follow in the same order, as a dictionary added to itself does.
  std::sort(groupes.begin(), groupes.end(),
            [&](const Groupe& x, const Groupe& y) { return signatures[x.debut].numero < signatures[y.debut].numero; });

  // The articles of one print, in file order, are each compared with the first of every
  // distinct text met before it in the group. The first one's text is kept (a real group is
  // copies of one text); the others, which only colliding prints make, are read again when
  // needed, so that a print that tells nothing apart still costs no more than one article
  // of memory.
  LecteurFenetre premiers(fichier, table, bloc), suivants(fichier, table, bloc);
  std::vector<std::int32_t> doubles;
  std::vector<std::int32_t> autres;
  for (const Groupe& groupe : groupes) {
    const std::string premier = premiers.Texte(signatures[groupe.debut].numero);
    autres.clear();
    for (std::size_t k = groupe.debut + 1; k < groupe.fin; ++k) {
      const std::int32_t i = signatures[k].numero;
      const std::string texte = suivants.Texte(i);
      bool egal = texte == premier;
      for (std::size_t m = 0; m < autres.size() && !egal; ++m) egal = texte == premiers.Texte(autres[m]);
      if (egal)
        doubles.push_back(i);
      else
        autres.push_back(i);
    }
  }
  std::sort(doubles.begin(), doubles.end());
  return doubles;
}

}  // namespace doubles

std::vector<std::int32_t> ArticlesDoubles(std::string_view fichier, const IndexTable& table) {
  return doubles::ArticlesDoubles(fichier, table, doubles::kBloc, doubles::EmpreinteTexte);
}

}  // namespace lex
