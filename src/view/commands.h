// Commands as data: each subsystem registers the menu entries it serves, with what runs and
// when the entry may be used; the controller runs them from the menus and accelerators.
#pragma once
#include <functional>
#include <initializer_list>
#include <map>
#include <utility>

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

// Registers the commands of a subsystem, each run on the parts it works on.
template <class Parties>
void InscrireCommandes(RegistreCommandes& registre, const Parties& parties,
                       std::initializer_list<std::pair<MenuId, void (*)(Parties&)>> commandes) {
  for (const auto& [id, executer] : commandes)
    registre.Inscrire(id, [p = parties, f = executer]() mutable { f(p); });
}

}  // namespace lex
