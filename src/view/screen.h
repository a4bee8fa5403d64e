// What every subsystem may ask of the screen the controller keeps: the mode the user is in and
// the message line. Subsystems that show more declare their own richer interface on top of it.
#pragma once
#include <string>

#include "view/mode.h"

namespace lex {

class Ecran {
 public:
  virtual ~Ecran() = default;
  virtual Mode mode() const = 0;
  // Everything the user must hear that is not a line of the field goes through here.
  virtual void message(std::string texte) = 0;
  virtual void Beep() = 0;
};

}  // namespace lex
