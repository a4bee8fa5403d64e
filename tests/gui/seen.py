"""What a partially sighted user sees. The window opens at least 1024x768 within the screen the
first time, and where and how large it was left the next times; Ctrl+Plus, Ctrl+Minus and Ctrl
with the wheel change the font of the field and of the message line; the caret's line is
highlighted across the field and the highlight follows the caret, unknown to the screen reader;
long lines wrap. Every text is measured against its background on the pixels the window shows,
in the default theme and in the desktop's high-contrast themes: none under 4.5 to 1."""
import os
import sys
from collections import Counter, namedtuple

import gi
import pyatspi

gi.require_version("Gdk", "3.0")
from gi.repository import Gdk  # noqa: E402

from lexgui import (ARTICLES, Echec, Fenetre, _xdotool, attendre, attendre_egal, dossier_programme, ecrire_ansi,
                    egal, lire_ansi, police, principal, pump, verifie)  # noqa: E402

ECRAN = (1280, 800)  # the X server's screen, as run.py starts it
MINIMUM = 4.5

# A definition line much longer than the field is wide, in an article of its own.
LONGUE = " ".join("mot%d" % i for i in range(120))


def geometrie(w):
    """(x, y, width, height) of the window as the X server has it."""
    valeurs = dict(l.split("=", 1) for l in _xdotool("getwindowgeometry", "--shell", str(w.xid)).split())
    return tuple(int(valeurs[k]) for k in ("X", "Y", "WIDTH", "HEIGHT"))


# --- Pixels and contrast (the WCAG 2 formulas) ---------------------------------------------------

def luminance(rgb):
    def c(v):
        v /= 255.0
        return v / 12.92 if v <= 0.03928 else ((v + 0.055) / 1.055) ** 2.4
    r, g, b = rgb
    return 0.2126 * c(r) + 0.7152 * c(g) + 0.0722 * c(b)


def contraste(a, b):
    la, lb = luminance(a), luminance(b)
    return (max(la, lb) + 0.05) / (min(la, lb) + 0.05)


class Image:
    """A rectangle of the screen as it is shown now."""

    def __init__(self, x, y, largeur, hauteur):
        racine = Gdk.get_default_root_window()
        pb = Gdk.pixbuf_get_from_window(racine, x, y, largeur, hauteur)
        if pb is None:
            raise Echec("cannot read the screen at %r" % ((x, y, largeur, hauteur),))
        self.x, self.y, self.largeur, self.hauteur = x, y, largeur, hauteur
        self._octets, self._pas, self._n = pb.get_pixels(), pb.get_rowstride(), pb.get_n_channels()

    def pixel(self, x, y):
        """The colour at screen coordinates (x, y)."""
        i = (y - self.y) * self._pas + (x - self.x) * self._n
        return tuple(self._octets[i:i + 3])

    def couleurs(self, x, y, largeur, hauteur):
        """(background, text) of a rectangle: its commonest colour, and the one that stands out
        most from it (the inside of a glyph, where anti-aliasing does not reach)."""
        pixels = Counter(self.pixel(i, j) for j in range(y, y + hauteur) for i in range(x, x + largeur))
        fond = pixels.most_common(1)[0][0]
        texte = max(pixels, key=lambda p: contraste(p, fond))
        return fond, texte


Rect = namedtuple("Rect", "x y width height")


def etendue(acc):
    e = acc.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return Rect(e.x, e.y, e.width, e.height)


def etendue_ligne(acc, offset):
    """Screen rectangle of the (displayed) line at `offset`."""
    t = acc.queryText()
    _, debut, fin = t.getTextAtOffset(offset, pyatspi.TEXT_BOUNDARY_LINE_START)
    return Rect(*t.getRangeExtents(debut, max(debut + 1, fin - 1), pyatspi.DESKTOP_COORDS))


def bande(w):
    """The rows of txt, as screen y from..to, painted in another colour than the field's own,
    looked at near the field's right edge, where the short lines of the lists leave no text."""
    e = etendue(w.txt)
    x = e.x + e.width - 24
    img = Image(x, e.y, 1, e.height)
    colonne = [img.pixel(x, y) for y in range(e.y, e.y + e.height)]
    fond = Counter(colonne).most_common(1)[0][0]
    lignes = [e.y + i for i, p in enumerate(colonne) if p != fond]
    return (lignes[0], lignes[-1]) if lignes else None


