#include "search/article_scan.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "data/dictionary_file.h"
#include "data/files.h"
#include "search/article_text.h"
#include "search/finder.h"
#include "base/error.h"

namespace lex {
namespace {

bool Lisible(const Etendue& e) { return e.debut >= 0 && e.fin >= e.debut; }

// A window on the dictionary file. Bytes past the end of the file read as blanks, as
// LitDictio gives them when the file has shrunk since its index was made.
class LecteurBlocs {
 public:
  LecteurBlocs(std::string_view fichier, std::int64_t tailleBloc) : bloc_(std::max<std::int64_t>(1, tailleBloc)) {
    ErrorTrap trap(" sur LitDictio");
    in_.open(CheminNatif(fichier), std::ios::binary);
    if (!in_) Erreur(53);
  }

  bool Contient(const Etendue& e) const { return e.debut >= debut_ && e.fin <= fin_; }
  const char* Octets(std::int64_t position) const { return tampon_.data() + (position - debut_); }

  // Brings [e.debut, e.fin) in, in a block that starts there (forwards) or ends there
  // (backwards), so that the next articles of the scan come with it.
  void Charge(const Etendue& e, bool avant) {
    ErrorTrap trap(" sur LitDictio");
    const std::int64_t longueur = std::max(bloc_, e.fin - e.debut);
    const std::int64_t depart = avant ? e.debut : std::max<std::int64_t>(0, e.fin - longueur);
    if (tampon_.size() < static_cast<std::size_t>(longueur)) tampon_.resize(static_cast<std::size_t>(longueur));
    std::streamsize lus = 0;
    in_.clear();
    if (in_.seekg(depart)) {
      in_.read(tampon_.data(), static_cast<std::streamsize>(longueur));
      lus = in_.gcount();
    }
    std::fill(tampon_.begin() + lus, tampon_.begin() + longueur, ' ');
    debut_ = depart;
    fin_ = depart + longueur;
  }

 private:
  std::int64_t bloc_;
  std::ifstream in_;
  std::vector<char> tampon_;
  std::int64_t debut_ = 0, fin_ = 0;
};

class Parcours {
 public:
  Parcours(const ListeAffichee& liste, const std::function<void()>& bip, std::string_view aiguille, bool respectCasse,
           std::int64_t tailleBloc)
      : liste_(liste), bip_(bip), aiguille_(aiguille), respectCasse_(respectCasse),
        lecteur_(liste.Dictionnaire().fichiers.dictio, tailleBloc),
        chercheur_(Segment(aiguille), !respectCasse) {
    const std::string_view segment = Segment(aiguille);
    debutSegment_ = static_cast<std::size_t>(segment.data() - aiguille.data());
    // A needle without blanks is found in the bytes exactly when it is in the text: line
    // ends, the only thing the text changes, are not in it. Blanks may stand for line breaks,
    // which the bytes show as they are; line ends in the needle itself are left to the text.
    if (aiguille.find_first_of("\r\n") != std::string_view::npos) test_ = Test::Texte;
    else if (segment.empty()) test_ = Test::Blancs;
    else if (segment.size() == aiguille.size()) test_ = Test::Segment;
    else test_ = Test::EnPlace;
  }

  void Avant(std::int32_t premier, std::int32_t dernier, const std::function<bool(std::int32_t)>& trouve) {
    for (std::int32_t i = premier; i <= dernier;) {
      const std::int32_t n = Suite(i, dernier, true);
      bool encore = true;
      Cherche(i, [&](std::int32_t k) {
        Examines(k - premier + 1);
        encore = trouve(k);
        return encore;
      });
      if (!encore) return;
      i += n;
      Examines(i - premier);
    }
  }

  void Arriere(std::int32_t premier, std::int32_t dernier, const std::function<bool(std::int32_t)>& trouve) {
    std::vector<std::int32_t> trouves;
    for (std::int32_t i = premier; i >= dernier;) {
      const std::int32_t n = Suite(i, dernier, false);
      const std::int32_t bas = i - n + 1;
      trouves.clear();
      Cherche(bas, [&](std::int32_t k) {
        trouves.push_back(k);
        return true;
      });
      for (auto k = trouves.rbegin(); k != trouves.rend(); ++k) {
        Examines(premier - *k + 1);
        if (!trouve(*k)) return;
      }
      i = bas - 1;
      Examines(premier - i);
    }
  }

