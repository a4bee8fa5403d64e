"""The window with real key events: the list at start, a dictionary opened by its call letter,
moving, an article, a long article in the rich text pane, going back, menu shortcuts taking
precedence over the field, focus moves, a button, an input box, message boxes and the font
dialog, the close box saving the configuration, and the font of the configuration at the next
start. The screen font is the field's, the pane's and the message line's alike."""
import os
import sys

from lexgui import (ARTICLES, Fenetre, a_le_focus, attendre, attendre_egal, descendants, dossier_programme, egal, entendus,
                    ecrire_ansi, headless, ligne_longue, lire_ansi, montre, police, principal, role, verifie)


def boutons_visibles(w):
    return [b.name for b in w.boutons if montre(b)]


def messages_par_commande(evenements):
    """The message texts between two "show" commands of a headless run."""
    groupes, courant = [], []
    for e in evenements:
        if e["ev"] == "message":
            courant.append(e["text"])
        elif e["ev"] == "state":
            groupes.append(courant)
            courant = []
    return groupes


def test(lex, lex_headless, racine):
    dossier = dossier_programme(lex, racine)
    # What the two menu commands say, asked of the scripted window in the same state.
    attendu = messages_par_commande(headless(lex_headless, dossier, [
        "key a", "key Enter", "key Down", "key Enter", "key Escape", "key z", "show",
        "menu MnuSelectionTout", "show", "menu mnuBlocNote", "show"]))
    w = Fenetre(dossier)

    # The list of dictionaries, the caret on the first one.
    egal(w.titre(), "LEX", "title at start")
    verifie("LISTE DES DICTIONNAIRES" in w.texte(w.txt), "the list is shown: %r" % w.texte(w.txt)[:80])
    ligne = w.ligne_curseur()
    verifie(ligne.startswith("ANGLAIS francais") and ligne.endswith(" A"), "caret on the first dictionary: %r" % ligne)
    egal(w.message(), " " + ligne, "message line at start")
    # The factory font ("Courier", or a fixed-pitch face standing for it) is the message line's too.
    egal(police(w.label), police(w.txt), "font of the message line at start, the field's")
    verifie(montre(w.txt) and not montre(w.rtb), "txt shown, Rtb hidden at start")
    egal(boutons_visibles(w), ["Index", "Quitter"], "buttons at start")
    verifie(os.path.exists(os.path.join(dossier, "lex301.INI")), "the configuration is created at start")

    # The call letter and Enter open the dictionary on its first entry.
    w.touche("a", "Return")
    w.attendre_titre("ANGLAIS francais")
    w.attendre_ligne("abricot")
    # The buttons change after the page is shown: their state may reach the bus a little later.
    attendre_egal(lambda: boutons_visibles(w), ["D\u00e9finition", "Liste", "Quitter"], "buttons in the index")
    w.touche("Down")
    w.attendre_ligne("banane")

    # Enter shows the article, caret on its first definition line; Escape goes back.
    w.touche("Return")
    w.attendre_titre("banane")
    w.attendre_ligne("fruit jaune")
    egal(w.texte(), "banane\nfruit jaune", "article text")
    w.touche("Escape")
    w.attendre_titre("ANGLAIS francais")
    w.attendre_ligne("banane")

    # A long article goes to the rich text pane, which takes the place and the focus of txt.
    w.touche("z", "Return")
    w.attendre_titre("z\u00e8bre")
    attendre(lambda: montre(w.rtb) and not montre(w.txt), "Rtb shown in place of txt")
    attendre(lambda: a_le_focus(w.rtb), "the focus in Rtb")
    w.attendre_ligne(ligne_longue(1), w.rtb)
    egal(police(w.rtb), police(w.txt), "font of Rtb, the field's")
    egal(w.rtb.queryText().characterCount, sum(len(l) + 1 for l in ARTICLES[-1]) - 1, "length of the long article")
    w.touche("Down")
    w.attendre_ligne(ligne_longue(2), w.rtb)
    w.touche("Escape")
    attendre(lambda: montre(w.txt) and not montre(w.rtb) and a_le_focus(w.txt), "txt back with the focus")
    w.attendre_ligne("z\u00e8bre")

    # Menu shortcuts are commands even where the field has a binding of its own (Ctrl+A).
    n = len(w.paroles)
    w.touche("ctrl+a")
    w.attendre_paroles(n + len(entendus(attendu[1])), "Ctrl+A")
    egal(w.paroles[n:], entendus(attendu[1]), "messages of Ctrl+A")
    egal(w.txt.queryText().getNSelections(), 0, "selections in txt after Ctrl+A")
    n = len(w.paroles)
    w.touche("ctrl+b")
    w.attendre_paroles(n + len(entendus(attendu[2])), "Ctrl+B")
    egal(w.paroles[n:], entendus(attendu[2]), "messages of Ctrl+B")
    # The notepad is typed in, an accent before its letter included; Escape leaves the file
    # as it was.
    w.touche("dead_acute", "e", "space")
    attendre_egal(lambda: w.texte(w.txt), "\u00e9 note", "the notepad's text after typing")
    w.touche("Escape")
    w.attendre_ligne("z\u00e8bre s\u00e9lectionn\u00e9")
    egal(lire_ansi(os.path.join(dossier, "blocnote.txt")), ["note", ""], "the notepad's file after Escape")
    # Unselected all at once, the lines lose their marks.
    w.touche("ctrl+z")
    w.attendre_ligne("z\u00e8bre")

    # Tab leaves the field for the buttons; a button gives the focus back to the field it uses.
    w.touche("Tab")
    attendre(lambda: a_le_focus(w.boutons[0]), "the focus on the first button")
    egal(w.boutons[0].name, "D\u00e9finition", "first button")
    w.touche("space")
    w.attendre_titre("z\u00e8bre")
    attendre(lambda: a_le_focus(w.rtb), "the focus back in the shown field after the button")
    w.touche("Escape")
    w.attendre_ligne("z\u00e8bre")

    # An input box: its answer reaches the program, and the focus comes back to the field.
    w.touche("ctrl+i")
    w.dialogue("D\u00e9but de l'index")
    w.touche("c", "e", "Return")
    w.sans_dialogue()
    w.attendre_ligne("cerise")

    # From the menu bar by its access keys: two message boxes, then the font dialog, which
    # proposes the field's font; the user tabs to its size and types another one.
    famille, taille = police(w.txt)
    w.touche("alt+o", "Return")
    w.dialogue("police Courier Taille 10")
    w.touche("Return")
    w.dialogue("Voulez vous modifier la police de l'\u00e9cran")
    w.touche("Return")  # Yes
    d = w.dialogue("Taille")
    w.focaliser_dialogue()
    champ_taille = next(c for c in descendants(d) if role(c) == "spin button")
    choisir = next(c for c in descendants(d) if role(c) == "push button" and c.name == "S\u00e9lectionner")
    w.touche("Tab", "Tab", "Tab", "Tab")  # past the search, the list of faces, the preview, the slider
    attendre(lambda: a_le_focus(champ_taille), "the focus on the size field")
    egal(champ_taille.queryValue().currentValue, taille, "size proposed by the font dialog")
    nouvelle = (famille, taille + 4)
    w.touche("ctrl+a", *str(int(nouvelle[1])), "Tab", "Tab")
    attendre(lambda: a_le_focus(choisir), "the focus on the button S\u00e9lectionner")
    egal(champ_taille.queryValue().currentValue, nouvelle[1], "size typed in the font dialog")
    w.touche("Return")
    w.refocaliser()
    w.sans_dialogue()

    # The new size reaches the message line as well as the field, and the field restyled for it
    # keeps its caret on the line the user heard: Enter opens that word, not a neighbour.
    attendre_egal(lambda: police(w.txt), nouvelle, "font of txt after the font dialog")
    egal(police(w.label), nouvelle, "font of the message line after the font dialog")
    egal(w.ligne_curseur(), "cerise", "caret line after the font dialog")
    w.touche("Return")
    w.attendre_titre("cerise")
    w.touche("Escape")
    w.attendre_ligne("cerise")
    # The pane, hidden while it changed, shows the long article in it too.
    w.touche("Down", "Down")
    w.attendre_ligne("z\u00e8bre")
    w.touche("Return")
    attendre(lambda: montre(w.rtb) and a_le_focus(w.rtb), "Rtb shown with the focus")
    w.attendre_ligne(ligne_longue(1), w.rtb)
    egal(police(w.rtb), nouvelle, "font of Rtb after the font dialog")
    w.touche("Escape")
    w.attendre_ligne("z\u00e8bre")
    w.touche("Up", "Up")
    w.attendre_ligne("cerise")

    # The close box ends the program, which saves the entry it was on and the font.
    egal(lire_ansi(os.path.join(dossier, "lex301.INI"))[0], " 1", "saved position before closing")
    w.fermer()
    ini = os.path.join(dossier, "lex301.INI")
    lignes = lire_ansi(ini)
    egal(lignes[0], " 3", "saved position of ANGLAIS francais (cerise)")
    egal(lignes[11:13], [famille, str(int(nouvelle[1]))], "font lines of the configuration")

    # A font named in the configuration (here edited by hand, in a face and a size that are
    # neither the factory's nor the last one chosen) is from the start the font of the field,
    # of the message line and of the pane.
    w.arreter_ecoute()
    lignes[11:13] = ["DejaVu Serif", "13"]
    ecrire_ansi(ini, lignes[:-1])
    w = Fenetre(dossier)
    egal(police(w.txt), ("DejaVu Serif", 13), "font of txt from the configuration")
    egal(police(w.label), ("DejaVu Serif", 13), "font of the message line from the configuration")
    w.touche("a", "Return")
    w.attendre_titre("ANGLAIS francais")
    w.touche("z", "Return")
    w.attendre_titre("z\u00e8bre")
    attendre(lambda: montre(w.rtb), "Rtb shown")
    w.attendre_ligne(ligne_longue(1), w.rtb)
    egal(police(w.rtb), ("DejaVu Serif", 13), "font of Rtb from the configuration")
    w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
