#include "exchange/verbiste.h"

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lex::exchange {

namespace {

namespace fs = std::filesystem;

constexpr const char* kVerbes = "verbs-fr.xml";
constexpr const char* kConjugaisons = "conjugation-fr.xml";

enum class Sujet { Aucun, Pronom, Que };

struct Temps {
  const char* mode;
  const char* temps;
  const char* libelle;
  Sujet sujet;
};

// The simple tenses, in the order of the article. The infinitive is shown only for a verb
// that has nothing else (ester, quérir): it would repeat the article's index line.
constexpr std::array<Temps, 11> kTemps{{
    {"infinitive", "infinitive-present", "Infinitif pr\xC3\xA9sent", Sujet::Aucun},
    {"indicative", "present", "Indicatif pr\xC3\xA9sent", Sujet::Pronom},
    {"indicative", "imperfect", "Indicatif imparfait", Sujet::Pronom},
    {"indicative", "future", "Indicatif futur simple", Sujet::Pronom},
    {"indicative", "simple-past", "Indicatif pass\xC3\xA9 simple", Sujet::Pronom},
    {"conditional", "present", "Conditionnel pr\xC3\xA9sent", Sujet::Pronom},
    {"subjunctive", "present", "Subjonctif pr\xC3\xA9sent", Sujet::Que},
    {"subjunctive", "imperfect", "Subjonctif imparfait", Sujet::Que},
    {"imperative", "imperative-present", "Imp\xC3\xA9ratif pr\xC3\xA9sent", Sujet::Aucun},
    {"participle", "present-participle", "Participe pr\xC3\xA9sent", Sujet::Aucun},
    {"participle", "past-participle", "Participe pass\xC3\xA9", Sujet::Aucun},
}};
constexpr std::array<const char*, 6> kPronoms{"je ", "tu ", "il ", "nous ", "vous ", "ils "};

// A template: the ending its name gives the infinitive ("er" of "aim:er"), and for each tense
// the endings of each person, each person with its variants ("paie" and "paye").
struct Modele {
  std::string terminaison;
  std::array<std::vector<std::vector<std::string>>, kTemps.size()> personnes;
};

std::string Entree(std::size_t n, const std::string& nom) {
  return "entr\xC3\xA9" "e " + std::to_string(n) + " (" + nom + ")";
}

std::string Guillemets(const std::string& s) { return "\xC2\xAB " + s + " \xC2\xBB"; }

// The text of an element with its blanks trimmed, and those inside (line breaks among them,
// which a line of an article cannot hold) made one space each, as XML readers show them.
std::string Nettoye(std::string_view s) {
  const auto blanc = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  std::string sortie;
  bool espace = false;
  for (const char c : s) {
    if (blanc(c)) {
      espace = !sortie.empty();
      continue;
    }
    if (espace) sortie += ' ';
    espace = false;
    sortie += c;
  }
  return sortie;
}

const char* ProblemeXml(pugi::xml_parse_status s) {
  switch (s) {
    case pugi::status_out_of_memory: return "m\xC3\xA9moire insuffisante";
    case pugi::status_unrecognized_tag: return "balise incompr\xC3\xA9hensible";
    case pugi::status_bad_pi: return "instruction de traitement mal form\xC3\xA9" "e";
    case pugi::status_bad_comment: return "commentaire mal form\xC3\xA9";
    case pugi::status_bad_cdata: return "section CDATA mal form\xC3\xA9" "e";
    case pugi::status_bad_doctype: return "d\xC3\xA9" "claration DOCTYPE mal form\xC3\xA9" "e";
    case pugi::status_bad_pcdata: return "texte mal form\xC3\xA9";
    case pugi::status_bad_start_element: return "balise ouvrante mal form\xC3\xA9" "e";
    case pugi::status_bad_attribute: return "attribut mal form\xC3\xA9";
    case pugi::status_bad_end_element: return "balise fermante mal form\xC3\xA9" "e";
    case pugi::status_end_element_mismatch: return "balise fermante qui ne correspond pas \xC3\xA0 la balise ouverte";
    case pugi::status_no_document_element: return "aucun \xC3\xA9l\xC3\xA9ment racine";
    default: return "XML mal form\xC3\xA9";
  }
}

// Loads one of the two files; `racine` is the name its root element must have.
void Charge(const fs::path& fichier, const char* racine, pugi::xml_document& doc) {
  const std::string nom = fichier.string();
  std::ifstream in(fichier, std::ios::binary);
  if (!in) throw ErreurImport(nom, "", "impossible d'ouvrir le fichier");
  const std::string octets{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) throw ErreurImport(nom, "", "erreur de lecture");
  if (octets.empty()) throw ErreurImport(nom, "", "fichier vide");
  const pugi::xml_parse_result r = doc.load_buffer(octets.data(), octets.size());
  if (!r) {
    // Offsets are those of the bytes read for UTF-8, which these files are.
    const std::size_t jusqua = std::min(octets.size(), static_cast<std::size_t>(std::max<std::ptrdiff_t>(r.offset, 0)));
    const auto ligne = 1 + std::count(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(jusqua), '\n');
    throw ErreurImport(nom, "ligne " + std::to_string(ligne), std::string("XML mal form\xC3\xA9 : ") + ProblemeXml(r.status));
  }
  const std::string trouve = doc.document_element().name();
  if (trouve != racine)
    throw ErreurImport(nom, "", "l'\xC3\xA9l\xC3\xA9ment racine est " + Guillemets(trouve) + " au lieu de " +
                                    Guillemets(racine));
}

std::unordered_map<std::string, Modele> Modeles(const fs::path& fichier) {
  pugi::xml_document doc;
  Charge(fichier, "conjugation-fr", doc);
  std::unordered_map<std::string, Modele> modeles;
  std::size_t n = 0;
  for (const pugi::xml_node t : doc.document_element().children("template")) {
    ++n;
    const std::string nom = t.attribute("name").value();
    const std::size_t deuxPoints = nom.find(':');
    if (deuxPoints == std::string::npos)
      throw ErreurImport(fichier.string(), Entree(n, nom), "nom de mod\xC3\xA8le sans \xC2\xAB : \xC2\xBB");
    Modele m;
    m.terminaison = nom.substr(deuxPoints + 1);
    for (std::size_t k = 0; k < kTemps.size(); ++k) {
      for (const pugi::xml_node p : t.child(kTemps[k].mode).child(kTemps[k].temps).children("p")) {
        std::vector<std::string> variantes;
        // An empty <i></i> is the radical alone ("il bat" of "bat:tre"); a person without
        // any <i> does not exist ("pleuvoir" has no "je").
        for (const pugi::xml_node i : p.children("i")) variantes.push_back(Nettoye(i.child_value()));
        m.personnes[k].push_back(std::move(variantes));
      }
      if (kTemps[k].sujet != Sujet::Aucun && m.personnes[k].size() > kPronoms.size())
        throw ErreurImport(fichier.string(), Entree(n, nom),
                           std::string(kTemps[k].libelle) + " : plus de six personnes");
    }
    modeles.insert_or_assign(nom, std::move(m));
  }
  return modeles;
}

// Whether "je" loses its vowel before `forme`: a vowel, or an h that is not aspirate.
bool Elision(std::string_view forme, bool hAspire) {
  if (forme.empty()) return false;
  const char c = forme.front();
  if (std::string_view("aeiouyAEIOUY").find(c) != std::string_view::npos) return true;
  if (c == 'h' || c == 'H') return !hAspire;
  static constexpr std::array<std::string_view, 18> kVoyelles{
      "\xC3\xA0", "\xC3\xA2", "\xC3\xA4", "\xC3\xA9", "\xC3\xA8", "\xC3\xAA", "\xC3\xAB", "\xC3\xAE", "\xC3\xAF",
      "\xC3\xB4", "\xC3\xB6", "\xC3\xBB", "\xC3\xB9", "\xC3\xBC", "\xC3\xBF", "\xC3\x89", "\xC3\xA6", "\xC5\x93"};
  for (const std::string_view v : kVoyelles)
    if (forme.substr(0, v.size()) == v) return true;
  return false;
}

std::vector<std::string> Lignes(const std::string& infinitif, const std::string& radical, const Modele& m, bool hAspire) {
  std::vector<std::string> lignes;
  for (std::size_t k = 1; k < kTemps.size(); ++k) {
    std::string ligne;
    const auto& personnes = m.personnes[k];
    for (std::size_t p = 0; p < personnes.size(); ++p) {
      std::string formes;
      for (const std::string& fin : personnes[p]) {
        if (radical.empty() && fin.empty()) continue;
        if (!formes.empty()) formes += '/';
        formes += radical + fin;
      }
      if (formes.empty()) continue;
      ligne += ligne.empty() ? std::string(kTemps[k].libelle) + " : " : ", ";
      if (kTemps[k].sujet == Sujet::Que) ligne += p == 2 || p == 5 ? "qu'" : "que ";
      if (kTemps[k].sujet != Sujet::Aucun) ligne += p == 0 && Elision(formes, hAspire) ? "j'" : kPronoms[p];
      ligne += formes;
    }
    if (!ligne.empty()) lignes.push_back(std::move(ligne));
  }
  if (lignes.empty()) {
    std::string formes;
    for (const auto& personne : m.personnes[0])
      for (const std::string& fin : personne)
        if (!radical.empty() || !fin.empty()) formes += (formes.empty() ? "" : "/") + radical + fin;
    lignes.push_back(std::string(kTemps[0].libelle) + " : " + (formes.empty() ? infinitif : formes));
  }
  return lignes;
}

// The two files from a folder or from either of them.
std::pair<fs::path, fs::path> Fichiers(const fs::path& chemin) {
  std::error_code ec;
  const fs::path dossier = fs::is_directory(chemin, ec) ? chemin : chemin.parent_path();
  return {dossier / kVerbes, dossier / kConjugaisons};
}

}  // namespace

bool EstVerbiste(const fs::path& chemin) {
  std::error_code ec;
  if (fs::is_directory(chemin, ec))
    return fs::is_regular_file(chemin / kVerbes, ec) && fs::is_regular_file(chemin / kConjugaisons, ec);
  const std::string nom = chemin.filename().string();
  return (nom == kVerbes || nom == kConjugaisons) && fs::is_regular_file(chemin, ec);
}

void LitVerbiste(const fs::path& chemin, const Recepteur& recepteur) {
  const auto [verbes, conjugaisons] = Fichiers(chemin);
  std::error_code ec;
  for (const fs::path& f : {verbes, conjugaisons})
    if (!fs::is_regular_file(f, ec)) throw ErreurImport(f.string(), "", "fichier introuvable");
  const std::unordered_map<std::string, Modele> modeles = Modeles(conjugaisons);

  pugi::xml_document doc;
  Charge(verbes, "verbs-fr", doc);
  std::size_t n = 0;
  for (const pugi::xml_node v : doc.document_element().children("v")) {
    ++n;
    ArticleImporte article;
    article.index = Nettoye(v.child_value("i"));
    const std::string modele = Nettoye(v.child_value("t"));
    if (article.index.empty()) throw ErreurImport(verbes.string(), Entree(n, modele), "verbe sans infinitif");
    const auto m = modeles.find(modele);
    if (m == modeles.end())
      throw ErreurImport(verbes.string(), Entree(n, article.index),
                         "le mod\xC3\xA8le " + Guillemets(modele) + " n'existe pas dans " + kConjugaisons);
    const std::string& fin = m->second.terminaison;
    if (article.index.size() < fin.size() || article.index.compare(article.index.size() - fin.size(), fin.size(), fin) != 0)
      throw ErreurImport(verbes.string(), Entree(n, article.index),
                         "l'infinitif ne se termine pas par " + Guillemets(fin) + " comme le veut le mod\xC3\xA8le " +
                             Guillemets(modele));
    const std::string radical = article.index.substr(0, article.index.size() - fin.size());
    article.definition = Lignes(article.index, radical, m->second, !v.child("aspirate-h").empty());
    recepteur(std::move(article));
  }
  if (n == 0) throw ErreurImport(verbes.string(), "", "aucun verbe");
}

}  // namespace lex::exchange
