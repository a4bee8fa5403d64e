#!/usr/bin/env bash
# Puts LEX in the desktop's menu for the current user: the desktop entry, pointing at the
# program assembled in PROGRAM_FOLDER, and its icon, under $XDG_DATA_HOME (~/.local/share).
# Never needs root. Usage: scripts/install-desktop-entry.sh PROGRAM_FOLDER
set -euo pipefail
folder=$(cd "$1" && pwd)
data=${XDG_DATA_HOME:-$HOME/.local/share}
apps=$data/applications
icons=$data/icons/hicolor/scalable/apps
mkdir -p "$apps" "$icons"
# Exec takes the path quoted, with the characters that quoting keeps special escaped.
quoted=$(printf '%s' "$folder/lex" | sed -e 's/[\\"`$]/\\&/g')
# The same path is then read once more as a desktop-entry string: backslashes are doubled.
quoted=${quoted//\\/\\\\}
# A field code would take "%" for itself.
quoted=${quoted//%/%%}
tryexec=$folder/lex
tryexec=${tryexec//\\/\\\\}
tmp=$(mktemp "$apps/.lex.desktop.XXXXXX")
while IFS= read -r line || [ -n "$line" ]; do
  case "$line" in
    Exec=*) printf 'Exec="%s"\nTryExec=%s\n' "$quoted" "$tryexec" ;;
    *) printf '%s\n' "$line" ;;
  esac
done <"$folder/lex.desktop" >"$tmp"
chmod 644 "$tmp"
mv -f "$tmp" "$apps/lex.desktop"
install -m 644 "$folder/lex.svg" "$icons/lex.svg"
# Menus built from a cache see the new entry at once; without the tool they look by themselves.
if command -v update-desktop-database >/dev/null 2>&1; then
  update-desktop-database -q "$apps" 2>/dev/null || true
fi
