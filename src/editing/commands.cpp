#include "editing/commands.h"

#include <algorithm>

#include "base/error.h"
#include "data/typed_article.h"
#include "editing/duplicates.h"
#include "editing/placement.h"

namespace lex {
namespace {

// The commands read and change the dictionary the user is in, from its index, a result list
// or an article.
bool DansLeDictionnaire(PartiesEdition& p) {
  if (DansUnDictionnaire(p.ecran.mode())) return true;
  p.ecran.message("choisissez d'abord le dictionnaire");
  return false;
}

// The dictionary's own entry the user is on; 0 (with a beep and a word) when the list is
// empty.
std::int32_t EntreeDictio(PartiesEdition& p) {
  if (const std::int32_t n = p.ecran.EntreeDictio()) return n;
  p.ecran.Beep();
  p.ecran.message("aucun index");
  return 0;
}

std::string ArticleDictio(const PartiesEdition& p, std::int32_t n) { return ListeAffichee(p.dico).Lit(n); }

bool Confirme(PartiesEdition& p, const std::string& question, const std::string& titre) {
  return p.dialogues.MessageBox(question, Boutons::YesNo, Icone::Question, titre) == Reponse::Yes;
}

const std::vector<std::int32_t>& Selectionnes(const PartiesEdition& p) {
  static const std::vector<std::int32_t> aucun;
  auto it = p.selections.TableSelection.find(p.dictioCourant);
  return it == p.selections.TableSelection.end() ? aucun : it->second;
}

// Entries removed: the user stays on their entry, or goes to the one that followed it (the
// one before at the end).
void RetireEntrees(PartiesEdition& p, std::vector<std::int32_t> retires) {
  const std::int32_t ici = std::max(p.ecran.EntreeDictio(), 1);
  std::sort(retires.begin(), retires.end());
  retires.erase(std::unique(retires.begin(), retires.end()), retires.end());
  Retouche r;
  r.retires = retires;
  const Changement ch = p.ecran.Retouche(r);
  const std::int32_t apres = static_cast<std::int32_t>(std::upper_bound(retires.begin(), retires.end(), ici) -
                                                       retires.begin());
  std::int32_t numero = ch.Nouveau(ici);
  if (numero == 0) numero = ici - apres + 1;
  numero = std::min(numero, p.dico.TableIndex.NombreArticle());
  p.ecran.PlaceSurEntree(std::max(numero, 1));
}

}  // namespace

void mnuCreationIndex(PartiesEdition& p) {
  ErrorTrap trap(" sur mnuCreationIndex");
  if (!DansLeDictionnaire(p)) return;
  p.ecran.EntrerSaisie(Mode::CreationIndex, p.ecran.EntreeDictio(), "");
  p.ecran.message("tapez l'index puis la d\xE9" "finition");
}

void mnuModifIndex(PartiesEdition& p) {
  ErrorTrap trap(" sur mnuModifIndex");
  if (!DansLeDictionnaire(p)) return;
  const std::int32_t n = EntreeDictio(p);
  if (n == 0) return;
  const std::string article = ArticleDictio(p, n);
  p.ecran.EntrerSaisie(Mode::ModificationIndex, n, article);
  p.ecran.message("modification de " + std::string(LigneIndexDe(article)));
}

void SauveCreationIndex(PartiesEdition& p) {
  ErrorTrap trap(" sur SauveCreationIndex");
  const Mode m = p.ecran.mode();
  if (!SaisieArticle(m)) return;
  const std::vector<std::string> lignes = LignesSaisies(p.ecran.TexteSaisi());
  const bool remplacee = p.ecran.SaisieRemplacee();
  if (lignes.empty()) {
    p.ecran.message("index vide");
    return;
  }
  std::string texte;
  for (const std::string& l : lignes) texte += (texte.empty() ? "" : "\r\n") + l;
  const std::int32_t ici = p.ecran.EntreeSaisie();
  const std::int32_t nombre = p.dico.TableIndex.NombreArticle();
  const bool modification = m == Mode::ModificationIndex;
  const ClesArticle cles = ClesDe(lignes.front());

  Retouche r;
  Retouche::Insertion ins;
  ins.texte = texte;
  if (modification) {
    r.retires = {ici};
    ins.remplace = ici;
    ins.avant = ici;
    // An article whose index line changed takes its alphabetical place.
    if (p.dico.OrdreAlpha && LigneIndexDe(ArticleDictio(p, ici)) != lignes.front())
      ins.avant = PlaceAlphabetique(p.dico, p.selections, p.dictioCourant, cles, ici);
  } else if (p.dico.OrdreAlpha || nombre == 0) {
    ins.avant = PlaceAlphabetique(p.dico, p.selections, p.dictioCourant, cles, 0);
  } else {
    const bool dessus = Confirme(p, "cr\xE9" "ation au-dessus", "Cr\xE9" "ation d'un index");
    ins.avant = std::max(ici, 1) + (dessus ? 0 : 1);
  }
  r.inseres.push_back(std::move(ins));
  const Changement ch = p.ecran.Retouche(r);
  p.ecran.PlaceSurEntree(ch.NumerosInseres().front());
  std::string dit = lignes.front() + (modification ? " modifi\xE9" : " ajout\xE9");
  if (remplacee) dit += ", caract\xE8res remplac\xE9s";
  p.ecran.message(dit);
}

void mnuEffaceIndex(PartiesEdition& p) {
  ErrorTrap trap(" sur mnuEffaceIndex");
  if (!DansLeDictionnaire(p)) return;
  const std::int32_t n = EntreeDictio(p);
  if (n == 0) return;
  const std::string ligne(LigneIndexDe(ArticleDictio(p, n)));
  if (!Confirme(p, "Souhaitez vous supprimer l'index " + ligne, "Suppression d'un index")) return;
  RetireEntrees(p, {n});
  p.ecran.message("index supprim\xE9");
}

void mnuEffaceIndexSelection(PartiesEdition& p) {
  ErrorTrap trap(" sur mnuEffaceIndexSelection");
  if (!DansLeDictionnaire(p)) return;
  const std::vector<std::int32_t> selection = Selectionnes(p);
  if (selection.empty()) {
    p.ecran.Beep();
    p.ecran.message("aucun index s\xE9lectionn\xE9");
    return;
  }
  const std::string n = std::to_string(selection.size());
  if (!Confirme(p, "Souhaitez vous supprimer les " + n + " index s\xE9lectionn\xE9s",
                "Suppression des index s\xE9lectionn\xE9s"))
    return;
  RetireEntrees(p, selection);
  p.ecran.message(n + " index supprim\xE9s");
}

void mnuEffaceArticleDouble(PartiesEdition& p) {
  ErrorTrap trap(" sur mnuEffaceArticleDouble");
  if (!DansLeDictionnaire(p)) return;
  const std::vector<std::int32_t> doubles = ArticlesDoubles(p.dico.fichiers.dictio, p.dico.TableIndex);
  if (doubles.empty()) {
    p.ecran.message("aucun article double");
    return;
  }
  const std::string n = std::to_string(doubles.size());
  if (!Confirme(p, "Souhaitez vous supprimer les " + n + " articles doubles", "Suppression des articles doubles"))
    return;
  RetireEntrees(p, doubles);
  p.ecran.message(n + " articles doubles supprim\xE9s");
}

void MnuCopieIndex(PartiesEdition& p) {
  ErrorTrap trap(" sur MnuCopieIndex");
  if (!DansLeDictionnaire(p)) return;
  const std::int32_t n = EntreeDictio(p);
  if (n == 0) return;
  p.ecran.PressePapier(ArticleDictio(p, n));
  p.ecran.message("article copi\xE9 dans le presse papier");
}

void MnuCopieIndexSelection(PartiesEdition& p) {
  ErrorTrap trap(" sur MnuCopieIndexSelection");
  if (!DansLeDictionnaire(p)) return;
  std::vector<std::int32_t> selection = Selectionnes(p);
  if (selection.empty()) {
    p.ecran.Beep();
    p.ecran.message("aucun index s\xE9lectionn\xE9");
    return;
  }
  std::sort(selection.begin(), selection.end());
  std::string texte;
  for (std::int32_t n : selection) texte += (texte.empty() ? "" : "\r\n\r\n") + ArticleDictio(p, n);
  p.ecran.PressePapier(texte);
  p.ecran.message(std::to_string(selection.size()) + " articles copi\xE9s dans le presse papier");
}

void InscrireCommandesEdition(RegistreCommandes& registre, PartiesEdition p) {
  InscrireCommandes<PartiesEdition>(registre, p,
                                    {{MenuId::mnuModifIndex, mnuModifIndex},
                                     {MenuId::mnuEffaceIndex, mnuEffaceIndex},
                                     {MenuId::mnuEffaceIndexSelection, mnuEffaceIndexSelection},
                                     {MenuId::mnuEffaceArticleDouble, mnuEffaceArticleDouble},
                                     {MenuId::MnuCopieIndex, MnuCopieIndex},
                                     {MenuId::MnuCopieIndexSelection, MnuCopieIndexSelection}});
}

}  // namespace lex
