#include "data/article_edit.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "base/error.h"
#include "data/files.h"

namespace lex {

std::string_view LigneIndexDe(std::string_view texte) {
  const std::size_t fin = texte.find_first_of("\r\n");
  return fin == std::string_view::npos ? texte : texte.substr(0, fin);
}

namespace {

// What the new file is made of, before it is written: each piece knows what follows it only
// once the list is whole.
struct Piece {
  std::int32_t premier = 0, dernier = -1;  // old entries, or
  const Retouche::Insertion* nouvelle = nullptr;
};

class Ecrivain {
 public:
  Ecrivain(std::string_view source, EcritureSure& cible) : source_(source), f_(OuvrirFichier(source)), cible_(cible) {}

  // Copies the bytes [debut, fin) of the source; the system copies them, only their last
  // bytes are read, for what follows them.
  void Copie(std::int64_t debut, std::int64_t fin) {
    if (fin <= debut) return;
    // Read first: a source shorter than its index is refused before anything is copied.
    const std::string queue = Lit(std::max(debut, fin - 3), fin);
    cible_.Copier(source_, debut, fin - debut);
    Note(queue, fin - debut);
  }
  void Ecrit(std::string_view s) {
    if (s.empty()) return;
    cible_.Ecrire(s);
    Note(s.substr(s.size() - std::min<std::size_t>(s.size(), 3)), static_cast<std::int64_t>(s.size()));
  }
  // The bytes [debut, fin) of the source.
  std::string Lit(std::int64_t debut, std::int64_t fin) {
    Place(debut);
    std::string s(static_cast<std::size_t>(std::max<std::int64_t>(fin - debut, 0)), '\0');
    if (std::fread(s.data(), 1, s.size(), f_.get()) != s.size()) Erreur(62);
    pos_ = fin;
    return s;
  }
  std::int64_t Ecrits() const { return ecrits_; }
  bool FinitParFinDeLigne() const { return fin_.empty() || fin_.back() == '\n'; }
  // What was written ends with an empty line, or is nothing, or is one empty line.
  bool FinitParLigneVide() const {
    return fin_.empty() || fin_ == "\n" || fin_ == "\r\n" || fin_.ends_with("\n\n") || fin_.ends_with("\n\r\n");
  }

 private:
  void Note(std::string_view queue, std::int64_t longueur) {
    fin_ += queue;
    if (fin_.size() > 3) fin_.erase(0, fin_.size() - 3);
    ecrits_ += longueur;
  }
  void Place(std::int64_t debut) {
    if (debut != pos_ && std::fseek(f_.get(), static_cast<long>(debut), SEEK_SET) != 0) Erreur(62);
    pos_ = debut;
  }
  std::string source_;
  Fichier f_;
  EcritureSure& cible_;
  std::int64_t pos_ = 0, ecrits_ = 0;
  std::string fin_;  // the last three bytes written, fewer at the start
};

// Where the text of a run ends when nothing follows it: after the line end of its last
// non-empty line. `queue` is the run's last bytes, from `debut`.
std::int64_t FinDuTexte(std::string_view queue, std::int64_t debut) {
  std::size_t q = queue.find_last_not_of("\r\n");
  if (q == std::string_view::npos) return debut;
  ++q;
  if (q < queue.size() && queue[q] == '\r') ++q;
  if (q < queue.size() && queue[q] == '\n') ++q;
  return debut + static_cast<std::int64_t>(q);
}

}  // namespace

Recomposition EcritRetouche(std::string_view source, EcritureSure& cible, const IndexTable& table,
                            const Retouche& r) {
  const std::int32_t n = table.NombreArticle();
  for (std::int32_t k : r.retires)
    if (k < 1 || k > n) Erreur(9);
  for (const auto& ins : r.inseres)
    if (ins.avant < 1 || ins.avant > n + 1) Erreur(9);

  // The pieces in the new order.
  std::vector<Piece> pieces;
  {
    std::size_t j = 0, x = 0;
    std::int32_t debutRun = 1;
    const auto fermeRun = [&](std::int32_t jusqua) {
      if (jusqua >= debutRun) pieces.push_back({debutRun, jusqua, nullptr});
    };
    for (std::int32_t k = 1; k <= n + 1; ++k) {
      const bool inseres = j < r.inseres.size() && r.inseres[j].avant == k;
      const bool retire = x < r.retires.size() && r.retires[x] == k;
      if (inseres || retire || k == n + 1) {
        fermeRun(k - 1);
        for (; j < r.inseres.size() && r.inseres[j].avant == k; ++j) pieces.push_back({0, -1, &r.inseres[j]});
        while (x < r.retires.size() && r.retires[x] == k) ++x;
        debutRun = retire ? k + 1 : k;
      }
    }
  }

  Recomposition res;
  res.changement.retires = r.retires;
  for (const auto& ins : r.inseres) {
    res.changement.inseresAvant.push_back(ins.avant);
    res.changement.remplaces.push_back(ins.remplace);
  }

  Ecrivain e(source, cible);
  // The empty lines before the first index line are read as the start of the first
  // article: they stay with it, and no new first article inherits them.
  if (!pieces.empty() && !pieces.front().nouvelle && pieces.front().premier == 1) e.Copie(0, table.position(1));
  for (std::size_t p = 0; p < pieces.size(); ++p) {
    const Piece& pc = pieces[p];
    const bool derniere = p + 1 == pieces.size();
    if (pc.nouvelle) {
      // After the old last article, which may lack its line end and the empty line.
      if (!e.FinitParFinDeLigne()) e.Ecrit("\r\n");
      if (!e.FinitParLigneVide()) e.Ecrit("\r\n");
      const std::string_view ligne = LigneIndexDe(pc.nouvelle->texte);
      IndexTable::Morceau m;
      m.texte = ligne;
      m.position = static_cast<std::int32_t>(e.Ecrits());
      res.morceaux.push_back(m);
      e.Ecrit(pc.nouvelle->texte);
      e.Ecrit(derniere ? "\r\n" : "\r\n\r\n");
      continue;
    }
    const std::int64_t debut = table.position(pc.premier);
    std::int64_t fin = table.position(pc.dernier + 1);
    IndexTable::Morceau m;
    m.premier = pc.premier;
    m.dernier = pc.dernier;
    m.decalage = e.Ecrits() - debut;
    res.morceaux.push_back(m);
    if (derniere && pc.dernier < n) {
      // The articles that followed were removed: the file ends with this one's text. Enough
      // of the end of the run is read to see its empty lines.
      const std::int64_t debutQueue = std::max(debut, fin - 4096);
      e.Copie(debut, debutQueue);
      const std::string queue = e.Lit(debutQueue, fin);
      fin = FinDuTexte(queue, debutQueue);
      e.Ecrit(std::string_view(queue).substr(0, static_cast<std::size_t>(fin - debutQueue)));
      continue;
    }
    e.Copie(debut, fin);
  }
  res.taille = e.Ecrits();
  if (res.taille > std::numeric_limits<std::int32_t>::max()) Erreur(6);
  return res;
}

}  // namespace lex