 private:
  // The longest piece of the needle without blanks and line ends: it lies as it is in the bytes
  // of any article that holds the needle.
  static std::string_view Segment(std::string_view aiguille) {
    std::string_view meilleur;
    std::size_t d = 0;
    while (d < aiguille.size()) {
      const std::size_t f = std::min(aiguille.find_first_of(" \r\n", d), aiguille.size());
      if (f - d > meilleur.size()) meilleur = aiguille.substr(d, f - d);
      d = f + 1;
    }
    return meilleur;
  }

  // Gathers into suite_ the articles from i on (or down) whose bytes follow one another in the
  // block, loading the block first if needed; returns how many.
  std::int32_t Suite(std::int32_t i, std::int32_t dernier, bool avant) {
    suite_.clear();
    const Etendue e = liste_.EtendueArticle(i);
    suite_.push_back(e);
    if (!Lisible(e)) return 1;
    if (!lecteur_.Contient(e)) lecteur_.Charge(e, avant);
    for (std::int32_t j = avant ? i + 1 : i - 1; avant ? j <= dernier : j >= dernier; avant ? ++j : --j) {
      const Etendue s = liste_.EtendueArticle(j);
      const bool colle = avant ? s.debut == suite_.back().fin : s.fin == suite_.back().debut;
      if (!colle || !Lisible(s) || !lecteur_.Contient(s)) break;
      suite_.push_back(s);
    }
    if (!avant) std::reverse(suite_.begin(), suite_.end());
    return static_cast<std::int32_t>(suite_.size());
  }

  // The articles of suite_ (the first being entry `premier`) that hold the needle, in order.
  template <class Rappel>
  void Cherche(std::int32_t premier, Rappel&& rappel) {
    if (!Lisible(suite_.front())) return;
    if (chercheur_.taille() == 0) {
      // Nothing but blanks (or line ends) to look for: each article is tested whole.
      for (std::size_t k = 0; k < suite_.size(); ++k)
        if ((test_ == Test::Blancs ? Blancs(suite_[k]) : Contient(suite_[k])) &&
            !rappel(premier + static_cast<std::int32_t>(k)))
          return;
      return;
    }
    const std::int64_t finSuite = suite_.back().fin;
    const std::int64_t m = static_cast<std::int64_t>(chercheur_.taille());
    std::int64_t position = suite_.front().debut;
    std::size_t k = 0;
    while (position < finSuite) {
      const char* debut = lecteur_.Octets(position);
      const char* h = chercheur_.Premier(debut, lecteur_.Octets(finSuite));
      if (h == nullptr) return;
      const std::int64_t p = position + (h - debut);
      while (suite_[k].fin <= p) ++k;
      const Etendue& e = suite_[k];
      // The piece may lie across two articles (only in a file changed since its index was
      // made), or the needle may not be all there: the next piece may still do.
      position = p + 1;
      if (p + m > e.fin) continue;
      switch (test_) {
        case Test::Segment:
        case Test::Blancs: break;
        case Test::EnPlace:
          if (!EnPlace(e, p)) continue;
          break;
        case Test::Texte:
          position = e.fin;
          if (!Contient(e)) continue;
          break;
      }
      if (!rappel(premier + static_cast<std::int32_t>(k))) return;
      position = e.fin;
    }
  }

  char Octet(std::int64_t position) const { return *lecteur_.Octets(position); }

  // Where the article's text ends in the file: before the line ends LitDictio takes off.
  std::int64_t FinTexte(const Etendue& e) const {
    std::int64_t fin = e.fin;
    auto retire = [&] {
      if (fin - e.debut >= 2 && Octet(fin - 2) == '\r' && Octet(fin - 1) == '\n') fin -= 2;
      else if (fin > e.debut && Octet(fin - 1) == '\n') fin -= 1;
    };
    if (!e.derniere) retire();
    retire();
    return fin;
  }

