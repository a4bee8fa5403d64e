// A dictionary of the catalogue whose file does not exist yet: its first article is typed, and
// "OK" makes the file.
#pragma once

namespace lex {

struct Form;

// On a row of a list whose dictionary file is absent, the empty field for its first article.
void CreationDictio(Form& f);
// "OK": the article typed becomes the new file, which opens on its index.
void SauveCreationDictio(Form& f);

}  // namespace lex
