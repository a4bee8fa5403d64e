"""The real window `lex` driven by real key events (xdotool) and watched the way a screen
reader watches it: through the AT-SPI bus (pyatspi). Runs inside the X server and session bus
that run.py sets up."""
import ctypes
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

POLL = 0.01  # seconds between two looks at the bus
DELAI = 8.0  # longest wait for any one thing, generous for the sanitizer build


class Echec(Exception):
    pass


# --- The program folder -------------------------------------------------------------------

def ligne_longue(n):
    return "rayure num\u00e9ro %d du pelage, noire sur fond blanc" % n


# Articles of the dictionary called with the letter A ("lex.eng"). The last one is longer
# than 65,536 characters, so that it is shown in the rich text pane.
ARTICLES = [
    ["abricot", "fruit orange", "noyau"],
    ["banane", "fruit jaune"],
    ["cerise", "fruit rouge", "voir banane"],
    ["\u00e9t\u00e9", "saison chaude"],
    ["z\u00e8bre"] + [ligne_longue(i) for i in range(1, 1701)],
]


def ecrire_ansi(chemin, lignes):
    with open(chemin, "wb") as f:
        f.write("".join(l + "\r\n" for l in lignes).encode("cp1252"))


def dossier_programme(lex, racine):
    """A fresh program folder: the executable, the test dictionary and a notepad, nothing else."""
    dossier = os.path.join(racine, "programme")
    os.makedirs(dossier)
    shutil.copy2(lex, dossier)
    lignes = []
    for a in ARTICLES:
        lignes += a + [""]
    ecrire_ansi(os.path.join(dossier, "lex.eng"), lignes[:-1])
    ecrire_ansi(os.path.join(dossier, "blocnote.txt"), ["note"])
    return dossier


def lire_ansi(chemin):
    with open(chemin, "rb") as f:
        return f.read().decode("cp1252").split("\r\n")


# --- The scripted window, for the same scenario without a display ---------------------------

def headless(lex_headless, dossier, commandes):
    """Runs lex-headless on a copy of `dossier`; returns its events (dicts)."""
    copie = tempfile.mkdtemp(prefix="lex-headless-")
    try:
        for nom in os.listdir(dossier):
            if nom != "lex":
                shutil.copy2(os.path.join(dossier, nom), copie)
        r = subprocess.run([lex_headless, "--dir", copie], input="\n".join(commandes) + "\n",
                           capture_output=True, text=True, timeout=60)
        if r.returncode != 0:
            raise Echec("lex-headless failed (%d): %s %s" % (r.returncode, r.stdout, r.stderr))
        return [json.loads(l) for l in r.stdout.splitlines() if l.strip()]
    finally:
        shutil.rmtree(copie, ignore_errors=True)


# --- X: what a window manager would do -------------------------------------------------------

class _ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


class _XEvent(ctypes.Union):
    _fields_ = [("xclient", _ClientMessage), ("pad", ctypes.c_long * 24)]


def fermer_par_la_case(fenetre_x):
    """What a window manager sends when the close box is clicked: WM_DELETE_WINDOW."""
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    x.XOpenDisplay.argtypes = [ctypes.c_char_p]
    x.XInternAtom.restype = ctypes.c_ulong
    x.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.POINTER(_XEvent)]
    x.XFlush.argtypes = [ctypes.c_void_p]
    x.XCloseDisplay.argtypes = [ctypes.c_void_p]
    d = x.XOpenDisplay(None)
    if not d:
        raise Echec("cannot open the X display")
    ev = _XEvent()
    ev.xclient.type = 33  # ClientMessage
    ev.xclient.window = fenetre_x
    ev.xclient.message_type = x.XInternAtom(d, b"WM_PROTOCOLS", 0)
    ev.xclient.format = 32
    ev.xclient.data[0] = x.XInternAtom(d, b"WM_DELETE_WINDOW", 0)
    x.XSendEvent(d, fenetre_x, 0, 0, ctypes.byref(ev))
    x.XFlush(d)
    x.XCloseDisplay(d)


