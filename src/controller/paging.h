// The index field shows a page of at most 40 lines of the shown list.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace lex {

struct Form;
class ListeAffichee;

inline constexpr std::int32_t kLignesPage = 40;
// Longest article the index field holds; a longer one goes to the rich text pane.
inline constexpr std::size_t kLongueurMaxTxt = 65536;

// Lines premier .. premier + 39 (or fewer at the end) joined by "\r\n".
std::string TextePage(const ListeAffichee& liste, std::int32_t premier);
// The first line of the last page.
std::int32_t DebutDernierePage(std::int32_t nombre);

// How many lines the pages go through: the notepad's while it is edited, else the entries
// of the shown list.
std::int32_t NombreLignes(const Form& f);
// Shows the page that starts at PremierIndexAffiche (kept within the list) in txt, the rich
// text pane hidden, the caret at the start.
void InitTableIndex(Form& f);

}  // namespace lex
