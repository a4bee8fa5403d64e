#!/usr/bin/python3
"""The desktop entry and the icon as scripts/install-desktop-entry.sh puts them in a user's
menu: under $XDG_DATA_HOME, else ~/.local/share; the entry starting the program of the folder
given, whatever characters its path holds, as GLib reads it; valid for desktop-file-validate
when it is there. Usage: desktop_entry.py REPOSITORY. Exit status 77 when GLib's Python
bindings are missing."""
import os
import shutil
import stat
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

try:
    import gi
    gi.require_version("Gio", "2.0")
    from gi.repository import Gio, GLib
except (ImportError, ValueError):
    print("SKIPPED: python3-gi missing")
    sys.exit(77)


def echec(texte):
    print("FAILED:", texte)
    sys.exit(1)


def egal(obtenu, attendu, quoi):
    if obtenu != attendu:
        echec("%s: expected %r, got %r" % (quoi, attendu, obtenu))


def installe(depot, programme, env):
    r = subprocess.run([os.path.join(depot, "scripts", "install-desktop-entry.sh"), programme], env=env,
                       capture_output=True, text=True, timeout=60)
    if r.returncode != 0:
        echec("install-desktop-entry.sh failed (%d): %s" % (r.returncode, r.stderr))


def verifie_entree(entree, programme):
    egal(stat.S_IMODE(os.stat(entree).st_mode), 0o644, "mode of the entry")
    cle = GLib.KeyFile()
    cle.load_from_file(entree, GLib.KeyFileFlags.NONE)
    g = "Desktop Entry"
    egal(cle.get_string(g, "Name"), "LEX", "Name")
    egal(cle.get_string(g, "Icon"), "lex", "Icon")
    egal(cle.get_string(g, "Type"), "Application", "Type")
    for c in ("Accessibility", "Education"):
        if c not in cle.get_string_list(g, "Categories"):
            echec("category %s missing: %r" % (c, cle.get_string(g, "Categories")))
    if "clavier" not in cle.get_string(g, "Comment"):
        echec("Comment not the French one: %r" % cle.get_string(g, "Comment"))
    # What the menu runs, as GLib makes it: the entry's string, its field codes expanded ("%%"
    # is "%"), then split into arguments.
    ok, argv = GLib.shell_parse_argv(cle.get_string(g, "Exec").replace("%%", "%"))
    egal(argv, [programme], "the command of the entry")
    egal(cle.get_string(g, "TryExec"), programme, "TryExec")
    # GLib's own reading of it, which menus use, accepts it: the program and TryExec found.
    try:
        Gio.DesktopAppInfo.new_from_filename(entree)
    except TypeError:
        echec("GLib refuses the entry")
    if shutil.which("desktop-file-validate"):
        r = subprocess.run(["desktop-file-validate", entree], capture_output=True, text=True)
        if r.returncode != 0 or "error:" in r.stdout or "warning:" in r.stdout:
            echec("desktop-file-validate: %s%s" % (r.stdout, r.stderr))
    else:
        print("desktop-file-validate not installed: the entry is checked through GLib only")


def main():
    depot = os.path.abspath(sys.argv[1])
    racine = tempfile.mkdtemp(prefix="lex-desktop-")
    try:
        # A folder whose name holds what the entry's quoting must escape.
        programme_dossier = os.path.join(racine, 'Mes programmes', 'LEX $HOME "\u00e9t\u00e9" `x` \\')
        os.makedirs(programme_dossier)
        for nom in ("lex.desktop", "lex.svg"):
            shutil.copy2(os.path.join(depot, "bundle", nom), programme_dossier)
        programme = os.path.join(programme_dossier, "lex")
        with open(programme, "w") as f:
            f.write("#!/bin/sh\n")
        os.chmod(programme, 0o755)

        env = os.environ.copy()
        env["HOME"] = os.path.join(racine, "maison")
        donnees = os.path.join(racine, "donnees")
        env["XDG_DATA_HOME"] = donnees
        installe(depot, programme_dossier, env)
        applications = os.path.join(donnees, "applications")
        verifie_entree(os.path.join(applications, "lex.desktop"), programme)
        icone = os.path.join(donnees, "icons", "hicolor", "scalable", "apps", "lex.svg")
        racine_svg = ET.parse(icone).getroot()
        egal(racine_svg.tag, "{http://www.w3.org/2000/svg}svg", "the icon's root element")
        if "viewBox" not in racine_svg.attrib:
            echec("the icon has no viewBox: it would not scale")
        # Installed again, the files are replaced, with nothing left beside them.
        installe(depot, programme_dossier, env)
        egal(sorted(n for n in os.listdir(applications) if not n.endswith(".cache")), ["lex.desktop"],
             "the menu's folder after a second install")
        # Without XDG_DATA_HOME, the user's own ~/.local/share.
        del env["XDG_DATA_HOME"]
        installe(depot, programme_dossier, env)
        verifie_entree(os.path.join(env["HOME"], ".local", "share", "applications", "lex.desktop"), programme)
        if not os.path.exists(os.path.join(env["HOME"], ".local", "share", "icons", "hicolor", "scalable", "apps", "lex.svg")):
            echec("the icon is not under ~/.local/share")
    finally:
        shutil.rmtree(racine, ignore_errors=True)
    print("passed")
    return 0


if __name__ == "__main__":
    sys.exit(main())
