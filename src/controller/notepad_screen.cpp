// The screen as the notepad sees it: its pages in the index field.
#include "controller/notepad_screen.h"

#include "controller/form.h"
#include "controller/modes.h"
#include "controller/buttons.h"
#include "controller/place.h"

namespace lex {

void Form::MontreBlocNote() { EntrerBlocNote(*this); }

void Form::GardePage() {
  if (fenetre.ModeCourant() != Mode::BlocNote) return;
  fenetre.LignesPageBlocNote = SauveText(blocnote, static_cast<std::size_t>(fenetre.PremierIndexAffiche),
                                         fenetre.LignesPageBlocNote, ui.GetLineText());
}

void Form::QuitteBlocNote() { RetourIndex(*this); }

bool LaisseBlocNote(Form& f) {
  if (!BlocNoteEnCours(f)) return true;
  PartiesBlocNote p = f.PartiesNote();
  return QuitteAvecBlocNote(p);
}

}  // namespace lex
