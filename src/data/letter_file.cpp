#include "data/letter_file.h"

#include "base/numbers.h"
#include "data/files.h"
#include "data/safe_write.h"

namespace lex {
namespace {

// The whole file when it is no longer than a letter file can be; false otherwise.
bool LitBorne(std::string_view nom, std::string& texte) {
  const std::int64_t longueur = LongueurFichier(nom);
  if (longueur < 0 || longueur > kLongueurMaxLettre) return false;
  Fichier f = OuvrirSiPossible(nom);
  if (!f) return false;
  texte.resize(static_cast<std::size_t>(longueur));
  texte.resize(std::fread(texte.data(), 1, texte.size(), f.get()));
  return true;
}

// Calls `ligne` for each line of the first `n` (without its line end); false when fewer.
template <class F>
bool ParLigne(std::string_view texte, std::size_t n, F&& ligne) {
  std::size_t debut = 0;
  for (std::size_t i = 0; i < n; ++i) {
    if (debut >= texte.size()) return false;
    std::size_t fin = texte.find('\n', debut);
    const std::size_t suivant = fin == std::string_view::npos ? texte.size() : fin + 1;
    if (fin == std::string_view::npos) fin = texte.size();
    else if (fin > debut && texte[fin - 1] == '\r') --fin;
    if (!ligne(texte.substr(debut, fin - debut))) return false;
    debut = suivant;
  }
  return true;
}

bool EstNombre(std::string_view l) {
  std::size_t i = 0;
  while (i < l.size() && l[i] == ' ') ++i;
  if (i < l.size() && l[i] == '-') ++i;
  const std::size_t chiffres = i;
  while (i < l.size() && l[i] >= '0' && l[i] <= '9') ++i;
  if (i == chiffres || i - chiffres > 10) return false;
  while (i < l.size() && l[i] == ' ') ++i;
  return i == l.size();
}

}  // namespace

std::string TexteLettres(const TableLettre& lettres) {
  std::string texte;
  texte.reserve(TableLettre::kTaille * 8);
  for (std::int32_t v : lettres.valeurs()) texte.append(NombreImprime(v)).append("\r\n");
  return texte;
}

void EcrireFichierLettre(std::string_view nom, const TableLettre& lettres) {
  EcrireFichierSur(nom, TexteLettres(lettres), Donnees::Reconstructible);
}

bool LireTexteLettres(std::string_view texte, TableLettre& lettres) {
  if (static_cast<std::int64_t>(texte.size()) > kLongueurMaxLettre) return false;
  TableLettre lues;
  auto* v = lues.valeurs().data();
  if (!ParLigne(texte, TableLettre::kTaille, [&v](std::string_view l) {
        *v++ = Val(l);
        return true;
      }))
    return false;
  lettres = lues;
  return true;
}

bool LireFichierLettre(std::string_view nom, TableLettre& lettres) {
  std::string texte;
  return LitBorne(nom, texte) && LireTexteLettres(texte, lettres);
}

bool EstTexteLettres(std::string_view texte) {
  if (static_cast<std::int64_t>(texte.size()) > kLongueurMaxLettre) return false;
  std::size_t fin = 0;
  if (!ParLigne(texte, TableLettre::kTaille, [&](std::string_view l) {
        fin = static_cast<std::size_t>(l.data() - texte.data()) + l.size();
        return EstNombre(l);
      }))
    return false;
  // Nothing after the last line but its line end.
  const std::string_view reste = texte.substr(fin);
  return reste.empty() || reste == "\r\n" || reste == "\n";
}

bool EstFichierLettre(std::string_view nom) {
  std::string texte;
  return LitBorne(nom, texte) && EstTexteLettres(texte);
}

}  // namespace lex
