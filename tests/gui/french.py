"""The toolkit's own texts are French: the buttons of a question, of the font dialog, heard over
AT-SPI as a screen reader reads them; and Alt alone opens the menu bar, Escape closes it and
leaves the user on the line they were on."""
import sys

import pyatspi

from lexgui import (Fenetre, attendre, descendants, dossier_programme, egal, entendus, fermer_par_la_case, montre,
                    principal, role, verifie)

ANGLAIS = ("Yes", "No", "Cancel", "OK", "Select", "Search font name", "Preview text", "Font")


def boutons(dialogue):
    return sorted(c.name for c in descendants(dialogue) if role(c) == "push button" and montre(c))


def textes(dialogue):
    return {c.name for c in descendants(dialogue) if c.name}


def test(lex, lex_headless, racine):
    w = Fenetre(dossier_programme(lex, racine))
    w.touche("a", "Return")
    w.attendre_ligne("abricot")

    # Alt alone opens the menu bar on its first menu; Escape closes it, back on the same line.
    focalises = []

    def ecoute(ev):
        if ev.detail1 == 1:
            focalises.append((role(ev.source), ev.source.name))
    pyatspi.Registry.registerEventListener(ecoute, "object:state-changed:focused")

    def focus():
        """The menu or menu entry that last took the focus, None once the field has it back."""
        return focalises[-1][1] if focalises and focalises[-1][0] in ("menu", "menu item") else None
    w.touche("alt")
    menu = attendre(focus, "a menu to have the focus after Alt")
    egal(menu, "Fichier", "menu opened by Alt")
    w.touche("Down", "Escape")
    attendre(lambda: focalises[-1][0] == "text", "Escape to close the menu")
    w.touche("Down")
    w.attendre_ligne("banane")
    egal(w.titre(), "ANGLAIS francais", "still in the dictionary after the menu")
    # Alt with a letter is that menu's access key, and opens nothing more.
    w.touche("alt+r")
    attendre(lambda: focus() == "Recherche du d\u00e9but d'un index", "the search menu opened by its access key")
    w.touche("Escape")
    attendre(lambda: focalises[-1][0] == "text", "Escape to close the search menu")

    # A question: "Oui" and "Non".
    w.touche("ctrl+F5")
    d = attendre(lambda: next((x for x in w.app if x is not None and x != w.frame and montre(x)), None), "the question")
    egal(boutons(d), ["Non", "Oui"], "buttons of a Yes/No question")
    w.focaliser_dialogue()
    w.touche("Return")
    w.sans_dialogue()

    # The font dialog of the options, through the menu's access keys.
    w.touche("alt+o", "Return")
    d = w.dialogue("police Courier Taille 10")
    verifie(len(boutons(d)) == 1 and not set(boutons(d)) & set(ANGLAIS), "the button of a message: %r" % boutons(d))
    w.focaliser_dialogue()
    w.touche("Return")
    d = w.dialogue("Voulez vous modifier la police de l'\u00e9cran")
    w.focaliser_dialogue()
    w.touche("Return")
    d = attendre(lambda: next((x for x in w.app if x is not None and x != w.frame and montre(x)
                               and "Annuler" in boutons(x)), None), "the font dialog")
    anglais = sorted(textes(d) & set(ANGLAIS))
    egal(anglais, [], "English words in the font dialog")
    verifie("S\u00e9lectionner" in boutons(d), "the font dialog's buttons: %r" % boutons(d))
    n = len(w.paroles)
    w.focaliser_dialogue()
    w.touche("Escape")
    w.sans_dialogue()
    attendre(lambda: "Vous n'avez s\u00e9lectionn\u00e9 aucune police." in entendus(w.paroles[n:]),
             "the cancelled font dialog to be heard")

    # Closing with the dictionary changed: "Oui", "Non", "Annuler".
    fermer_par_la_case(w.xid)
    d = w.dialogue("Souhaitez vous sauvegarder le dictionnaire ANGLAIS francais")
    egal(boutons(d), ["Annuler", "Non", "Oui"], "buttons of a Yes/No/Cancel question")
    w.focaliser_dialogue()
    w.touche("Escape")
    w.attendre_fin("the save question cancelled by the close box")


if __name__ == "__main__":
    sys.exit(principal(test))
