#include "controller/line_helpers.h"

#include "controller/form.h"
#include "controller/message.h"

namespace lex {

std::string TexteChamp(const Form& f) { return f.ui.IsPaneVisible() ? f.ui.GetPaneText() : f.ui.GetLineText(); }

std::size_t CurseurChamp(const Form& f) {
  return f.ui.IsPaneVisible() ? f.ui.GetPaneSelection().debut : f.ui.GetLineSelection().debut;
}

void PoseCurseur(Form& f, std::size_t position) {
  if (f.ui.IsPaneVisible()) f.ui.SetPaneSelection(position, 0);
  else f.ui.SetLineSelection(position, 0);
}

std::int32_t numeroTxt(const std::string& texte, std::size_t position) {
  std::int32_t n = 1;
  const std::size_t fin = std::min(position, texte.size());
  for (std::size_t i = texte.find("\r\n"); i != std::string::npos && i < fin; i = texte.find("\r\n", i + 2)) ++n;
  return n;
}

std::int32_t LigneCurseur(const Form& f) { return numeroTxt(TexteChamp(f), CurseurChamp(f)); }

std::string extraitLigne(const std::string& texte, std::size_t& position) {
  position = std::min(position, texte.size());
  std::size_t debut = position == 0 ? std::string::npos : texte.rfind('\n', position - 1);
  debut = debut == std::string::npos ? 0 : debut + 1;
  std::size_t fin = texte.find('\r', debut);
  if (fin == std::string::npos) fin = texte.size();
  position = debut;
  return texte.substr(debut, fin - debut);
}

std::size_t DebutLigne(const std::string& texte, std::int32_t n) {
  std::size_t debut = 0;
  for (std::int32_t i = 1; i < n; ++i) {
    std::size_t p = texte.find("\r\n", debut);
    if (p == std::string::npos) break;
    debut = p + 2;
  }
  return debut;
}

void SurNumero(Form& f, const std::string& texte, std::int32_t n) {
  std::size_t debut = DebutLigne(texte, n);
  PoseCurseur(f, debut);
  message(f, extraitLigne(texte, debut));
}

std::size_t FinLigne(const Form& f) {
  const std::string texte = TexteChamp(f);
  std::size_t p = CurseurChamp(f);
  extraitLigne(texte, p);
  std::size_t cr = texte.find('\r', p);
  return cr == std::string::npos ? texte.size() + 1 : cr + 1;
}

void AnnonceLigneCourante(Form& f) {
  std::size_t p = CurseurChamp(f);
  message(f, extraitLigne(TexteChamp(f), p));
}

std::int32_t IndexAbsolu(const Form& f) { return f.fenetre.PremierIndexAffiche + LigneCurseur(f) - 1; }

void FocusChamp(Form& f) {
  if (f.ui.IsPaneVisible()) f.ui.FocusPane();
  else f.ui.FocusLine();
}

void MontreDansTxt(Form& f, const std::string& texte) {
  if (f.ui.IsPaneVisible()) {
    f.ui.SetPaneVisible(false);
    f.ui.FocusLine();
  }
  f.ui.SetLineText(texte);
  f.ui.SetLineSelection(0, 0);
}

}  // namespace lex
