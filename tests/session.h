// The program in the scripted window, on a program folder holding one small dictionary.
#pragma once
#include "app/headless/headless_window.h"
#include "base/encoding.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "data/write_faults.h"
#include "test_support.h"
#include "view/keys.h"

namespace lex::test {

struct Session {
  DossierTemp d;
  headless::HeadlessWindow ui;
  Form f{ui, ui};
  Session() { d.Ecrire("lex.eng", "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n"); }
  ~Session() { AnnulerPanne(); }
  void Charge() { EvChargement(f, d.Dossier()); }
  // A key as the scripted window delivers it: what the program leaves goes to the field.
  void Touche(int code, char c = 0) {
    if (RouteTouche(f, Champ::Txt, code, 0, c ? UnicodeDeAnsi(c) : 0).auChamp) ui.Shown().Key(code, 0, c);
  }
  // A character typed, whatever key gives it.
  void Tape(char c) { Touche(0, c); }
  // ANGLAIS francais, opened by its call letter.
  void Ouvre() {
    ui.messages.clear();
    Tape('a');
    Tape(13);
  }
};

}  // namespace lex::test
