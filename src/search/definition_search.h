// The Recherche menu's commands for strings in the definitions: asking, the case switch and
// the three repeat keys (F3 through all articles, Ctrl+F3 in the article, Shift+F3 backwards).
#pragma once

namespace lex {

struct Form;

void mnuRechercheAvant(Form& f);
void mnuRechercheBrute(Form& f);
void mnuRechercheSuivant(Form& f);
void mnuRechercheSuivantTout(Form& f);
void mnuRecherchePrecedent(Form& f);

}  // namespace lex
