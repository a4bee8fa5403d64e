#include "notepad/notepad_file.h"

#include <algorithm>

#include "base/encoding.h"
#include "base/error.h"
#include "data/files.h"
#include "data/safe_write.h"

namespace lex {

BlocNote LireBlocNote(const std::string& fichier) {
  BlocNote b;
  b.fichier = fichier;
  if (!FichierExistant(fichier)) return b;
  b.lignes = LireLignes(fichier);
  bool nul = false, horsAscii = false, utf8 = true;
  for (const std::string& l : b.lignes) {
    nul = nul || l.find('\0') != std::string::npos;
    if (std::any_of(l.begin(), l.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; })) {
      horsAscii = true;
      utf8 = utf8 && EstUtf8(l);
    }
  }
  if (nul) {
    b.lectureSeule = "ce n'est pas un fichier de texte";
    return b;
  }
  if (horsAscii && utf8) {
    b.utf8 = true;
    for (std::string& l : b.lignes) {
      std::string ansi = Utf8VersAnsi(l);
      if (AnsiVersUtf8(ansi) != l) b.lectureSeule = "il contient des caract\xE8res que LEX ne peut pas afficher";
      l = std::move(ansi);
    }
  }
  return b;
}

std::string NomSauvegardeBlocNote(std::string_view fichier) {
  const std::size_t dossier = fichier.find_last_of("/\\");
  const std::size_t debutNom = dossier == std::string_view::npos ? 0 : dossier + 1;
  const std::size_t point = fichier.find('.', debutNom);
  if (point == std::string_view::npos) return std::string(fichier) + ".bak";
  return std::string(fichier.substr(0, point + 1)) + "bak";
}

void sauvebakBlocNote(const BlocNote& b) {
  ErrorTrap trap(" sur sauvebakBlocNote");
  if (FichierExistant(b.fichier)) CopierFichier(b.fichier, NomSauvegardeBlocNote(b.fichier));
}

void RangeBlocNote(BlocNote& b) {
  ErrorTrap trap("sur RangeBlocNote");
  if (!b.utf8) {
    EcrireLignesSur(b.fichier, b.lignes, Donnees::Utilisateur);
  } else {
    std::vector<std::string> lignes;
    lignes.reserve(b.lignes.size());
    for (const std::string& l : b.lignes) lignes.push_back(AnsiVersUtf8(l));
    EcrireLignesSur(b.fichier, lignes, Donnees::Utilisateur);
  }
  b.modifie = false;
}

std::size_t SauveText(BlocNote& b, std::size_t premier, std::size_t ancienNombre, std::string_view texteChamp) {
  std::vector<std::string> page = DecoupeLignes(texteChamp);
  // A page ending with a line end holds one more line, empty.
  if (texteChamp.ends_with('\n')) page.emplace_back();
  const std::size_t debut = std::min(premier > 0 ? premier - 1 : 0, b.lignes.size());
  const std::size_t fin = std::min(debut + ancienNombre, b.lignes.size());
  if (std::equal(page.begin(), page.end(), b.lignes.begin() + static_cast<std::ptrdiff_t>(debut),
                 b.lignes.begin() + static_cast<std::ptrdiff_t>(fin)))
    return page.size();
  b.lignes.erase(b.lignes.begin() + static_cast<std::ptrdiff_t>(debut), b.lignes.begin() + static_cast<std::ptrdiff_t>(fin));
  b.lignes.insert(b.lignes.begin() + static_cast<std::ptrdiff_t>(debut), page.begin(), page.end());
  b.modifie = true;
  return page.size();
}

}  // namespace lex
