#!/usr/bin/env bash
# Installs what is missing, builds LEX, assembles its program folder and starts it there.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh build
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DLEX_TESTS=OFF >/dev/null
cmake --build build -j"$(nproc 2>/dev/null || echo 2)"
# LEX in the desktop's menu, for this user.
scripts/install-desktop-entry.sh build/lex
# The distribution's free dictionaries in place of the samples, at the first start; never
# over a file the user changed, and LEX starts on its samples when they cannot be installed.
scripts/install-dictionaries.sh build/lex
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "LEX needs a graphical desktop (no DISPLAY or WAYLAND_DISPLAY is set)." >&2
  echo "The program is built in build/lex/; the scripted window runs anywhere:" >&2
  echo "  build/lex/lex-headless --dir build/lex" >&2
  exit 1
fi
exec build/lex/lex
