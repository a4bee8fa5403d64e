#include "ui/index_view.h"

#include "ui/error_trap.h"
#include "ui/form.h"

namespace lex {

std::int32_t NombreArticle(const Form& f) {
  return f.recherche.ListeEnCours ? static_cast<std::int32_t>(f.recherche.ListeTrouvee.size())
                                  : f.dico.TableIndex.NombreArticle();
}

static const EntreeTrouvee& Trouvee(const Form& f, std::int32_t i) {
  if (i < 1 || i > NombreArticle(f)) Erreur(9);
  return f.recherche.ListeTrouvee[static_cast<std::size_t>(i - 1)];
}

std::int32_t NumeroDictio(const Form& f, std::int32_t i) {
  return f.recherche.ListeEnCours ? Trouvee(f, i).numero : i;
}

std::string_view TexteIndex(const Form& f, std::int32_t i) { return f.dico.TableIndex.texte(NumeroDictio(f, i)); }

Etendue EtendueArticle(const Form& f, std::int32_t i) {
  const std::int32_t n = NombreArticle(f);
  if (i < 1 || i > n) Erreur(9);
  if (f.recherche.ListeEnCours) {
    const EntreeTrouvee& e = Trouvee(f, i);
    return {e.debut, e.fin, e.numero >= f.dico.TableIndex.NombreArticle()};
  }
  const IndexTable& t = f.dico.TableIndex;
  // The first article starts at the top of the file, so that lines before it belong to it.
  return {i == 1 ? 0 : t.position(i), t.position(i + 1), i >= n};
}

std::string LitDictio(Form& f, std::int32_t i) {
  ErrorTrap trap(" sur LitDictio");
  return LireArticle(f.dico.fichiers.dictio, EtendueArticle(f, i));
}

std::string LitFinDictio(Form& f, std::int32_t i) {
  ErrorTrap trap(" sur LitFinDictio");
  const IndexTable& t = f.dico.TableIndex;
  if (i < 1 || i > t.NombreArticle()) Erreur(9);
  return LireArticle(f.dico.fichiers.dictio, {i == 1 ? 0 : t.position(i), t.TailleDictio(), i >= t.NombreArticle()});
}

}  // namespace lex
