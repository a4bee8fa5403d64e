// The catalogue keeps its shape through additions and removals, and what is kept per
// dictionary follows its entry; names typed by the user stay file names of one folder.
#include <gtest/gtest.h>

#include "base/error.h"
#include "catalogue/catalogue.h"
#include "catalogue/management.h"

using namespace lex;

namespace {

TEST(Management, NamesThatCannotNameAFileOfTheFolder) {
  for (const char* nom : {"Carnet", "Mots (anciens)", "\xC9" "crivains", "a.b", "x y"}) EXPECT_TRUE(NomDeFichierPermis(nom)) << nom;
  for (const char* nom : {"", ".", "..", "a/b", "a\\b", "c:", "a*", "a?", "\"a\"", "<a>", "a|b", "fin.", "fin ", "\x01"})
    EXPECT_FALSE(NomDeFichierPermis(nom)) << nom;
  EXPECT_FALSE(NomDeFichierPermis(std::string(300, 'a')));
}

CatalogueEntry Entree(const std::string& nom) {
  CatalogueEntry e;
  e.NomDictio = e.NomFichier = nom;
  e.Suffixe = "txt";
  return e;
}

TEST(Management, TheGroupsStayInPlaceAndNumbersFollowTheirEntries) {
  Catalogue c;
  InitDictio(c, "/d/");
  const int bloc = c.NombreDictio();
  Selections s;
  InsereDictio(c, s, bloc, Entree("ajout"), false);  // before "BLOC NOTE"
  s.TableSelection[bloc] = {4, 5};  // the added dictionary
  s.TableAjout[3] = {1};
  s.GardeNumeros = {bloc};
  InsereDictio(c, s, 10, Entree("histoire 1"), true);
  EXPECT_EQ(c.NombreHistoire, 1);
  EXPECT_EQ(c[10].NomDictio, "histoire 1");
  EXPECT_EQ(c[bloc + 1].NomDictio, "ajout");
  EXPECT_EQ(c[c.NombreDictio()].NomDictio, "BLOC NOTE");
  EXPECT_EQ(s.TableSelection.count(bloc + 1), 1u);
  EXPECT_EQ(s.TableAjout.count(3), 1u);
  EXPECT_EQ(s.GardeNumeros, std::set<int>{bloc + 1});
  // Nothing goes above the built-in rows, into the history group from outside it, or after
  // "BLOC NOTE".
  EXPECT_THROW(InsereDictio(c, s, 9, Entree("x"), false), LexError);
  EXPECT_THROW(InsereDictio(c, s, 10, Entree("x"), false), LexError);
  EXPECT_THROW(InsereDictio(c, s, c.NombreDictio() + 1, Entree("x"), false), LexError);
  EXPECT_THROW(RetireDictio(c, s, c.NombreDictio()), LexError);
  EXPECT_THROW(RetireDictio(c, s, 9), LexError);

  RetireDictio(c, s, 10);
  EXPECT_EQ(c.NombreHistoire, 0);
  EXPECT_EQ(s.TableSelection.count(bloc), 1u);
  RetireDictio(c, s, bloc);
  EXPECT_TRUE(s.TableSelection.empty());
  EXPECT_TRUE(s.GardeNumeros.empty());
  EXPECT_EQ(c.NombreDictio(), bloc);
  EXPECT_EQ(LettresUtilisees(c), "AFIRCPEVHB");
}

}  // namespace