# The French keyboard's dead accents and accented letters, which the server's US map lacks.
# xdotool would map each one, key by key, on a spare keycode and unmap it right after sending
# it; a client that reads the event after the unmapping gets no key at all (seen now and then:
# an accent lost, "\u00e9" typed as "e"). Mapped once and for all before the test starts, they
# are keys like any other.
TOUCHES_FRANCAISES = ["dead_acute", "dead_grave", "dead_circumflex", "dead_diaeresis",
                      ("eacute", "Eacute"), ("egrave", "Egrave"), ("agrave", "Agrave"), ("ccedilla", "Ccedilla")]


_connexion_clavier = None


def clavier_francais():
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    x.XOpenDisplay.argtypes = [ctypes.c_char_p]
    x.XDisplayKeycodes.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int), ctypes.POINTER(ctypes.c_int)]
    x.XGetKeyboardMapping.restype = ctypes.POINTER(ctypes.c_ulong)
    x.XGetKeyboardMapping.argtypes = [ctypes.c_void_p, ctypes.c_ubyte, ctypes.c_int, ctypes.POINTER(ctypes.c_int)]
    x.XChangeKeyboardMapping.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.POINTER(ctypes.c_ulong),
                                         ctypes.c_int]
    x.XStringToKeysym.restype = ctypes.c_ulong
    x.XStringToKeysym.argtypes = [ctypes.c_char_p]
    x.XKeysymToKeycode.restype = ctypes.c_ubyte
    x.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
    x.XFree.argtypes = [ctypes.c_void_p]
    x.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
    # The connection stays open until the test ends: a server left without clients resets, and
    # forgets the keys mapped.
    global _connexion_clavier
    d = _connexion_clavier = x.XOpenDisplay(None)
    if not d:
        raise Echec("cannot open the X display")
    bas, haut, largeur = ctypes.c_int(), ctypes.c_int(), ctypes.c_int()
    x.XDisplayKeycodes(d, ctypes.byref(bas), ctypes.byref(haut))
    n = haut.value - bas.value + 1
    carte = x.XGetKeyboardMapping(d, bas.value, n, ctypes.byref(largeur))
    w = largeur.value
    libres = [bas.value + i for i in range(n) if not any(carte[i * w + j] for j in range(w))]
    x.XFree(carte)
    for touche in TOUCHES_FRANCAISES:
        noms = (touche,) if isinstance(touche, str) else touche
        syms = [x.XStringToKeysym(nom.encode()) for nom in noms]
        if x.XKeysymToKeycode(d, syms[0]):
            continue
        if len(libres) < 2:  # one is left for whatever xdotool still has to map
            raise Echec("no spare keycode for " + noms[0])
        x.XChangeKeyboardMapping(d, libres.pop(), w, (ctypes.c_ulong * w)(*(syms * w)[:w]), 1)
    x.XSync(d, 0)


def _xdotool(*arguments, check=True):
    return subprocess.run(["xdotool"] + list(arguments), check=check, capture_output=True, text=True, timeout=DELAI).stdout


# --- The window as the bus shows it --------------------------------------------------------

def pump(duree=0.0):
    ctx = GLib.MainContext.default()
    fin = time.monotonic() + duree
    while True:
        while ctx.iteration(False):
            pass
        if time.monotonic() >= fin:
            return
        time.sleep(POLL)


def attendre(condition, quoi, delai=DELAI):
    fin = time.monotonic() + delai
    while True:
        pump()
        v = condition()
        if v:
            return v
        if time.monotonic() > fin:
            raise Echec("timed out waiting for " + quoi)
        time.sleep(POLL)


def attendre_egal(valeur, attendu, quoi, delai=DELAI):
    """Waits for valeur() to become `attendu`; on time out says what it is instead."""
    try:
        attendre(lambda: valeur() == attendu, quoi, delai)
    except Echec:
        raise Echec("%s: expected %r, got %r" % (quoi, attendu, valeur())) from None


def role(acc):
    try:
        return acc.getRoleName()
    except Exception:
        return ""


def descendants(acc):
    for i in range(acc.childCount):
        c = acc.getChildAtIndex(i)
        if c is None:
            continue
        yield c
        yield from descendants(c)


def montre(acc):
    return acc.getState().contains(pyatspi.STATE_SHOWING)


