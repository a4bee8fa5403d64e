// The index of a dictionary after a few articles changed: the old index file's records are
// copied with their offsets shifted, the new articles' records made, and the tables follow;
// the dictionary itself is not read again. The new index file is written while the new
// dictionary is forced to the disk, which is most of a change's time.
#pragma once
#include <functional>
#include <future>
#include <memory>

#include "data/article_edit.h"
#include "data/index_file.h"
#include "data/safe_write.h"

namespace lex {

class SuiviIndex {
 public:
  // Starts writing, in the background, the index file of `f` for the dictionary that
  // EcritRetouche made (`rc`), whose length and date will be `nouveau`, from the index file of
  // the dictionary before the change, which must describe it in the state `ancien` with its
  // `nombre` articles: otherwise nothing starts, Actif() is false, and the index is to be
  // built again.
  SuiviIndex(const FichiersIndex& f, const EtatDictio& ancien, std::int32_t nombre, const EtatDictio& nouveau,
             const Recomposition& rc);
  // Dropped before Termine: the old index file stays, the tables are untouched.
  ~SuiviIndex();
  SuiviIndex(const SuiviIndex&) = delete;
  SuiviIndex& operator=(const SuiviIndex&) = delete;

  bool Actif() const { return actif_; }
  // The tables follow the new dictionary, then the letter file (when `ordreAlpha`) and the
  // index file take their places, in that order, so that an index found current never
  // stands beside an old letter file. `ancien` receives what the table held, to be put back
  // if the new dictionary does not take its place after all (the new index files then
  // describe no file, and the next opening rebuilds them). A failed write raises
  // ErreurEcriture, the tables being up to date already.
  void Termine(bool ordreAlpha, IndexTable& table, TableLettre& lettres, const std::function<void()>& bip,
               IndexTable::Ancien& ancien);

 private:
  FichiersIndex f_;
  const Recomposition& rc_;
  bool actif_ = false;
  std::future<std::unique_ptr<EcritureSure>> ecriture_;
};

}  // namespace lex
