// The dialogs the program opens over its window. Each waits for the user's answer.
#pragma once
#include <optional>
#include <string>

#include "view/window.h"

namespace lex {

enum class Boutons { OK, OKCancel, YesNo, YesNoCancel };
enum class Icone { Aucune, Question, Exclamation, Information, Critique };
enum class Reponse { OK, Cancel, Yes, No };

// The title of the program's message and input boxes: the name the window itself bears over
// the list of dictionaries, so that the user hears one name for the program.
inline constexpr const char* kTitreBoites = "LEX";

class Dialogues {
 public:
  virtual ~Dialogues() = default;
  virtual Reponse MessageBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre) = 0;
  // Empty when cancelled.
  virtual std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) = 0;
  // The folder given and the path chosen are the system's paths (UTF-8, data/files.h); the
  // other texts are program text. Empty when cancelled.
  virtual std::string OpenFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) = 0;
  virtual std::string SaveFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) = 0;
  virtual std::optional<Police> FontDialog(const Police& actuelle) = 0;
};

}  // namespace lex