def a_le_focus(acc):
    return acc.getState().contains(pyatspi.STATE_FOCUSED)


def ligne_a(acc, offset):
    t = acc.queryText()
    return t.getTextAtOffset(offset, pyatspi.TEXT_BOUNDARY_LINE_START)[0].rstrip("\n")


def police(acc):
    """(family, size in points) of the text at the caret, as a screen reader reads the font:
    the attributes of the text run over those of the widget. GTK gives a run's size in Pango
    units (1/1024 point) but the widget's in points."""
    t = acc.queryText()
    defaut = t.getDefaultAttributeSet()
    run = dict(a.split(":", 1) for a in t.getAttributeRun(max(t.caretOffset, 0), False)[0])
    taille = float(run["size"]) / 1024 if "size" in run else float(defaut.get("size", "0"))
    return run.get("family-name", defaut.get("family-name")), taille


class Fenetre:
    """lex started in `dossier`, with every event a screen reader relies on recorded:
    self.paroles: each message as it is announced (the description the focused control is given
    for that moment: what a screen reader speaks as it is), self.titres: the window title
    changes, self.carets: (field, offset) of each caret move."""

    TYPES = ["object:text-caret-moved", "object:state-changed:showing", "object:property-change:accessible-name",
             "object:state-changed:focused", "object:property-change:accessible-description"]

    ouvertes = []

    def __init__(self, dossier, env=None):
        Fenetre.ouvertes.append(self)
        self.paroles, self.titres, self.carets, self.journal = [], [], [], []
        self.affiches = []  # each text the message line shows
        self._ecoute = self._evenement
        for t in self.TYPES:
            pyatspi.Registry.registerEventListener(self._ecoute, t)
        self.proc = subprocess.Popen([os.path.join(dossier, "lex")], env=env or os.environ.copy())
        self.app = attendre(self._application, "lex on the accessibility bus")
        self.frame = attendre(lambda: next((c for c in self.app if c and role(c) == "frame"), None), "the frame")
        textes = attendre(lambda: self._textes(), "the two text fields")
        self.rtb, self.txt = textes
        self.label = attendre(lambda: next((c for c in descendants(self.frame) if role(c) == "label"), None),
                              "the message line (a label)")
        self.boutons = [c for c in descendants(self.frame) if role(c) == "push button"]
        ids = self._fenetres_x("--sync")
        if not ids:
            raise Echec("no visible X window for lex")
        self.xid = int(ids[0])
        self.refocaliser()
        attendre(lambda: a_le_focus(self.txt), "txt to have the focus")
        pump(0.05)

    def _application(self):
        if self.proc.poll() is not None:
            raise Echec("lex exited at start with status %d" % self.proc.returncode)
        return next((a for a in pyatspi.Registry.getDesktop(0) if a is not None and a.name == "lex"), None)

    def _textes(self):
        t = [c for c in descendants(self.frame) if role(c) == "text"]
        return t if len(t) == 2 else None

    def _evenement(self, ev):
        try:
            r = role(ev.source)
        except Exception:
            return
        self.journal.append((ev.type, r, ev.detail1, ev.any_data if isinstance(ev.any_data, str) else None))
        if ev.type.startswith("object:property-change:accessible-description"):
            if ev.any_data:
                self.paroles.append(ev.any_data)
        elif r == "label" and ev.type.startswith("object:property-change:accessible-name"):
            self.affiches.append(ev.any_data)
        elif r == "frame" and ev.type.startswith("object:property-change:accessible-name"):
            self.titres.append(ev.any_data)
        elif r == "text" and ev.type.startswith("object:text-caret-moved"):
            self.carets.append((ev.source, ev.detail1))

    def arreter_ecoute(self):
        for t in self.TYPES:
            pyatspi.Registry.deregisterEventListener(self._ecoute, t)

    # Keys, as typed on the keyboard.
    def touche(self, *noms):
        for n in noms:
            _xdotool("key", n)

    def _fenetres_x(self, *options):
        """The ids of the visible X windows of lex (none: xdotool fails)."""
        return _xdotool("search", *options, "--onlyvisible", "--pid", str(self.proc.pid), check=False).split()

    # What the window shows now.
    def champ(self):
        """The text field that is shown: Rtb for a long article, txt otherwise."""
        return self.rtb if montre(self.rtb) else self.txt

    def texte(self, acc=None):
        acc = acc or self.champ()
        t = acc.queryText()
        return t.getText(0, t.characterCount)

    def ligne_curseur(self, acc=None):
        acc = acc or self.champ()
        return ligne_a(acc, acc.queryText().caretOffset)

    def colonne_curseur(self, acc=None):
        """The caret's column, from 1."""
        t = (acc or self.champ()).queryText()
        return t.caretOffset - t.getTextAtOffset(t.caretOffset, pyatspi.TEXT_BOUNDARY_LINE_START)[1] + 1

    def titre(self):
        return self.frame.name

    def message(self):
        return self.label.name

    def dialogue(self, texte):
        """Waits for a window other than the main one, showing a control named `texte`."""
        return attendre(lambda: next((d for d in self.app if d is not None and d != self.frame and montre(d)
                                      and any(c.name == texte for c in descendants(d))), None),
                        "a dialog saying %r" % texte)

    def focaliser_dialogue(self):
        """What a window manager does with a dialog it maps: gives it the keyboard focus. Without
        one, keys still reach a modal dialog through the main window, but its controls never
        hold the focus, and Tab does not go round them."""
        x = attendre(lambda: next((i for i in self._fenetres_x() if int(i) != self.xid), None), "the X window of the dialog")
        _xdotool("windowfocus", "--sync", x)

    def refocaliser(self):
        """What a window manager does when a dialog it focused goes away: the focus back to the
        main window."""
        _xdotool("windowfocus", "--sync", str(self.xid))

    def sans_dialogue(self):
        attendre(lambda: not any(d is not None and d != self.frame and montre(d) for d in self.app)
                 and a_le_focus(self.champ()), "the dialogs to close and the focus to come back")

    def attendre_paroles(self, n, quoi):
        return attendre(lambda: len(self.paroles) >= n, "%s (%d messages, got %r)" % (quoi, n, self.paroles))

    def attendre_ligne(self, attendu, acc=None):
        attendre(lambda: self.ligne_curseur(acc) == attendu,
                 "the caret line %r (now %r)" % (attendu, self.ligne_curseur(acc)))

    def attendre_titre(self, attendu):
        attendre(lambda: self.titre() == attendu, "the title %r (now %r)" % (attendu, self.titre()))

    def fermer(self):
        """The close box; the program must end, and end well."""
        fermer_par_la_case(self.xid)
        self.attendre_fin("the close box")

    def attendre_fin(self, apres):
        """The program must end, and end well, after `apres`."""
        try:
            code = self.proc.wait(DELAI)
        except subprocess.TimeoutExpired:
            raise Echec("lex did not end after " + apres) from None
        if code != 0:
            raise Echec("lex ended with status %d after %s" % (code, apres))

    def tuer(self):
        if self.proc.poll() is None:
            self.proc.kill()
            self.proc.wait()


def entendu(message):
    """What is announced of a message-line text: the blanks around it are not (a blank message
    says nothing)."""
    return message.strip()


def entendus(messages):
    return [entendu(m) for m in messages if m.strip()]


def verifie(condition, texte):
    if not condition:
        raise Echec(texte)


def egal(obtenu, attendu, quoi):
    if obtenu != attendu:
        raise Echec("%s: expected %r, got %r" % (quoi, attendu, obtenu))


def principal(test):
    """Runs test(lex, lex_headless, racine) and reports like a test runner."""
    lex, lex_headless = sys.argv[1], sys.argv[2]
    racine = tempfile.mkdtemp(prefix="lex-gui-")
    debut = time.monotonic()
    try:
        clavier_francais()  # before any client starts: none sees the keyboard change
        test(lex, lex_headless, racine)
    except Echec as e:
        print("FAILED:", e)
        for f in Fenetre.ouvertes:
            print("last accessibility events seen:")
            for j in f.journal[-25:]:
                print("  ", j)
        return 1
    finally:
        for f in Fenetre.ouvertes:
            f.tuer()
        shutil.rmtree(racine, ignore_errors=True)
    print("passed in %.1f s" % (time.monotonic() - debut))
    return 0
