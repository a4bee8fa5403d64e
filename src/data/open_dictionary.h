// The dictionary being read, and the list its index page shows: the dictionary's own index,
// or a result list of its entries (the entries that a search found, a report...).
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/dictionary_file.h"
#include "data/index_file.h"
#include "data/index_table.h"

namespace lex {

struct DictionnaireOuvert {
  FichiersIndex fichiers;  // FichierDictio, FichierIndex, FichierLettre
  IndexTable TableIndex;   // with CleIndex and the sentinel
  TableLettre Lettres;
  bool OrdreAlpha = true;
};

// One entry of a result list: the dictionary's own entry number (its text comes from the
// dictionary's table), where its article starts and where the next one starts.
struct EntreeTrouvee {
  std::int32_t numero = 0;
  std::int32_t debut = 0;
  std::int32_t fin = 0;
};

// Entries are numbered from 1 in the list shown; outside 1..Nombre() is error 9.
class ListeAffichee {
 public:
  explicit ListeAffichee(const DictionnaireOuvert& d) : dico_(d) {}

  bool EstResultats() const { return resultats_; }
  const std::string& Titre() const { return titre_; }
  void MontreResultats(std::vector<EntreeTrouvee> entrees, std::string titre);
  void MontreIndex();

  std::int32_t Nombre() const;
  std::string_view Texte(std::int32_t i) const;
  // The dictionary's own number of entry i.
  std::int32_t NumeroDictio(std::int32_t i) const;
  // Where article i lies in the dictionary file.
  Etendue EtendueArticle(std::int32_t i) const;
  // The article of entry i.
  std::string Lit(std::int32_t i) const;
  const DictionnaireOuvert& Dictionnaire() const { return dico_; }
  // What the result list holds in memory.
  std::size_t OctetsResultats() const { return entrees_.capacity() * sizeof(EntreeTrouvee); }

 private:
  const EntreeTrouvee& Trouvee(std::int32_t i) const;
  const DictionnaireOuvert& dico_;
  bool resultats_ = false;
  std::vector<EntreeTrouvee> entrees_;
  std::string titre_;
};

// What the commands that work on the list shown ask of the screen that shows it.
class EcranListe {
 public:
  virtual ~EcranListe() = default;
  // The list the index page shows.
  virtual const ListeAffichee& Liste() const = 0;
  // The entry the user is on, in the list shown: the article being read, or the line under
  // the caret.
  virtual std::int32_t EntreeCourante() const = 0;
  // The dictionary's own number of that entry; 0 when the list is empty.
  std::int32_t EntreeDictio() const { return Liste().Nombre() > 0 ? Liste().NumeroDictio(EntreeCourante()) : 0; }
};

}  // namespace lex
