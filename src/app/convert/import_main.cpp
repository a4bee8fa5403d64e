// lex-import: a dictionary of another format made into a dictionary file of LEX, optionally
// added to a program folder's catalogue. Everything it does is in the exchange floor; this
// reads the command line and tells the user, in French, what was done or what went wrong.
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/encoding.h"
#include "base/error.h"
#include "data/write_error.h"
#include "app/convert/failure.h"
#include "exchange/catalogue_addition.h"
#include "exchange/dictionary_writer.h"
#include "exchange/formats.h"

namespace {

namespace fs = std::filesystem;
using namespace lex;
using namespace lex::exchange;

std::string NomsDesFormats() {
  std::string noms;
  for (const Format& f : Formats()) noms += (noms.empty() ? "" : ", ") + std::string(f.nom);
  return noms;
}

int Usage(const std::string& pourquoi) {
  std::cerr << "lex-import : " << pourquoi << "\n"
            << "usage : lex-import [--format F] [--remplace] [--ordre-source] SOURCE FICHIER\n"
               "        lex-import [--format F] [--remplace] [--ordre-source] SOURCE --dir DOSSIER --name NOM "
               "--suffix SUF [--letter L]\n"
               "formats : "
            << NomsDesFormats() << "\n";
  return 1;
}

int Echec(const std::string& message) { return lex::convert::Echec("lex-import", message); }

std::string Pluriel(std::size_t n, const char* mot) { return n > 1 ? std::string(mot) + "s" : mot; }

struct Options {
  std::string format, source, sortie, dossier;
  NouveauDictionnaire dictionnaire;
  bool remplace = false;
};

// The options, or the reason they cannot be used.
std::optional<std::string> Lit(int argc, char** argv, Options& o) {
  std::vector<std::string> libres;
  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    auto valeur = [&](std::string& dest) -> bool {
      if (i + 1 >= argc) return false;
      dest = argv[++i];
      return true;
    };
    bool ok = true;
    if (a == "--format") ok = valeur(o.format);
    else if (a == "--dir") ok = valeur(o.dossier);
    else if (a == "--name") ok = valeur(o.dictionnaire.nom);
    else if (a == "--suffix") ok = valeur(o.dictionnaire.suffixe);
    else if (a == "--letter") ok = valeur(o.dictionnaire.lettre);
    else if (a == "--remplace") o.remplace = true;
    else if (a == "--ordre-source") o.dictionnaire.ordreAlpha = false;
    else if (a.starts_with("--")) return "option inconnue : " + std::string(a);
    else libres.emplace_back(a);
    if (!ok) return "valeur manquante apr\xC3\xA8s " + std::string(a);
  }
  const bool catalogue = !o.dossier.empty();
  if (libres.size() != (catalogue ? 1u : 2u))
    return catalogue ? "une seule SOURCE avec --dir" : "il faut une SOURCE et un FICHIER \xC3\xA0 \xC3\xA9" "crire";
  o.source = libres[0];
  if (!catalogue) o.sortie = libres[1];
  if (catalogue && (o.dictionnaire.nom.empty() || o.dictionnaire.suffixe.empty()))
    return "--dir demande --name et --suffix";
  if (!catalogue && (!o.dictionnaire.nom.empty() || !o.dictionnaire.suffixe.empty() || !o.dictionnaire.lettre.empty()))
    return "--name, --suffix et --letter vont avec --dir";
  return std::nullopt;
}

int Importe(const Options& o) {
  const Format* format = nullptr;
  if (!o.format.empty()) {
    format = FormatNomme(o.format);
    if (!format) return Echec("format inconnu : " + o.format + " (formats : " + NomsDesFormats() + ")");
  } else {
    format = &FormatDe(o.source);
  }

  std::optional<AjoutCatalogue> ajout;
  fs::path cible = o.sortie;
  if (!o.dossier.empty()) {
    ajout.emplace(o.dossier, o.dictionnaire);
    cible = ajout->Fichier();
  }
  std::error_code ec;
  const bool existait = fs::exists(cible, ec);
  if (existait && !o.remplace)
    return Echec(cible.string() + " existe d\xC3\xA9j\xC3\xA0 : rien n'est \xC3\xA9" "crit (--remplace pour le remplacer)");

  EcrivainDictionnaire ecrivain(o.source);
  format->lit(o.source, ecrivain.Entree());
  const BilanEcriture bilan = ecrivain.Ecrit(
      cible, o.dictionnaire.ordreAlpha ? EcrivainDictionnaire::Ordre::Alphabetique : EcrivainDictionnaire::Ordre::Source);
  if (ajout) {
    try {
      ajout->Inscrire();
    } catch (...) {
      // A dictionary file without its row would be taken for the user's own by the next import.
      if (!existait) fs::remove(cible, ec);
      throw;
    }
  }

  std::cout << bilan.articles << " " << Pluriel(bilan.articles, "article") << " " << Pluriel(bilan.articles, "\xC3\xA9" "crit")
            << " dans " << cible.string() << "\n";
  if (bilan.changes == 0) {
    std::cout << "Aucun caract\xC3\xA8re chang\xC3\xA9 pour Windows-1252.\n";
  } else {
    std::cout << bilan.changes << " " << Pluriel(bilan.changes, "caract\xC3\xA8re") << " "
              << Pluriel(bilan.changes, "chang\xC3\xA9") << " pour Windows-1252, par exemple : ";
    for (std::size_t i = 0; i < bilan.exemples.size(); ++i) std::cout << (i ? ", " : "") << bilan.exemples[i];
    std::cout << "\n";
  }
  if (ajout) {
    std::cout << "Dictionnaire \xC2\xAB " << o.dictionnaire.nom << " \xC2\xBB ajout\xC3\xA9 au catalogue de " << o.dossier;
    if (const std::string l = ajout->Lettre(); !l.empty()) std::cout << ", lettre d'appel " << l;
    std::cout << ".\n";
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options o;
  if (const auto erreur = Lit(argc, argv, o)) return Usage(*erreur);
  return lex::convert::Execute("lex-import", [&] { return Importe(o); });
}
