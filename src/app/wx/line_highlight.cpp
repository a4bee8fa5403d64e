#include "app/wx/line_highlight.h"

#ifdef __WXGTK__
#include <gtk/gtk.h>

#include <algorithm>
#include <cmath>
#endif

namespace lex::wx {

#ifdef __WXGTK__
namespace {

constexpr const char* kNomMarque = "lex-ligne-du-curseur";

double Composante(double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); }

double Luminance(const GdkRGBA& c) {
  return 0.2126 * Composante(c.red) + 0.7152 * Composante(c.green) + 0.0722 * Composante(c.blue);
}

double Contraste(const GdkRGBA& a, const GdkRGBA& b) {
  const double la = Luminance(a), lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

GdkRGBA Melange(const GdkRGBA& fond, const GdkRGBA& teinte, double part) {
  return {fond.red + (teinte.red - fond.red) * part, fond.green + (teinte.green - fond.green) * part,
          fond.blue + (teinte.blue - fond.blue) * part, 1.0};
}

GdkRGBA Couleur(GtkStyleContext* ctx, const char* nom, const GdkRGBA& sinon) {
  GdkRGBA c;
  return gtk_style_context_lookup_color(ctx, nom, &c) ? c : sinon;
}

// The theme's text on its own background, tinted with its selection colour: as much as shows
// the line clearly, less when the text would no longer stand out from it by 4.5 to 1.
void Colore(GtkWidget* vue, GtkTextTag* marque) {
  GtkStyleContext* ctx = gtk_widget_get_style_context(vue);
  GdkRGBA texte;
  gtk_style_context_get_color(ctx, gtk_style_context_get_state(ctx), &texte);
  texte = Couleur(ctx, "theme_text_color", texte);
  const GdkRGBA fond = Couleur(ctx, "theme_base_color", {1, 1, 1, 1});
  const GdkRGBA selection = Couleur(ctx, "theme_selected_bg_color", texte);
  GdkRGBA teinte = fond;
  for (double part = 0.3; part > 0.0; part -= 0.05) {
    teinte = Melange(fond, selection, part);
    if (Contraste(texte, teinte) >= 4.5) break;
    teinte = fond;
  }
  g_object_set(marque, "paragraph-background-rgba", &teinte, nullptr);
}

void Marque(GtkTextBuffer* tampon) {
  GtkTextTag* marque = gtk_text_tag_table_lookup(gtk_text_buffer_get_tag_table(tampon), kNomMarque);
  GtkTextIter debut, fin;
  gtk_text_buffer_get_bounds(tampon, &debut, &fin);
  gtk_text_buffer_remove_tag(tampon, marque, &debut, &fin);
  gtk_text_buffer_get_iter_at_mark(tampon, &debut, gtk_text_buffer_get_insert(tampon));
  gtk_text_iter_set_line_offset(&debut, 0);
  fin = debut;
  // Up to the start of the next line: the line's end is marked, not the next line.
  gtk_text_iter_forward_line(&fin);
  gtk_text_buffer_apply_tag(tampon, marque, &debut, &fin);
}

void MarqueDeplacee(GtkTextBuffer* tampon, GtkTextIter*, GtkTextMark* m, gpointer) {
  if (m == gtk_text_buffer_get_insert(tampon)) Marque(tampon);
}

void TexteChange(GtkTextBuffer* tampon, gpointer) { Marque(tampon); }

void ThemeChange(GtkWidget* vue, gpointer marque) { Colore(vue, GTK_TEXT_TAG(marque)); }

}  // namespace

void SurligneLigneDuCurseur(wxTextCtrl* champ) {
  GtkWidget* vue = champ->GetConnectWidget();
  if (!GTK_IS_TEXT_VIEW(vue)) return;
  GtkTextBuffer* tampon = gtk_text_view_get_buffer(GTK_TEXT_VIEW(vue));
  GtkTextTag* marque = gtk_text_buffer_create_tag(tampon, kNomMarque, nullptr);
  // Under every other style of the text: a found word's selection shows over it.
  gtk_text_tag_set_priority(marque, 0);
  Colore(vue, marque);
  g_signal_connect(vue, "style-updated", G_CALLBACK(ThemeChange), marque);
  g_signal_connect_after(tampon, "mark-set", G_CALLBACK(MarqueDeplacee), nullptr);
  g_signal_connect_after(tampon, "changed", G_CALLBACK(TexteChange), nullptr);
  Marque(tampon);
}
#else
void SurligneLigneDuCurseur(wxTextCtrl*) {}
#endif

}  // namespace lex::wx
