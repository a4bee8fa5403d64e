// The program as a user runs it in the benchmarks: the scripted window, the dictionary of
// call letter "a" opened from the list.
#pragma once
#include <string>

#include "app/headless/headless_window.h"
#include "bench_common.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "view/keys.h"

namespace lex::bench {

struct Programme {
  headless::HeadlessWindow ui;
  Form f{ui, ui};
  explicit Programme(const std::string& dossier) {
    EvChargement(f, dossier);
    Touche(0, 'a');
    Touche(0, 13);
    if (f.fenetre.ModeCourant() != Mode::Index) Echec("the dictionary did not open");
  }
  void Touche(int code, char c = 0) {
    if (RouteTouche(f, Champ::Txt, code, 0, c ? static_cast<char32_t>(static_cast<unsigned char>(c)) : 0).auChamp)
      ui.Shown().Key(code, 0, c);
  }
  std::int32_t Nombre() const { return f.dico.TableIndex.NombreArticle(); }
};

}  // namespace lex::bench
