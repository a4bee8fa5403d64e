#!/usr/bin/env bash
# Builds LEX and runs the whole test suite twice: a normal build, then a build under
# AddressSanitizer and UndefinedBehaviorSanitizer. Then builds the fuzz targets with clang
# and runs each for LEX_FUZZ_SECONDS (default 20) from its seeds in fuzz/corpus; a crash
# fails the run and leaves its input in build-test-fuzz/artifacts.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh all
jobs=$(nproc 2>/dev/null || echo 2)
for kind in normal sanitize; do
  dir=build-test-$kind
  opts=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DLEX_TESTS=ON)
  [ "$kind" = sanitize ] && opts+=(-DLEX_SANITIZE=ON)
  echo "== $kind build"
  cmake -S . -B "$dir" "${opts[@]}" >/dev/null
  cmake --build "$dir" -j"$jobs"
  echo "== $kind tests"
  (cd "$dir" && ctest --output-on-failure -j"$jobs")
done

dir=build-test-fuzz
echo "== fuzz build"
cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DLEX_FUZZ=ON \
  -DLEX_TESTS=OFF -DLEX_WX=OFF >/dev/null
cmake --build "$dir" -j"$jobs" --target fuzzers
rm -rf "$dir/artifacts"
mkdir -p "$dir/artifacts"
for seeds in fuzz/corpus/*/; do
  name=$(basename "$seeds")
  echo "== fuzz $name"
  # New inputs go to the first folder, so that the seeds in the repository stay as they are.
  mkdir -p "$dir/corpus/$name"
  log="$dir/artifacts/$name.log"
  rc=0
  "$dir/fuzz/fuzz_$name" "$dir/corpus/$name" "$seeds" -max_total_time="${LEX_FUZZ_SECONDS:-20}" \
    -artifact_prefix="$dir/artifacts/$name-" >"$log" 2>&1 || rc=$?
  grep -E '^Done' "$log" || true
  if [ "$rc" -ne 0 ]; then
    tail -n 40 "$log" >&2
    echo "fuzz_$name failed; its input is in $dir/artifacts (make it a unit test once fixed)" >&2
    exit 1
  fi
done
