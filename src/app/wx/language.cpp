#include "app/wx/language.h"

#include <wx/intl.h>
#include <wx/translation.h>

#include <clocale>
#include <cstdlib>
#include <cstring>

#ifdef __WXGTK__
#include <glib.h>
#endif

namespace lex::wx {

namespace {

// The language part of a locale name: "de" for "de_DE.UTF-8", "" for "C" or "POSIX".
std::string Langue(const char* nom) {
  if (!nom || !*nom || std::strcmp(nom, "C") == 0 || std::strcmp(nom, "POSIX") == 0) return {};
  if (std::strncmp(nom, "C.", 2) == 0) return {};
  std::string l(nom);
  l = l.substr(0, l.find_first_of(":_.@"));
  return l;
}

// The first of the variables that decide the language of messages.
std::string LangueUtilisateur() {
  for (const char* v : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* valeur = std::getenv(v);
    if (valeur && *valeur) return Langue(valeur);
  }
  return {};
}

#ifdef __WXGTK__
// Whether GTK, whose texts fill the dialogs, has a catalogue in that language.
bool ToolkitParle(const std::string& langue) {
  for (const gchar* const* d = g_get_system_data_dirs(); *d; ++d) {
    gchar* mo = g_build_filename(*d, "locale", langue.c_str(), "LC_MESSAGES", "gtk30.mo", nullptr);
    const bool existe = g_file_test(mo, G_FILE_TEST_EXISTS);
    g_free(mo);
    if (existe) return true;
  }
  return false;
}
#endif

}  // namespace

std::string ChoisitLangue() {
  std::string langue = LangueUtilisateur();
#ifdef __WXGTK__
  if (langue == "fr" || (!langue.empty() && langue != "en" && ToolkitParle(langue))) {
    const char* liste = std::getenv("LANGUAGE");
    if (!liste || !*liste) setenv("LANGUAGE", langue.c_str(), 1);
  } else {
    langue = "fr";
    setenv("LANGUAGE", "fr_FR:fr", 1);
  }
  // wx keeps GTK from setting the locale: only the language of messages is taken from the
  // environment, the rest (numbers above all) stays the C library's default. GNU gettext
  // ignores LANGUAGE under the "C" locale, which is what a session without any locale gets, or
  // one whose locale was never generated; "C.UTF-8" is the same locale otherwise, and always
  // present.
  const char* messages = std::setlocale(LC_MESSAGES, "");
  if (!messages || Langue(messages).empty()) {
    setenv("LC_ALL", "C.UTF-8", 1);
    std::setlocale(LC_MESSAGES, "");
  }
#else
  if (langue.empty() || langue == "en") langue = "fr";
#endif
  return langue;
}

void ChargeTraductions(const std::string& langue) {
  auto* traductions = new wxTranslations;
  const wxLanguageInfo* info = wxLocale::FindLanguageInfo(wxString::FromUTF8(langue));
  traductions->SetLanguage(info ? static_cast<wxLanguage>(info->Language) : wxLANGUAGE_FRENCH);
  traductions->AddStdCatalog();
  wxTranslations::Set(traductions);  // owned by wx from now on
}

}  // namespace lex::wx
