#include "exchange/dictionary_writer.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "data/article_order.h"
#include "data/safe_write.h"

namespace lex::exchange {

namespace {

// Blocks grow from the first to the largest, so that a small dictionary takes little memory
// and a large one few blocks.
constexpr std::size_t kPremierBloc = std::size_t{64} << 10;
constexpr std::size_t kBloc = std::size_t{16} << 20;
// The program reads its dictionaries with 32-bit signed offsets.
constexpr std::uint64_t kTailleMax = std::numeric_limits<std::int32_t>::max();

// A headword shown in an error: the first forty characters or so, cut between characters.
std::string Apercu(const std::string& utf8) {
  constexpr std::size_t kMax = 40;
  if (utf8.size() <= kMax) return utf8;
  std::size_t n = kMax;
  while (n > 0 && (static_cast<unsigned char>(utf8[n]) & 0xC0) == 0x80) --n;
  return utf8.substr(0, n) + "\xE2\x80\xA6";  // …
}

// What in a line would break the file, as the user is told it; nullptr when nothing.
const char* Interdit(std::string_view ligne) {
  for (char c : ligne) {
    if (c == '\0') return "un octet nul";
    if (c == '\r') return "un retour chariot (CR)";
    if (c == '\n') return "un saut de ligne (LF)";
  }
  return nullptr;
}

bool QueDesBlancs(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char c) { return c == ' ' || c == '\t' || c == '\xA0'; });
}

}  // namespace

EcrivainDictionnaire::EcrivainDictionnaire(std::string source) : source_(std::move(source)) {}
EcrivainDictionnaire::~EcrivainDictionnaire() = default;

Recepteur EcrivainDictionnaire::Entree() {
  return [this](ArticleImporte&& a) { Ajoute(std::move(a)); };
}

std::string EcrivainDictionnaire::Endroit(std::size_t numero, const std::string& index) const {
  std::string e = "entr\xC3\xA9" "e " + std::to_string(numero);
  if (!QueDesBlancs(index)) e += " (" + Apercu(index) + ")";
  return e;
}

char* EcrivainDictionnaire::Reserve(std::size_t n, std::uint32_t& bloc, std::uint32_t& debut) {
  if (blocs_.empty() || rempli_ + n > tailles_.back()) {
    const std::size_t suivant = tailles_.empty() ? kPremierBloc : std::min(2 * tailles_.back(), kBloc);
    const std::size_t taille = std::max(n, suivant);
    blocs_.push_back(std::make_unique_for_overwrite<char[]>(taille));
    tailles_.push_back(taille);
    rempli_ = 0;
  }
  bloc = static_cast<std::uint32_t>(blocs_.size() - 1);
  debut = static_cast<std::uint32_t>(rempli_);
  rempli_ += n;
  return blocs_.back().get() + debut;
}

void EcrivainDictionnaire::Ajoute(ArticleImporte&& a) {
  const std::size_t numero = articles_.size() + 1;
  auto refuse = [&](const std::string& probleme) {
    throw ErreurImport(source_, Endroit(numero, a.index), probleme);
  };

  if (const char* p = Interdit(a.index)) refuse(std::string("le mot d'entr\xC3\xA9" "e contient ") + p);
  if (QueDesBlancs(a.index)) refuse("le mot d'entr\xC3\xA9" "e est vide");
  ligne_.clear();
  replieur_.Replie(a.index, ligne_);
  if (ligne_.size() > kLongueurIndex)
    refuse("le mot d'entr\xC3\xA9" "e a " + std::to_string(ligne_.size()) + " caract\xC3\xA8res, " +
           std::to_string(kLongueurIndex) + " au plus");
  if (QueDesBlancs(ligne_)) refuse("le mot d'entr\xC3\xA9" "e est vide une fois en Windows-1252");

  article_.assign(ligne_);
  article_ += "\r\n";
  for (std::size_t i = 0; i < a.definition.size(); ++i) {
    const std::string& d = a.definition[i];
    if (const char* p = Interdit(d))
      refuse("la ligne " + std::to_string(i + 2) + " de l'article contient " + p);
    if (d.empty()) continue;
    const std::size_t avant = article_.size();
    replieur_.Replie(d, article_);
    // A line that folds to nothing (only zero-width characters) would end the article.
    if (article_.size() == avant) continue;
    article_ += "\r\n";
  }

  ClesArticle cles = ClesDe(ligne_);
  if (cles.tete == cles.entiere) cles.tete.clear();  // the same order, kept once
  // Stopped as soon as it is too big, rather than once the memory is spent.
  taille_ += article_.size() + (articles_.empty() ? 0 : 2);
  if (taille_ > kTailleMax)
    refuse("le dictionnaire d\xC3\xA9passerait les 2 Go que le programme sait lire");
  if (cles_.size() + cles.tete.size() + cles.entiere.size() > std::numeric_limits<std::uint32_t>::max())
    refuse("trop d'articles pour un dictionnaire");

  Place p{};
  std::memcpy(Reserve(article_.size(), p.bloc, p.debut), article_.data(), article_.size());
  p.longueur = static_cast<std::uint32_t>(article_.size());
  p.cle = static_cast<std::uint32_t>(cles_.size());
  p.tete = static_cast<std::uint16_t>(cles.tete.size());
  p.entiere = static_cast<std::uint16_t>(cles.entiere.size());
  cles_ += cles.tete;
  cles_ += cles.entiere;
  articles_.push_back(p);
}

BilanEcriture EcrivainDictionnaire::Ecrit(const std::filesystem::path& cible, Ordre ordre) {
  if (articles_.empty()) throw ErreurImport(source_, "", "aucun article \xC3\xA0 \xC3\xA9" "crire");
  const char* cles = cles_.data();
  if (ordre == Ordre::Alphabetique)
    std::stable_sort(articles_.begin(), articles_.end(), [cles](const Place& a, const Place& b) {
      const std::string_view ta(cles + a.cle, a.tete), ea(cles + a.cle + a.tete, a.entiere);
      const std::string_view tb(cles + b.cle, b.tete), eb(cles + b.cle + b.tete, b.entiere);
      return AvantDans(ta, ea, tb, eb);
    });

  EcritureSure f(cible.string(), Donnees::Utilisateur);
  std::string tampon;
  constexpr std::size_t kTampon = std::size_t{1} << 20;
  tampon.reserve(kTampon + 4);
  bool premier = true;
  for (const Place& p : articles_) {
    if (!premier) tampon += "\r\n";
    premier = false;
    const char* texte = blocs_[p.bloc].get() + p.debut;
    if (tampon.size() + p.longueur > kTampon) {
      f.Ecrire(tampon);
      tampon.clear();
      if (p.longueur > kTampon) {
        f.Ecrire(texte, p.longueur);
        continue;
      }
    }
    tampon.append(texte, p.longueur);
  }
  f.Ecrire(tampon);
  f.Valider();
  return {articles_.size(), replieur_.Changes(), replieur_.Exemples()};
}

}  // namespace lex::exchange
