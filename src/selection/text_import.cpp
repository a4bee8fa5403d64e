#include "selection/text_import.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "base/blanks.h"
#include "base/encoding.h"
#include "base/error.h"

namespace lex {
namespace {

// The lines of a file with the offset of each, read by blocks: an import may be far larger
// than what is worth holding.
class Lignes {
 public:
  explicit Lignes(std::string_view fichier)
      : f_(OuvrirFichier(fichier)),
        bloc_(std::clamp<std::size_t>(static_cast<std::size_t>(std::max<std::int64_t>(LongueurFichier(fichier), 0)) + 1, 4096,
                                      std::size_t{1} << 20)) {}

  // The next line without its line end (LF, or CR LF); false at the end.
  bool Suivante(std::string_view& ligne, std::int64_t& offset) {
    for (;;) {
      const char* debut = tampon_.data() + p_;
      const char* fin = tampon_.data() + tampon_.size();
      if (const char* nl = static_cast<const char*>(std::memchr(debut, '\n', static_cast<std::size_t>(fin - debut)))) {
        offset = base_ + static_cast<std::int64_t>(p_);
        ligne = {debut, static_cast<std::size_t>(nl - debut)};
        if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
        p_ = static_cast<std::size_t>(nl + 1 - tampon_.data());
        return true;
      }
      if (eof_) {
        if (p_ == tampon_.size()) return false;
        offset = base_ + static_cast<std::int64_t>(p_);
        ligne = {debut, static_cast<std::size_t>(fin - debut)};
        if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
        p_ = tampon_.size();
        return true;
      }
      // Keep the unfinished line, then read on.
      base_ += static_cast<std::int64_t>(p_);
      tampon_.erase(0, p_);
      p_ = 0;
      const std::size_t avant = tampon_.size();
      tampon_.resize(avant + bloc_);
      const std::size_t lu = std::fread(tampon_.data() + avant, 1, bloc_, f_.get());
      tampon_.resize(avant + lu);
      if (lu < bloc_) eof_ = true;
    }
  }
  // Where the line after the last one given starts.
  std::int64_t Position() const { return base_ + static_cast<std::int64_t>(p_); }

 private:
  Fichier f_;
  std::size_t bloc_;  // the file's size, up to a large block
  std::string tampon_;
  std::size_t p_ = 0;
  std::int64_t base_ = 0;
  bool eof_ = false;
};

constexpr std::string_view kBom = "\xEF\xBB\xBF";

// A line as the dictionary will hold it: Windows-1252, without its surrounding blanks.
std::string_view Propre(std::string_view ligne, std::int64_t offset, bool utf8, std::string& converti) {
  if (!utf8) return Rogne(ligne);
  if (offset == 0 && ligne.starts_with(kBom)) ligne.remove_prefix(kBom.size());
  converti = Utf8VersAnsi(ligne);
  return Rogne(converti);
}

}  // namespace

Importation LireImportation(std::string_view fichier, const std::function<void()>& bip) {
  Importation imp;
  {
    // UTF-8 only when the whole file is: a file in Windows-1252 is read as it is.
    Lignes l(fichier);
    std::string_view ligne;
    std::int64_t offset = 0;
    bool horsAscii = false, valide = true;
    while (valide && l.Suivante(ligne, offset)) {
      if (std::all_of(ligne.begin(), ligne.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        continue;
      horsAscii = true;
      valide = EstUtf8(ligne);
    }
    imp.utf8 = horsAscii && valide;
  }
  Lignes l(fichier);
  std::string_view ligne;
  std::int64_t offset = 0, numero = 0;
  std::string converti;
  std::vector<ClesArticle> cles;
  while (l.Suivante(ligne, offset)) {
    if (++numero == 100000) bip();
    const std::string_view t = Propre(ligne, offset, imp.utf8, converti);
    if (t.empty()) continue;
    if (Coupe(t) != std::string_view::npos) {
      cles.push_back(ClesDe(t));
      imp.articles.push_back({offset, l.Position()});
    } else if (imp.articles.empty()) {
      ++imp.lignesPerdues;
    } else {
      imp.articles.back().fin = l.Position();
    }
  }
  // Sorted once here, the articles go into the dictionary in one pass over it.
  std::vector<std::size_t> ordre(cles.size());
  std::iota(ordre.begin(), ordre.end(), std::size_t{0});
  std::stable_sort(ordre.begin(), ordre.end(), [&](std::size_t a, std::size_t b) { return AvantDans(cles[a], cles[b]); });
  imp.cles.reserve(cles.size());
  std::vector<ArticleImporte> articles;
  articles.reserve(cles.size());
  for (std::size_t i : ordre) {
    imp.cles.push_back(std::move(cles[i]));
    articles.push_back(imp.articles[i]);
  }
  imp.articles = std::move(articles);
  return imp;
}

LecteurArticles::LecteurArticles(std::string_view fichier, bool utf8) : f_(OuvrirFichier(fichier)), utf8_(utf8) {}

std::string LecteurArticles::Texte(const ArticleImporte& a) {
  const auto longueur = static_cast<std::size_t>(a.fin - a.debut);
  if (a.debut < fenetreDebut_ || a.fin > fenetreDebut_ + static_cast<std::int64_t>(fenetre_.size())) {
    // A file sorted already is read in order, one read serving the articles that follow; in
    // any other order each article costs one small read.
    constexpr std::size_t kFenetre = 1 << 12;
    fenetre_.resize(std::max(longueur, kFenetre));
    if (std::fseek(f_.get(), static_cast<long>(a.debut), SEEK_SET) != 0) Erreur(52);
    fenetre_.resize(std::fread(fenetre_.data(), 1, fenetre_.size(), f_.get()));
    fenetreDebut_ = a.debut;
    if (fenetre_.size() < longueur) Erreur(62);
  }
  const std::string_view octets(fenetre_.data() + (a.debut - fenetreDebut_), longueur);
  std::string texte, converti;
  std::size_t p = 0;
  while (p < octets.size()) {
    std::size_t nl = octets.find('\n', p);
    if (nl == std::string_view::npos) nl = octets.size();
    std::string_view ligne = octets.substr(p, nl - p);
    if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
    const std::string_view t = Propre(ligne, a.debut + static_cast<std::int64_t>(p), utf8_, converti);
    if (!t.empty()) {
      if (!texte.empty()) texte += "\r\n";
      texte += t;
    }
    p = nl + 1;
  }
  return texte;
}

}  // namespace lex
