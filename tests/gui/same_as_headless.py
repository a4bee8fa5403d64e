"""One scenario through the scripted window (lex-headless) and through the real window: after
every key, the same messages in the same order, the same caret line and column, the same title."""
import sys

from lexgui import Echec, Fenetre, attendre, dossier_programme, egal, headless, principal, pump

# Keys as lex-headless names them, with the name xdotool gives the same key.
SCENARIO = [
    ("c", "c"), ("c", "c"), ("a", "a"), ("Enter", "Return"),       # the list, a call letter, opening
    ("Down", "Down"), ("Down", "Down"), ("Up", "Up"), ("Up", "Up"),  # moves the field makes itself
    ("Up", "Up"), ("Up", "Up"), ("Ctrl+End", "ctrl+End"), ("Ctrl+Home", "ctrl+Home"),
    ("c", "c"), ("Enter", "Return"), ("Down", "Down"), ("End", "End")] + [("Left", "Left")] * 6 + [
    ("Enter", "Return"), ("Backspace", "BackSpace"), ("Escape", "Escape"),  # following a word of an article
    ("\u00e9", "eacute"), ("t", "t"), ("Backspace", "BackSpace"), ("Backspace", "BackSpace"),
    ("Home", "Home"), ("z", "z"), ("Enter", "Return"), ("Down", "Down"), ("Escape", "Escape"),
    ("Ctrl+a", "ctrl+a"), ("Ctrl+b", "ctrl+b"), ("F9", "F9"), ("Escape", "Escape"),
    ("Down", "Down"), ("Down", "Down"), ("Escape", "Escape"),
]


def attendus(lex_headless, dossier):
    """For the start and after each key: (messages, (caret line, column), title) of the scripted window."""
    commandes = ["show"]
    for nom, _ in SCENARIO:
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
    for (nom, touche), (messages, caret, titre) in zip(SCENARIO, etapes[1:]):
        n = len(w.paroles)
        w.touche(touche)
        attendre(lambda: len(w.paroles) >= n + len(messages) and curseur(w) == caret and w.titre() == titre,
                 "after %s: %d messages (got %r), caret %r (now %r), title %r (now %r)"
                 % (nom, len(messages), w.paroles[n:], caret, curseur(w), titre, w.titre()))
        egal(w.paroles[n:], messages, "messages after %s" % nom)
    n = len(w.paroles)
    pump(0.3)  # nothing more may come after the last key
    egal(w.paroles[n:], [], "messages after the scenario")
    w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
