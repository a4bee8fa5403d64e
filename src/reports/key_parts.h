// Two sets of a million folded keys, and which keys of the one the other lacks. Looking each
// key up in one big table would cost a trip to memory per key; instead the keys are spread
// over parts by their hash as they come, bytes and all, so that each part of the one is then
// matched against the same part of the other with a table that stays in the processor's cache.
#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace lex {

class ClesReparties {
 public:
  // Parts fit for about `nombre` keys; the sets compared must be made with as many parts.
  // `numeros`: the number each key is given is kept (the set whose absent keys are asked for).
  explicit ClesReparties(std::size_t nombre = 0, bool numeros = false);
  // As many parts as `modele`, for about `nombre` keys.
  ClesReparties(std::size_t nombre, const ClesReparties& modele, bool numeros);
  // A key of at most 255 bytes, with the number it is known by (its entry); the same key may
  // come twice.
  void Ajouter(std::string_view cle, std::int32_t numero);
  std::size_t Nombre() const { return nombre_; }

  std::size_t Parties() const { return parties_.size(); }

  // Over parts [debut, fin): sets absent[n] for the number n of each key of `ceux` (which keeps
  // numbers) that none of `autres` holds. All must have as many parts, and `absent` room for
  // every number of `ceux`.
  // Calls on other parts may run at the same time.
  friend void MarqueAbsents(const ClesReparties& ceux, const std::vector<const ClesReparties*>& autres,
                            std::size_t debut, std::size_t fin, std::vector<char>& absent);

 private:
  // A part's keys lie in pieces taken in turn from big blocks: writing a million keys over
  // many parts touches few pages, each written from end to end.
  struct Morceau {
    char* debut;
    char* fin;
  };
  // The piece a part is filling, kept apart from its full ones: it is what each key needs.
  struct Partie {
    char* debut = nullptr;
    char* fin = nullptr;
    char* limite = nullptr;
    std::size_t nombre = 0;
  };
  void Prepare(std::size_t parties, std::size_t nombre, bool numeros);
  // A new piece for part n.
  void NouveauMorceau(std::size_t n);
  // Calls f(entry) for each key of part n.
  template <class F>
  void PourChaque(std::size_t n, F&& f) const;

  std::vector<Partie> parties_;
  std::vector<std::vector<Morceau>> pleins_;
  unsigned decalage_ = 64;  // the part is the hash shifted right by this much
  std::size_t tete_ = 0;    // what comes before a key's bytes: its length, hash and number
  std::vector<std::unique_ptr<char[]>> blocs_;
  char* libre_ = nullptr;  // the unused rest of the last block
  std::size_t resteBloc_ = 0;
  std::size_t tailleBloc_ = 0;
  std::size_t nombre_ = 0;
};

}  // namespace lex
