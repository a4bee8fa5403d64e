#!/usr/bin/env bash
# Builds the benchmarks in Release, generates the large test dictionary once (kept in the
# build folder), runs every bench/bench_* program on it, then on the real corpora when they
# are present, and prints one table per dictionary.
#
#   bench/run.sh
#
# Environment (all optional):
#   LEX_BENCH_BUILD     build folder (default: build-bench at the top of the repository)
#   LEX_BENCH_ARTICLES  size of the generated dictionary (default 1000000)
#   LEX_BENCH_SEED      its seed (default 1)
#   LEX_BENCH_REPS      repetitions of the whole-file measures (default 5; 3 on the corpora)
#   LEX_CORPORA         folder of real dictionaries (*.lex); skipped when missing
#
# bench_convert (export to StarDict and import back) also runs gzip, zcat and sort as its
# references.
#
# A benchmark program prints rows "ROW<tab>measure<tab>ours<tab>reference<tab>ratio<tab>
# target<tab>PASS|FAIL|-<tab>notes" (bench/bench_common.h). The exit status is 1 when a
# target is missed on the generated dictionary.
set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD=${LEX_BENCH_BUILD:-$ROOT/build-bench}
ARTICLES=${LEX_BENCH_ARTICLES:-1000000}
SEED=${LEX_BENCH_SEED:-1}
REPS=${LEX_BENCH_REPS:-5}
CORPORA=${LEX_CORPORA:-$ROOT/../shared/corpora}

# -O2: GCC 12 reports a false -Wrestrict in std::string at -O3, and warnings are errors.
cmake -S "$ROOT" -B "$BUILD" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" \
  -DLEX_BENCH=ON -DLEX_TESTS=OFF -DLEX_WX=OFF >/dev/null
cmake --build "$BUILD" -j2 >/dev/null

BIN=$BUILD/bench
DATA=$BUILD/bench-data
mkdir -p "$DATA"
GEN=$DATA/generated-v$("$BIN/gen_dictionary" --version)-$ARTICLES-s$SEED.lex
if [[ ! -s $GEN || ! -s $GEN.info ]]; then
  echo "Generating $GEN ..." >&2
  "$BIN/gen_dictionary" "$ARTICLES" "$GEN.tmp" "$SEED" >&2
  mv "$GEN.tmp.info" "$GEN.info"
  mv "$GEN.tmp" "$GEN"
fi

echo "Machine: $(nproc) cores, load average $(cut -d' ' -f1-3 /proc/loadavg) (other work on the machine slows the measures)"

failed=0
table() { # label, dictionary, repetitions, counts-for-exit-status, heading
  local label=$1 dict=$2 reps=$3 counts=$4 heading=$5 rows
  rows=$(mktemp)
  for b in "$BIN"/bench_*; do
    [[ -x $b ]] || continue
    if ! "$b" --dict "$dict" --work "$DATA/work-$label" --reps "$reps" >"$rows.out" 2>"$rows.err"; then
      echo "$(basename "$b") failed on $dict:" >&2
      cat "$rows.err" >&2
      failed=1
    fi
    grep '^ROW' "$rows.out" | cut -f2- >>"$rows" || true
  done
  echo
  echo "== $heading: $(basename "$dict"), $(stat -L -c %s "$dict") bytes"
  { printf 'measure\tours\treference\tratio\ttarget\tresult\tnotes\n'; cat "$rows"; } | column -t -s $'\t'
  if [[ $counts == yes ]] && grep -q $'\tFAIL\t' "$rows"; then failed=1; fi
  rm -f "$rows" "$rows.out" "$rows.err"
}

table generated "$GEN" "$REPS" yes "Generated dictionary"
grep -E '^(articles|bytes|planted_word|planted_articles)=' "$GEN.info" | tr '\n' ' ' | sed 's/ $/\n/'

if [[ -d $CORPORA ]]; then
  for c in "$CORPORA"/*.lex; do
    [[ -e $c ]] || continue
    table "corpus-$(basename "$c" .lex)" "$c" "${LEX_BENCH_REPS:-3}" no \
      "Trial on a real dictionary (the targets are set for the large file; on a small one fixed costs dominate)"
  done
else
  echo "(no corpora in $CORPORA: skipped)"
fi
exit $failed
