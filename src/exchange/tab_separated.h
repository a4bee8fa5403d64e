// Tab-separated text: one article a line, its headword, a tab, its definition, in which "\n"
// separates the lines ("\t" is a tab and "\\" a backslash; any other backslash is kept). The
// file is UTF-8 (with or without its mark) or Windows-1252, told from its bytes: UTF-8 when
// every line is. Lines end with LF or CR LF; empty lines are skipped.
#pragma once
#include <filesystem>

#include "exchange/article.h"

namespace lex::exchange {

// A text file (no NUL byte at its start) whose first line holds a tab.
bool EstTabulations(const std::filesystem::path& fichier);
// Throws ErreurImport naming the line: a line without tab, an empty headword, a NUL byte or a
// CR inside a line; and for a file in UTF-16 or without any article.
void LitTabulations(const std::filesystem::path& fichier, const Recepteur& recepteur);

}  // namespace lex::exchange
