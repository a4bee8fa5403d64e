"""The window as a screen reader receives it over AT-SPI: the field's and the message line's
states, the caret line reported by each caret move, in the article pane too, every message-line
change announced with its text alone (the focused control's description, for that moment), and
the title following the mode."""
import sys

import pyatspi

from lexgui import Fenetre, attendre, dossier_programme, egal, entendus, ligne_a, ligne_longue, principal, verifie


def apres(w, touches, parole=None, ligne=None, titre=None, champ=None):
    """Presses the keys, then waits until the last message spoken, the caret line reported by
    the last caret event of `champ` and the last title announced are those given; returns the
    messages spoken."""
    p, t, c = len(w.paroles), len(w.titres), len(w.carets)
    champ = champ or w.txt
    w.touche(*touches)

    def ligne_evenement():
        return next((ligne_a(champ, o) for acc, o in reversed(w.carets[c:]) if acc == champ), None)

    attendre(lambda: (parole is None or w.paroles[p:][-1:] == [parole]) and (ligne is None or ligne_evenement() == ligne)
             and (titre is None or w.titres[t:][-1:] == [titre]),
             "after %s: spoken %r, caret %r, title %r" % (" ".join(touches), parole, ligne, titre))
    return w.paroles[p:]


def test(lex, lex_headless, racine):
    w = Fenetre(dossier_programme(lex, racine))

    # The field is a multi-line text, the message line a label, not focusable.
    verifie(w.txt.getState().contains(pyatspi.STATE_MULTI_LINE), "txt multi-line")
    verifie(not w.label.getState().contains(pyatspi.STATE_FOCUSABLE), "the message line takes no focus")

    dits = apres(w, ["a", "Return"], parole="abricot", ligne="abricot", titre="ANGLAIS francais")
    verifie("Installation de l'index  pour ANGLAIS francais" in entendus(dits), "index building announced: %r" % dits)
    # The description was given back: the field is not described by an old message.
    attendre(lambda: w.txt.description == "", "the field's description taken back")
    # A move the field makes itself is reported by the caret alone.
    egal(apres(w, ["Down"], ligne="banane"), [], "messages on Down")
    apres(w, ["z", "Return"], parole=ligne_longue(1), ligne=ligne_longue(1), titre="z\u00e8bre", champ=w.rtb)
    apres(w, ["Down"], ligne=ligne_longue(2), champ=w.rtb)
    # Back on a page that did not change, the caret does not move: the message says the line.
    apres(w, ["Escape"], parole="z\u00e8bre", titre="ANGLAIS francais")
    apres(w, ["Escape"], titre="LEX")

    # Every change of the message line that says something was announced, with its own text.
    noms = [j[3] for j in w.journal if j[1] == "label" and j[0].startswith("object:property-change:accessible-name")]
    egal(w.paroles, entendus(noms), "texts announced")
    w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
