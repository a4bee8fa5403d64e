#include "controller/navigation.h"

#include <algorithm>

#include "base/encoding.h"
#include "base/error.h"
#include "catalogue/lists.h"
#include "controller/form.h"
#include "controller/limits.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/paging.h"
#include "data/folding.h"
#include "search/index_lookup.h"

namespace lex {
namespace {

// The notepad's lines turn in pages like the index.
bool DansIndex(const Form& f) { return SurUneListe(f.fenetre.ModeCourant()) || f.fenetre.ModeCourant() == Mode::BlocNote; }

// New page, caret on `ligne` of it (kept within the page), that line announced: the line
// the screen reader speaks is the line under the caret. A new page starts with no arrow
// armed, whatever the old one had.
void TournePage(Form& f, std::int32_t premier, std::int32_t ligne) {
  EtatFenetre& w = f.fenetre;
  w.FlecheHautArmee = w.FlecheBasArmee = false;
  w.PremierIndexAffiche = premier;
  InitTableIndex(f);
  const std::string texte = f.ui.GetLineText();
  f.ui.SetLineSelection(DebutLigne(texte, std::max(ligne, 1)), 0);
  AnnonceLigneCourante(f);
}

bool PagePrecedente(Form& f, bool surLaLignePrecedente) {
  ErrorTrap trap(" sur IndexPrecedent");
  if (!DansIndex(f)) return false;
  f.GardePage();
  OublieDebutTape(f);
  const std::int32_t ancien = f.fenetre.PremierIndexAffiche;
  if (ancien == 1) {
    AuBord(f, Bord::Debut);
    return true;
  }
  const std::int32_t premier = std::max(1, ancien - kLignesPage);
  // From the arrows, the entry just above the old page; from Page Up, the same line.
  TournePage(f, premier, surLaLignePrecedente ? ancien - premier : LigneCurseur(f));
  return true;
}

bool PageSuivante(Form& f, bool surLaPremiereLigne) {
  ErrorTrap trap(" sur IndexSuivant");
  if (!DansIndex(f)) return false;
  f.GardePage();
  OublieDebutTape(f);
  const std::int32_t premier = f.fenetre.PremierIndexAffiche + kLignesPage;
  if (premier > NombreLignes(f)) {
    AuBord(f, Bord::Fin, true);
    return true;
  }
  TournePage(f, premier, surLaPremiereLigne ? 1 : LigneCurseur(f));
  return true;
}

// The first press at the edge line arms the arrow: the caret stays and the user hears the
// edge, the page's or, with no page beyond, the list's own; the second one turns the page.
// Anywhere else the field moves the caret itself.
bool Fleche(Form& f, bool aLaLimite, bool& armee, bool pageAuDela, Bord bord, bool (*tourne)(Form&, bool)) {
  EtatFenetre& w = f.fenetre;
  if (!DansIndex(f)) return false;
  OublieDebutTape(f);
  if (!aLaLimite) {
    w.FlecheHautArmee = w.FlecheBasArmee = false;
    return false;
  }
  if (!armee) {
    armee = true;
    if (pageAuDela) AuBord(f, bord == Bord::Debut ? Bord::HautDePage : Bord::BasDePage);
    else AuBord(f, bord);
    return true;
  }
  return tourne(f, true);
}

}  // namespace

bool FlecheHaut(Form& f) {
  ErrorTrap trap(" sur FlecheHaut");
  return Fleche(f, LigneCurseur(f) == 1, f.fenetre.FlecheHautArmee, f.fenetre.PremierIndexAffiche > 1, Bord::Debut,
                PagePrecedente);
}

bool FlecheBas(Form& f) {
  ErrorTrap trap(" sur FlecheBas");
  return Fleche(f, FinLigne(f) >= f.ui.GetLineText().size(), f.fenetre.FlecheBasArmee,
                f.fenetre.PremierIndexAffiche + kLignesPage <= NombreLignes(f), Bord::Fin, PageSuivante);
}

bool Indexprecedent(Form& f) { return PagePrecedente(f, false); }
bool Indexsuivant(Form& f) { return PageSuivante(f, false); }

bool AppelDebutIndex(Form& f) {
  ErrorTrap trap(" sur AppelDebutIndex");
  if (!DansIndex(f)) return false;
  f.GardePage();
  if (f.fenetre.PremierIndexAffiche == 1 && LigneCurseur(f) == 1) AuBord(f, Bord::Debut);
  else TournePage(f, 1, 1);
  return true;
}

bool AppelFinIndex(Form& f) {
  ErrorTrap trap(" sur AppelFinIndex");
  if (!DansIndex(f)) return false;
  f.GardePage();
  const std::int32_t n = NombreLignes(f);
  const std::int32_t premier = DebutDernierePage(n);
  if (f.fenetre.PremierIndexAffiche == premier && LigneCurseur(f) >= n - premier + 1) AuBord(f, Bord::Fin);
  else TournePage(f, premier, n - premier + 1);
  return true;
}

void MontreEntree(Form& f, std::int32_t numero) { TournePage(f, numero, 1); }

void BakSpaceIndex(Form& f) {
  ErrorTrap trap(" sur BakSpaceIndex");
  EtatFenetre& w = f.fenetre;
  message(f, std::string(80, ' '));
  if (w.DebutIndexCherche.size() >= 2) {
    w.DebutIndexCherche.pop_back();
    if (!w.DebutIndexTape.empty()) w.DebutIndexTape.pop_back();
    PositionIndex(f);
  } else if (!w.PileSuite.empty()) {
    RetourSuiteIndex(f);
  } else {
    f.ui.Beep();
  }
}

void TapeCaractere(Form& f, char c) {
  EtatFenetre& w = f.fenetre;
  if (SurLeCatalogue(w.ModeCourant())) OublieDebutTape(f);
  // Each letter looks the whole beginning up again: past any key's length it only costs time.
  constexpr std::size_t kDebutMax = 255;
  if (w.DebutIndexCherche.size() >= kDebutMax) {
    f.ui.Beep();
    return;
  }
  w.DebutIndexCherche += SansAccentSeul(std::string(1, c));
  w.DebutIndexTape += MajusculeAnsi(c);
  PositionIndex(f);
}

void PositionIndex(Form& f) {
  ErrorTrap trap(" sur PositionIndex");
  EtatFenetre& w = f.fenetre;
  if (SurLeCatalogue(w.ModeCourant())) {
    const int r = RangCatalogue(f.catalogue, w.ModeCourant() == Mode::ListeHistoire, w.DebutIndexTape,
                                Sansaccent(w.DebutIndexCherche));
    OublieDebutTape(f);
    if (r < 0) message(f, "introuvable");
    else SurNumero(f, TexteChamp(f), r + 3);
    return;
  }
  const std::string prefixe = SansaccentEpure(w.DebutIndexCherche);
  if (prefixe.empty()) {
    message(f, "index invalide");
    return;
  }
  const std::int32_t i = PremierCommencantPar(f.liste, prefixe);
  if (i == 0) message(f, "introuvable");
  else MontreEntree(f, i);
}

void SuiteIndex(Form& f) {
  ErrorTrap trap(" sur SuiteIndex");
  EtatFenetre& w = f.fenetre;
  const std::string plie = Sansaccent(MotSousCurseur(TexteChamp(f), CurseurChamp(f)));
  if (plie.empty()) {
    f.ui.Beep();
    return;
  }
  // A word is looked up in the dictionary's own index, even from a result list.
  w.PileSuite.push_back(f.liste.NumeroDictio(w.IndexCourant));
  f.liste.MontreIndex();
  EntrerPage(f, MeilleureEntree(f.liste, plie).numero, Annonce::AvantLeTitre);
}

void RetourSuiteIndex(Form& f) {
  ErrorTrap trap(" sur RetourSuiteIndex");
  EtatFenetre& w = f.fenetre;
  if (w.PileSuite.empty()) {
    f.ui.Beep();
    return;
  }
  const std::int32_t n = w.PileSuite.back();
  w.PileSuite.pop_back();
  f.liste.MontreIndex();
  const std::string article = f.liste.Lit(n);
  w.PremierIndexAffiche = n;
  EntrerArticle(f, n, article, 0);
  message(f, "retour sur " + std::string(f.liste.Texte(n)));
}

void parlerIndex(Form& f) {
  // In an article the entry being read is what the user asks for.
  if (f.fenetre.ModeCourant() == Mode::Article) message(f, f.fenetre.TexteIndexCourant);
  else AnnonceLigneCourante(f);
}

}  // namespace lex
