#!/usr/bin/env bash
# What scripts/install-dictionaries.sh decides, without network or root: a fake apt-get that
# "installs" small files where the packages put theirs, and a fake lex-import that notes what
# it is asked. Usage: install_dictionaries_test.sh REPOSITORY
set -uo pipefail
depot=$1
script=$depot/scripts/install-dictionaries.sh
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
echecs=0
verifie() {  # message, then the command that must succeed
  local quoi=$1
  shift
  if ! "$@"; then
    echo "ÉCHEC : $quoi" >&2
    echecs=1
  fi
}

mkdir -p "$tmp/bin"
cat >"$tmp/bin/apt-get" <<'FAUX'
#!/usr/bin/env bash
echo "apt-get $*" >>"$FAUX_JOURNAL"
[ "$1" = install ] || exit 0
[ -n "${FAUX_PANNE:-}" ] && exit 100
for p in "$@"; do
  case "$p" in
    dict-freedict-eng-fra) f=dictd/freedict-eng-fra.index ;;
    dict-freedict-fra-eng) f=dictd/freedict-fra-eng.index ;;
    dict-foldoc) f=dictd/foldoc.index ;;
    dict-jargon) f=dictd/jargon.index ;;
    mythes-fr) f=mythes/thes_fr.dat ;;
    verbiste) f=verbiste-0.1/verbs-fr.xml ;;
    *) continue ;;
  esac
  mkdir -p "$(dirname "$LEX_SHARE/$f")" && echo "$p" >"$LEX_SHARE/$f"
done
FAUX
cat >"$tmp/bin/lex-import" <<'FAUX'
#!/usr/bin/env bash
echo "lex-import $*" >>"$FAUX_JOURNAL"
if [ "$1" = --remplace ]; then
  echo "importé de $2" >"$3"
else
  printf '9,%s,%s,%s\r\n' "$7" "$5" "$9" >>"$3/lex301.INI"
fi
FAUX
chmod +x "$tmp/bin/apt-get" "$tmp/bin/lex-import"

# A program folder as the build assembles it: the samples, lex.fen changed by its user.
lance() {  # folder, then the environment
  local dossier=$1
  shift
  env FAUX_JOURNAL="$tmp/journal" LEX_SHARE="$tmp/share" LEX_APT="$tmp/bin/apt-get" \
    LEX_IMPORT="$tmp/bin/lex-import" "$@" "$script" "$dossier" >"$tmp/sortie" 2>&1
}
prepare() {
  rm -rf "$1" "$tmp/share" "$tmp/journal"
  mkdir -p "$1"
  cp "$depot"/bundle/lex.eng "$depot"/bundle/lex.fen "$depot"/bundle/lex.ver "$1"/
  echo "ajouté par l'utilisateur" >>"$1/lex.fen"
  touch "$tmp/journal"
}

p=$tmp/lex
prepare "$p"
verifie "premier démarrage sans erreur" lance "$p"
verifie "fra-eng n'est pas installé pour un lex.fen changé" \
  grep -qx 'apt-get install -y -qq --no-install-recommends dict-freedict-eng-fra verbiste mythes-fr dict-foldoc dict-jargon' "$tmp/journal"
verifie "lex.eng remplacé" grep -qx "importé de $tmp/share/dictd/freedict-eng-fra.index" "$p/lex.eng"
verifie "lex.ver remplacé depuis le dossier de Verbiste" grep -qx "importé de $tmp/share/verbiste-0.1" "$p/lex.ver"
verifie "lex.fen de l'utilisateur gardé" grep -q "ajouté par l'utilisateur" "$p/lex.fen"
verifie "lex.fen gardé est dit" grep -q "lex.fen n'est plus l'exemple livré avec LEX" "$tmp/sortie"
for ligne in "9,syn,Synonymes,S" "9,fol,Informatique (anglais),O" "9,jar,Jargon (anglais),J"; do
  verifie "ligne $ligne ajoutée" grep -qxF "$ligne"$'\r' "$p/lex301.INI"
done
verifie "trois lignes ajoutées" test "$(grep -c . "$p/lex301.INI")" = 3

# The next start does nothing: no installation, no import, nothing said.
: >"$tmp/journal"
verifie "second démarrage" lance "$p"
verifie "second démarrage sans rien faire" test ! -s "$tmp/journal" -a ! -s "$tmp/sortie"

# A row the user removed stays removed.
: >"$p/lex301.INI"
lance "$p"
verifie "ligne enlevée par l'utilisateur non remise" test ! -s "$p/lex301.INI"

# No network: nothing installed, the samples stay, and the user is told.
prepare "$p"
verifie "sans réseau sans erreur" lance "$p" FAUX_PANNE=1
verifie "échantillon gardé sans réseau" cmp -s "$p/lex.eng" "$depot/bundle/lex.eng"
verifie "chaque paquet essayé seul" grep -qx 'apt-get install -y -qq --no-install-recommends dict-jargon' "$tmp/journal"
verifie "rien importé sans réseau" test -z "$(grep lex-import "$tmp/journal")"
verifie "dit sans réseau" grep -qF "dict-freedict-eng-fra n'a pas pu être installé (pas de réseau ?) : « ANGLAIS francais » garde son contenu." "$tmp/sortie"
verifie "ligne non ajoutée dite" grep -qF "dict-jargon n'a pas pu être installé (pas de réseau ?) : « Jargon (anglais) » n'est pas ajouté." "$tmp/sortie"
verifie "dit que LEX démarre sur ses exemples" grep -q "dictionnaires d'exemple" "$tmp/sortie"
# ... and the next start tries again.
lance "$p"
verifie "nouvel essai au démarrage suivant" grep -qx "importé de $tmp/share/dictd/freedict-eng-fra.index" "$p/lex.eng"

# While LEX runs on the folder (its lock held), nothing is touched.
prepare "$p"
mkdir -p "$tmp/share/dictd" && echo x >"$tmp/share/dictd/freedict-eng-fra.index"
exec 9>"$p/lex.lock"
flock 9
lance "$p"
exec 9>&-
verifie "LEX ouvert : rien d'importé" cmp -s "$p/lex.eng" "$depot/bundle/lex.eng"
verifie "LEX ouvert : dit" grep -q "LEX est ouvert sur" "$tmp/sortie"
verifie "LEX ouvert : rien d'installé" test ! -s "$tmp/journal"

# The build assembles the folder again at each run: it puts no sample back over a dictionary,
# and the guide follows the sources.
b=$tmp/assemble
assemble() { cmake -DSRC="$depot/bundle" -DDEST="$b" -P "$depot/cmake/bundle.cmake"; }
assemble
echo "imported" >"$b/lex.eng"
echo "old" >>"$b/aide.txt"
assemble
verifie "dictionnaire gardé par la construction" grep -qx imported "$b/lex.eng"
verifie "guide à jour après la construction" cmp -s "$b/aide.txt" "$depot/bundle/aide.txt"
verifie "dossier complet" test "$(ls "$b" | wc -l)" = "$(ls "$depot/bundle" | wc -l)"

[ $echecs -eq 0 ] || { cat "$tmp/sortie" >&2; exit 1; }
echo "install-dictionaries : tout est bon"
