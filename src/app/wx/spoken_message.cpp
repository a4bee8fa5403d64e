#include "app/wx/spoken_message.h"

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

namespace lex::wx {

#ifdef __WXGTK__

MessageParle::~MessageParle() {
  if (decrit_) g_object_unref(decrit_);
}

void MessageParle::Annonce(const wxString& texte) {
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(fenetre_->GetHandle()));
  if (!focus) return;  // nothing of the window is being read: the message line shows it
  AtkObject* acc = gtk_widget_get_accessible(focus);
  if (!acc) return;
  if (decrit_ && decrit_ != acc) Reprend();
  if (!decrit_) decrit_ = g_object_ref(acc);
  // ATK tells nothing of a description's first setting: one is set first that says nothing.
  if (!acc->description) atk_object_set_description(acc, "");
  // Blanks are not heard; a blank message clears the line and says nothing.
  const wxString parle = wxString(texte).Trim(true).Trim(false);
  atk_object_set_description(acc, parle.utf8_str());
  if (!reprise_) {
    reprise_ = true;
    // Taken back once the events of this command have been sent: the screen reader has the
    // text from the event itself.
    fenetre_->CallAfter([this] {
      reprise_ = false;
      Reprend();
    });
  }
}

void MessageParle::Reprend() {
  if (!decrit_) return;
  atk_object_set_description(ATK_OBJECT(decrit_), "");
  g_object_unref(decrit_);
  decrit_ = nullptr;
}

#else

// Elsewhere the native label is read by the screen reader when it changes.
MessageParle::~MessageParle() = default;
void MessageParle::Annonce(const wxString&) {}
void MessageParle::Reprend() {}

#endif

}  // namespace lex::wx
