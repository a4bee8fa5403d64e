#include "exchange/dictd.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/dictzip.h"

namespace lex::exchange {

namespace {

namespace fs = std::filesystem;

bool FinitPar(std::string_view s, std::string_view fin) {
  return s.size() >= fin.size() && s.substr(s.size() - fin.size()) == fin;
}

// The common base of the dictionary's files, whichever of them was named.
fs::path Base(const fs::path& chemin) {
  std::string s = chemin.string();
  for (std::string_view fin : {".index", ".dict.dz", ".dict", ".dz"})
    if (FinitPar(s, fin)) return s.substr(0, s.size() - fin.size());
  return chemin;
}

fs::path Donnees(const fs::path& base) {
  fs::path dz = base.string() + ".dict.dz";
  std::error_code ec;
  if (fs::is_regular_file(dz, ec)) return dz;
  return base.string() + ".dict";
}

constexpr std::array<signed char, 256> TableBase64() {
  std::array<signed char, 256> t{};
  for (auto& v : t) v = -1;
  constexpr std::string_view chiffres = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  for (std::size_t i = 0; i < chiffres.size(); ++i) t[static_cast<unsigned char>(chiffres[i])] = static_cast<signed char>(i);
  return t;
}
constexpr auto kBase64 = TableBase64();

// A number as dictd writes it, most significant digit first; false for an empty field, a
// character outside the alphabet or a number beyond 2^48 (no data file is that large).
bool Base64(std::string_view s, std::uint64_t& n) {
  if (s.empty() || s.size() > 8) return false;
  n = 0;
  for (const char c : s) {
    const int v = kBase64[static_cast<unsigned char>(c)];
    if (v < 0) return false;
    n = n * 64 + static_cast<std::uint64_t>(v);
  }
  return true;
}

struct Entree {
  std::uint64_t debut, longueur;
  std::size_t ligne;   // 1-based, in the index
  std::string_view mot;
};

// Splits the index into its entries; the meta entries are left out.
std::vector<Entree> LitIndex(const std::string& texte, const fs::path& index) {
  std::vector<Entree> entrees;
  std::size_t p = 0, ligne = 0;
  while (p < texte.size()) {
    std::size_t fin = texte.find('\n', p);
    if (fin == std::string::npos) fin = texte.size();
    std::string_view l(texte.data() + p, fin - p);
    p = fin + 1;
    ++ligne;
    if (!l.empty() && l.back() == '\r') l.remove_suffix(1);
    if (l.empty()) continue;
    const auto t1 = l.find('\t');
    const auto t2 = t1 == std::string_view::npos ? t1 : l.find('\t', t1 + 1);
    if (t2 == std::string_view::npos)
      throw ErreurImport(index.string(), "ligne " + std::to_string(ligne),
                         "trois champs séparés par des tabulations attendus (mot, position, longueur)");
    auto t3 = l.find('\t', t2 + 1);
    const std::string_view mot = l.substr(0, t1);
    const std::string_view debut = l.substr(t1 + 1, t2 - t1 - 1);
    const std::string_view longueur = l.substr(t2 + 1, t3 == std::string_view::npos ? std::string_view::npos : t3 - t2 - 1);
    Entree e{0, 0, ligne, mot};
    if (!Base64(debut, e.debut) || !Base64(longueur, e.longueur))
      throw ErreurImport(index.string(), "ligne " + std::to_string(ligne),
                         "position ou longueur illisible (base 64 attendue : A-Z, a-z, 0-9, + et /)");
    if (mot.starts_with("00-database-") || mot.starts_with("00database")) continue;
    entrees.push_back(e);
  }
  return entrees;
}

constexpr std::string_view kBlancs = " \t\r\f\v";

std::string_view Rogne(std::string_view s) {
  const auto a = s.find_first_not_of(kBlancs);
  if (a == std::string_view::npos) return {};
  return s.substr(a, s.find_last_not_of(kBlancs) - a + 1);
}

// dictfmt files an entry under a folded form of its headword: lower case, without blanks
// or punctuation ("Achilles' heel" under "achilles heel", "Aix‐la‐Chapelle" under
// "aixlachapelle"), depending on its options. Both sides are folded further than any of
// them, to letters and digits alone, before they are compared.
std::string Cle(std::string_view s) {
  std::string k;
  k.reserve(s.size());
  for (std::size_t i = 0; i < s.size(); ++i) {
    const auto c = static_cast<unsigned char>(s[i]);
    if (c < 0x80) {
      if ((c >= '0' && c <= '9') || (c >= 'a' && c <= 'z')) k += static_cast<char>(c);
      else if (c >= 'A' && c <= 'Z') k += static_cast<char>(c - 'A' + 'a');
    } else if (c == 0xC3 && i + 1 < s.size() && static_cast<unsigned char>(s[i + 1]) >= 0x80 &&
               static_cast<unsigned char>(s[i + 1]) <= 0x9E && static_cast<unsigned char>(s[i + 1]) != 0x97) {
      k += s[i];  // Latin-1 capitals: À..Þ to à..þ
      k += static_cast<char>(s[i + 1] + 0x20);
      ++i;
    } else if (c == 0xE2 && i + 2 < s.size() && (static_cast<unsigned char>(s[i + 1]) == 0x80 ||
                                                 static_cast<unsigned char>(s[i + 1]) == 0x81)) {
      i += 2;  // general punctuation, U+2000 to U+207F: dashes, quotes, spaces
    } else {
      k += s[i];
    }
  }
  return k;
}

// A headword of punctuation alone ("!", "()") has an empty key: it is compared as it stands.
bool Pareil(std::string_view ligne, std::string_view mot, const std::string& cle) {
  return cle.empty() ? Rogne(ligne) == Rogne(mot) : Cle(ligne) == cle;
}

// "cat /kæt/" or "go /ɡəʊ/ <v>": the headword, then a pronunciation between slashes. Gives
// where the pronunciation starts, or npos.
std::size_t Prononciation(std::string_view ligne, std::string_view mot) {
  const auto p = ligne.find(" /");
  if (p == std::string_view::npos || p == 0) return std::string_view::npos;
  const auto fermante = ligne.find('/', p + 2);
  if (fermante == std::string_view::npos || fermante == p + 2) return std::string_view::npos;
  if (!Pareil(ligne.substr(0, p), mot, Cle(mot))) return std::string_view::npos;
  return p + 1;
}

ArticleImporte Article(std::string_view texte, std::string_view mot) {
  // The entry's lines, trimmed; `bloc` counts those before the first empty line.
  std::vector<std::string_view> lignes;
  std::size_t bloc = std::string_view::npos;
  std::size_t p = 0;
  while (p <= texte.size()) {
    std::size_t fin = texte.find('\n', p);
    if (fin == std::string_view::npos) fin = texte.size();
    const std::string_view l = Rogne(texte.substr(p, fin - p));
    if (!l.empty())
      lignes.push_back(l);
    else if (!lignes.empty() && bloc == std::string_view::npos)
      bloc = lignes.size();
    p = fin + 1;
  }
  const std::string_view motRogne = Rogne(mot);
  const std::string cle = Cle(mot);
  ArticleImporte a;
  auto ajoute = [&](std::size_t depuis, std::size_t sauf) {
    for (std::size_t i = depuis; i < lignes.size(); ++i)
      if (i != sauf) a.definition.emplace_back(lignes[i]);
  };
  if (lignes.empty()) {
    a.index = std::string(motRogne);
    return a;
  }
  if (Pareil(lignes[0], mot, cle)) {
    a.index = std::string(lignes[0]);
    ajoute(1, std::string_view::npos);
    return a;
  }
  if (const auto pron = Prononciation(lignes[0], mot); pron != std::string_view::npos) {
    a.index = std::string(Rogne(lignes[0].substr(0, pron)));
    a.definition.emplace_back(lignes[0].substr(pron));
    ajoute(1, std::string_view::npos);
    return a;
  }
  // FOLDOC: the names of an entry stand one a line in its first block; the headword asked
  // for heads the article and the other names follow it.
  if (bloc != std::string_view::npos && bloc < lignes.size()) {
    for (std::size_t i = 1; i < bloc; ++i) {
      if (Pareil(lignes[i], mot, cle)) {
        a.index = std::string(lignes[i]);
        ajoute(0, i);
        return a;
      }
    }
  }
  a.index = std::string(motRogne);
  ajoute(0, std::string_view::npos);
  return a;
}

}  // namespace

bool EstDictd(const fs::path& chemin) {
  try {
    const fs::path base = Base(chemin);
    const fs::path index = base.string() + ".index";
    std::error_code ec;
    if (!fs::is_regular_file(index, ec) || !fs::is_regular_file(Donnees(base), ec)) return false;
    std::ifstream f(index, std::ios::binary);
    std::string ligne;
    while (std::getline(f, ligne)) {
      if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
      if (ligne.empty()) continue;
      const auto t1 = ligne.find('\t');
      const auto t2 = t1 == std::string::npos ? t1 : ligne.find('\t', t1 + 1);
      if (t2 == std::string::npos) return false;
      std::uint64_t n;
      const auto t3 = ligne.find('\t', t2 + 1);
      return Base64(std::string_view(ligne).substr(t1 + 1, t2 - t1 - 1), n) &&
             Base64(std::string_view(ligne).substr(t2 + 1, t3 == std::string::npos ? t3 : t3 - t2 - 1), n);
    }
    return false;
  } catch (const std::exception&) {
    return false;
  }
}

void LitDictd(const fs::path& chemin, const Recepteur& recepteur) {
  const fs::path base = Base(chemin);
  const fs::path index = base.string() + ".index";
  const fs::path donnees = Donnees(base);
  const std::string texte = LitFichierSource(index);
  if (texte.find_first_not_of(" \t\r\n") == std::string::npos) throw ErreurImport(index.string(), "", "fichier vide");
  std::vector<Entree> entrees = LitIndex(texte, index);
  {
    std::error_code ec;
    const auto taille = fs::file_size(donnees, ec);
    if (ec) throw ErreurImport(donnees.string(), "", "fichier introuvable ou illisible");
    if (taille == 0) throw ErreurImport(donnees.string(), "", "fichier vide");
  }
  // In the order of the data file: its own order (the index is alphabetical), read in one
  // pass; the names of one entry stay in the index's order.
  std::stable_sort(entrees.begin(), entrees.end(),
                   [](const Entree& a, const Entree& b) { return a.debut < b.debut; });
  LecteurSequentiel lecteur(donnees);
  for (const Entree& e : entrees) {
    std::string_view octets;
    if (!lecteur.Lire(e.debut, e.longueur, octets))
      throw ErreurImport(index.string(),
                         "ligne " + std::to_string(e.ligne) + " (" + std::string(e.mot) + ")",
                         "la définition dépasse la fin du fichier " + donnees.filename().string());
    recepteur(Article(octets, e.mot));
  }
  lecteur.Finir();
}

}  // namespace lex::exchange
