// The in-memory index of one dictionary: every index line with its folded key and the byte
// offset of its article. A large dictionary has a million entries, so the texts live in a
// few big blocks instead of a million small strings.
#pragma once
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lex {

class IndexTable {
 public:
  IndexTable() = default;
  IndexTable(IndexTable&&) = default;
  IndexTable& operator=(IndexTable&&) = default;

  void Vider();
  void Reserver(std::size_t entrees);
  // Appends entry NombreArticle() + 1.
  void Ajouter(std::string_view texte, std::string_view cle, std::int32_t position);
  // The same, the key being written in place by `plier(texte, destination)`, which writes at
  // most twice the text's length and returns the key's; gives the key as stored. Building an
  // index saves a copy of every key, and the memory of a second one for a very long line.
  template <class Plieur>
  std::string_view AjouterPlie(std::string_view texte, std::int32_t position, Plieur&& plier) {
    char* p = Place(3 * texte.size());
    if (!texte.empty()) std::memcpy(p, texte.data(), texte.size());
    const std::size_t longCle = plier(texte, p + texte.size());
    Inscrire(texte.size(), longCle, position);
    return {p + texte.size(), longCle};
  }
  // Closes the table with the sentinel whose position is the file length.
  void Terminer(std::int32_t tailleDictio);

  std::int32_t NombreArticle() const { return static_cast<std::int32_t>(refs_.size()); }
  // Entries are numbered from 1; the sentinel is NombreArticle() + 1 and has an empty text.
  std::string_view texte(std::int32_t i) const;
  std::string_view cle(std::int32_t i) const;
  std::int32_t position(std::int32_t i) const;
  std::int32_t TailleDictio() const { return taille_; }

  // Selection and addition marks rewrite an entry's text in memory only: it becomes `debut`
  // followed by `suite`. The new text goes into the blocks like the others, so that marking
  // a million entries costs no allocation per entry and reading them back no look-up.
  void ChangerTexte(std::int32_t i, std::string_view debut, std::string_view suite = {});
  // The table after a change of its dictionary, given in the new order: runs of old entries
  // whose offsets all moved by one amount, and new entries. The old entries keep their texts
  // (and so their marks) without a copy; a million of them cost a pass over their references.
  struct Morceau {
    std::int32_t premier = 0, dernier = -1;  // old entries premier..dernier; empty for a new one
    std::int64_t decalage = 0;
    std::string_view texte;  // a new entry's, its key folded by `plier` as AjouterPlie does
    std::int32_t position = 0;
  };
  // What Recomposer replaced, to be put back when the change it followed did not take place.
  class Ancien;
  Ancien Recomposer(const std::vector<Morceau>& morceaux, std::int32_t tailleDictio,
                    std::size_t (*plier)(std::string_view texte, char* destination));
  // Back to the table before Recomposer gave `ancien`; nothing when it is empty.
  void Restaurer(Ancien&& ancien);
  // Room for `octets` bytes of changed texts and their keys in one block: marking every entry
  // then asks the system for memory once.
  void ReserverChangements(std::size_t octets) { Place(octets); }

 private:
  struct Ref {
    std::uint32_t bloc;
    std::uint32_t debut;
    std::uint32_t longTexte;
    std::uint32_t longCle;
  };
  void Verifier(std::int32_t i, bool sentinelle) const;
  // Room for `n` bytes at the end of the last block, which a new block gives when short.
  char* Place(std::size_t n);
  // Records the entry just placed, of those lengths.
  void Inscrire(std::size_t longTexte, std::size_t longCle, std::int32_t position);

  static constexpr std::size_t kBloc = 1 << 22;
  std::vector<std::unique_ptr<char[]>> blocs_;
  std::size_t libre_ = 0;  // bytes left in the last block
  std::size_t tailleBloc_ = 0;
  std::vector<Ref> refs_;
  std::vector<std::int32_t> positions_;
  std::int32_t taille_ = 0;

 public:
  class Ancien {
    friend class IndexTable;
    std::vector<Ref> refs_;
    std::vector<std::int32_t> positions_;
    std::int32_t taille_ = 0;
    bool plein_ = false;
  };
};

}  // namespace lex
