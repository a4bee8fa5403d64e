#include "exchange/mythes.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <charconv>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lex::exchange {

namespace {

// Blanks at both ends, the no-break space (UTF-8) among them: the French thesaurus has
// "sagesse\u00A0" where a typographer's habit left one before a separator.
std::string_view SansBlancs(std::string_view s) {
  constexpr std::string_view kInsecable = "\xC2\xA0";
  for (;;) {
    if (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    else if (s.substr(0, 2) == kInsecable) s.remove_prefix(2);
    else break;
  }
  for (;;) {
    if (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    else if (s.size() >= 2 && s.substr(s.size() - 2) == kInsecable) s.remove_suffix(2);
    else break;
  }
  return s;
}

std::string Ligne(long n) { return "ligne " + std::to_string(n); }

bool EstUnNombre(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s)
    if (c < '0' || c > '9') return false;
  return true;
}

// The encoding line, read as ASCII: an encoding's name never needs more.
bool LigneEncodage(std::string_view s) {
  if (s.empty() || s.size() > 40) return false;
  for (char c : s)
    if (c <= ' ' || c > '~' || c == '|') return false;
  return true;
}

struct FermeConvertisseur {
  void operator()(UConverter* c) const { ucnv_close(c); }
};

// Lines of the thesaurus, brought from its encoding to UTF-8 one at a time, so that a byte
// that does not belong to the encoding is reported with its line.
class Lecteur {
 public:
  Lecteur(const std::filesystem::path& fichier) : nom_(fichier.string()), in_(fichier, std::ios::binary) {
    if (!in_) throw ErreurImport(nom_, "", "impossible d'ouvrir le fichier");
  }

  // The next line, raw; false at the end of the file.
  bool Suivante(std::string& brute) {
    if (!std::getline(in_, brute)) {
      if (in_.bad()) throw ErreurImport(nom_, Ligne(numero_ + 1), "erreur de lecture");
      return false;
    }
    ++numero_;
    if (!brute.empty() && brute.back() == '\r') brute.pop_back();
    // A carriage return or a NUL byte inside a line cannot be a line of a dictionary.
    if (brute.find_first_of(std::string_view("\r\0", 2)) != std::string::npos)
      throw ErreurImport(nom_, Ligne(numero_), "retour chariot ou caract\xC3\xA8re nul au milieu de la ligne");
    return true;
  }

  void Encodage(const std::string& nom) {
    UErrorCode statut = U_ZERO_ERROR;
    UConverter* c = ucnv_open(nom.c_str(), &statut);
    if (U_FAILURE(statut) || c == nullptr)
      throw ErreurImport(nom_, Ligne(1), "encodage \xC2\xAB " + nom + " \xC2\xBB inconnu");
    conv_.reset(c);
    // Lines are cut at the byte of a line feed: the encoding must keep it a byte of its own.
    if (ucnv_getMinCharSize(c) != 1)
      throw ErreurImport(nom_, Ligne(1), "encodage \xC2\xAB " + nom + " \xC2\xBB non pris en charge");
    ucnv_setToUCallBack(c, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &statut);
    nomEncodage_ = nom;
  }

  std::string EnUtf8(const std::string& brute) {
    if (brute.empty()) return {};
    ucnv_reset(conv_.get());
    UErrorCode statut = U_ZERO_ERROR;
    unites_.resize(brute.size() * 2 + 2);
    const int32_t n = ucnv_toUChars(conv_.get(), unites_.data(), static_cast<int32_t>(unites_.size()), brute.data(),
                                    static_cast<int32_t>(brute.size()), &statut);
    if (U_FAILURE(statut)) Illisible();
    std::string utf8(static_cast<std::size_t>(n) * 3, '\0');
    int32_t longueur = 0;
    u_strToUTF8(utf8.data(), static_cast<int32_t>(utf8.size()), &longueur, unites_.data(), n, &statut);
    if (U_FAILURE(statut)) Illisible();
    utf8.resize(static_cast<std::size_t>(longueur));
    return utf8;
  }

  long Numero() const { return numero_; }
  const std::string& Nom() const { return nom_; }

 private:
  [[noreturn]] void Illisible() const {
    throw ErreurImport(nom_, Ligne(numero_), "texte qui n'est pas en \xC2\xAB " + nomEncodage_ + " \xC2\xBB");
  }

  std::string nom_;
  std::ifstream in_;
  long numero_ = 0;
  std::unique_ptr<UConverter, FermeConvertisseur> conv_;
  std::string nomEncodage_;
  std::vector<UChar> unites_;
};

// "(Nom)|chanvre|jute" -> "(Nom) chanvre, jute"; empty fields are left out.
std::string LigneDeSens(std::string_view ligne) {
  std::string sortie;
  bool premier = true, synonyme = false;
  for (;;) {
    const std::size_t barre = ligne.find('|');
    const std::string_view champ = SansBlancs(ligne.substr(0, barre));
    if (!champ.empty()) {
      if (!premier) {
        if (!sortie.empty()) sortie += synonyme ? ", " : " ";
        synonyme = true;
      }
      sortie += champ;
    }
    premier = false;
    if (barre == std::string_view::npos) break;
    ligne.remove_prefix(barre + 1);
  }
  return sortie;
}

// A line that has the look of a word's own line ("abaca|1") where a meaning was expected.
bool RessembleAUnMot(std::string_view ligne) {
  const std::size_t barre = ligne.find('|');
  if (barre == std::string_view::npos || barre == 0 || ligne.find('|', barre + 1) != std::string_view::npos)
    return false;
  if (ligne.front() == '(' || ligne.front() == '-') return false;
  return EstUnNombre(SansBlancs(ligne.substr(barre + 1)));
}

}  // namespace

bool EstMyThes(const std::filesystem::path& fichier) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(fichier, ec)) return false;
  std::ifstream in(fichier, std::ios::binary);
  char tampon[4096];
  in.read(tampon, sizeof tampon);
  std::string_view debut(tampon, static_cast<std::size_t>(in.gcount()));
  if (debut.substr(0, 3) == "\xEF\xBB\xBF") debut.remove_prefix(3);
  const std::size_t fin1 = debut.find('\n');
  if (fin1 == std::string_view::npos || !LigneEncodage(SansBlancs(debut.substr(0, fin1)))) return false;
  std::string_view mot = debut.substr(fin1 + 1);
  const std::size_t fin2 = mot.find('\n');
  if (fin2 == std::string_view::npos) return false;
  mot = SansBlancs(mot.substr(0, fin2));
  const std::size_t barre = mot.rfind('|');
  return barre != std::string_view::npos && EstUnNombre(SansBlancs(mot.substr(barre + 1)));
}

