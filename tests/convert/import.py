#!/usr/bin/env python3
"""lex-import as the user and the run command use it: a tab-separated file made into a
dictionary file, never over a file already there unless asked; bad input said in French
with no file left; a dictionary added to a program folder's catalogue, which LEX then opens
by its call letter; and nothing touched while LEX runs on the folder.

usage: import.py LEX_IMPORT LEX_HEADLESS
"""
import json
import os
import subprocess
import sys
import tempfile
import time

LEX_IMPORT, LEX_HEADLESS = sys.argv[1], sys.argv[2]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what, file=sys.stderr)


def run(*args):
    return subprocess.run([LEX_IMPORT, *args], capture_output=True, timeout=60)


def read(path):
    with open(path, "rb") as f:
        return f.read()


def write(path, data):
    with open(path, "wb") as f:
        f.write(data)


def headless(folder, script):
    """Runs the scripted window on the folder; its events."""
    r = subprocess.run([LEX_HEADLESS, "--dir", folder], input=script.encode(), capture_output=True, timeout=60)
    check(r.returncode == 0, f"lex-headless ended with {r.returncode}: {r.stderr!r}")
    return [json.loads(line) for line in r.stdout.decode().splitlines() if line.strip()]


SOURCE = "zèbre\tanimal rayé\\nrayures ‐ noires\r\nErdős\tmathématicien\r\nabeille\tinsecte\r\n".encode()
EXPECTED = ("abeille\r\ninsecte\r\n\r\nErdos\r\nmath\xe9maticien\r\n\r\n"
            "z\xe8" "bre\r\nanimal ray\xe9\r\nrayures - noires\r\n").encode("latin-1")

with tempfile.TemporaryDirectory() as work:
    source = os.path.join(work, "mots.txt")
    write(source, SOURCE)

    # To a path: the dictionary's bytes and what the user is told.
    out = os.path.join(work, "mots.dic")
    r = run(source, out)
    check(r.returncode == 0, f"import to a path: {r.stderr.decode()}")
    check(read(out) == EXPECTED, f"dictionary bytes: {read(out)!r}")
    said = r.stdout.decode()
    check(f"3 articles écrits dans {out}" in said, f"articles said: {said}")
    check("2 caractères changés pour Windows-1252, par exemple : ‐→-, ő→o" in said, f"changes said: {said}")

    # A file already there is kept unless --remplace.
    write(out, b"le mien\r\n")
    r = run(source, out)
    check(r.returncode == 1 and read(out) == b"le mien\r\n", "an existing file was overwritten")
    check("existe déjà" in r.stderr.decode(), f"refusal said: {r.stderr.decode()}")
    r = run("--remplace", source, out)
    check(r.returncode == 0 and read(out) == EXPECTED, "--remplace did not replace")

    # Bad input: French, the file and the line named, no file left.
    bad = os.path.join(work, "mauvais.txt")
    write(bad, b"a\tb\r\nc\td\r\nsans tabulation\r\n")
    bad_out = os.path.join(work, "mauvais.dic")
    r = run("--format", "tabulations", bad, bad_out)
    check(r.returncode == 1, "bad input accepted")
    check(f"{bad}, ligne 3 : pas de tabulation" in r.stderr.decode(), f"bad input said: {r.stderr.decode()}")
    check(not os.path.exists(bad_out), "a file was left after bad input")
    r = run("--format", "inconnu", source, bad_out)
    check(r.returncode == 1 and "format inconnu : inconnu" in r.stderr.decode(), "unknown --format")
    check(run(source).returncode == 1, "a missing argument accepted")

    # Into a program folder that LEX has started on once.
    folder = os.path.join(work, "lex")
    os.mkdir(folder)
    headless(folder, "")
    config = os.path.join(folder, "lex301.INI")
    before = read(config)
    add = ["--dir", folder, "--name", "Synonymes", "--suffix", "dic", "--letter", "y"]
    r = run(source, *add)
    check(r.returncode == 0, f"import into the folder: {r.stderr.decode()}")
    check(read(os.path.join(folder, "Synonymes.dic")) == EXPECTED, "dictionary file in the folder")
    after = read(config)
    # The same lines (numbers as LEX writes them when it ends), and the new row last.
    lines = lambda data: [l.strip() for l in data.split(b"\r\n")]
    check(lines(after) == lines(before)[:-1] + [b"1,dic,Synonymes,Y", b""], f"configuration: {after!r}")
    check("Dictionnaire « Synonymes » ajouté au catalogue" in r.stdout.decode(), f"said: {r.stdout.decode()}")
    # LEX finds it by its call letter and opens it on its index.
    events = headless(folder, "key Y\nkey Enter\nshow\n")
    state = [e for e in events if e.get("ev") == "state"]
    check(state and state[-1]["title"] == "Synonymes" and state[-1]["txt"] == "abeille\r\nErdos\r\nzèbre",
          f"not opened: {events}")

    # The same name, a letter in use: refused, the configuration as it was.
    settled = read(config)
    for args, said in ((add, "le catalogue a déjà un dictionnaire « Synonymes »"),
                       (["--dir", folder, "--name", "Autre", "--suffix", "dic", "--letter", "Y"],
                        "lettre d'appel Y déjà prise")):
        r = run(source, *args)
        check(r.returncode == 1 and said in r.stderr.decode(), f"refusal: {r.stderr.decode()}")
        check(read(config) == settled, "configuration changed by a refused import")
    check(not os.path.exists(os.path.join(folder, "Autre.dic")), "a file was left by a refused import")

    # While LEX runs on the folder, nothing is touched.
    lex = subprocess.Popen([LEX_HEADLESS, "--dir", folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        lex.stdin.write(b"show\n")
        lex.stdin.flush()
        lex.stdout.readline()  # started: the folder is locked
        r = run(source, "--dir", folder, "--name", "Pendant", "--suffix", "dic")
        check(r.returncode == 1, "imported while LEX runs")
        check("LEX est ouvert sur ce dossier : fermez-le puis recommencez. Rien n'a été modifié." in r.stderr.decode(),
              f"lock refusal said: {r.stderr.decode()}")
        check(not os.path.exists(os.path.join(folder, "Pendant.dic")), "a file was written while LEX runs")
        check(read(config) == settled, "configuration changed while LEX runs")
    finally:
        lex.stdin.close()
        lex.wait(timeout=60)
        lex.stdout.close()
    # A chronology keeps its order, and its row says it has none.
    chrono = os.path.join(work, "chrono.txt")
    write(chrono, b"1789\tR\xe9volution\n1515\tMarignan\n")
    r = run("--ordre-source", chrono, "--dir", folder, "--name", "Chronologie", "--suffix", "txt")
    check(r.returncode == 0, f"import in the source's order: {r.stderr.decode()}")
    check(read(os.path.join(folder, "Chronologie.txt")) == b"1789\r\nR\xe9volution\r\n\r\n1515\r\nMarignan\r\n",
          "the source's order was not kept")
    check(read(config).endswith(b"\r\n1,txt,Chronologie, ,SansOrdreAlpha\r\n"), f"row: {read(config)[-60:]!r}")
    settled = read(config)

    # Once it has ended, the same import goes through.
    r = run(source, "--dir", folder, "--name", "Pendant", "--suffix", "dic")
    check(r.returncode == 0, f"import after LEX ended: {r.stderr.decode()}")

sys.exit(1 if failures else 0)
