// The two reports that show a result list in place of the index: the entries another
// dictionary lacks, and the entries without definition.
#pragma once

#include "reports/commands.h"

namespace lex {

// The list of dictionaries, to choose the one to compare the open dictionary with.
void mnucomparaisonIndex(PartiesRapports& p);
// Compares the open dictionary with the one on the caret's row of that list: the entries the
// other lacks become a result list. Anything that stops it leaves the user in the list, to
// choose another dictionary or give up.
void ComparaisonIndex(PartiesRapports& p);
void mnuSansDefinition(PartiesRapports& p);

}  // namespace lex
