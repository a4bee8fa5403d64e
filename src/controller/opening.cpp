#include "controller/opening.h"

#include "base/error.h"
#include "catalogue/opening.h"
#include "controller/commands.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/message.h"
#include "controller/modes.h"
#include "data/files.h"
#include "notepad/notepad.h"

namespace lex {

int RangSousCurseur(const Form& f) {
  const int l = LigneCurseur(f);
  return l < 3 ? 0 : l - 2;
}

void AppelDictionnaire(Form& f) {
  ErrorTrap trap(" sur AppelDictionnaire");
  EtatFenetre& w = f.fenetre;
  Catalogue& c = f.catalogue;
  if (!SurLeCatalogue(w.ModeCourant())) return;
  const int r = RangSousCurseur(f);
  // The title and the blank line open nothing.
  if (r < 1) {
    message(f, "choisissez un dictionnaire");
    return;
  }
  if (w.ModeCourant() == Mode::ListeHistoire) {
    if (r > c.NombreHistoire) {
      message(f, "choisissez un dictionnaire");
      return;
    }
    w.DictioCourant = static_cast<std::int16_t>(r + 9);
    c[9].PositionDictio = r;
  } else {
    w.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(c, r));
    if (w.DictioCourant > c.NombreDictio()) return;
    if (w.DictioCourant == c.NombreDictio()) {
      PartiesBlocNote p = f.PartiesNote();
      blocnote(p);
      return;
    }
    if (w.DictioCourant == 9) {
      EntrerListeHistoire(f);
      return;
    }
  }
  const int d = w.DictioCourant;
  const std::string nomfic = FichierALire(c, f.reglages.DossierDictio, d);
  if (!FichierExistant(nomfic)) {
    f.dlg.MessageBox("dictionnaire " + CheminAffiche(nomfic) + " absent, Ctrl-n pour cr\xE9" "er le premier index ", Boutons::OK,
                     Icone::Exclamation, kTitreBoites);
    return;
  }
  OuvreEtMontre(f, nomfic, c[d].PositionDictio);
}

AvisOuverture AvisDe(Form& f) {
  return {[&f](std::string t) { message(f, std::move(t)); },
          [&f](std::string t) { f.dlg.MessageBox(t, Boutons::OK, Icone::Exclamation, kTitreBoites); },
          [&f] { f.ui.Beep(); }};
}

void OuvreEtMontre(Form& f, const std::string& nomfic, std::int32_t entree) {
  f.liste.MontreIndex();
  OuvreDictionnaire(f.catalogue, f.reglages.DossierDictio, f.fenetre.DictioCourant, nomfic, f.dico, f.selections,
                    AvisDe(f));
  // The number files belong to a dictionary: their commands wait for the first one opened.
  ActiveMenu(f, MenuId::mnuImporterAjout, true);
  ActiveMenu(f, MenuId::mnuExporterAjout, true);
  f.fenetre.PileSuite.clear();
  EntrerIndex(f, entree, Annonce::AvantLeTitre);
}

}  // namespace lex
