// The dictionary being read: its files and its tables, replaced whenever another opens.
#pragma once
#include <string>

#include "data/index_file.h"
#include "data/index_table.h"

namespace lex {

struct DictionnaireOuvert {
  FichiersIndex fichiers;  // FichierDictio, FichierIndex, FichierLettre
  IndexTable TableIndex;   // with CleIndex and the sentinel
  TableLettre Lettres;
  bool OrdreAlpha = true;
};

}  // namespace lex
