// What the search commands ask of the screen: the field being read, and the places a search
// leads to. The controller implements it; a search finds, the screen shows.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "data/open_dictionary.h"
#include "view/screen.h"

namespace lex {

class EcranRecherche : public virtual Ecran, public virtual EcranListe {
 public:
  // The shown field's whole text and caret.
  virtual std::string TexteChamp() const = 0;
  virtual std::size_t CurseurChamp() const = 0;
  // The caret to `position` of the shown field, the line there announced.
  virtual void MontreOccurrence(std::size_t position) = 0;
  // The page of the shown list starting at entry i, the caret on it, its line announced.
  virtual void MontrePage(std::int32_t i) = 0;
  // Back to the page of the shown list (from an article too) starting at entry i; its line
  // announced when `annonce`. `debut` becomes the typed beginning, which more letters extend.
  virtual void RetourPage(std::int32_t i, bool annonce, const std::string& debut) = 0;
  // Article i of the shown list, read as `article`, the caret at `curseur`.
  virtual void MontreArticle(std::int32_t i, const std::string& article, std::size_t curseur) = 0;
  // The result list in place of the index, under the title `titre`.
  virtual void MontreResultats(std::vector<EntreeTrouvee> entrees, std::string titre) = 0;
  // A folded beginning, as if typed: the index page on the first entry beginning so, or in a
  // list of dictionaries the row of that name.
  virtual void ChercheDebut(const std::string& plie) = 0;
};

}  // namespace lex
