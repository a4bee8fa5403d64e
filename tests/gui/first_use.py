"""A first use, heard through Orca speaking French as a French user's Orca does: the program
folder as the run command assembles it (the bundled guide and dictionaries), then start, open
"FRANCAIS ANGLAIS", type "chat", Enter, read the article, F1, Escape, quit from the menu, start
again. Every key must be answered by something spoken; nothing heard may be English or the word
"notification"; the second start must come back on "chat". Prints the keystrokes and what was
heard for each."""
import os
import re
import shutil
import sys
import time

from lexgui import Fenetre, attendre, principal, verifie
from orca_speech import arrete, orca_pret, paroles, speech_dispatcher

SILENCE = 0.5  # seconds without speech after which Orca is taken to have said all
ICI = os.path.dirname(os.path.abspath(__file__))
BUNDLE = os.path.join(ICI, "..", "..", "bundle")

# English a user could hear from the toolkit or from role names: whole words, case kept.
ANGLAIS = ["notification", "Yes", "No", "Cancel", "Select", "Size", "Search", "frame", "push button", "read only",
           "text", "alert", "Screen reader"]


def dossier(lex, racine):
    d = os.path.join(racine, "programme")
    shutil.copytree(BUNDLE, d)
    shutil.copy2(lex, d)
    return d


def test(lex, lex_headless, racine):
    journal = os.path.join(racine, "orca.out")
    sd = speech_dispatcher(racine)
    o = None
    touches, reponses = [], []
    try:
        o = orca_pret(racine, journal, "fr_FR:fr")
        d = dossier(lex, racine)

        def demarre():
            n = len(paroles(journal))
            w = Fenetre(d)
            attendre(lambda: any("ANGLAIS" in p for p in paroles(journal)[n:]), "the list heard at start")
            return w

        def calme():
            """Waits for Orca to have said all it had to: nothing new for a while."""
            vu = [len(paroles(journal)), time.monotonic()]

            def fini():
                n = len(paroles(journal))
                if n != vu[0]:
                    vu[:] = [n, time.monotonic()]
                return time.monotonic() - vu[1] > SILENCE
            attendre(fini, "Orca to finish speaking")

        def touche(w, nom, attendu=None):
            """Presses a key, as a user who listens to the answer before the next one: something
            must be heard for it (`attendu` among it when given). Returns what was heard."""
            calme()
            n = len(paroles(journal))
            w.touche(nom)
            attendre(lambda: (lambda p: p and (attendu is None or any(attendu in x for x in p)))(paroles(journal)[n:]),
                     "an answer to %s%s" % (nom, "" if attendu is None else " saying %r" % attendu))
            calme()
            touches.append(nom)
            reponses.append(paroles(journal)[n:])
            return reponses[-1]

        w = demarre()
        touche(w, "f", "FRANCAIS ANGLAIS")
        touche(w, "Return")
        for lettre in "chat":
            touche(w, lettre)
        verifie(w.ligne_curseur() == "chat (n.m.)", "the index on chat: %r" % w.ligne_curseur())
        touche(w, "Return", "chat (n.m.)")
        touche(w, "Down", "fin de l'article")
        touche(w, "F1")
        touche(w, "Escape", "cat")
        touche(w, "alt+f", "Fichier")
        calme()
        w.touche("q")
        w.attendre_fin("Quitter from the menu")
        touches.append("q")
        reponses.append(["(the program ends)"])

        w = demarre()
        touche(w, "f", "FRANCAIS ANGLAIS")
        touche(w, "Return", "chat (n.m.)")
        # Up at the top of the page says the edge, the second Up turns the page: the new line
        # is heard once.
        while w.texte(w.txt).split("\n")[0] != w.ligne_curseur():
            touche(w, "Up")
        touche(w, "Up")
        dits = touche(w, "Up")
        ligne = w.ligne_curseur()
        verifie(dits.count(ligne) == 1, "the line after the page turned by Up heard once: %r (line %r)" % (dits, ligne))
        w.fermer()

        tout = paroles(journal)
        anglais = sorted({m for p in tout for m in ANGLAIS if re.search(r"\b%s\b" % re.escape(m), p)})
        verifie(not anglais, "English heard: %r" % anglais)
        print("%d keystrokes, %d utterances in all" % (len(touches), len(tout)))
        for t, r in zip(touches, reponses):
            print("   %-8s -> %s" % (t, " | ".join(r)))
    finally:
        arrete(journal, o, sd)


if __name__ == "__main__":
    sys.exit(principal(test))
