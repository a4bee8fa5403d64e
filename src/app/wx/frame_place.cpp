#include "app/wx/frame_place.h"

#include <wx/display.h>

#include "controller/window_frame.h"

namespace lex::wx {

PlaceFenetre::PlaceFenetre(wxFrame* form) : form_(form), normal_(form->GetRect()) {
  form_->Bind(wxEVT_SIZE, &PlaceFenetre::Suit, this);
  form_->Bind(wxEVT_MOVE, &PlaceFenetre::Suit, this);
}

PlaceFenetre::~PlaceFenetre() {
  form_->Unbind(wxEVT_SIZE, &PlaceFenetre::Suit, this);
  form_->Unbind(wxEVT_MOVE, &PlaceFenetre::Suit, this);
}

void PlaceFenetre::Suit(wxEvent& e) {
  // A maximised window is kept with the size it goes back to.
  if (!form_->IsMaximized() && !form_->IsIconized()) normal_ = form_->GetRect();
  e.Skip();
}

Cadre PlaceFenetre::Lit() const {
  const bool maximise = form_->IsMaximized();
  const wxRect r = maximise || form_->IsIconized() ? normal_ : form_->GetRect();
  return {r.x, r.y, r.width, r.height, true, maximise};
}

void PlaceFenetre::Pose(const Cadre& voulu) {
  // The screen the frame was on last time, while it is still there; else the main one.
  int n = wxNOT_FOUND;
  if (voulu.place) n = wxDisplay::GetFromPoint(wxPoint(voulu.x + voulu.largeur / 2, voulu.y + voulu.hauteur / 2));
  const wxRect zone = wxDisplay(n == wxNOT_FOUND ? 0u : static_cast<unsigned>(n)).GetClientArea();
  const Cadre c = CadreVisible(voulu, {zone.x, zone.y, zone.width, zone.height, true, false});
  form_->SetSize(c.x, c.y, c.largeur, c.hauteur);
  normal_ = wxRect(c.x, c.y, c.largeur, c.hauteur);
  if (c.maximise) form_->Maximize(true);
}

}  // namespace lex::wx
