"""The window as a screen reader receives it over AT-SPI: the field's role and focus, the caret
line reported by each caret move, every message-line change announced by the notification
label with its text, and the title following the mode."""
import sys

import pyatspi

from lexgui import Fenetre, a_le_focus, attendre, dossier_programme, egal, ligne_a, ligne_longue, principal, verifie


class Ecoute:
    """What the bus said since the last key."""

    def __init__(self, w):
        self.w = w
        self.marque()

    def marque(self):
        self.p, self.t, self.c = len(self.w.paroles), len(self.w.titres), len(self.w.carets)

    def paroles(self):
        return self.w.paroles[self.p:]

    def ligne_evenement(self, champ):
        """The caret line of `champ` at the offset of its last caret event since the mark."""
        for acc, offset in reversed(self.w.carets[self.c:]):
            if acc == champ:
                return ligne_a(champ, offset)
        return None


def apres(e, touches, parole=None, ligne=None, titre=None, champ=None):
    """Presses the keys, then waits until the last message spoken, the caret line reported by
    the last caret event and the last title announced are those given."""
    w = e.w
    champ = champ or w.txt
    e.marque()
    w.touche(*touches)
    quoi = "after %s: spoken %r, caret %r, title %r" % (" ".join(touches), parole, ligne, titre)
    attendre(lambda: (parole is None or e.paroles()[-1:] == [parole])
             and (ligne is None or e.ligne_evenement(champ) == ligne)
             and (titre is None or w.titres[e.t:][-1:] == [titre]), quoi)


def test(lex, lex_headless, racine):
    w = Fenetre(dossier_programme(lex, racine))
    e = Ecoute(w)

    # The field is a focused multi-line text, the message line a notification, not focusable.
    egal(w.txt.getRoleName(), "text", "role of txt")
    etat = w.txt.getState()
    verifie(etat.contains(pyatspi.STATE_MULTI_LINE) and etat.contains(pyatspi.STATE_FOCUSED), "txt multi-line, focused")
    verifie(not w.label.getState().contains(pyatspi.STATE_FOCUSABLE), "the message line takes no focus")
    couleur = w.label.queryText().getDefaultAttributeSet()
    verifie(couleur.get("fg-color") in ("65535,21845,21845", "255,85,85"), "light red message line: %r" % couleur.get("fg-color"))

    liste = "nom commun                         C"
    apres(e, ["c"], parole=" " + liste, ligne=liste)
    # The same message again is still a change, so it is spoken again.
    apres(e, ["c"], parole=" " + liste + "  ")
    apres(e, ["a", "Return"], parole=" abricot", ligne="abricot", titre="ANGLAIS francais")
    verifie(" Installation de l'index  pour ANGLAIS francais" in e.paroles(), "index building announced: %r" % e.paroles())
    # A move the field makes itself is reported by the caret alone.
    apres(e, ["Down"], ligne="banane")
    egal(e.paroles(), [], "messages on Down")
    apres(e, ["Return"], parole=" fruit jaune", ligne="fruit jaune", titre="banane")
    apres(e, ["Escape"], parole=" banane", ligne="banane", titre="ANGLAIS francais")
    egal(e.paroles(), [" ", " banane"], "messages on Escape")
    apres(e, ["z", "Return"], parole=" " + ligne_longue(1), ligne=ligne_longue(1), titre="z\u00e8bre", champ=w.rtb)
    attendre(lambda: a_le_focus(w.rtb), "the focus in the rich text pane")
    apres(e, ["Down"], ligne=ligne_longue(2), champ=w.rtb)
    # Back on a page that did not change, the caret does not move: the message says the line.
    apres(e, ["Escape"], parole=" z\u00e8bre", titre="ANGLAIS francais")
    attendre(lambda: a_le_focus(w.txt), "the focus back in txt")
    egal(w.ligne_curseur(w.txt), "z\u00e8bre", "caret line back in the index")
    apres(e, ["Escape"], titre="LEX")

    # Every change of the message line was announced, each with its own text.
    noms = [j[3] for j in w.journal if j[1] == "notification" and j[0].startswith("object:property-change:accessible-name")]
    montres = [j for j in w.journal if j[1] == "notification" and j[0] == "object:state-changed:showing" and j[2] == 1]
    egal(len(montres), len(noms), "announcements for %d changes of the message line" % len(noms))
    egal(w.paroles, noms, "texts announced")
    w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
