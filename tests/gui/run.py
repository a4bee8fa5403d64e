#!/usr/bin/python3
"""Runs one GUI test (tests/gui/NAME.py) in a private X server and session bus, with its own
HOME and XDG_RUNTIME_DIR, as a desktop session would give it.
Usage: run.py NAME LEX LEX_HEADLESS   Exit status 77 (skipped) when the tools are missing."""
import os
import shutil
import subprocess
import sys
import tempfile

ICI = os.path.dirname(os.path.abspath(__file__))
PYTHON = "/usr/bin/python3"  # Debian's, which sees python3-pyatspi


def main():
    nom, lex, lex_headless = sys.argv[1:4]
    outils = ["xvfb-run", "dbus-run-session", "xdotool"] + (["orca", "speech-dispatcher"] if nom in ("orca_speech", "first_use") else [])
    manque = [o for o in outils if shutil.which(o) is None]
    if manque or subprocess.run([PYTHON, "-c", "import pyatspi"], capture_output=True).returncode != 0:
        print("SKIPPED: %s missing (scripts/install-deps.sh test installs them)" % (", ".join(manque) or "pyatspi"))
        return 77
    racine = tempfile.mkdtemp(prefix="lex-session-")
    env = os.environ.copy()
    env["HOME"] = os.path.join(racine, "home")
    env["XDG_RUNTIME_DIR"] = os.path.join(racine, "run")
    for d in (env["HOME"], env["XDG_RUNTIME_DIR"]):
        os.makedirs(d, mode=0o700)
    for v in ("NO_AT_BRIDGE", "DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "PYTHONPATH"):
        env.pop(v, None)
    env["PYTHONPATH"] = ICI
    env["PYTHONDONTWRITEBYTECODE"] = "1"  # nothing written into the source tree
    env["LC_ALL"] = "C.UTF-8"
    try:
        r = subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x800x24", "dbus-run-session", "--",
                            PYTHON, os.path.join(ICI, nom + ".py"), os.path.abspath(lex), os.path.abspath(lex_headless)],
                           env=env, timeout=150)
        return r.returncode
    finally:
        shutil.rmtree(racine, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
