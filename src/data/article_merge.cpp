#include "data/article_merge.h"

#include <algorithm>
#include <memory>

#include "data/files.h"
#include "data/index_scanner.h"

namespace lex {

namespace {

// How many of the removed entries stand before entry n.
std::int32_t RetiresAvant(const std::vector<std::int32_t>& retires, std::int32_t n) {
  return static_cast<std::int32_t>(std::lower_bound(retires.begin(), retires.end(), n) - retires.begin());
}

}  // namespace

std::int32_t Changement::Nouveau(std::int32_t n) const {
  if (std::binary_search(retires.begin(), retires.end(), n)) {
    for (std::size_t j = 0; j < remplaces.size(); ++j)
      if (remplaces[j] == n) return NumerosInseres()[j];
    return 0;
  }
  const auto avant = std::upper_bound(inseresAvant.begin(), inseresAvant.end(), n) - inseresAvant.begin();
  return n + static_cast<std::int32_t>(avant) - RetiresAvant(retires, n);
}

std::vector<std::int32_t> Changement::NumerosInseres() const {
  std::vector<std::int32_t> v;
  v.reserve(inseresAvant.size());
  for (std::size_t j = 0; j < inseresAvant.size(); ++j)
    v.push_back(inseresAvant[j] + static_cast<std::int32_t>(j) - RetiresAvant(retires, inseresAvant[j]));
  return v;
}

std::vector<std::int32_t> Changement::NumerosNouveaux() const {
  std::vector<std::int32_t> v = NumerosInseres();
  if (!remplaces.empty())
    for (std::size_t j = v.size(); j-- > 0;)
      if (remplaces[j] != 0) v.erase(v.begin() + static_cast<std::ptrdiff_t>(j));
  return v;
}

namespace {

// The bytes of the dictionary are copied in big blocks, the index lines found by a second
// reader of the same file: only they are looked at. What is written goes out in big blocks
// too, new articles and old bytes alike: one write to the system per article would cost more
// than the whole copy.
class Copie {
 public:
  Copie(std::string_view source, EcritureSure& cible)
      : f_(OuvrirFichier(source)), cible_(cible), taille_(std::max<std::int64_t>(LongueurFichier(source), 0)) {
    tampon_.reserve(std::min<std::size_t>(2 * kBloc, static_cast<std::size_t>(taille_) + 4096));
  }

  void Jusqua(std::int64_t fin) {
    fin = std::min(fin, taille_);
    while (pos_ < fin) {
      const std::size_t n = static_cast<std::size_t>(std::min<std::int64_t>(kBloc, fin - pos_));
      const std::size_t debut = tampon_.size();
      tampon_.resize(debut + n);
      const std::size_t lu = std::fread(tampon_.data() + debut, 1, n, f_.get());
      tampon_.resize(debut + lu);
      if (lu > 0) Note(std::string_view(tampon_).substr(debut));
      Vide(false);
      if (lu == 0) break;
      pos_ += static_cast<std::int64_t>(lu);
    }
  }
  void Tout() { Jusqua(taille_); }
  void Ecrire(std::string_view s) {
    if (s.empty()) return;
    tampon_ += s;
    Note(s);
    Vide(false);
  }
  // Sends what is waiting: all of it, or only once it makes a block.
  void Vide(bool tout) {
    if (tampon_.size() >= kBloc || (tout && !tampon_.empty())) {
      cible_.Ecrire(tampon_);
      tampon_.clear();
    }
  }
  // What was written so far ends with an empty line, or is nothing.
  bool FinitParLigneVide() const {
    return fin_.empty() || fin_ == "\n" || fin_ == "\r\n" || fin_.ends_with("\n\n") || fin_.ends_with("\n\r\n");
  }
  bool FinitParFinDeLigne() const { return fin_.empty() || fin_.back() == '\n'; }

 private:
  void Note(std::string_view s) {
    fin_ += s.substr(s.size() - std::min<std::size_t>(s.size(), 3));
    if (fin_.size() > 3) fin_.erase(0, fin_.size() - 3);
  }
  static constexpr std::size_t kBloc = std::size_t{1} << 20;
  Fichier f_;
  EcritureSure& cible_;
  std::string tampon_;
  std::int64_t taille_;
  std::int64_t pos_ = 0;
  // The last three bytes written, fewer at the start; "\r\n" alone is a file of one empty line.
  std::string fin_;
};

}  // namespace

Changement FusionneArticles(std::string_view source, EcritureSure& cible, const std::vector<ClesArticle>& cles,
                            const std::function<std::string(std::size_t)>& texte) {
  Changement ch;
  ch.inseresAvant.reserve(cles.size());
  Copie copie(source, cible);
  Fichier f = OuvrirFichier(source);
  // A small dictionary is read in a block its size, not in the large ones a big one needs.
  const auto taille = static_cast<std::size_t>(std::max<std::int64_t>(LongueurFichier(source), 0));
  const std::size_t bloc = std::clamp<std::size_t>(taille + 16, 4096, std::size_t{1} << 19);
  LecteurIndex lecteur(f.get(), bloc, std::min<std::size_t>(bloc, 1 << 16));
  std::string_view ligne;
  std::int64_t offset = 0;
  std::int32_t k = 0;
  std::size_t j = 0;
  while (j < cles.size() && lecteur.Suivante(ligne, offset)) {
    ++k;
    if (!RangeArticle(ligne, cles[j])) continue;
    copie.Jusqua(offset);
    do {
      copie.Ecrire(texte(j));
      copie.Ecrire("\r\n\r\n");
      ch.inseresAvant.push_back(k);
    } while (++j < cles.size() && RangeArticle(ligne, cles[j]));
  }
  copie.Tout();
  if (j < cles.size()) {
    // The rest of the dictionary was read to its end: the count is known.
    while (lecteur.Suivante(ligne, offset)) ++k;
    if (!copie.FinitParFinDeLigne()) copie.Ecrire("\r\n");
    if (!copie.FinitParLigneVide()) copie.Ecrire("\r\n");
    for (bool premier = true; j < cles.size(); ++j, premier = false) {
      if (!premier) copie.Ecrire("\r\n");
      copie.Ecrire(texte(j));
      copie.Ecrire("\r\n");
      ch.inseresAvant.push_back(k + 1);
    }
  }
  copie.Vide(true);
  return ch;
}

}  // namespace lex
