// The list the index page shows: the dictionary's own index, or a result list of its entries.
#pragma once
#include <cstdint>
#include <string_view>

#include "data/dictionary_file.h"

namespace lex {

struct Form;

std::int32_t NombreArticle(const Form& f);
std::string_view TexteIndex(const Form& f, std::int32_t i);
// Where article i of the shown list lies in the dictionary file.
Etendue EtendueArticle(const Form& f, std::int32_t i);
// The dictionary's own number of entry i of the shown list.
std::int32_t NumeroDictio(const Form& f, std::int32_t i);

// The article of entry i of the shown list (error 9 outside 1..NombreArticle).
std::string LitDictio(Form& f, std::int32_t i);
// Article i and everything after it to the end of the file.
std::string LitFinDictio(Form& f, std::int32_t i);

}  // namespace lex
