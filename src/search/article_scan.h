// Going through the articles of the shown list for the searches in the definitions. A scan
// reads the dictionary file in big blocks through one handle, opened for the scan and closed
// at its end, and tests the bytes where they lie: an article becomes a string only when the
// quick test cannot settle it (a string with blanks, which may stand for line breaks).
#pragma once
#include <cstdint>
#include <functional>
#include <string_view>

#include "data/open_dictionary.h"

namespace lex {

// Examines the entries of `liste` from `premier` up to `dernier` inclusive (down to it
// when `arriere`), and calls `trouve(i)` for each entry whose
// article holds `aiguille` (prepared by AiguilleDefinitions) as OccurrenceArticle finds it;
// `trouve` returns false to end the scan. Calls `bip` once every 1000 entries examined, so the user hears a long scan go on. Entries
// outside the list are not examined. The file is read `tailleBloc` bytes at a time (more for a
// longer article).
inline constexpr std::int64_t kTailleBloc = 1 << 20;
void ParcoursArticles(const ListeAffichee& liste, const std::function<void()>& bip, std::int32_t premier,
                      std::int32_t dernier, bool arriere, std::string_view aiguille, bool respectCasse,
                      const std::function<bool(std::int32_t)>& trouve,
                      std::int64_t tailleBloc = kTailleBloc);

}  // namespace lex
