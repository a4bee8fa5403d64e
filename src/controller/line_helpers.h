// Lines of the shown field: the rich text pane when it is visible, the index field otherwise.
// Lines end with "\r\n"; positions given to the window are 0-based.
#pragma once
#include <cstdint>
#include <string>

namespace lex {

struct Form;

// The shown field's whole text and caret.
std::string TexteChamp(const Form& f);
std::size_t CurseurChamp(const Form& f);
void PoseCurseur(Form& f, std::size_t position);

// 1-based number of the line holding the character before 0-based `position`: the "\r\n"
// pairs that begin before it are counted, so the end of a line still belongs to it.
std::int32_t numeroTxt(const std::string& texte, std::size_t position);
// The caret's line number in the shown field.
std::int32_t LigneCurseur(const Form& f);
// The text of the line holding 0-based `position`; `position` moves to that line's start.
std::string extraitLigne(const std::string& texte, std::size_t& position);
// Caret to the start of line n (the last line when there are fewer) of `texte`, the text the
// field shows, that line announced.
void SurNumero(Form& f, const std::string& texte, std::int32_t n);
// 1-based position of the CR ending the caret's line, or the length + 1 on the last line.
std::size_t FinLigne(const Form& f);
// 0-based start of line n of `texte` (the last line's start when there are fewer).
std::size_t DebutLigne(const std::string& texte, std::int32_t n);
// The number, in the shown list, of the index entry under the caret.
std::int32_t IndexAbsolu(const Form& f);
// Puts `texte` in the index field, in place of the rich text pane if that was shown, the
// caret at its start.
void MontreDansTxt(Form& f, const std::string& texte);
// Gives the keyboard focus to the shown field.
void FocusChamp(Form& f);
// Announces the caret's line.
void AnnonceLigneCourante(Form& f);

}  // namespace lex
