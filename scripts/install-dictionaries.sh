#!/usr/bin/env bash
# Real dictionaries for a French user from the distribution's free packages, imported into the
# program folder with lex-import: FreeDict English-French and French-English in place of the
# samples of "ANGLAIS francais" (lex.eng) and "FRANCAIS ANGLAIS" (lex.fen), Verbiste in place
# of "CONJUGAISON" (lex.ver), and three rows of their own: the French thesaurus, the Free
# On-line Dictionary of Computing and the Jargon File.
#
# A file the user already has is never overwritten: a sample is replaced only while it is
# still byte for byte the one LEX ships (bundle/), and an added row is added once; what was
# done is noted in PROGRAM_FOLDER/.dictionnaires-importes and not done again, so that a row
# the user removes stays removed. Whatever cannot be installed or imported is said, in French,
# and LEX starts on its samples: this script never stops the start.
#
# Usage: scripts/install-dictionaries.sh [PROGRAM_FOLDER]   (build/lex by default)
# For tests: LEX_SHARE (where the packages put their files, /usr/share), LEX_APT (an apt-get
# to run as it is, without sudo), LEX_IMPORT (the lex-import to run).
set -uo pipefail
cd "$(dirname "$0")/.."
dossier=${1:-build/lex}
echantillons=$PWD/bundle
partage=${LEX_SHARE:-/usr/share}
importe=${LEX_IMPORT:-$dossier/lex-import}
journal=$dossier/.dictionnaires-importes

dire() { printf 'Dictionnaires : %s\n' "$*"; }

# One line per dictionary: key|package|kind|target|row name|suffix|call letter|what it is.
# kind "fichier": a sample of the catalogue replaced; kind "ligne": a row added.
dictionnaires=(
  "eng-fra|dict-freedict-eng-fra|fichier|lex.eng|ANGLAIS francais|||FreeDict anglais-français"
  "fra-eng|dict-freedict-fra-eng|fichier|lex.fen|FRANCAIS ANGLAIS|||FreeDict français-anglais"
  "conjugaisons|verbiste|fichier|lex.ver|CONJUGAISON|||Conjugaisons de Verbiste"
  "synonymes|mythes-fr|ligne||Synonymes|syn|S|Thésaurus français"
  "foldoc|dict-foldoc|ligne||Informatique (anglais)|fol|O|Free On-line Dictionary of Computing"
  "jargon|dict-jargon|ligne||Jargon (anglais)|jar|J|Jargon File"
)

# Where a package leaves what is imported; empty when it is not there.
source_de() {
  local f=
  case "$1" in
    dict-freedict-eng-fra) f=$partage/dictd/freedict-eng-fra.index ;;
    dict-freedict-fra-eng) f=$partage/dictd/freedict-fra-eng.index ;;
    dict-foldoc) f=$partage/dictd/foldoc.index ;;
    dict-jargon) f=$partage/dictd/jargon.index ;;
    mythes-fr) f=$partage/mythes/thes_fr.dat ;;
    verbiste)
      # The folder is named after Verbiste's version (verbiste-0.1).
      for d in "$partage"/verbiste-*/; do
        [ -f "$d/verbs-fr.xml" ] && f=${d%/} && break
      done ;;
  esac
  [ -n "$f" ] && [ -e "$f" ] && printf '%s\n' "$f"
}

deja_fait() { [ -f "$journal" ] && grep -qxF "$1" "$journal"; }
noter() { printf '%s\n' "$1" >>"$journal"; }

# The row is in the folder's configuration already (added by hand, or before this script).
ligne_presente() {
  [ -f "$dossier/lex301.INI" ] && grep -aqF ",$2,$1" "$dossier/lex301.INI"
}

