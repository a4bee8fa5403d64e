// Verbiste's French conjugation tables: verbs-fr.xml gives each verb's infinitive and the
// name of its template ("aim:er": radical, then the ending the infinitive ends with), and
// conjugation-fr.xml gives each template's endings, person by person, for every mode and
// tense. Each verb becomes an article: its infinitive, then one line per simple tense,
// "Indicatif présent : j'aime, tu aimes, il aime, nous aimons, vous aimez, ils aiment".
#pragma once
#include <filesystem>

#include "exchange/article.h"

namespace lex::exchange {

// Whether `chemin` is a folder holding verbs-fr.xml and conjugation-fr.xml, or one of the two
// files (verbs-fr.xml or conjugation-fr.xml, by name). Never throws.
bool EstVerbiste(const std::filesystem::path& chemin);

// Gives every verb to `recepteur`, in the order of verbs-fr.xml. Throws ErreurImport for a
// file missing, XML that is not well formed (with its line), a verb whose template does not
// exist or whose infinitive does not end as its template says (with the entry).
void LitVerbiste(const std::filesystem::path& chemin, const Recepteur& recepteur);

}  // namespace lex::exchange