  // Whether the needle lies in the article's text with its piece at `p`, matched on the bytes:
  // a blank of the needle takes a blank, or a line break (CR LF, or LF alone, which the text
  // shows as CR LF) when the article holds a blank, as FormeRecherche then makes it one.
  bool EnPlace(const Etendue& e, std::int64_t p) const {
    const std::int64_t fin = FinTexte(e);
    const std::size_t finSegment = debutSegment_ + chercheur_.taille();
    bool saut = false;
    std::int64_t x = p + static_cast<std::int64_t>(chercheur_.taille());
    for (std::size_t j = finSegment; j < aiguille_.size(); ++j) {
      if (x >= fin) return false;
      const char b = Octet(x);
      if (aiguille_[j] != ' ') {
        if (chercheur_.Vu(b) != static_cast<unsigned char>(aiguille_[j])) return false;
        ++x;
      } else if (b == ' ') {
        ++x;
      } else if (b == '\r' && x + 1 < fin && Octet(x + 1) == '\n') {
        x += 2;
        saut = true;
      } else if (b == '\n') {
        ++x;
        saut = true;
      } else {
        return false;
      }
    }
    x = p - 1;
    for (std::size_t j = debutSegment_; j-- > 0;) {
      if (x < e.debut) return false;
      const char b = Octet(x);
      if (aiguille_[j] != ' ') {
        if (chercheur_.Vu(b) != static_cast<unsigned char>(aiguille_[j])) return false;
        --x;
      } else if (b == ' ') {
        --x;
      } else if (b == '\n') {
        x -= x - 1 >= e.debut && Octet(x - 1) == '\r' ? 2 : 1;
        saut = true;
      } else {
        return false;
      }
    }
    return !saut || TientUnBlanc(e, fin);
  }

  bool TientUnBlanc(const Etendue& e, std::int64_t fin) const {
    return std::memchr(lecteur_.Octets(e.debut), ' ', static_cast<std::size_t>(fin - e.debut)) != nullptr;
  }

  // Whether the article's text holds as many blanks in a row as the needle, line breaks
  // counting as blanks when it holds a real one.
  bool Blancs(const Etendue& e) const {
    const std::int64_t fin = FinTexte(e);
    if (!TientUnBlanc(e, fin)) return false;
    std::size_t suite = 0;
    for (const char *x = lecteur_.Octets(e.debut), *f = lecteur_.Octets(fin); x < f; ++x) {
      if (*x == '\r' && x + 1 < f && x[1] == '\n') ++x;
      else if (*x != ' ' && *x != '\n') {
        suite = 0;
        continue;
      }
      if (++suite == aiguille_.size()) return true;
    }
    return false;
  }

  // The exact test on the article's text, as LitDictio would give it.
  bool Contient(const Etendue& e) const {
    std::string brut(lecteur_.Octets(e.debut), static_cast<std::size_t>(e.fin - e.debut));
    const std::string texte = DecoupeArticle(std::move(brut), e.derniere);
    return OccurrenceArticle(texte, aiguille_, respectCasse_, false) != std::string::npos;
  }

  // The progress signal: one beep each time the count of entries examined reaches a thousand more.
  void Examines(std::int32_t nombre) {
    for (; examines_ < nombre; ++examines_)
      if ((examines_ + 1) % 1000 == 0) bip_();
  }

  const ListeAffichee& liste_;
  const std::function<void()>& bip_;
  std::string_view aiguille_;
  bool respectCasse_;
  LecteurBlocs lecteur_;
  Chercheur chercheur_;
  // How a find of the needle's longest piece without blanks is confirmed.
  enum class Test { Segment, EnPlace, Blancs, Texte } test_ = Test::Segment;
  std::size_t debutSegment_ = 0;
  std::vector<Etendue> suite_;
  std::int32_t examines_ = 0;
};

}  // namespace

void ParcoursArticles(const ListeAffichee& liste, const std::function<void()>& bip, std::int32_t premier,
                      std::int32_t dernier, bool arriere, std::string_view aiguille, bool respectCasse,
                      const std::function<bool(std::int32_t)>& trouve, std::int64_t tailleBloc) {
  const std::int32_t n = liste.Nombre();
  if (aiguille.empty()) return;
  if (!arriere) {
    premier = std::max(premier, 1);
    dernier = std::min(dernier, n);
    if (premier <= dernier) Parcours(liste, bip, aiguille, respectCasse, tailleBloc).Avant(premier, dernier, trouve);
  } else {
    premier = std::min(premier, n);
    dernier = std::max(dernier, 1);
    if (premier >= dernier) Parcours(liste, bip, aiguille, respectCasse, tailleBloc).Arriere(premier, dernier, trouve);
  }
}

}  // namespace lex