# The dictionaries still to import: not done before, and for a sample, the file still the
# one LEX ships (or missing).
voulus=()
for d in "${dictionnaires[@]}"; do
  IFS='|' read -r cle paquet genre fichier nom suffixe lettre quoi <<<"$d"
  deja_fait "$cle" && continue
  if [ "$genre" = fichier ]; then
    if [ -e "$dossier/$fichier" ] && ! cmp -s "$dossier/$fichier" "$echantillons/$fichier"; then
      dire "$fichier n'est plus l'exemple livré avec LEX : il est gardé tel quel."
      noter "$cle"
      continue
    fi
  elif ligne_presente "$nom" "$suffixe"; then
    noter "$cle"
    continue
  fi
  voulus+=("$d")
done
[ ${#voulus[@]} -eq 0 ] && exit 0

if [ ! -x "$importe" ]; then
  dire "lex-import est introuvable dans $dossier : les dictionnaires ne sont pas importés."
  exit 0
fi
# LEX holds this lock while it runs on the folder; its files are not changed under it.
if ! flock -n "$dossier/lex.lock" true 2>/dev/null; then
  dire "LEX est ouvert sur $dossier : les dictionnaires seront importés au prochain démarrage."
  exit 0
fi

# Installing the packages that are missing.
manquants=()
for d in "${voulus[@]}"; do
  IFS='|' read -r cle paquet _ <<<"$d"
  [ -z "$(source_de "$paquet")" ] && manquants+=("$paquet")
done
if [ ${#manquants[@]} -gt 0 ]; then
  apt=()
  if [ -n "${LEX_APT:-}" ]; then
    apt=("$LEX_APT")
  elif ! command -v apt-get >/dev/null 2>&1; then
    dire "apt-get est introuvable (ce n'est pas une Debian) : ${manquants[*]} ne peuvent pas être installés."
  elif [ "$(id -u)" -eq 0 ]; then
    apt=(env DEBIAN_FRONTEND=noninteractive apt-get)
  elif command -v sudo >/dev/null 2>&1; then
    # Without a terminal, sudo cannot ask for the password: it fails instead of waiting.
    sudo_=(sudo)
    [ -t 0 ] || sudo_=(sudo -n)
    apt=("${sudo_[@]}" env DEBIAN_FRONTEND=noninteractive apt-get)
  else
    dire "sudo est introuvable : ${manquants[*]} ne peuvent pas être installés sans les droits d'administrateur."
  fi
  if [ ${#apt[@]} -gt 0 ]; then
    dire "installation de ${manquants[*]}"
    "${apt[@]}" update -qq >/dev/null 2>&1
    if ! "${apt[@]}" install -y -qq --no-install-recommends "${manquants[@]}" >/dev/null 2>&1; then
      # One package missing from the distribution must not keep the others out.
      for p in "${manquants[@]}"; do
        "${apt[@]}" install -y -qq --no-install-recommends "$p" >/dev/null 2>&1
      done
    fi
  fi
fi

echecs=0
for d in "${voulus[@]}"; do
  IFS='|' read -r cle paquet genre fichier nom suffixe lettre quoi <<<"$d"
  source=$(source_de "$paquet")
  if [ -z "$source" ]; then
    suite="« $nom » garde son contenu"
    [ "$genre" = ligne ] && suite="« $nom » n'est pas ajouté"
    dire "$paquet n'a pas pu être installé (pas de réseau ?) : $suite."
    echecs=1
    continue
  fi
  dire "$quoi : import dans « $nom »"
  if [ "$genre" = fichier ]; then
    ok=0
    "$importe" --remplace "$source" "$dossier/$fichier" && ok=1
  else
    ok=0
    "$importe" "$source" --dir "$dossier" --name "$nom" --suffix "$suffixe" --letter "$lettre" && ok=1
  fi
  if [ $ok -eq 1 ]; then
    noter "$cle"
  else
    dire "$quoi : l'import a échoué ; nouvel essai au prochain démarrage."
    echecs=1
  fi
done
[ $echecs -eq 1 ] && dire "LEX démarre avec ce qui a pu être importé et ses dictionnaires d'exemple pour le reste."
exit 0
