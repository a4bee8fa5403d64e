"""A new article typed in the real window, then changed, as a screen reader user does it: Ctrl+N
in the index, the index line (accented letters by a dead key and by their own key), Enter, the
definition, Tab to OK and Space. What is heard at each step: the message line as announced over
AT-SPI, the caret line, the title; and the article in the dictionary's working copy, in
Windows-1252, at its alphabetical place, then in the dictionary once closing has saved it."""
import os
import shutil
import sys

import pyatspi

from lexgui import (Fenetre, a_le_focus, attendre, attendre_egal, ecrire_ansi, egal,
                    fermer_par_la_case, ligne_a, montre, principal, pump, verifie)

ARTICLES = [
    ["abricot", "fruit orange"],
    ["banane", "fruit jaune"],
    ["cerise", "fruit rouge"],
    ["\u00e9t\u00e9", "saison chaude"],
    ["z\u00e8bre", "animal ray\u00e9"],
]
INDEX = "\u00e9l\u00e9phant (n.m.)"
DEFINITION = "gros animal"
AJOUT = ", gris"

# xdotool's names for the keys of INDEX: the first é by the accent then the letter, as on a
# keyboard without it, the second by the letter's own key.
TOUCHES_INDEX = ["dead_acute", "e", "l", "eacute", "p", "h", "a", "n", "t", "space",
                 "parenleft", "n", "period", "m", "period", "parenright"]


def octets(articles):
    return b"".join(l.encode("cp1252") + b"\r\n" for a in articles for l in a + [""])[:-2]


def dossier(lex, racine):
    d = os.path.join(racine, "programme")
    os.makedirs(d)
    shutil.copy2(lex, d)
    lignes = [l for a in ARTICLES for l in a + [""]][:-1]
    ecrire_ansi(os.path.join(d, "lex.eng"), lignes)
    return d


def boutons_visibles(w):
    return [b.name for b in w.boutons if montre(b)]


def editable(acc):
    return acc.getState().contains(pyatspi.STATE_EDITABLE)


def lire(chemin):
    with open(chemin, "rb") as f:
        return f.read()


def ok(w):
    """OK from the keyboard: Tab from the field to the button, then Space."""
    w.touche("Tab")
    attendre(lambda: a_le_focus(w.boutons[0]), "the focus on the first button (now %r)"
             % [b.name for b in w.boutons if a_le_focus(b)])
    egal(w.boutons[0].name, "OK", "the button Tab reaches first")
    w.touche("space")


def entendu(w, n, attendu, quoi):
    """Waits for the message line to announce `attendu` (its last announcement since n); the
    label must then read it too."""
    attendre_egal(lambda: w.paroles[n:][-1:], [attendu.strip()], "message announced " + quoi)
    egal(w.message(), attendu, "message line's text " + quoi)


