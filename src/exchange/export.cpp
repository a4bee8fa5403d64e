#include "exchange/export.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/encoding.h"
#include "data/dictionary_file.h"
#include "data/index_scanner.h"
#include "data/safe_write.h"
#include "exchange/article.h"
#include "exchange/dictzip.h"

namespace lex::exchange {

namespace {

namespace fs = std::filesystem;

// Calls `f(index, definition lines)` for each article of the dictionary, in its order, in
// UTF-8. The articles are cut where the program cuts them: the index scanner finds where each
// starts, and DecoupeArticle gives its text as the program reads it.
template <class F>
std::size_t ParArticle(const fs::path& dictionnaire, F&& f) {
  const std::string nom = dictionnaire.string();
  std::string octets;
  {
    std::ifstream in(dictionnaire, std::ios::binary);
    std::error_code ec;
    const auto taille = fs::file_size(dictionnaire, ec);
    if (!in || ec) throw ErreurImport(nom, "", "fichier introuvable ou illisible");
    octets.resize(static_cast<std::size_t>(taille));
    if (taille != 0 && !in.read(octets.data(), static_cast<std::streamsize>(taille)))
      throw ErreurImport(nom, "", "lecture impossible");
  }
  std::vector<std::int64_t> debuts;
  {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> fichier(std::fopen(dictionnaire.c_str(), "rb"), &std::fclose);
    if (!fichier) throw ErreurImport(nom, "", "fichier introuvable ou illisible");
    LecteurIndex lecteur(fichier.get());
    std::string_view ligne;
    std::int64_t offset;
    while (lecteur.Suivante(ligne, offset)) debuts.push_back(offset);
  }
  if (debuts.empty()) throw ErreurImport(nom, "", "aucun article : rien \xC3\xA0 exporter");
  std::vector<std::string> lignes;
  std::string index;
  for (std::size_t i = 0; i < debuts.size(); ++i) {
    const bool derniere = i + 1 == debuts.size();
    const auto a = static_cast<std::size_t>(std::min<std::int64_t>(debuts[i], static_cast<std::int64_t>(octets.size())));
    const auto b = derniere ? octets.size()
                            : static_cast<std::size_t>(std::min<std::int64_t>(debuts[i + 1], static_cast<std::int64_t>(octets.size())));
    const std::string texte = AnsiVersUtf8(DecoupeArticle(octets.substr(a, b - a), derniere));
    lignes.clear();
    std::size_t p = 0;
    bool premiere = true;
    while (p <= texte.size()) {
      std::size_t fin = texte.find("\r\n", p);
      if (fin == std::string::npos) fin = texte.size();
      const std::string_view l(texte.data() + p, fin - p);
      if (premiere)
        index.assign(l);
      else if (!l.empty())  // an empty line would end the article
        lignes.emplace_back(l);
      premiere = false;
      p = fin + 2;
    }
    f(index, lignes);
  }
  return debuts.size();
}

// The files of an export: written one after the other through the safe write; when one fails,
// those already written are taken away, so that no half export is left.
class Fichiers {
 public:
  void Ecrit(const fs::path& chemin, std::string_view octets) {
    EcrireFichierSur(chemin.string(), octets, Donnees::Utilisateur);
    faits_.push_back(chemin);
  }
  void Ecrit(const fs::path& chemin, const std::function<void(EcritureSure&)>& remplit) {
    EcritureSure e(chemin.string(), Donnees::Utilisateur);
    remplit(e);
    e.Valider();
    faits_.push_back(chemin);
  }
  void Defait() {
    std::error_code ec;
    for (const auto& f : faits_) fs::remove(f, ec);
    faits_.clear();
  }
  std::vector<fs::path> faits_;
};

template <class F>
BilanExport Exporte(F&& travail) {
  Fichiers fichiers;
  BilanExport bilan;
  try {
    bilan.articles = travail(fichiers);
  } catch (...) {
    fichiers.Defait();
    throw;
  }
  bilan.fichiers = fichiers.faits_;
  return bilan;
}

// StarDict's order of words: ASCII letters without case, then bytes (g_ascii_strcasecmp,
// then strcmp), which its readers search by halves.
int CompareStarDict(std::string_view a, std::string_view b) {
  const std::size_t n = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < n; ++i) {
    auto bas = [](char c) {
      const auto u = static_cast<unsigned char>(c);
      return u >= 'A' && u <= 'Z' ? u + 32 : u;
    };
    const int x = bas(a[i]), y = bas(b[i]);
    if (x != y) return x - y;
  }
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  const int c = a.compare(b);
  return c < 0 ? -1 : c > 0 ? 1 : 0;
}

void MetGrosBout(std::string& s, std::uint64_t v, int octets) {
  for (int i = octets - 1; i >= 0; --i) s += static_cast<char>((v >> (8 * i)) & 0xFF);
}

}  // namespace

