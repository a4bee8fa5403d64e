// The three buttons and the common way back.
#pragma once

namespace lex {

struct Form;

// Leaves what is being done and goes back one level: to the index, or to the list.
void RetourIndex(Form& f);
void CmdDic_Click(Form& f);
void CmdDivers_Click(Form& f);
void CmdQuitter_Click(Form& f);

}  // namespace lex
