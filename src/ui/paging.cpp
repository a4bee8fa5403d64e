#include "ui/paging.h"

#include <algorithm>

#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"

namespace lex {
namespace {

class SourceIndex final : public SourceLignes {
 public:
  explicit SourceIndex(const Form& f) : f_(f) {}
  std::int32_t Nombre() const override { return NombreArticle(f_); }
  std::string_view Ligne(std::int32_t i) const override { return TexteIndex(f_, i); }

 private:
  const Form& f_;
};

}  // namespace

std::string TextePage(const SourceLignes& source, std::int32_t premier) {
  std::string page;
  const std::int32_t dernier = std::min(source.Nombre(), premier + kLignesPage - 1);
  const std::int32_t debut = std::max(premier, 1);
  for (std::int32_t i = debut; i <= dernier; ++i) {
    if (i > debut) page += "\r\n";
    page += source.Ligne(i);
  }
  return page;
}

std::int32_t DebutDernierePage(std::int32_t nombre) { return std::max(1, nombre - (kLignesPage - 1)); }

std::unique_ptr<SourceLignes> SourceCourante(const Form& f) { return std::make_unique<SourceIndex>(f); }

void InitTableIndex(Form& f) {
  const auto source = SourceCourante(f);
  std::int32_t& premier = f.fenetre.PremierIndexAffiche;
  premier = std::clamp(premier, 1, std::max(1, source->Nombre()));
  MontreDansTxt(f, TextePage(*source, premier));
}

}  // namespace lex
