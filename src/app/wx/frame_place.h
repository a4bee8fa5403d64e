// The frame's place and size as the program keeps them: the size the window has when it is
// not maximised, followed as the user moves and resizes it, and a frame put back within the
// desktop it will be seen on.
#pragma once
#include <wx/wx.h>

#include "view/window.h"

namespace lex::wx {

class PlaceFenetre {
 public:
  explicit PlaceFenetre(wxFrame* form);
  ~PlaceFenetre();
  PlaceFenetre(const PlaceFenetre&) = delete;
  PlaceFenetre& operator=(const PlaceFenetre&) = delete;

  Cadre Lit() const;
  void Pose(const Cadre& voulu);

 private:
  void Suit(wxEvent& e);
  wxFrame* form_;
  wxRect normal_;  // the frame when last neither maximised nor minimised
};

}  // namespace lex::wx
