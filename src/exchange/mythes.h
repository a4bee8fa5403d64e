// The thesaurus of OpenOffice and LibreOffice (MyThes, ".dat"): its first line names the
// encoding of the rest; then each word comes as "word|count" followed by `count` lines
// "(part of speech)|synonym|synonym...". Each word becomes an article, one definition line
// per meaning: "(Nom) chanvre, jute".
#pragma once
#include <filesystem>

#include "exchange/article.h"

namespace lex::exchange {

// Whether the file looks like a MyThes thesaurus: a short first line without "|", then a
// line "word|number". Reads only the start of the file; never throws.
bool EstMyThes(const std::filesystem::path& fichier);

// Gives every word of the thesaurus to `recepteur`, in the order of the file. Throws
// ErreurImport for an encoding the converters do not know, a count that is not a number,
// fewer meaning lines than a word announces, text that is not in the named encoding, or an
// empty file.
void LitMyThes(const std::filesystem::path& fichier, const Recepteur& recepteur);

}  // namespace lex::exchange
