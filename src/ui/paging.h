// The index field shows a page of at most 40 lines of a list; the list may be a dictionary's
// index, a result list or the notepad's lines.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lex {

struct Form;

inline constexpr std::int32_t kLignesPage = 40;

class SourceLignes {
 public:
  virtual ~SourceLignes() = default;
  virtual std::int32_t Nombre() const = 0;
  virtual std::string_view Ligne(std::int32_t i) const = 0;  // from 1
};

// Lines premier .. premier + 39 (or fewer at the end) joined by "\r\n".
std::string TextePage(const SourceLignes& source, std::int32_t premier);
// The first line of the last page.
std::int32_t DebutDernierePage(std::int32_t nombre);

// The list the page currently shows.
std::unique_ptr<SourceLignes> SourceCourante(const Form& f);

// Shows the page that starts at PremierIndexAffiche (kept within the list) in txt, the rich
// text pane hidden, the caret at the start.
void InitTableIndex(Form& f);

}  // namespace lex
