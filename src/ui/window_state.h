// What the window shows and which editing is under way.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace lex {

struct EtatFenetre {
  // 1 list of dictionaries, 2 index of the current dictionary, 3 an article.
  std::int16_t ModeCourant = 1;
  std::int16_t DictioCourant = 1;
  bool ListeHistoire = false;

  bool EditionBlocNote = false;
  bool CreationDictioEnCours = false;
  bool ModificationEnCours = false;
  bool CreationIndexEnCours = false;
  bool ComparaisonEnCours = false;
  bool TexteAideAffiche = false;
  bool ToucheInterrompue = false;

  std::string MessagePrecedent;
  // Typed beginning of an index word, folded, and the same in capitals as typed.
  std::string DebutIndexCherche;
  std::string DebutIndexTape;

  std::int32_t PremierIndexAffiche = 1;
  std::int32_t IndexCourant = 0;
  std::string TexteIndexCourant;

  bool FlecheHautArmee = false;
  bool FlecheBasArmee = false;
  // Articles from which a word was followed (Enter in an article); Backspace goes back.
  std::vector<std::int32_t> PileSuite;

  bool Termine = false;
};

}  // namespace lex
