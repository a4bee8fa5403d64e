"""One scenario through the scripted window (lex-headless) and through the real window: after
every key, the same messages in the same order, the same caret line and column, the same title."""
import sys

from lexgui import Echec, Fenetre, attendre, dossier_programme, egal, entendus, headless, principal, pump, verifie

# The list, call letters (É is not E there), opening; moves the field makes itself; following a word of an
# article and coming back; typed beginnings; the long article; menu shortcuts; marks heard at
# the end of the line.
SCENARIO = ("\u00e9 c c a Enter Down Down Up Up Up Up Ctrl+End Ctrl+Home c Enter Down End" + " Left" * 6 +
            " Enter Backspace Escape \u00e9 t Backspace Backspace Home z Enter Down Escape Ctrl+a Ctrl+Down Ctrl+Space Ctrl+z"
            " Ctrl+b F9 Escape"
            " Down Down Escape").split()
# The name xdotool gives a key that lex-headless names otherwise.
# "é" is typed as on a keyboard without the letter: the accent first, then the letter.
XDOTOOL = {"Enter": "Return", "Backspace": "BackSpace", "\u00e9": "dead_acute e", "Ctrl+Space": "ctrl+space"}


def attendus(lex_headless, dossier):
    """For the start and after each key: (messages, (caret line, column), title) of the scripted window."""
    commandes = ["show"]
    for nom in SCENARIO:
        commandes += ["key " + nom, "show"]
    resultat, messages = [], []
    for e in headless(lex_headless, dossier, commandes):
        if e["ev"] == "message":
            messages.append(e["text"])
        elif e["ev"] == "state":
            resultat.append((messages, (e["line"], e["caret_col"]), e["title"]))
            messages = []
    if len(resultat) != len(SCENARIO) + 1:
        raise Echec("lex-headless ended early: %d states for %d keys" % (len(resultat), len(SCENARIO)))
    return resultat


def curseur(w):
    return w.ligne_curseur(), w.colonne_curseur()


def test(lex, lex_headless, racine):
    dossier = dossier_programme(lex, racine)
    etapes = attendus(lex_headless, dossier)
    w = Fenetre(dossier)
    # The window is heard once it is shown: at start, the label holds the last message of loading.
    messages, caret, titre = etapes[0]
    egal(w.message(), messages[-1], "message line at start")
    egal((curseur(w), w.titre()), (caret, titre), "caret and title at start")
    # The message line shows the same texts; what of them is announced is the window's own
    # business (a message repeating the line the screen reader has just read is not).
    for nom, (messages, caret, titre) in zip(SCENARIO, etapes[1:]):
        n = len(w.affiches)
        w.touche(*XDOTOOL.get(nom, nom.replace("Ctrl+", "ctrl+")).split())
        attendre(lambda: len(w.affiches) >= n + len(messages) and curseur(w) == caret and w.titre() == titre,
                 "after %s: %d messages (got %r), caret %r (now %r), title %r (now %r)"
                 % (nom, len(messages), w.affiches[n:], caret, curseur(w), titre, w.titre()))
        egal(w.affiches[n:], messages, "messages after %s" % nom)
        verifie(set(w.paroles) <= set(entendus(w.affiches)), "announced but not shown: %r" % w.paroles)
    n = len(w.affiches)
    pump(0.3)  # nothing more may come after the last key
    egal(w.affiches[n:], [], "messages after the scenario")
    w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
