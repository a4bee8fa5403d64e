// Commands as data: each subsystem registers the menu entries it serves, with what runs and
// when the entry may be used; the controller runs them from the menus and accelerators.
#pragma once
#include <functional>
#include <map>

#include "view/menu_id.h"

namespace lex {

struct Commande {
  std::function<void()> executer;
  // Empty: always usable.
  std::function<bool()> actif;
};

class RegistreCommandes {
 public:
  void Inscrire(MenuId id, Commande c) { commandes_[id] = std::move(c); }
  void Inscrire(MenuId id, std::function<void()> executer) { commandes_[id] = {std::move(executer), {}}; }
  // Null when no subsystem serves the entry.
  const Commande* Trouve(MenuId id) const {
    auto it = commandes_.find(id);
    return it == commandes_.end() ? nullptr : &it->second;
  }

 private:
  std::map<MenuId, Commande> commandes_;
};

}  // namespace lex
