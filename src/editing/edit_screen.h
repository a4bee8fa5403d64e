// What the editing commands ask of the screen. The controller implements it; the commands
// decide what changes, the screen shows it.
#pragma once
#include <cstdint>
#include <string>

#include "data/article_edit.h"
#include "data/open_dictionary.h"
#include "selection/selections.h"
#include "view/dialogs.h"
#include "view/screen.h"

namespace lex {

class EcranEdition : public virtual Ecran, public virtual EcranListe {
 public:
  // The field made editable for typing an article: empty for a new one (mode CreationIndex),
  // holding `texte` for a change (mode ModificationIndex). `entree` is the dictionary's own
  // entry the user came from, which the typing keeps.
  virtual void EntrerSaisie(Mode m, std::int32_t entree, const std::string& texte) = 0;
  // The dictionary's entry the typing came from.
  virtual std::int32_t EntreeSaisie() const = 0;
  // The article typed, and whether the field had to replace characters that a dictionary
  // cannot hold.
  virtual std::string TexteSaisi() const = 0;
  virtual bool SaisieRemplacee() const = 0;
  // Changes the open dictionary through its working copy; the kept numbers follow their
  // entries. A failure leaves everything as it was.
  virtual Changement Retouche(const lex::Retouche& r) = 0;
  // The index page holding the dictionary's entry `numero`, the caret on its line, nothing
  // announced (the command says what it did).
  virtual void PlaceSurEntree(std::int32_t numero) = 0;
  virtual void PressePapier(const std::string& texte) = 0;
};

// What the editing commands work on.
struct PartiesEdition {
  EcranEdition& ecran;
  Dialogues& dialogues;
  Selections& selections;
  const DictionnaireOuvert& dico;
  // The catalogue entry of the dictionary the user is in.
  const std::int16_t& dictioCourant;
};

}  // namespace lex