def mesures(w, theme):
    """Contrast ratios of the message line, the highlighted line and a plain line of the field,
    from the colours on the screen; fails under the minimum."""
    pump(0.3)  # the last change drawn
    t = w.txt.queryText()
    caret = t.caretOffset
    ligne = etendue_ligne(w.txt, caret)
    suivante = etendue_ligne(w.txt, t.getTextAtOffset(caret, pyatspi.TEXT_BOUNDARY_LINE_START)[2])
    champ = etendue(w.txt)
    message = etendue(w.label)
    img = Image(0, 0, *ECRAN)
    resultats = {}
    zones = {
        "message line": (message.x, message.y, message.width, message.height),
        "highlighted line": (champ.x + 2, ligne.y, champ.width - 4, ligne.height),
        "field": (champ.x + 2, suivante.y, champ.width - 4, suivante.height),
    }
    for nom, zone in zones.items():
        fond, texte = img.couleurs(*zone)
        r = contraste(fond, texte)
        resultats[nom] = (r, fond, texte)
        print("%-14s %-16s text %-15s on %-15s %5.2f:1" % (theme, nom, "#%02x%02x%02x" % texte, "#%02x%02x%02x" % fond, r))
    for nom, (r, fond, texte) in resultats.items():
        verifie(r >= MINIMUM, "%s, %s: contrast %.2f:1 (text %r on %r) under %.1f:1" % (theme, nom, r, texte, fond, MINIMUM))
    # The highlight is seen: another colour than the field's own.
    verifie(resultats["highlighted line"][1] != resultats["field"][1],
            "%s: the caret's line is not highlighted (%r)" % (theme, resultats["field"][1]))
    return resultats


