// What the search for the screen reader's settings folder asks of the file system, and
// nothing more: it only looks. A port, so that the search can be walked on any system over a
// tree of drives and folders made up for it. Paths are the system's, in UTF-8 (data/files.h).
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lex {

class SystemeFichiers {
 public:
  virtual ~SystemeFichiers() = default;
  // The roots of the fixed drives ("C:\"), in the system's order; none where there are no
  // drives. Removable, optical and network drives are left out: asking them may wait on a
  // disk or a server, and the screen reader is never installed there.
  virtual std::vector<std::string> Lecteurs() const = 0;
  // The folder where the current user's programs keep their settings (%APPDATA%), or empty
  // where the system has none.
  virtual std::string DonneesApplication() const = 0;
  // The names of the sub-folders of `dossier`, in the order the system lists them. Links are
  // not followed (a profile's junctions point back above it); a folder that cannot be read
  // has none.
  virtual std::vector<std::string> SousDossiers(std::string_view dossier) const = 0;
  virtual bool EstDossier(std::string_view chemin) const = 0;
};

// `dossier` and `nom` joined by the separator the folder already uses: a Windows path keeps
// its backslashes on any system, a system path gets the system's own.
std::string Joindre(std::string_view dossier, std::string_view nom);

}  // namespace lex
