#!/usr/bin/env bash
# Installs, with apt-get, the Debian packages that building and testing LEX need, and only
# those that are missing. Usage: scripts/install-deps.sh [build|test|fuzz|all]
set -euo pipefail
what=${1:-all}
build=(g++ cmake make pkg-config libgtest-dev libgmock-dev libwxgtk3.2-dev libgtk-3-dev
       wx3.2-i18n  # the toolkit's own texts in French: its dialogs' buttons
       zlib1g-dev libicu-dev libpugixml-dev)  # lex-import and lex-export
test=(xvfb xauth x11-utils xdotool dbus-daemon dbus-x11 at-spi2-core python3 python3-pyatspi python3-gi
      orca speech-dispatcher speech-dispatcher-espeak-ng espeak-ng gir1.2-gtk-3.0 desktop-file-utils)
# libFuzzer and the sanitizer runtimes come with clang's runtime package.
fuzz=(clang libclang-rt-dev)
case "$what" in
  build) want=("${build[@]}") ;;
  test) want=("${build[@]}" "${test[@]}") ;;
  fuzz) want=("${build[@]}" "${fuzz[@]}") ;;
  all) want=("${build[@]}" "${test[@]}" "${fuzz[@]}") ;;
  *) echo "usage: $0 [build|test|fuzz|all]" >&2; exit 2 ;;
esac
missing=()
for p in "${want[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
