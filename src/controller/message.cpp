#include "controller/message.h"

#include "controller/form.h"
#include "data/files.h"

namespace lex {

void message(Form& f, std::string texte) {
  std::string& precedent = f.fenetre.MessagePrecedent;
  if (!precedent.empty() && precedent.back() == ' ') precedent += ' ';
  while (!texte.empty() && texte.back() == ' ') texte.pop_back();
  texte.insert(texte.begin(), ' ');
  if (texte == precedent) texte += "  ";
  precedent = texte;
  f.ui.SetMessage(texte);
}

void Form::message(std::string texte) { lex::message(*this, std::move(texte)); }

void AfficheStatus(Form& f) {
  const EtatFenetre& w = f.fenetre;
  switch (w.ModeCourant()) {
    case Mode::ListeDictionnaires:
    case Mode::ListeHistoire: f.ui.SetTitle("LEX"); break;
    case Mode::ChoixComparaison: f.ui.SetTitle("Comparaisonde 2 dic"); break;
    case Mode::Article: f.ui.SetTitle(w.TexteIndexCourant); break;
    case Mode::ListeResultats: f.ui.SetTitle(f.liste.Titre()); break;
    case Mode::Index:
      if (w.DictioCourant >= 1 && w.DictioCourant <= f.catalogue.NombreDictio())
        f.ui.SetTitle(f.catalogue[w.DictioCourant].NomDictio);
      break;
    case Mode::BlocNote: f.ui.SetTitle(NomFichSeul(f.blocnote.fichier)); break;
    case Mode::CreationDictio:
    case Mode::CreationIndex: f.ui.SetTitle("Cr\xE9" "ation d'un index"); break;
    case Mode::ModificationIndex: f.ui.SetTitle("Modification d'un index"); break;
    case Mode::Aide: break;  // the guide keeps the title of where it was asked from
  }
}

}  // namespace lex