def test(lex, lex_headless, racine):
    dossier = dossier_programme(lex, racine)
    # In the dictionary's order: "\u00e9t\u00e9" is an "e".
    articles = ARTICLES[:4] + [["long", "d\u00e9but", LONGUE]]
    lignes = []
    for a in articles:
        lignes += a + [""]
    ecrire_ansi(os.path.join(dossier, "lex.eng"), lignes[:-1])

    # The first start: at least 1024x768, all of it on the screen.
    w = Fenetre(dossier)
    x, y, l, h = geometrie(w)
    verifie(l >= 1024 and h >= 768, "first window %dx%d, smaller than 1024x768" % (l, h))
    verifie(x >= 0 and y >= 0 and x + l <= ECRAN[0] and y + h <= ECRAN[1],
            "first window %dx%d+%d+%d off the %dx%d screen" % (l, h, x, y, ECRAN[0], ECRAN[1]))
    verifie(not os.path.exists(os.path.join(dossier, "fenetre.ini")), "fenetre.ini before the first end")

    mesures(w, "default")

    # The highlight follows the caret, line by line, and the screen reader hears only the caret.
    modifs = []

    def ecoute(ev):
        modifs.append(ev.type)
    for t in ("object:text-changed", "object:text-attributes-changed"):
        pyatspi.Registry.registerEventListener(ecoute, t)
    w.touche("a", "Return")
    w.attendre_ligne("abricot")
    pump(0.3)
    avant = attendre(lambda: bande(w), "a highlighted line in the index")
    ligne = etendue_ligne(w.txt, w.txt.queryText().caretOffset)
    verifie(avant[0] <= ligne.y + ligne.height // 2 <= avant[1], "highlight %r not on the caret's line %r" % (avant, ligne))
    del modifs[:]
    w.touche("Down")
    w.attendre_ligne("banane")
    ligne = etendue_ligne(w.txt, w.txt.queryText().caretOffset)
    attendre(lambda: (bande(w) or (0, 0))[0] > avant[1], "the highlight to move down with the caret")
    apres = bande(w)
    verifie(apres[0] <= ligne.y + ligne.height // 2 <= apres[1], "highlight %r not on the caret's line %r" % (apres, ligne))
    egal(apres[1] - apres[0], avant[1] - avant[0], "height of the highlight")
    pump(0.2)
    egal(modifs, [], "text events sent to the screen reader when the highlight moved")
    for t in ("object:text-changed", "object:text-attributes-changed"):
        pyatspi.Registry.deregisterEventListener(ecoute, t)

    # Ctrl+Plus enlarges the field's font and the message line's; the size is said.
    famille, taille = police(w.txt)
    n = len(w.paroles)
    w.touche("ctrl+plus")
    attendre_egal(lambda: police(w.txt), (famille, taille + 2), "font of txt after Ctrl+Plus")
    egal(police(w.label), (famille, taille + 2), "font of the message line after Ctrl+Plus")
    w.attendre_paroles(n + 1, "the new size said")
    egal(w.paroles[-1].strip(), "taille des caract\u00e8res %d" % (taille + 2), "message of Ctrl+Plus")
    egal(w.ligne_curseur(), "banane", "caret line after Ctrl+Plus")
    # The keypad's minus, then the wheel turned up under Ctrl over the field.
    w.touche("ctrl+KP_Subtract")
    attendre_egal(lambda: police(w.txt), (famille, taille), "font of txt after Ctrl+keypad minus")
    e = etendue(w.txt)
    _xdotool("mousemove", str(e.x + e.width // 2), str(e.y + e.height // 2))
    _xdotool("keydown", "ctrl")
    _xdotool("click", "4")
    _xdotool("keyup", "ctrl")
    attendre_egal(lambda: police(w.txt), (famille, taille + 2), "font of txt after Ctrl and the wheel up")
    egal(police(w.label), (famille, taille + 2), "font of the message line after the wheel")

    # A long line of an article wraps at the field's width; the screen reader gets the text
    # unchanged, and the shown part of the line at the caret.
    w.touche("l", "Return")
    w.attendre_titre("long")
    attendre_egal(lambda: w.texte(w.txt), "long\nd\u00e9but\n%s" % LONGUE, "the long article")
    w.attendre_ligne("d\u00e9but")
    w.touche("Down")
    vue = attendre(lambda: w.ligne_curseur() if w.ligne_curseur().startswith("mot0 ") else None,
                   "the caret on the long line")
    t = w.txt.queryText()
    debut = len("long\nd\u00e9but\n")
    etendue_longue = Rect(*t.getRangeExtents(debut, debut + len(LONGUE), pyatspi.DESKTOP_COORDS))
    hauteur_ligne = etendue_ligne(w.txt, 0).height
    verifie(etendue_longue.height >= 3 * hauteur_ligne, "the long line is not wrapped: %r" % (etendue_longue,))
    verifie(etendue_longue.x + etendue_longue.width <= e.x + e.width, "the long line goes past the field: %r" % (etendue_longue,))
    verifie(LONGUE.startswith(vue) and len(vue) < len(LONGUE), "line at the caret: %r" % vue)
    print("wrapped line at the caret, as AT-SPI gives it: %d of %d characters: %r..." % (len(vue), len(LONGUE), vue[:40]))
    # The article's last line, wrapped, is read row by row with Down before its end is said.
    rangees, n = [vue], len(w.paroles)
    while len(rangees) < 10 and not any("fin de l'article" in p for p in w.paroles[n:]):
        w.touche("Down")
        attendre(lambda: w.ligne_curseur() != rangees[-1] or any("fin de l'article" in p for p in w.paroles[n:]),
                 "Down on the row %r to move or to say the end" % rangees[-1])
        if w.ligne_curseur() != rangees[-1]:
            rangees.append(w.ligne_curseur())
    verifie(len(rangees) >= 3 and "".join(rangees).replace(" ", "") == LONGUE.replace(" ", ""),
            "the rows of the wrapped last line, before the end: %r" % rangees)
    w.touche("Escape")

    # Moved and resized, the window is found again so at the next start; so is the font.
    _xdotool("windowsize", str(w.xid), "1100", "700")
    _xdotool("windowmove", str(w.xid), "40", "30")
    attendre_egal(lambda: geometrie(w), (40, 30, 1100, 700), "the window moved and resized")
    pump(0.2)
    w.fermer()
    egal(lire_ansi(os.path.join(dossier, "fenetre.ini")), ["40", "30", "1100", "700", "0", ""], "fenetre.ini")
    w.arreter_ecoute()
    w = Fenetre(dossier)
    egal(geometrie(w), (40, 30, 1100, 700), "the window at the next start")
    egal(police(w.txt), (famille, taille + 2), "font at the next start")
    w.fermer()

    # A frame left on a screen that is no longer there comes back on this one.
    ecrire_ansi(os.path.join(dossier, "fenetre.ini"), ["3000", "2000", "800", "600", "0"])
    w.arreter_ecoute()
    w = Fenetre(dossier)
    x, y, l, h = geometrie(w)
    verifie(l >= 1024 and h >= 768 and x >= 0 and y >= 0 and x + l <= ECRAN[0] and y + h <= ECRAN[1],
            "window from an off-screen frame: %dx%d+%d+%d" % (l, h, x, y))
    w.fermer()

    # The desktop's high-contrast themes: the window takes their colours, and every text keeps
    # its contrast, the highlighted line's too.
    for theme in ("HighContrast", "HighContrastInverse"):
        env = os.environ.copy()
        env["GTK_THEME"] = theme
        w.arreter_ecoute()
        w = Fenetre(dossier, env=env)
        r = mesures(w, theme)
        if theme == "HighContrast":
            verifie(luminance(r["field"][1]) > 0.9, "HighContrast: the field's background %r is not the theme's" % (r["field"][1],))
        else:
            verifie(luminance(r["field"][1]) < 0.1, "HighContrastInverse: the field's background %r is not the theme's" % (r["field"][1],))
        w.fermer()


if __name__ == "__main__":
    sys.exit(principal(test))