BilanExport ExporteStarDict(const fs::path& dictionnaire, const fs::path& base) {
  struct Mot {
    std::uint64_t debut;      // of the definition in the data
    std::uint32_t taille;     // of the definition
    std::uint32_t longueur;   // of the word
    std::uint64_t mot;        // of the word in `mots`
  };
  std::string mots, donnees;
  std::vector<Mot> liste;
  const std::size_t n = ParArticle(dictionnaire, [&](const std::string& index, const std::vector<std::string>& lignes) {
    const std::uint64_t debut = donnees.size();
    for (std::size_t i = 0; i < lignes.size(); ++i) {
      if (i) donnees += '\n';
      donnees += lignes[i];
    }
    liste.push_back({debut, static_cast<std::uint32_t>(donnees.size() - debut), static_cast<std::uint32_t>(index.size()),
                     mots.size()});
    mots += index;
  });
  auto mot = [&](const Mot& m) { return std::string_view(mots).substr(m.mot, m.longueur); };
  std::stable_sort(liste.begin(), liste.end(), [&](const Mot& a, const Mot& b) { return CompareStarDict(mot(a), mot(b)) < 0; });

  const bool large = donnees.size() > 0xFFFFFFFFull;
  std::string idx;
  idx.reserve(mots.size() + liste.size() * (large ? 13 : 9));
  for (const Mot& m : liste) {
    idx += mot(m);
    idx += '\0';
    MetGrosBout(idx, m.debut, large ? 8 : 4);
    MetGrosBout(idx, m.taille, 4);
  }
  std::string().swap(mots);
  const std::string nom = base.filename().string();
  std::string ifo = "StarDict's dict ifo file\n";
  ifo += large ? "version=3.0.0\n" : "version=2.4.2\n";
  ifo += "bookname=" + nom + "\n";
  ifo += "wordcount=" + std::to_string(liste.size()) + "\n";
  ifo += "idxfilesize=" + std::to_string(idx.size()) + "\n";
  if (large) ifo += "idxoffsetbits=64\n";
  ifo += "sametypesequence=m\n";
  return Exporte([&](Fichiers& f) {
    // The .ifo last: a reader that finds it finds the rest.
    f.Ecrit(base.string() + ".dict.dz", [&](EcritureSure& e) { EcrireDictzip(e, donnees, nom + ".dict"); });
    f.Ecrit(base.string() + ".idx", idx);
    f.Ecrit(base.string() + ".ifo", ifo);
    return n;
  });
}

BilanExport ExporteTabulations(const fs::path& dictionnaire, const fs::path& sortie) {
  return Exporte([&](Fichiers& f) {
    std::size_t n = 0;
    f.Ecrit(sortie, [&](EcritureSure& e) {
      std::string bloc;
      auto ajoute = [&](std::string_view s) {
        for (const char c : s) {
          if (c == '\\') bloc += "\\\\";
          else if (c == '\t') bloc += "\\t";
          else bloc += c;
        }
      };
      n = ParArticle(dictionnaire, [&](const std::string& index, const std::vector<std::string>& lignes) {
        ajoute(index);
        bloc += '\t';
        for (std::size_t i = 0; i < lignes.size(); ++i) {
          if (i) bloc += "\\n";
          ajoute(lignes[i]);
        }
        bloc += '\n';
        if (bloc.size() >= (std::size_t{1} << 20)) {
          e.Ecrire(bloc);
          bloc.clear();
        }
      });
      e.Ecrire(bloc);
    });
    return n;
  });
}

}  // namespace lex::exchange
