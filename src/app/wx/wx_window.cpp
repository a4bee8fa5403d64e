#include "app/wx/wx_window.h"

#include <wx/clipbrd.h>
#include <wx/filedlg.h>
#include <wx/fontdata.h>
#include <wx/fontdlg.h>
#include <wx/fontenum.h>
#include <wx/textdlg.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

#include <algorithm>
#include <string_view>

#include "app/wx/text_mapping.h"
#include "base/encoding.h"

namespace lex::wx {

wxString VersWx(const std::string& ansi) { return wxString::FromUTF8(AnsiVersUtf8(ansi)); }

std::string DepuisWx(const wxString& s) { return Utf8VersAnsi(std::string(s.utf8_str())); }

namespace {

wxFont PoliceWx(const Police& p) {
  wxFontInfo info(p.taille > 0 ? p.taille : 10);
  // Any fixed-pitch face keeps the columns of the lists when the named one is missing.
  info.Family(wxFONTFAMILY_TELETYPE);
  const wxString nom = VersWx(p.nom);
  if (!nom.empty() && wxFontEnumerator::IsValidFacename(nom)) info.FaceName(nom);
  return wxFont(info);
}

}  // namespace

void ChampTexte::SetTexte(const std::string& ansi) {
  ++version_;
  texte_ = ansi;
  connu_ = true;
  remplace_ = false;
  ctrl_->ChangeValue(wxString::FromUTF8(VersControle(ansi)));
}

const std::string& ChampTexte::Texte() const {
  if (!connu_) {
    const std::string utf8(ctrl_->GetValue().utf8_str());
    texte_ = DepuisControle(utf8);
    remplace_ = AnsiVersUtf8(Utf8VersAnsi(utf8)) != utf8;
    connu_ = true;
  }
  return texte_;
}

void ChampTexte::SetSelection(std::size_t debut, std::size_t longueur) {
  const std::string& t = Texte();
  const long fin = ctrl_->GetLastPosition();
  const long d = std::min<long>(static_cast<long>(PositionControle(t, debut)), fin);
  if (longueur == 0) {
    ctrl_->SetInsertionPoint(d);
  } else {
    ctrl_->SetSelection(d, std::min<long>(static_cast<long>(PositionControle(t, debut + longueur)), fin));
  }
}

Selection ChampTexte::GetSelection() const {
  long de = 0, a = 0;
  ctrl_->GetSelection(&de, &a);
  if (de == a) de = a = ctrl_->GetInsertionPoint();
  const std::string& t = Texte();
  const std::size_t debut = PositionProgramme(t, static_cast<std::size_t>(de));
  return {debut, PositionProgramme(t, static_cast<std::size_t>(a)) - debut};
}

void ChampTexte::SetPolice(const wxFont& police) {
  // The control restyles its whole text for a new font and the caret may move with it: the
  // line the user heard must stay the one under the caret.
  const Selection s = GetSelection();
  ctrl_->SetFont(police);
  SetSelection(s.debut, s.longueur);
}

WxWindow::WxWindow(const Controles& c) : c_(c), txt_(c.txt), rtb_(c.rtb), place_(c.form), parle_(c.form) {}

void WxWindow::SetFont(const Police& p) {
  const wxFont police = PoliceWx(p);
  txt_.SetPolice(police);
  rtb_.SetPolice(police);
  c_.message->SetFont(police);
  c_.message->SetMinSize(wxSize(-1, c_.message->GetCharHeight() * 3 / 2));
  c_.panneau->Layout();
}

namespace {

// Whether the caret is on the same row as the start (or the end) of the text, as the control
// shows it.
bool MemeRangee(wxTextCtrl* c, bool fin) {
#ifdef __WXGTK__
  GtkTextView* vue = GTK_TEXT_VIEW(c->GetConnectWidget());
  GtkTextBuffer* tampon = gtk_text_view_get_buffer(vue);
  GtkTextIter curseur, bout;
  gtk_text_buffer_get_iter_at_mark(tampon, &curseur, gtk_text_buffer_get_insert(tampon));
  if (fin) gtk_text_buffer_get_end_iter(tampon, &bout);
  else gtk_text_buffer_get_start_iter(tampon, &bout);
  GdkRectangle a, b;
  gtk_text_view_get_iter_location(vue, &curseur, &a);
  gtk_text_view_get_iter_location(vue, &bout, &b);
  return a.y == b.y;
#else
  long x = 0, y = 0, yBout = 0;
  c->PositionToXY(c->GetInsertionPoint(), &x, &y);
  c->PositionToXY(fin ? c->GetLastPosition() : 0, &x, &yBout);
  return y == yBout;
#endif
}

}  // namespace

bool WxWindow::CaretOnFirstRow() const { return MemeRangee(IsPaneVisible() ? c_.rtb : c_.txt, false); }

bool WxWindow::CaretOnLastRow() const { return MemeRangee(IsPaneVisible() ? c_.rtb : c_.txt, true); }

void WxWindow::SetPaneVisible(bool visible) {
  if (visible == c_.rtb->IsShown()) return;
  c_.rtb->Show(visible);
  c_.txt->Show(!visible);
  c_.panneau->Layout();
}

void WxWindow::SetMessage(const std::string& t) {
  c_.message->SetLabelText(VersWx(t));
  if (!LigneDejaLue(t)) parle_.Annonce(VersWx(t));
}

void WxWindow::DebutTouche(bool litLaLigne) {
  touche_.reset();
  if (!litLaLigne) return;
  wxWindow* focus = wxWindow::FindFocus();
  ChampTexte* champ = focus == c_.txt ? &txt_ : focus == c_.rtb ? &rtb_ : nullptr;
  if (champ) touche_ = Touche{champ, champ->Version(), champ->GetSelection().debut};
}

bool WxWindow::LigneDejaLue(const std::string& message) const {
  if (!touche_) return false;
  const ChampTexte& champ = *touche_->champ;
  const std::size_t curseur = champ.GetSelection().debut;
  // Neither the text nor the caret moved: the screen reader has nothing to read by itself.
  if (champ.Version() == touche_->version && curseur == touche_->curseur) return false;
  const std::string& texte = champ.Texte();
  const std::size_t debut = texte.rfind('\n', curseur == 0 ? 0 : curseur - 1);
  const std::size_t d = curseur == 0 || debut == std::string::npos ? 0 : debut + 1;
  std::size_t f = texte.find_first_of("\r\n", d);
  if (f == std::string::npos) f = texte.size();
  auto sansBlancs = [](std::string_view v) {
    const std::size_t a = v.find_first_not_of(' ');
    if (a == std::string_view::npos) return std::string_view();
    return v.substr(a, v.find_last_not_of(' ') - a + 1);
  };
  const std::string_view ligne = sansBlancs(std::string_view(texte).substr(d, f - d));
  return !ligne.empty() && ligne == sansBlancs(message);
}

void WxWindow::SetButtonCaption(Bouton b, const std::string& t) {
  wxButton* bouton = c_.boutons[Rang(b)];
  std::optional<wxString>& attente = legendes_[Rang(b)];
  // A screen reader speaks the new name of the control it is on: a button pressed from the
  // keyboard would be heard changing its caption ("OK", then "Définition") before the focus goes
  // back to the field. The caption changes once the command is over and the focus has left.
  if (bouton->HasFocus()) {
    if (!attente) {
      bouton->CallAfter([this, bouton, &attente] {
        if (!attente) return;
        bouton->SetLabel(*attente);
        attente.reset();
        c_.panneau->Layout();
      });
    }
    attente = VersWx(t);
    return;
  }
  attente.reset();
  bouton->SetLabel(VersWx(t));
  c_.panneau->Layout();
}

void WxWindow::SetButtonVisible(Bouton b, bool visible) {
  if (c_.boutons[Rang(b)]->IsShown() == visible) return;
  c_.boutons[Rang(b)]->Show(visible);
  c_.panneau->Layout();
}

Reponse WxWindow::MessageBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre) {
  long style = 0;
  switch (boutons) {
    case Boutons::OK: style = wxOK; break;
    case Boutons::OKCancel: style = wxOK | wxCANCEL; break;
    case Boutons::YesNo: style = wxYES_NO; break;
    case Boutons::YesNoCancel: style = wxYES_NO | wxCANCEL; break;
  }
  switch (icone) {
    case Icone::Aucune: style |= wxICON_NONE; break;
    case Icone::Question: style |= wxICON_QUESTION; break;
    case Icone::Exclamation: style |= wxICON_EXCLAMATION; break;
    case Icone::Information: style |= wxICON_INFORMATION; break;
    case Icone::Critique: style |= wxICON_ERROR; break;
  }
  wxMessageDialog dlg(c_.form, VersWx(texte), VersWx(titre), style);
  switch (dlg.ShowModal()) {
    case wxID_YES: return Reponse::Yes;
    case wxID_NO: return Reponse::No;
    case wxID_OK: return Reponse::OK;
    default:
      // Closing a box that has no Cancel button answers with its last button.
      if (boutons == Boutons::OK) return Reponse::OK;
      if (boutons == Boutons::YesNo) return Reponse::No;
      return Reponse::Cancel;
  }
}

