#!/usr/bin/env bash
# Sizes of the code, as information: nothing here fails a check.
set -euo pipefail
cd "$(dirname "$0")/.."
tests=(':(glob)tests/**/*.cpp' ':(glob)tests/**/*.h' ':(glob)fuzz/**/*.cpp')
code=('*.cpp' '*.h' ':!tests' ':!bench' ':!fuzz')

# Reads numbers; prints their median and 90th percentile.
spread() {
  sort -n | awk '{ n[NR] = $1 }
    END { if (NR) printf "median %d, 90th percentile %d, largest %d, of %d\n",
          n[int((NR + 1) / 2)], n[int(NR * 0.9 + 0.999)], n[NR], NR }'
}
lines() { git ls-files -z "$@" | xargs -0 -r cat | wc -l; }
files() { git ls-files -z "$@" | xargs -0 -r wc -l | awk '$2 != "total" { print $1 }'; }
functions() { git ls-files -z "$@" | xargs -0 -r awk -f tools/functions.awk; }

echo "lines per file of code:      $(files "${code[@]}" | spread)"
echo "lines per function of code:  $(functions "${code[@]}" | spread)"
echo "lines per file of tests:     $(files "${tests[@]}" | spread)"
echo "lines per function of tests: $(functions "${tests[@]}" | spread)"
of_code=$(lines "${code[@]}")
of_tests=$(lines "${tests[@]}")
awk -v c="$of_code" -v t="$of_tests" 'BEGIN {
  printf "lines of code %d, of tests %d: %.2f lines of tests for one of code\n", c, t, c ? t / c : 0 }'
echo "$(git ls-files -z "${code[@]}" | xargs -0 -r awk -f tools/duplicates.awk)"
