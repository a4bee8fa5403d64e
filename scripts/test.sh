#!/usr/bin/env bash
# Builds LEX and runs the whole test suite twice: a normal build, then a build under
# AddressSanitizer and UndefinedBehaviorSanitizer.
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
