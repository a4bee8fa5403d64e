// The three buttons and the common way back. Each button does what the mode gives it to do.
#pragma once

namespace lex {

struct Form;

// Leaves what is being done and goes back one level: to the index, or to the list.
void RetourIndex(Form& f);
void CmdDic_Click(Form& f);
void CmdDivers_Click(Form& f);
void CmdQuitter_Click(Form& f);

}  // namespace lex
