#include "catalogue/working_copy.h"

#include <exception>
#include <future>

#include "data/index_update.h"
#include "data/write_error.h"
#include "selection/marks.h"
#include "selection/selecting.h"

namespace lex {

Changement ChangeCopieTravail(Catalogue& c, const std::string& dossierDictio, int d, DictionnaireOuvert& dico,
                              Selections& s,
                              const std::function<Changement(const std::string& source, EcritureSure& cible)>& ecrire,
                              const AvisOuverture& avis) {
  const std::string copie = NomDictionnaire(c, dossierDictio, d) + ".bak";
  Changement ch;
  {
    // The working copy may be the source itself: the new one takes its place only once whole.
    EcritureSure cible(copie, Donnees::Utilisateur);
    ch = ecrire(dico.fichiers.dictio, cible);
    cible.Valider();
  }
  c[d].DicModifie = true;
  dico.fichiers.dictio = copie;
  SuitChangement(s, d, ch);
  InitIndex(dico, s, d, avis);
  return ch;
}

Changement RetoucheCopieTravail(Catalogue& c, const std::string& dossierDictio, int d, DictionnaireOuvert& dico,
                                Selections& s, const Retouche& r, const AvisOuverture& avis) {
  const std::string copie = NomDictionnaire(c, dossierDictio, d) + ".bak";
  const EtatDictio ancien = LireEtatDictio(dico.fichiers.dictio);
  FichiersIndex fichiers = dico.fichiers;
  fichiers.dictio = copie;
  EcritureSure cible(copie, Donnees::Utilisateur);
  const Recomposition rc = EcritRetouche(dico.fichiers.dictio, cible, dico.TableIndex, r);
  // Started now, the new index is written while the working copy goes to the disk.
  SuiviIndex index(fichiers, ancien, dico.TableIndex.NombreArticle(),
                   {rc.taille, static_cast<std::int64_t>(cible.Date().time_since_epoch().count())}, rc);
  // Forcing the working copy to the disk and freeing the old one take most of the time: the
  // tables and the index follow the change meanwhile. If the copy fails, the tables go back;
  // index files already replaced describe no file then, and the next opening rebuilds them.
  std::future<void> valide = std::async(std::launch::async, [&cible] { cible.Valider(); });
  IndexTable::Ancien table;
  const TableLettre lettres = dico.Lettres;
  std::exception_ptr echecIndex;
  if (index.Actif()) {
    try {
      index.Termine(dico.OrdreAlpha, dico.TableIndex, dico.Lettres, avis.bip, table);
    } catch (...) {
      echecIndex = std::current_exception();
    }
  }
  try {
    valide.get();
  } catch (...) {
    dico.TableIndex.Restaurer(std::move(table));
    dico.Lettres = lettres;
    throw;
  }
  c[d].DicModifie = true;
  dico.fichiers.dictio = copie;
  SuitChangement(s, d, rc.changement);
  if (!index.Actif()) {
    InitIndex(dico, s, d, avis);
    return rc.changement;
  }
  if (echecIndex) {
    try {
      std::rethrow_exception(echecIndex);
    } catch (const ErreurEcriture& e) {
      // The tables follow the change already; the files are rebuilt at the next opening.
      AlerteIndexEnMemoire(MessageErreurEcriture(e), avis);
    } catch (...) {
      // An old index that was not what it said: built again from the new dictionary.
      InitIndex(dico, s, d, avis);
      return rc.changement;
    }
  }
  MarqueEntrees(dico.TableIndex, s, d, rc.changement.NumerosInseres());
  return rc.changement;
}

}  // namespace lex
