// What the selection and exchange commands ask of the screen. The controller implements it;
// the commands decide, the screen shows.
#pragma once
#include <cstdint>
#include <functional>
#include <string>

#include "data/article_merge.h"
#include "data/open_dictionary.h"
#include "data/safe_write.h"
#include "selection/selections.h"
#include "view/dialogs.h"
#include "view/screen.h"

namespace lex {

class EcranSelection : public virtual Ecran, public virtual EcranListe {
 public:
  // The page shown again after its marks changed, the caret where it was; its line said
  // when `annonce`.
  virtual void RemontrePage(bool annonce) = 0;
  // The open dictionary's index read again, its marks put back, the page shown again.
  virtual void RechargeIndex() = 0;
  // The open dictionary's own file, whether or not its changes wait in its working copy.
  virtual std::string FichierDictio() const = 0;
  // Changes the open dictionary through its working copy: `ecrire` reads `source`, the
  // dictionary as the user reads it, and writes the new one into `cible`. When it returns,
  // the change becomes the working copy, the kept numbers follow their entries, the index is
  // rebuilt and its page shown again. A failure leaves everything as it was.
  using Ecrivain = std::function<Changement(const std::string& source, EcritureSure& cible)>;
  virtual Changement ChangeDictionnaire(const Ecrivain& ecrire) = 0;
};

// What the selection and exchange commands work on.
struct PartiesSelection {
  EcranSelection& ecran;
  Dialogues& dialogues;
  Selections& selections;
  DictionnaireOuvert& dico;
  // The catalogue entry of the dictionary the user is in, and the dictionaries' folder.
  const std::int16_t& dictioCourant;
  const std::string& dossierDictio;
};

}  // namespace lex
