#include "ui/message.h"

#include "data/files.h"
#include "ui/form.h"

namespace lex {

void message(Form& f, std::string& texte) {
  std::string& precedent = f.fenetre.MessagePrecedent;
  if (!precedent.empty() && precedent.back() == ' ') precedent += ' ';
  while (!texte.empty() && texte.back() == ' ') texte.pop_back();
  texte.insert(texte.begin(), ' ');
  if (texte == precedent) texte += "  ";
  precedent = texte;
  f.ui.SetMessage(texte);
}

void message(Form& f, const char* texte) {
  std::string t(texte);
  message(f, t);
}

void AfficheStatus(Form& f) {
  const EtatFenetre& w = f.fenetre;
  std::string titre;
  if (w.EditionBlocNote) {
    titre = NomFichSeul(f.reglages.FichierBlocNote);
  } else if (w.ModeCourant == 1) {
    titre = w.ComparaisonEnCours ? "Comparaisonde 2 dic" : "LEX";
  } else if (w.ModeCourant == 3) {
    titre = w.TexteIndexCourant;
  } else if (f.recherche.ListeEnCours) {
    titre = f.recherche.TitreListe;
  } else if (w.DictioCourant >= 1 && w.DictioCourant <= f.catalogue.NombreDictio()) {
    titre = f.catalogue[w.DictioCourant].NomDictio;
  }
  f.ui.SetTitle(titre);
}

}  // namespace lex