std::string WxWindow::InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) {
  wxTextEntryDialog dlg(c_.form, VersWx(invite), VersWx(titre), VersWx(defaut));
  return dlg.ShowModal() == wxID_OK ? DepuisWx(dlg.GetValue()) : std::string();
}

void WxWindow::ClipboardSetText(const std::string& t) {
  wxClipboardLocker verrou;
  if (!!verrou) wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(VersControle(t))));
}

std::string WxWindow::ClipboardGetText() {
  wxClipboardLocker verrou;
  if (!verrou || !wxTheClipboard->IsSupported(wxDF_UNICODETEXT)) return {};
  wxTextDataObject data;
  if (!wxTheClipboard->GetData(data)) return {};
  return DepuisControle(std::string(data.GetText().utf8_str()));
}

std::string WxWindow::FileDialog(long style, const std::string& titre, const std::string& filtre,
                                 const std::string& dossier, const std::string& nomDefaut) {
  const wxString motif = filtre.empty() ? wxString(wxFileSelectorDefaultWildcardStr) : VersWx(filtre);
  // Paths are the system's own bytes, never squeezed through Windows-1252.
  wxFileDialog dlg(c_.form, VersWx(titre), wxString::FromUTF8(dossier), VersWx(nomDefaut), motif, style);
  return dlg.ShowModal() == wxID_OK ? std::string(dlg.GetPath().utf8_str()) : std::string();
}

std::string WxWindow::OpenFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) {
  return FileDialog(wxFD_OPEN, titre, filtre, dossier, nomDefaut);
}

std::string WxWindow::SaveFileDialog(const std::string& titre, const std::string& filtre, const std::string& dossier,
                                     const std::string& nomDefaut) {
  return FileDialog(wxFD_SAVE, titre, filtre, dossier, nomDefaut);
}

std::optional<Police> WxWindow::FontDialog(const Police& actuelle) {
  wxFontData donnees;
  donnees.SetInitialFont(PoliceWx(actuelle));
  wxFontDialog dlg(c_.form, donnees);
  if (dlg.ShowModal() != wxID_OK) return std::nullopt;
  const wxFont choisie = dlg.GetFontData().GetChosenFont();
  if (!choisie.IsOk()) return std::nullopt;
  return Police{DepuisWx(choisie.GetFaceName()), choisie.GetPointSize()};
}

void WxWindow::Quit() {
  if (quit_) return;
  quit_ = true;
  // Deleted once the current event is over; the last window gone, the program ends.
  c_.form->Destroy();
}

}  // namespace lex::wx
