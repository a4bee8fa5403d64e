// Menu entries to the procedures behind them. Each subsystem lists its own commands.
#pragma once
#include <map>

#include "ui/menus.h"

namespace lex {

struct Form;

using Commande = void (*)(Form&);
using TableCommandes = std::map<MenuId, Commande>;

// Runs the command of a menu entry; an entry whose command this version lacks says so.
void ExecuteMenu(Form& f, MenuId id);

// Each subsystem adds its commands.
void InscrireCommandesFenetre(TableCommandes& t);
void InscrireCommandesRecherche(TableCommandes& t);

}  // namespace lex