void LitMyThes(const std::filesystem::path& fichier, const Recepteur& recepteur) {
  Lecteur lecteur(fichier);
  std::string brute;
  if (!lecteur.Suivante(brute)) throw ErreurImport(lecteur.Nom(), "", "fichier vide");
  std::string_view encodage = brute;
  if (encodage.substr(0, 3) == "\xEF\xBB\xBF") encodage.remove_prefix(3);
  lecteur.Encodage(std::string(SansBlancs(encodage)));

  long mots = 0;
  while (lecteur.Suivante(brute)) {
    if (SansBlancs(brute).empty()) continue;
    const long ligneMot = lecteur.Numero();
    const std::string ligne = lecteur.EnUtf8(brute);
    const std::size_t barre = ligne.rfind('|');
    if (barre == std::string::npos)
      throw ErreurImport(lecteur.Nom(), Ligne(ligneMot),
                         "\xC2\xAB " + ligne + " \xC2\xBB n'est pas de la forme mot|nombre de sens");
    const std::string_view compte = SansBlancs(std::string_view(ligne).substr(barre + 1));
    long annonces = 0;
    const auto [fin, erreur] = std::from_chars(compte.data(), compte.data() + compte.size(), annonces);
    if (!EstUnNombre(compte) || erreur != std::errc() || fin != compte.data() + compte.size())
      throw ErreurImport(lecteur.Nom(), Ligne(ligneMot),
                         "\xC2\xAB " + std::string(compte) + " \xC2\xBB n'est pas un nombre de sens");

    ArticleImporte article;
    article.index = std::string(SansBlancs(std::string_view(ligne).substr(0, barre)));
    const auto manque = [&](long lus) {
      return ErreurImport(lecteur.Nom(), Ligne(ligneMot),
                          "le mot \xC2\xAB " + article.index + " \xC2\xBB annonce " + std::to_string(annonces) +
                              " sens, le fichier n'en donne que " + std::to_string(lus));
    };
    for (long lus = 0; lus < annonces; ++lus) {
      if (!lecteur.Suivante(brute)) throw manque(lus);
      const std::string sens = lecteur.EnUtf8(brute);
      if (RessembleAUnMot(sens)) throw manque(lus);
      std::string definition = LigneDeSens(sens);
      if (!definition.empty()) article.definition.push_back(std::move(definition));
    }
    ++mots;
    // A word without a meaning has nothing to show.
    if (!article.definition.empty()) recepteur(std::move(article));
  }
  if (mots == 0) throw ErreurImport(lecteur.Nom(), "", "le fichier ne contient aucun mot");
}

}  // namespace lex::exchange
