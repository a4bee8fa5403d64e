"""The window heard through Orca itself: Orca with speech-dispatcher on a null audio output,
its debug file read for what it says (every utterance is a line "SPEECH OUTPUT: '...'").
Prints the phrases spoken."""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

from lexgui import Echec, Fenetre, attendre, attendre_egal, dossier_programme, fermer_par_la_case, principal, verifie


DEMARRAGE_ORCA = 60.0  # seconds: Orca is slow to start on a loaded machine


def speech_dispatcher(racine):
    """speech-dispatcher with its own configuration, playing sound nowhere."""
    conf = os.path.join(racine, "speechd")
    shutil.copytree("/etc/speech-dispatcher", conf)
    chemin = os.path.join(conf, "speechd.conf")
    with open(chemin) as f:
        texte = f.read()
    with open(chemin, "w") as f:
        f.write(texte + '\nAudioOutputMethod "libao"\n')
    with open(os.path.join(os.environ["HOME"], ".libao"), "w") as f:
        f.write("default_driver=null\n")
    p = subprocess.Popen(["speech-dispatcher", "-s", "-t", "0", "-C", conf], stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)
    socket = os.path.join(os.environ["XDG_RUNTIME_DIR"], "speech-dispatcher", "speechd.sock")
    attendre(lambda: os.path.exists(socket) or p.poll() is not None, "speech-dispatcher to start")
    verifie(p.poll() is None, "speech-dispatcher ended at start")
    return p


def orca(racine, journal, langue=None):
    """Orca, speaking but echoing no keys and showing no braille, logging line by line; in the
    language given (a LANGUAGE value) rather than the session's."""
    prefs = tempfile.mkdtemp(prefix="orca-prefs-", dir=racine)
    reglages = {"enableKeyEcho": False, "enableEchoByCharacter": False, "enableEchoByWord": False,
                "enableBraille": False, "enableBrailleMonitor": False, "enableSpeech": True, "firstStart": False,
                "enableTutorialMessages": False}
    with open(os.path.join(prefs, "user-settings.conf"), "w") as f:
        json.dump({"general": reglages, "pronunciations": {}, "keybindings": {},
                   "profiles": {"default": dict(reglages, profile=["Default", "default"], pronunciations={},
                                                keybindings={})}}, f)
    # Orca's debug file is block-buffered and loses its tail when Orca is stopped.
    with open("/usr/bin/orca") as f:
        source = f.read()
    copie = os.path.join(prefs, "orca")
    with open(copie, "w") as f:
        f.write(source.replace("open(args.debug_file, 'w')", "open(args.debug_file, 'w', buffering=1)"))
    env = dict(os.environ)
    env.pop("PYTHONPATH", None)  # the tests' folder would hide Orca's own modules
    if langue:
        env["LANGUAGE"] = langue
    return subprocess.Popen(["/usr/bin/python3", copie, "-u", prefs, "--debug-file", journal], env=env,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def paroles(journal):
    if not os.path.exists(journal):
        return []
    with open(journal, errors="replace") as f:
        # The utterance is quoted as it is, apostrophes included: its closing quote is the one the
        # line ends with, or that the voice (" voice=...", then a dict "{...}") follows.
        # Blanks are not heard: runs of them are compared as one.
        return [" ".join(p.split()) for p in re.findall(r"SPEECH OUTPUT: '(.*?)'(?=$| voice=|\s*\{)", f.read(), re.M)]


def pret(o, journal):
    """Waits for Orca to listen: it has greeted the user and is on the accessibility bus. Under
    load it has taken more than 8 s to get there; it is polled, for as long as it stays alive."""
    import pyatspi

    def ecoute():
        if o.poll() is not None:
            raise Echec("Orca ended at start with status %d" % o.returncode)
        return any(p.startswith(("Screen reader on", "Lecteur d")) for p in paroles(journal)) and \
            any(a is not None and a.name == "orca" for a in pyatspi.Registry.getDesktop(0))
    attendre(ecoute, "Orca to start", DEMARRAGE_ORCA)


def orca_pret(racine, journal, langue=None):
    """Orca started and listening. Orca has now and then ended at start on a loaded machine:
    it is then started once more."""
    for essai in (1, 2):
        o = orca(racine, journal, langue)
        try:
            pret(o, journal)
            return o
        except Echec:
            if o.poll() is None:
                o.kill()
                raise
            if essai == 2:
                raise


def arrete(journal, *processus):
    """Prints all that Orca said, then stops Orca and speech-dispatcher (those started)."""
    print("Orca said:")
    for p in paroles(journal):
        print("   ", p)
    for p in processus:
        if p is None:
            continue
        p.terminate()
        try:
            p.wait(5)
        except subprocess.TimeoutExpired:
            p.kill()


def entendre(journal, depuis, attendus):
    """Waits until Orca has said, after its utterance number `depuis`, each of `attendus`
    (fragments) in that order; returns the index after the last one."""
    def apres_le_dernier():
        dites, i = paroles(journal), depuis
        for a in attendus:
            i = next((k + 1 for k in range(i, len(dites)) if a in dites[k]), None)
            if i is None:
                return None
        return i
    return attendre(apres_le_dernier, "Orca to say %r in that order" % (attendus,))


def test(lex, lex_headless, racine):
    journal = os.path.join(racine, "orca.out")
    sd = speech_dispatcher(racine)
    o = None
    try:
        o = orca_pret(racine, journal)
        w = Fenetre(dossier_programme(lex, racine))
        n = entendre(journal, 0, ["ANGLAIS francais"])
        etapes = [
            # Orca reads a label when it gets to it: of the messages of one command, the last.
            (["a", "Return"], ["abricot", "ANGLAIS francais"]),
            (["Down"], ["banane"]),
            (["Return"], ["fruit jaune"]),
            (["c"], []),  # in an article a letter is no command: nothing to hear
            (["Escape"], ["banane"]),
            (["c"], ["cerise"]),
            # A new article: what to type, then, once OK is pressed from the keyboard, the entry
            # added, with its accented letters.
            (["ctrl+n"], ["tapez l'index puis la d\u00e9finition"]),
            # Keys are not echoed: the text is read from the field.
            (["dead_acute", "e", "l", "eacute", "p", "h", "a", "n", "t", "Return", "g", "r", "o", "s"], [],
             "\u00e9l\u00e9phant\ngros"),
            (["Tab"], ["OK"]),
            (["space"], ["\u00e9l\u00e9phant ajout\u00e9"]),
        ]
        for touches, attendus, *champ in etapes:
            w.touche(*touches)
            if champ:
                attendre_egal(lambda: w.texte(w.txt), champ[0], "the field after " + " ".join(touches))
            if attendus:
                n = entendre(journal, n, attendus)
        # Closing asks whether to save the changed dictionary; Enter says yes.
        fermer_par_la_case(w.xid)
        w.dialogue("Souhaitez vous sauvegarder le dictionnaire ANGLAIS francais")
        w.focaliser_dialogue()
        entendre(journal, n, ["Souhaitez vous sauvegarder le dictionnaire ANGLAIS francais"])
        w.touche("Return")
        w.attendre_fin("saving")
    finally:
        arrete(journal, o, sd)


if __name__ == "__main__":
    sys.exit(principal(test))
