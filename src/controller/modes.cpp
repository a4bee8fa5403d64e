#include "controller/modes.h"

#include <algorithm>

#include "base/blanks.h"
#include "catalogue/lists.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/paging.h"
#include "controller/place.h"

namespace lex {

void PoseMode(EtatFenetre& w, Mode m) {
  w.mode_ = m;
  // What the guide covered is given back from the guide only.
  if (m != Mode::Aide) {
    w.GuideAffiche = false;
    w.AvantGuide = {};
  }
}

namespace {

void PoseBoutons(Form& f, const char* dic, const char* divers) {
  // Only the notepad is typed in; every other mode reads.
  f.ui.SetLineEditable(false);
  f.ui.SetButtonCaption(Bouton::CmdQuitter, "&Quitter");
  f.ui.SetButtonVisible(Bouton::CmdQuitter, true);
  f.ui.SetButtonCaption(Bouton::CmdDic, dic);
  f.ui.SetButtonVisible(Bouton::CmdDic, true);
  if (divers) f.ui.SetButtonCaption(Bouton::CmdDivers, divers);
  f.ui.SetButtonVisible(Bouton::CmdDivers, divers != nullptr);
}

// What the lists of the catalogue share; the caret goes to line `ligne`.
void EntrerCatalogue(Form& f, Mode m, const std::string& texte, std::int32_t ligne, const char* dic = "Index",
                     const char* divers = nullptr) {
  PoseMode(f.fenetre, m);
  f.liste.MontreIndex();
  OublieDebutTape(f);
  MontreDansTxt(f, texte);
  f.ui.FocusLine();
  PoseBoutons(f, dic, divers);
  SurNumero(f, texte, ligne);
  AfficheStatus(f);
}

}  // namespace

void OublieDebutTape(Form& f) {
  f.fenetre.DebutIndexCherche.clear();
  f.fenetre.DebutIndexTape.clear();
}

void EntrerListeDictio(Form& f, std::int32_t ligne) {
  if (f.fenetre.ListeHistoire) {
    EntrerListeHistoire(f, ligne);
    return;
  }
  EntrerCatalogue(f, Mode::ListeDictionnaires, TexteListeDictio(f.catalogue),
                  ligne > 0 ? ligne : LigneDeEntree(f.catalogue, f.fenetre.DictioCourant) + 2);
}

void EntrerListeHistoire(Form& f, std::int32_t ligne) {
  f.fenetre.ListeHistoire = true;
  EntrerCatalogue(f, Mode::ListeHistoire, TexteListeHistoire(f.catalogue),
                  ligne > 0 ? ligne : f.catalogue[9].PositionDictio + 2);
}

void EntrerChoixComparaison(Form& f) {
  EtatFenetre& w = f.fenetre;
  Catalogue& c = f.catalogue;
  PlaceAvantChoix& avant = f.avantComparaison;
  avant = {};
  if (const std::int32_t n = EntreeDuDictionnaire(f); n > 0) {
    avant.numero = n;
    // A result list's page numbers are not the index's: its page starts on the entry.
    avant.premier = f.liste.EstResultats() ? n : w.PremierIndexAffiche;
  }
  // Leaving the program from the choice reopens the dictionary where the user was.
  GardePosition(f);
  const int d = w.DictioCourant;
  const int rang = d > 9 && d <= 9 + c.NombreHistoire ? 9 : LigneDeEntree(c, d);
  MontreChoixComparaison(f, rang + 2);
}

void MontreChoixComparaison(Form& f, std::int32_t ligne) {
  EntrerCatalogue(f, Mode::ChoixComparaison, TexteListeDictio(f.catalogue), ligne, "OK", "Annuler");
}

void EntrerPage(Form& f, std::int32_t premier, Annonce annonce, std::int32_t ligne) {
  EtatFenetre& w = f.fenetre;
  PoseMode(w, f.liste.EstResultats() ? Mode::ListeResultats : Mode::Index);
  PoseBoutons(f, "D\xE9" "finition", "Liste");
  OublieDebutTape(f);
  w.FlecheHautArmee = w.FlecheBasArmee = false;
  w.PremierIndexAffiche = premier;
  InitTableIndex(f);
  if (ligne > 1) f.ui.SetLineSelection(DebutLigne(f.ui.GetLineText(), ligne), 0);
  f.ui.FocusLine();
  if (annonce == Annonce::AvantLeTitre) AnnonceLigneCourante(f);
  AfficheStatus(f);
  if (annonce == Annonce::ApresLeTitre) AnnonceLigneCourante(f);
}

void EntrerIndex(Form& f, std::int32_t premier, Annonce annonce) {
  f.liste.MontreIndex();
  EntrerPage(f, premier, annonce);
}

void EntrerArticle(Form& f, std::int32_t numero, const std::string& article, std::size_t curseur) {
  EtatFenetre& w = f.fenetre;
  PoseMode(w, Mode::Article);
  OublieDebutTape(f);
  w.IndexCourant = numero;
  w.TexteIndexCourant = SansBlancs(f.liste.Texte(numero));
  if (article.size() <= kLongueurMaxTxt) {
    MontreDansTxt(f, article);
    f.ui.FocusLine();
  } else {
    f.ui.SetPaneText(article);
    f.ui.SetPaneVisible(true);
    f.ui.FocusPane();
  }
  PoseBoutons(f, "Index", "Liste");
  if (curseur == std::string::npos) SurNumero(f, article, 2);
  else PoseCurseur(f, curseur);
  AfficheStatus(f);
}

namespace {

// The notepad's page starting at its line `premier`, typed in.
void PageBlocNote(Form& f, std::int32_t premier) {
  EtatFenetre& w = f.fenetre;
  PoseMode(w, Mode::BlocNote);
  PoseBoutons(f, "OK", nullptr);
  f.ui.SetButtonCaption(Bouton::CmdQuitter, "Annuler");
  OublieDebutTape(f);
  w.FlecheHautArmee = w.FlecheBasArmee = false;
  w.PremierIndexAffiche = premier;
  InitTableIndex(f);
  f.ui.SetLineEditable(true);
  f.ui.FocusLine();
  AfficheStatus(f);
}

}  // namespace

void EntrerBlocNote(Form& f) {
  EtatFenetre& w = f.fenetre;
  const Mode avant = w.ModeCourant();
  w.EntreeAvantSaisie = DansUnDictionnaire(avant) ? std::max(EntreeDuDictionnaire(f), 1) : 1;
  w.AvantSaisie = avant;
  PageBlocNote(f, 1);
  if (f.blocnote.lignes.empty()) message(f, "bloc note vide");
  else AnnonceLigneCourante(f);
}

void RevenirAuBlocNote(Form& f, std::int32_t premier, std::size_t curseur) {
  PageBlocNote(f, premier);
  PoseCurseur(f, curseur);
  AnnonceLigneCourante(f);
}

void EntrerCreationDictio(Form& f, int d) {
  EtatFenetre& w = f.fenetre;
  w.AvantSaisie = w.ModeCourant();
  PoseMode(w, Mode::CreationDictio);
  w.DictioCourant = static_cast<std::int16_t>(d);
  OublieDebutTape(f);
  MontreDansTxt(f, "");
  PoseBoutons(f, "OK", "Annuler");
  f.ui.SetButtonVisible(Bouton::CmdQuitter, false);
  f.ui.SetLineEditable(true);
  f.ui.FocusLine();
  AfficheStatus(f);
  message(f, "tapez l'index puis la d\xE9" "finition");
}

void EntrerSaisieArticle(Form& f, Mode m, std::int32_t entree, const std::string& texte) {
  EtatFenetre& w = f.fenetre;
  w.AvantSaisie = w.ModeCourant();
  w.EntreeAvantSaisie = entree;
  // Going back (Annuler, Escape) is going back from an article: to the list's entry.
  if (w.ModeCourant() != Mode::Article) w.IndexCourant = f.liste.Nombre() > 0 ? f.EntreeCourante() : 1;
  PoseMode(w, m);
  OublieDebutTape(f);
  MontreDansTxt(f, texte);
  PoseBoutons(f, "OK", "Annuler");
  f.ui.SetButtonVisible(Bouton::CmdQuitter, false);
  f.ui.SetLineEditable(true);
  f.ui.FocusLine();
  AfficheStatus(f);
}

void EntrerAide(Form& f, const std::string& texte, bool guide, const PlaceAvantGuide& avant) {
  PoseMode(f.fenetre, Mode::Aide);
  f.fenetre.GuideAffiche = guide;
  f.fenetre.AvantGuide = avant;
  OublieDebutTape(f);
  MontreDansTxt(f, texte);
  f.ui.FocusLine();
  PoseBoutons(f, "OK", nullptr);
  AnnonceLigneCourante(f);
}

}  // namespace lex
