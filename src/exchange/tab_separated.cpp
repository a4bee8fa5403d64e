#include "exchange/tab_separated.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>

#include "base/encoding.h"

namespace lex::exchange {

namespace {

constexpr std::string_view kMarqueUtf8 = "\xEF\xBB\xBF";

bool Ascii(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::ifstream Ouvre(const std::filesystem::path& fichier) {
  std::ifstream in(fichier, std::ios::binary);
  if (!in) throw ErreurImport(fichier.string(), "", "impossible de lire le fichier");
  return in;
}

// The lines of the file without their line ends, numbered from 1.
template <typename F>
void ParLigne(std::ifstream& in, F&& f) {
  std::string ligne;
  for (std::size_t numero = 1; std::getline(in, ligne); ++numero) {
    if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
    if (numero == 1 && ligne.starts_with(kMarqueUtf8)) ligne.erase(0, kMarqueUtf8.size());
    if (!f(numero, ligne)) return;
  }
}

// The text between tabs with its escapes resolved; "\n" starts a new line in `lignes`.
void Deplie(std::string_view s, std::vector<std::string>& lignes) {
  lignes.emplace_back();
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '\\' && i + 1 < s.size()) {
      const char suite = s[i + 1];
      if (suite == 'n' || suite == 't' || suite == '\\') {
        ++i;
        if (suite == 'n')
          lignes.emplace_back();
        else
          lignes.back() += suite == 't' ? '\t' : '\\';
        continue;
      }
    }
    lignes.back() += s[i];
  }
}

}  // namespace

bool EstTabulations(const std::filesystem::path& fichier) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(fichier, ec)) return false;
  std::ifstream in(fichier, std::ios::binary);
  std::string debut(65536, '\0');
  in.read(debut.data(), static_cast<std::streamsize>(debut.size()));
  debut.resize(static_cast<std::size_t>(in.gcount()));
  if (debut.find('\0') != std::string::npos) return false;
  if (debut.starts_with(kMarqueUtf8)) debut.erase(0, kMarqueUtf8.size());
  const std::size_t premiere = debut.find_first_not_of("\r\n");
  if (premiere == std::string::npos) return false;
  const std::size_t fin = debut.find('\n', premiere);
  return debut.substr(premiere, fin - premiere).find('\t') != std::string::npos;
}

void LitTabulations(const std::filesystem::path& fichier, const Recepteur& recepteur) {
  const std::string nom = fichier.string();
  auto ligneNumero = [](std::size_t n) { return "ligne " + std::to_string(n); };
  bool utf8 = true;
  {
    std::ifstream in = Ouvre(fichier);
    char debut[2] = {};
    in.read(debut, 2);
    if (in.gcount() == 2 && ((debut[0] == '\xFF' && debut[1] == '\xFE') || (debut[0] == '\xFE' && debut[1] == '\xFF')))
      throw ErreurImport(nom, "", "fichier en UTF-16 : enregistrez-le en UTF-8 ou en Windows-1252");
    in.seekg(0);
    // One line that is not UTF-8 makes the whole file Windows-1252: UTF-8 bytes never hold a
    // line end, and Windows-1252 text with accents practically never reads as UTF-8.
    ParLigne(in, [&](std::size_t, const std::string& l) { return utf8 = Ascii(l) || EstUtf8(l); });
  }

  std::ifstream in = Ouvre(fichier);
  std::size_t articles = 0;
  std::string texte;
  ParLigne(in, [&](std::size_t numero, const std::string& ligne) {
    if (ligne.empty()) return true;
    if (ligne.find('\0') != std::string::npos) throw ErreurImport(nom, ligneNumero(numero), "octet nul dans la ligne");
    if (ligne.find('\r') != std::string::npos)
      throw ErreurImport(nom, ligneNumero(numero), "retour chariot (CR) au milieu de la ligne");
    const std::size_t tab = ligne.find('\t');
    if (tab == std::string::npos)
      throw ErreurImport(nom, ligneNumero(numero), "pas de tabulation entre le mot d'entr\xC3\xA9" "e et la d\xC3\xA9" "finition");
    texte = utf8 ? ligne : AnsiVersUtf8(ligne);
    const std::size_t coupe = utf8 ? tab : texte.find('\t');
    ArticleImporte a;
    std::vector<std::string> tete;
    Deplie(std::string_view(texte).substr(0, coupe), tete);
    if (tete.size() > 1)
      throw ErreurImport(nom, ligneNumero(numero), "le mot d'entr\xC3\xA9" "e contient un saut de ligne (\\n)");
    a.index = std::move(tete.front());
    if (a.index.find_first_not_of(" \t") == std::string::npos)
      throw ErreurImport(nom, ligneNumero(numero), "mot d'entr\xC3\xA9" "e vide");
    Deplie(std::string_view(texte).substr(coupe + 1), a.definition);
    if (a.definition.size() == 1 && a.definition.front().empty()) a.definition.clear();
    ++articles;
    recepteur(std::move(a));
    return true;
  });
  if (articles == 0) throw ErreurImport(nom, "", "fichier vide : aucun article");
}

}  // namespace lex::exchange
