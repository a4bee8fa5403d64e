// The screen reader's versions, read from the names of its folders. A version is its numbers
// from the most significant on, compared as such; an empty one is a name without a number.
#pragma once
#include <string_view>
#include <vector>

namespace lex {

using Version = std::vector<int>;

// A version folder of the current layout: "5.0", "11.0", "2024".
Version VersionDossier(std::string_view nom);

// A program folder of the older layout, "JAWS35", "JFW", "JAWS 3.7", "JAWS2020": the digits
// after the name run major and minor together (JAWS35 is 3.5); four of them are a year.
Version VersionInstallation(std::string_view nom);

// Whether the name is one the older layout gives its program folder (JAWS..., JFW...).
bool EstDossierJaws(std::string_view nom);

}  // namespace lex
