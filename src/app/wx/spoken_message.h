// The message line made heard by the screen reader as its text alone.
//
// A label's text change is not spoken by Orca; a label given the notification role is, but
// prefixed with the word "notification" every time, which was a fifth of all that a user heard.
// What every screen reader speaks as it is, is a change of the description of the control that
// has the focus: the message is given to it for that moment, then taken back, so that the
// control is not described by an old message when the focus comes back to it.
#pragma once
#include <wx/wx.h>

namespace lex::wx {

class MessageParle {
 public:
  explicit MessageParle(wxFrame* fenetre) : fenetre_(fenetre) {}
  ~MessageParle();
  MessageParle(const MessageParle&) = delete;
  MessageParle& operator=(const MessageParle&) = delete;

  void Annonce(const wxString& texte);

 private:
  void Reprend();

  wxFrame* fenetre_;
  void* decrit_ = nullptr;  // the accessible that holds the message, until it is taken back
  bool reprise_ = false;    // taking it back is queued
};

}  // namespace lex::wx
