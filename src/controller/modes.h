// Entering a mode: each function sets everything that goes with what the user is in (the
// mode, the buttons, the title, the list shown, the typed beginning). Nothing else sets the
// mode.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

#include "controller/window_state.h"
#include "view/mode.h"

namespace lex {

struct Form;

// The list of dictionaries (the history list when the user came from it), caret on the row of
// the current dictionary (or on line `ligne` of the field), that row announced.
void EntrerListeDictio(Form& f, std::int32_t ligne = 0);
void EntrerListeHistoire(Form& f, std::int32_t ligne = 0);
// The list of dictionaries for choosing the one the open dictionary is compared with, caret
// on the open dictionary's row (the history group's for a chronology), buttons "OK" and
// "Annuler"; a result list shown is dropped. The place of the page is kept for coming back.
void EntrerChoixComparaison(Form& f);
// That list again, caret on line `ligne` of the field, where the user was kept as it is.
void MontreChoixComparaison(Form& f, std::int32_t ligne);
// Whether entering a page announces the caret's line, and whether before or after the title
// changes (opening is heard line first, coming back title first).
enum class Annonce { Non, AvantLeTitre, ApresLeTitre };
// The page of the shown list (the index, or a result list) starting at `premier`, the caret
// on its line `ligne`.
void EntrerPage(Form& f, std::int32_t premier, Annonce annonce, std::int32_t ligne = 1);
// The dictionary's own index in place of a result list.
void EntrerIndex(Form& f, std::int32_t premier, Annonce annonce);
// Article `numero` of the shown list, its text `article`. With no `curseur` the caret goes to
// the first definition line and that line is announced; otherwise the caret goes to
// `curseur` and nothing is announced.
void EntrerArticle(Form& f, std::int32_t numero, const std::string& article,
                   std::size_t curseur = std::string::npos);
// The notepad's first page in the index field, typed in; where the user was is kept to go
// back to.
void EntrerBlocNote(Form& f);
// The notepad again at the page starting on its line `premier`, caret at `curseur`, that line
// announced; where it was opened from is still kept.
void RevenirAuBlocNote(Form& f, std::int32_t premier, std::size_t curseur);
// An empty field to type the first article of catalogue entry `d`, a new dictionary.
void EntrerCreationDictio(Form& f, int d);
// The field made editable for an article of the open dictionary: a new one (CreationIndex),
// or the article of its entry `entree` changed (ModificationIndex), `texte` in the field. The
// entry of the list the user was on is kept to go back to.
void EntrerSaisieArticle(Form& f, Mode m, std::int32_t entree, const std::string& texte);
// The guide (`guide`) or the about text in place of the field's text, read line by line;
// `avant` is what it gives way to.
void EntrerAide(Form& f, const std::string& texte, bool guide, const PlaceAvantGuide& avant);

// Forgets the letters typed so far.
void OublieDebutTape(Form& f);

}  // namespace lex
