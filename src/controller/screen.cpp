// The screen as the subsystems see it: what they found, shown the way the window shows it.
#include "controller/commands.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/navigation.h"

namespace lex {

Form::Form(Fenetre& fenetreUi, Dialogues& dialogues) : ui(fenetreUi), dlg(dialogues) { InscrireCommandes(*this); }

std::string Form::TexteChamp() const { return lex::TexteChamp(*this); }
std::size_t Form::CurseurChamp() const { return lex::CurseurChamp(*this); }

void Form::MontreOccurrence(std::size_t position) {
  const std::string texte = lex::TexteChamp(*this);
  PoseCurseur(*this, position);
  lex::message(*this, extraitLigne(texte, position));
}

std::int32_t Form::EntreeCourante() const {
  return fenetre.ModeCourant() == Mode::Article ? fenetre.IndexCourant : IndexAbsolu(*this);
}

void Form::MontrePage(std::int32_t i) { MontreEntree(*this, i); }

void Form::RetourPage(std::int32_t i, bool annonce, const std::string& debut) {
  EntrerPage(*this, i, annonce ? Annonce::ApresLeTitre : Annonce::Non);
  fenetre.DebutIndexCherche = debut;
}

void Form::MontreArticle(std::int32_t i, const std::string& article, std::size_t curseur) {
  // Going back to the index shows the page starting at the article found.
  fenetre.PremierIndexAffiche = i;
  EntrerArticle(*this, i, article, curseur);
}

void Form::MontreResultats(std::vector<EntreeTrouvee> entrees, std::string titre) {
  liste.MontreResultats(std::move(entrees), std::move(titre));
  EntrerPage(*this, 1, Annonce::Non);
}

void Form::ChercheDebut(const std::string& plie) {
  OublieDebutTape(*this);
  fenetre.DebutIndexCherche = plie;
  PositionIndex(*this);
}

}  // namespace lex
