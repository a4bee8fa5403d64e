// How the two conversion commands end: what they did, or a French reason on the error output
// and a status of 1, whatever went wrong (the source, the disk, the memory).
#pragma once
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>

#include "base/encoding.h"
#include "base/error.h"
#include "data/write_error.h"
#include "exchange/article.h"

namespace lex::convert {

inline int Echec(const char* commande, const std::string& message) {
  std::cerr << commande << " : " << message << "\n";
  return 1;
}

// Runs `travail`, which returns the command's status; an exception becomes its French reason.
template <class Travail>
int Execute(const char* commande, Travail travail) {
  try {
    return travail();
  } catch (const exchange::ErreurImport& e) {
    return Echec(commande, e.what());
  } catch (const ErreurEcriture& e) {
    return Echec(commande, AnsiVersUtf8(MessageErreurEcriture(e)));
  } catch (const LexError& e) {
    return Echec(commande, AnsiVersUtf8(LexError::Texte(e.numero())));
  } catch (const std::bad_alloc&) {
    return Echec(commande, "m\xC3\xA9moire insuffisante");
  } catch (const std::exception& e) {
    return Echec(commande, e.what());
  }
}

}  // namespace lex::convert