def test(lex, lex_headless, racine):
    d = dossier(lex, racine)
    copie = os.path.join(d, "lex.eng.bak")
    w = Fenetre(d)
    w.touche("a", "Return")
    w.attendre_titre("ANGLAIS francais")
    w.attendre_ligne("abricot")
    w.touche("Down", "Down")
    w.attendre_ligne("cerise")
    verifie(not editable(w.txt), "the index is not editable")

    # Ctrl+N: an empty, editable field, and the user is told what to type.
    n = len(w.paroles)
    w.touche("ctrl+n")
    w.attendre_titre("Cr\u00e9ation d'un index")
    entendu(w, n, " tapez l'index puis la d\u00e9finition", "after Ctrl+N")
    attendre(lambda: editable(w.txt) and a_le_focus(w.txt), "txt editable, with the focus")
    egal(w.texte(w.txt), "", "the field after Ctrl+N")
    attendre_egal(lambda: boutons_visibles(w), ["OK", "Annuler"], "buttons while typing an article")

    # The index line, Enter for a new line, the definition.
    w.touche(*TOUCHES_INDEX)
    attendre_egal(lambda: w.texte(w.txt), INDEX, "the index line typed")
    w.touche("Return")
    attendre_egal(lambda: w.texte(w.txt), INDEX + "\n", "the field after Enter")
    egal(w.ligne_curseur(w.txt), "", "the caret line after Enter, a new one")
    w.touche(*["space" if c == " " else c for c in DEFINITION])
    attendre_egal(lambda: w.texte(w.txt), INDEX + "\n" + DEFINITION, "the article typed")
    w.attendre_ligne(DEFINITION, w.txt)
    egal(w.titre(), "Cr\u00e9ation d'un index", "title while typing")

    # OK: back in the index on the new entry, the addition said, and the caret's last move
    # reported on the entry's line.
    n, c = len(w.paroles), len(w.carets)
    ok(w)
    w.attendre_titre("ANGLAIS francais")
    entendu(w, n, " " + INDEX + " ajout\u00e9", "after OK")
    w.attendre_ligne(INDEX + " ajout\u00e9", w.txt)
    attendre_egal(lambda: [ligne_a(w.txt, o) for acc, o in w.carets[c:] if acc == w.txt][-1:],
                  [INDEX + " ajout\u00e9"], "the line of the last caret move after OK")
    attendre(lambda: a_le_focus(w.txt) and not editable(w.txt), "the index back, read-only, with the focus")
    egal(w.texte(w.txt).split("\n"),
         ["abricot", "banane", "cerise", INDEX + " ajout\u00e9", "\u00e9t\u00e9", "z\u00e8bre"], "the index after OK")
    attendre_egal(lambda: boutons_visibles(w), ["D\u00e9finition", "Liste", "Quitter"], "buttons in the index after OK")
    pump(0.2)  # a later message would take the place of the one heard
    egal(w.paroles[-1], INDEX + " ajout\u00e9", "last message after OK")
    attendu = ARTICLES[:3] + [[INDEX, DEFINITION]] + ARTICLES[3:]
    attendre_egal(lambda: os.path.exists(copie) and lire(copie), octets(attendu), "the working copy after OK")

    # Ctrl+M on it: its text to change, the definition lengthened.
    n = len(w.paroles)
    w.touche("ctrl+m")
    w.attendre_titre("Modification d'un index")
    entendu(w, n, " modification de " + INDEX, "after Ctrl+M")
    attendre(lambda: editable(w.txt) and a_le_focus(w.txt), "txt editable, with the focus, for the change")
    egal(w.texte(w.txt), INDEX + "\n" + DEFINITION, "the field after Ctrl+M")
    w.touche("ctrl+End", "comma", "space", "g", "r", "i", "s")
    attendre_egal(lambda: w.texte(w.txt), INDEX + "\n" + DEFINITION + AJOUT, "the article changed")
    n = len(w.paroles)
    ok(w)
    w.attendre_titre("ANGLAIS francais")
    entendu(w, n, " " + INDEX + " modifi\u00e9", "after OK on the change")
    # The entry keeps its mark of an addition.
    w.attendre_ligne(INDEX + " ajout\u00e9", w.txt)
    attendu[3] = [INDEX, DEFINITION + AJOUT]
    attendre_egal(lambda: lire(copie), octets(attendu), "the working copy after the change")
    egal(lire(os.path.join(d, "lex.eng")), octets(ARTICLES), "the dictionary itself, not saved yet")

    # Enter reads the new article from the working copy; the title is the entry's line.
    w.touche("Return")
    w.attendre_titre(INDEX + " ajout\u00e9")
    w.attendre_ligne(DEFINITION + AJOUT, w.txt)
    w.touche("Escape")
    w.attendre_ligne(INDEX + " ajout\u00e9", w.txt)

    # Closing asks whether to save; Enter (Yes) writes the dictionary itself.
    fermer_par_la_case(w.xid)
    w.dialogue("Souhaitez vous sauvegarder le dictionnaire ANGLAIS francais")
    w.focaliser_dialogue()
    w.touche("Return")
    w.attendre_fin("saving")
    egal(lire(os.path.join(d, "lex.eng")), octets(attendu), "the dictionary saved")


if __name__ == "__main__":
    sys.exit(principal(test))
