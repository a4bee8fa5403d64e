// The notepad's file: read into lines, written back whole through a safe write, with a backup
// of the old one first.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lex {

struct BlocNote {
  std::string fichier;
  std::vector<std::string> lignes;  // LignesBlocNote, program text
  bool modifie = false;             // BlocNoteModifie
  // Read from UTF-8: written back so.
  bool utf8 = false;
  // Why the file must not be written back (it would lose what the program cannot show: a
  // binary file, characters beyond Windows-1252); empty when it may.
  std::string lectureSeule;
};

// Reads the notepad `fichier`; a missing file is an empty notepad.
BlocNote LireBlocNote(const std::string& fichier);

// The backup's name beside the notepad: its own name cut after its first "." with "bak"
// appended ("blocnote.bak"), or ".bak" appended to a name without a point. Only the name is
// cut: a point in a folder's name never sends the backup into another folder.
std::string NomSauvegardeBlocNote(std::string_view fichier);

// sauvebakBlocNote: copies the file to its backup, when it exists.
void sauvebakBlocNote(const BlocNote& b);
// RangeBlocNote: writes the lines, each followed by CR LF (in UTF-8 if read so), and clears
// `modifie`.
void RangeBlocNote(BlocNote& b);

// SauveText: the field's text, a page shown from line `premier`, takes the place of the
// `ancienNombre` lines it showed (it may now hold more or fewer); `modifie` is set when
// they differ. Gives how many lines the page stands for now.
std::size_t SauveText(BlocNote& b, std::size_t premier, std::size_t ancienNombre, std::string_view texteChamp);

}  // namespace lex
