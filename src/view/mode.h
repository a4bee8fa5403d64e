// What the user is in. The controller enters each mode through one function that sets
// everything going with it; the subsystems only read it.
#pragma once

namespace lex {

enum class Mode {
  ListeDictionnaires,  // the main list of the catalogue
  ListeHistoire,       // the history group's own list
  ChoixComparaison,    // the list of dictionaries, to choose the one the open dictionary is
                       // compared with; the open dictionary stays open behind it
  Index,               // a page of the open dictionary's index
  ListeResultats,      // a page of a result list, in place of the index
  Article,             // an article being read
  Aide,                // the guide or the about text, read line by line
  BlocNote,            // the notepad, edited page by page in the index field
  CreationDictio,      // the first article of a new dictionary, typed in the index field
  CreationIndex,       // a new article of the open dictionary, typed in the index field
  ModificationIndex,   // an article of the open dictionary, changed in the index field
};

// A page of the index or of a result list is shown.
inline bool SurUneListe(Mode m) { return m == Mode::Index || m == Mode::ListeResultats; }
// A list of the catalogue is shown (for opening a dictionary, or for choosing one to compare
// with): typed letters move on its rows.
inline bool SurLeCatalogue(Mode m) {
  return m == Mode::ListeDictionnaires || m == Mode::ListeHistoire || m == Mode::ChoixComparaison;
}
// An article of the open dictionary is being typed.
inline bool SaisieArticle(Mode m) { return m == Mode::CreationIndex || m == Mode::ModificationIndex; }
// A dictionary is open: a page of it, or one of its articles.
inline bool DansUnDictionnaire(Mode m) { return SurUneListe(m) || m == Mode::Article; }

}  // namespace lex
