// The index of a dictionary after a few articles changed: the old index file's records are
// copied with their offsets shifted, the new articles' records made, and the tables follow;
// the dictionary itself is not read again.
#pragma once
#include <functional>

#include "data/article_edit.h"
#include "data/index_file.h"

namespace lex {

// `f.dictio` is the dictionary written by EcritRetouche, which gave `rc`; `ancien` is what
// was read of the dictionary before (its length and date), `table` and `lettres` its
// tables. False, with nothing changed, when the index file does not describe that old
// dictionary: it is then to be built again. A failed write of the index or letter file
// raises ErreurEcriture, the tables being already up to date: the dictionary can be read
// from them, and its next opening rebuilds the files.
bool SuitRetouche(const FichiersIndex& f, const EtatDictio& ancien, bool ordreAlpha, const Recomposition& rc,
                  IndexTable& table, TableLettre& lettres, const std::function<void()>& bip);

}  // namespace lex
