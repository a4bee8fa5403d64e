// The menu bar as data: every entry with its caption, accelerator and starting state, so that
// a front end builds its menus from it and key routing can be tested without a window.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "view/menu_id.h"

namespace lex {

struct Raccourci {
  int code = 0;   // key code; 0 for none
  int shift = 0;  // modifier bits
  std::string Nom() const;  // "Ctrl+B", "Shift+F3"...
};

struct MenuItem {
  MenuId id;
  const char* nom;      // mnuBlocNote...
  std::string legende;  // Windows-1252, with "&" before the access key
  Raccourci raccourci;
};

struct Menu {
  const char* nom;
  std::string legende;
  std::vector<MenuItem> entrees;
};

const std::vector<Menu>& TableMenus();
const MenuItem* MenuParNom(std::string_view nom);
const MenuItem* MenuParRaccourci(int code, int shift);

}  // namespace lex
