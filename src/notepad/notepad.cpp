#include "notepad/notepad.h"

#include <filesystem>

#include "base/error.h"
#include "data/files.h"

namespace lex {
namespace {


// The notepad written, after its backup; a notepad that would lose what it holds is not.
void Ecrit(PartiesBlocNote& p) {
  if (!p.bloc.lectureSeule.empty()) {
    p.dialogues.MessageBox("Le bloc note " + CheminAffiche(p.bloc.fichier) + " n'est pas enregistr\xE9 : " +
                               p.bloc.lectureSeule + ".",
                           Boutons::OK, Icone::Exclamation, kTitreBoites);
    return;
  }
  sauvebakBlocNote(p.bloc);
  RangeBlocNote(p.bloc);
  p.ecran.message("enregistrer");
}

}  // namespace

void blocnote(PartiesBlocNote& p) {
  ErrorTrap trap("sur BlocNote");
  if (p.ecran.mode() == Mode::BlocNote) {
    p.ecran.message("bloc note d\xE9j\xE0 ouvert");
    return;
  }
  const std::string& fichier = p.fichier;
  if (!FichierExistant(fichier)) {
    std::error_code ec;
    const auto dossier = CheminNatif(fichier).parent_path();
    if (!dossier.empty() && !std::filesystem::is_directory(dossier, ec)) {
      p.dialogues.MessageBox("Le dossier du bloc note " + CheminAffiche(fichier) + " n'existe pas.", Boutons::OK,
                             Icone::Exclamation, kTitreBoites);
      return;
    }
    if (p.dialogues.MessageBox("Le fichier " + CheminAffiche(fichier) + " n'existe pas. Cr\xE9" "er le bloc note",
                               Boutons::YesNo, Icone::Question, kTitreBoites) != Reponse::Yes)
      return;
  }
  p.bloc = LireBlocNote(fichier);
  p.ecran.MontreBlocNote();
  if (!p.bloc.lectureSeule.empty())
    p.dialogues.MessageBox("Le bloc note " + CheminAffiche(fichier) + " se lit sans pouvoir \xEAtre enregistr\xE9 : " +
                               p.bloc.lectureSeule + ".",
                           Boutons::OK, Icone::Exclamation, kTitreBoites);
}

void SauveBlocNote(PartiesBlocNote& p) {
  ErrorTrap trap(" sur SauveBlocNote");
  p.ecran.GardePage();
  if (p.bloc.modifie &&
      p.dialogues.MessageBox("Sauvegarder le bloc note", Boutons::YesNo, Icone::Question, kTitreBoites) == Reponse::Yes)
    Ecrit(p);
  p.ecran.QuitteBlocNote();
}

void EnregistreBlocNote(PartiesBlocNote& p) {
  ErrorTrap trap(" sur mnuEnregistrer_Click");
  p.ecran.GardePage();
  Ecrit(p);
}

bool QuitteAvecBlocNote(PartiesBlocNote& p) {
  p.ecran.GardePage();
  if (!p.bloc.modifie || !p.bloc.lectureSeule.empty()) return true;
  switch (p.dialogues.MessageBox("Sauvegarder le bloc note", Boutons::YesNoCancel, Icone::Question, kTitreBoites)) {
    case Reponse::Yes: Ecrit(p); return !p.bloc.modifie;
    case Reponse::No: return true;
    default: return false;
  }
}

void InscrireCommandesBlocNote(RegistreCommandes& registre, PartiesBlocNote p) {
  registre.Inscrire(MenuId::mnuBlocNote, [p]() mutable { blocnote(p); });
}

}  // namespace lex
