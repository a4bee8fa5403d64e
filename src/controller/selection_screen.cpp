// The screen as the selection and exchange commands see it.
#include "catalogue/opening.h"
#include "catalogue/working_copy.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "controller/opening.h"
#include "controller/paging.h"
#include "controller/place.h"

namespace lex {


void Form::RemontrePage(bool annonce) {
  if (!SurUneListe(fenetre.ModeCourant())) return;
  // A mark lengthens its line: the caret goes back to the start of the same line.
  const std::int32_t ligne = LigneCurseur(*this);
  InitTableIndex(*this);
  ui.SetLineSelection(DebutLigne(ui.GetLineText(), ligne), 0);
  if (annonce) AnnonceLigneCourante(*this);
}

void Form::RechargeIndex() {
  const int d = fenetre.DictioCourant;
  OuvreDictionnaire(catalogue, reglages.DossierDictio, d, dico.fichiers.dictio, dico, selections, AvisDe(*this));
  RemontrePage(false);
}

std::string Form::FichierDictio() const { return NomDictionnaire(catalogue, reglages.DossierDictio, fenetre.DictioCourant); }

Changement Form::ChangeDictionnaire(const Ecrivain& ecrire) {
  const std::int32_t ici = std::max(EntreeDuDictionnaire(*this), 1);
  const std::int32_t premier = fenetre.ModeCourant() == Mode::Index ? fenetre.PremierIndexAffiche : ici;
  Changement ch =
      ChangeCopieTravail(catalogue, reglages.DossierDictio, fenetre.DictioCourant, dico, selections, ecrire, AvisDe(*this));
  fenetre.PileSuite.clear();
  // The user keeps the page and the line they were on, wherever the change moved them. A
  // result list names entries by numbers the change moved: the index takes its place.
  const std::int32_t entree = ch.Nouveau(ici);
  // The page starts after the entry that stood before it: what went in above the old first
  // line is on the page.
  std::int32_t page = ch.Nouveau(premier - 1) + 1;
  if (entree < page || entree >= page + kLignesPage) page = entree;
  liste.MontreIndex();
  EntrerPage(*this, page, Annonce::Non, entree - page + 1);
  return ch;
}

}  // namespace lex
