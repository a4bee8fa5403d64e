#include "exchange/stardict.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/dictzip.h"

namespace lex::exchange {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEntete = "StarDict's dict ifo file";

bool FinitPar(std::string_view s, std::string_view fin) {
  return s.size() >= fin.size() && s.substr(s.size() - fin.size()) == fin;
}

fs::path Base(const fs::path& chemin) {
  const std::string s = chemin.string();
  for (std::string_view fin : {".ifo", ".idx.gz", ".idx", ".dict.dz", ".dict", ".syn.dz", ".syn"})
    if (FinitPar(s, fin)) return s.substr(0, s.size() - fin.size());
  return chemin;
}

bool Existe(const fs::path& p) {
  std::error_code ec;
  return fs::is_regular_file(p, ec);
}

// The first of the names that exists, or the last one (for the message).
fs::path Premier(const fs::path& base, std::initializer_list<std::string_view> fins) {
  fs::path p;
  for (auto fin : fins) {
    p = base.string() + std::string(fin);
    if (Existe(p)) return p;
  }
  return p;
}

std::string LitFichier(const fs::path& chemin) {
  if (FinitPar(chemin.string(), ".gz") || FinitPar(chemin.string(), ".dz")) return LecteurDictzip(chemin).LireTout();
  return LitFichierSource(chemin);
}

struct Description {
  std::uint64_t mots = 0, synonymes = 0, tailleIdx = 0;
  bool aSynonymes = false, aTailleIdx = false;
  int bits = 32;
  std::string types;  // sametypesequence; empty: each part says its type
};

bool Nombre(std::string_view s, std::uint64_t& n) {
  if (s.empty() || s.size() > 19) return false;
  n = 0;
  for (const char c : s) {
    if (c < '0' || c > '9') return false;
    n = n * 10 + static_cast<std::uint64_t>(c - '0');
  }
  return true;
}

Description LitIfo(const fs::path& ifo) {
  const std::string texte = LitFichier(ifo);
  const std::string nom = ifo.string();
  if (texte.empty()) throw ErreurImport(nom, "", "fichier vide");
  Description d;
  bool aMots = false;
  std::size_t p = 0, numero = 0;
  if (texte.starts_with("\xEF\xBB\xBF")) p = 3;
  while (p < texte.size()) {
    std::size_t fin = texte.find('\n', p);
    if (fin == std::string::npos) fin = texte.size();
    std::string_view l(texte.data() + p, fin - p);
    p = fin + 1;
    ++numero;
    if (!l.empty() && l.back() == '\r') l.remove_suffix(1);
    const std::string endroit = "ligne " + std::to_string(numero);
    if (numero == 1) {
      if (l != kEntete) throw ErreurImport(nom, endroit, "« StarDict's dict ifo file » attendu");
      continue;
    }
    const auto egal = l.find('=');
    if (egal == std::string_view::npos) continue;
    const std::string_view cle = l.substr(0, egal), valeur = l.substr(egal + 1);
    auto nombre = [&](std::uint64_t& n) {
      if (!Nombre(valeur, n)) throw ErreurImport(nom, endroit, "nombre illisible après « " + std::string(cle) + "= »");
    };
    if (cle == "wordcount") {
      nombre(d.mots);
      aMots = true;
    } else if (cle == "synwordcount") {
      nombre(d.synonymes);
      d.aSynonymes = true;
    } else if (cle == "idxfilesize") {
      nombre(d.tailleIdx);
      d.aTailleIdx = true;
    } else if (cle == "idxoffsetbits") {
      if (valeur != "32" && valeur != "64")
        throw ErreurImport(nom, endroit, "idxoffsetbits vaut 32 ou 64, pas « " + std::string(valeur) + " »");
      d.bits = valeur == "64" ? 64 : 32;
    } else if (cle == "sametypesequence") {
      d.types = std::string(valeur);
    }
  }
  if (numero == 0) throw ErreurImport(nom, "", "fichier vide");
  if (!aMots) throw ErreurImport(nom, "", "le nombre de mots (wordcount=) manque");
  return d;
}

std::uint64_t GrosBout(const char* p, int octets) {
  std::uint64_t n = 0;
  for (int i = 0; i < octets; ++i) n = (n << 8) | static_cast<unsigned char>(p[i]);
  return n;
}

struct Mot {
  std::uint64_t debut;
  std::uint32_t longueur;
  std::uint32_t mot;  // offset of the word in the .idx text
};

std::string Endroit(std::size_t numero, std::string_view mot) {
  std::string s = "entrée " + std::to_string(numero);
  if (!mot.empty()) s += " (" + std::string(mot.substr(0, 60)) + ")";
  return s;
}

void EncodeUtf8(std::uint32_t c, std::string& s) {
  if (c < 0x80) {
    s += static_cast<char>(c);
  } else if (c < 0x800) {
    s += static_cast<char>(0xC0 | (c >> 6));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    s += static_cast<char>(0xE0 | (c >> 12));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    s += static_cast<char>(0xF0 | (c >> 18));
    s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// The text of HTML, XDXF or Pango markup: tags dropped, a line break or a block starting a
// new line, the usual entities and numeric references decoded.
std::string SansBalises(std::string_view s) {
  static const std::map<std::string_view, std::string_view> entites = {
      {"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", "\xC2\xA0"}};
  std::string t;
  t.reserve(s.size());
  for (std::size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    if (c == '<') {
      const auto fin = s.find('>', i);
      if (fin == std::string_view::npos) break;
      std::string_view nom = s.substr(i + 1, fin - i - 1);
      if (nom.starts_with("/")) nom.remove_prefix(1);
      nom = nom.substr(0, nom.find_first_of(" \t\n/"));
      std::string bas(nom);
      for (auto& x : bas) x = static_cast<char>(std::tolower(static_cast<unsigned char>(x)));
      if (bas == "br" || bas == "p" || bas == "div" || bas == "li" || bas == "tr" || bas == "def" ||
          (bas.size() == 2 && bas[0] == 'h' && bas[1] >= '1' && bas[1] <= '6'))
        t += '\n';
      i = fin;
    } else if (c == '&') {
      const auto fin = s.find(';', i);
      if (fin != std::string_view::npos && fin - i <= 10) {
        const std::string_view nom = s.substr(i + 1, fin - i - 1);
        std::uint64_t n = 0;
        if (auto e = entites.find(nom); e != entites.end()) {
          t += e->second;
          i = fin;
          continue;
        }
        if (nom.size() > 1 && nom[0] == '#') {
          bool ok = true;
          const bool hexa = nom[1] == 'x' || nom[1] == 'X';
          for (const char d : nom.substr(hexa ? 2 : 1)) {
            const int v = std::isdigit(static_cast<unsigned char>(d)) ? d - '0'
                          : hexa && std::isxdigit(static_cast<unsigned char>(d))
                              ? std::tolower(static_cast<unsigned char>(d)) - 'a' + 10
                              : -1;
            if (v < 0 || n > 0x10FFFF) ok = false;
            else n = n * (hexa ? 16 : 10) + static_cast<std::uint64_t>(v);
          }
          if (ok && n > 0 && n <= 0x10FFFF) {
            EncodeUtf8(static_cast<std::uint32_t>(n), t);
            i = fin;
            continue;
          }
        }
      }
      t += c;
    } else {
      t += c;
    }
  }
  return t;
}

// Appends the lines of one part of a definition; `balises`: markup to strip.
void AjouteLignes(std::string_view texte, bool balises, std::vector<std::string>& lignes) {
  std::string sans;
  if (balises) {
    sans = SansBalises(texte);
    texte = sans;
  }
  std::size_t p = 0;
  while (p <= texte.size()) {
    std::size_t fin = texte.find('\n', p);
    if (fin == std::string_view::npos) fin = texte.size();
    std::string_view l = texte.substr(p, fin - p);
    p = fin + 1;
    if (!l.empty() && l.back() == '\r') l.remove_suffix(1);
    if (balises) {
      const auto a = l.find_first_not_of(" \t");
      l = a == std::string_view::npos ? std::string_view() : l.substr(a, l.find_last_not_of(" \t") - a + 1);
    }
    if (!l.empty()) lignes.emplace_back(l);
  }
}

// The lines of a definition made of typed parts; false when the parts do not fit its size.
bool Definition(std::string_view d, const std::string& types, std::string_view mot, std::vector<std::string>& lignes) {
  auto partie = [&](char type, std::string_view texte) {
    switch (type) {
      case 'm': case 'l': case 't': case 'y': case 'w':
        AjouteLignes(texte, false, lignes);
        break;
      case 'h': case 'x': case 'g': case 'k': {
        const std::size_t avant = lignes.size();
        AjouteLignes(texte, true, lignes);
        // XDXF and HTML dictionaries often repeat the headword as their first line.
        if (lignes.size() > avant && lignes[avant] == mot) lignes.erase(lignes.begin() + static_cast<std::ptrdiff_t>(avant));
        break;
      }
      default:  // resources, sounds, pictures: nothing a text dictionary can show
        break;
    }
  };
  std::size_t p = 0;
  auto une = [&](char type, bool derniere) {
    if (derniere) {
      partie(type, d.substr(p));
      p = d.size();
      return true;
    }
    if (std::islower(static_cast<unsigned char>(type))) {
      const auto z = d.find('\0', p);
      if (z == std::string_view::npos) return false;
      partie(type, d.substr(p, z - p));
      p = z + 1;
    } else {
      if (d.size() - p < 4) return false;
      const auto n = GrosBout(d.data() + p, 4);
      if (n > d.size() - p - 4) return false;
      partie(type, d.substr(p + 4, n));
      p += 4 + n;
    }
    return true;
  };
  if (!types.empty()) {
    for (std::size_t i = 0; i < types.size(); ++i)
      if (!une(types[i], i + 1 == types.size())) return false;
    return true;
  }
  while (p < d.size()) {
    const char type = d[p++];
    // Without a declared sequence, a lower-case part may end the data without its NUL.
    if (std::islower(static_cast<unsigned char>(type)) && d.find('\0', p) == std::string_view::npos) {
      if (!une(type, true)) return false;
    } else if (!une(type, false)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool EstStarDict(const fs::path& chemin) {
  try {
    const fs::path base = Base(chemin);
    const fs::path ifo = base.string() + ".ifo";
    if (!Existe(ifo) || !Existe(Premier(base, {".idx", ".idx.gz"})) || !Existe(Premier(base, {".dict.dz", ".dict"})))
      return false;
    std::ifstream f(ifo, std::ios::binary);
    std::string l;
    std::getline(f, l);
    if (l.starts_with("\xEF\xBB\xBF")) l.erase(0, 3);
    if (!l.empty() && l.back() == '\r') l.pop_back();
    return l == kEntete;
  } catch (const std::exception&) {
    return false;
  }
}

void LitStarDict(const fs::path& chemin, const Recepteur& recepteur) {
  const fs::path base = Base(chemin);
  const Description d = LitIfo(base.string() + ".ifo");
  const fs::path idx = Premier(base, {".idx", ".idx.gz"});
  const fs::path dict = Premier(base, {".dict.dz", ".dict"});
  const std::string nomIdx = idx.string();
  const std::string index = LitFichier(idx);
  if (index.empty()) throw ErreurImport(nomIdx, "", "fichier vide");

  // The .idx: word, NUL, offset, size.
  const int octetsDebut = d.bits / 8;
  std::vector<Mot> mots;
  mots.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(d.mots, index.size() / (2 + octetsDebut + 4) + 1)));
  for (std::size_t p = 0; p < index.size();) {
    const auto z = index.find('\0', p);
    if (z == std::string::npos || index.size() - z - 1 < static_cast<std::size_t>(octetsDebut + 4))
      throw ErreurImport(nomIdx, Endroit(mots.size() + 1, std::string_view(index).substr(p, z == std::string::npos ? 60 : z - p)),
                         "fichier tronqué");
    if (mots.size() >= 0xFFFFFFFFu || z > 0xFFFFFFFFu)
      throw ErreurImport(nomIdx, "", "trop de mots pour ce programme");
    Mot m{GrosBout(index.data() + z + 1, octetsDebut),
          static_cast<std::uint32_t>(GrosBout(index.data() + z + 1 + octetsDebut, 4)), static_cast<std::uint32_t>(p)};
    mots.push_back(m);
    p = z + 1 + static_cast<std::size_t>(octetsDebut) + 4;
  }
  if (mots.size() != d.mots)
    throw ErreurImport(nomIdx, "",
                       "il contient " + std::to_string(mots.size()) + " mots, le fichier .ifo en annonce " +
                           std::to_string(d.mots) + " (wordcount)");
  if (d.aTailleIdx && index.size() != d.tailleIdx)
    throw ErreurImport(nomIdx, "",
                       "il fait " + std::to_string(index.size()) + " octets, le fichier .ifo en annonce " +
                           std::to_string(d.tailleIdx) + " (idxfilesize)");
  auto motDe = [&](const Mot& m) { return std::string_view(index.data() + m.mot); };

  // The .syn: word, NUL, the number of a word of the .idx.
  std::string syn;
  std::vector<std::pair<std::uint32_t, std::uint32_t>> synonymes;  // (word of the .idx, offset in syn)
  const fs::path cheminSyn = base.string() + ".syn";
  if (Existe(cheminSyn)) {
    syn = LitFichier(cheminSyn);
    for (std::size_t p = 0; p < syn.size();) {
      const auto z = syn.find('\0', p);
      const std::string endroit =
          Endroit(synonymes.size() + 1, std::string_view(syn).substr(p, z == std::string::npos ? 60 : z - p));
      if (z == std::string::npos || syn.size() - z - 1 < 4) throw ErreurImport(cheminSyn.string(), endroit, "fichier tronqué");
      const auto cible = GrosBout(syn.data() + z + 1, 4);
      if (cible >= mots.size())
        throw ErreurImport(cheminSyn.string(), endroit,
                           "renvoie au mot " + std::to_string(cible) + " alors que le fichier .idx en a " +
                               std::to_string(mots.size()));
      synonymes.emplace_back(static_cast<std::uint32_t>(cible), static_cast<std::uint32_t>(p));
      p = z + 5;
    }
    if (d.aSynonymes && synonymes.size() != d.synonymes)
      throw ErreurImport(cheminSyn.string(), "",
                         "il contient " + std::to_string(synonymes.size()) + " synonymes, le fichier .ifo en annonce " +
                             std::to_string(d.synonymes) + " (synwordcount)");
    std::stable_sort(synonymes.begin(), synonymes.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
  }

  // In the order of the data file, read in one pass. A dictionary written in its own order
  // (by lex-export, in this program's order) comes back in that order, which keeps articles
  // with equal keys as they were; the .idx's order would not.
  std::vector<std::uint32_t> ordre(mots.size());
  for (std::uint32_t i = 0; i < ordre.size(); ++i) ordre[i] = i;
  std::stable_sort(ordre.begin(), ordre.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return mots[a].debut < mots[b].debut; });
  {
    std::error_code ec;
    const auto taille = fs::file_size(dict, ec);
    if (ec) throw ErreurImport(dict.string(), "", "fichier introuvable ou illisible");
    if (taille == 0 && !mots.empty()) throw ErreurImport(dict.string(), "", "fichier vide");
  }
  LecteurSequentiel lecteur(dict);
  std::vector<std::string> lignes;
  for (const std::uint32_t i : ordre) {
    const Mot& m = mots[i];
    const std::string_view mot = motDe(m);
    std::string_view octets;
    if (!lecteur.Lire(m.debut, m.longueur, octets))
      throw ErreurImport(nomIdx, Endroit(i + 1, mot), "la définition dépasse la fin du fichier " + dict.filename().string());
    lignes.clear();
    if (!Definition(octets, d.types, mot, lignes))
      throw ErreurImport(dict.string(), Endroit(i + 1, mot), "définition mal formée (ses parties dépassent sa taille)");
    auto s = std::lower_bound(synonymes.begin(), synonymes.end(), i,
                              [](const auto& a, std::uint32_t v) { return a.first < v; });
    if (s == synonymes.end() || s->first != i) {
      recepteur(ArticleImporte{std::string(mot), std::move(lignes)});
      continue;
    }
    recepteur(ArticleImporte{std::string(mot), lignes});
    for (; s != synonymes.end() && s->first == i; ++s) recepteur(ArticleImporte{std::string(syn.data() + s->second), lignes});
  }
  lecteur.Finir();
}

}  // namespace lex::exchange
