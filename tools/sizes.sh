#!/usr/bin/env bash
# Sizes of the code. Fails where the tests have more than a third of the code's lines.
set -euo pipefail
cd "$(dirname "$0")/.."
code=('*.cpp' '*.h' ':!tests' ':!judges' ':!bench' ':!fuzz' ':!assets')
# Whatever judges is a test: also the fuzz targets, and the random user's program. The other programs of bench/ print
# what they have measured; where one tells that something does not hold, judges/ has found it.
judges=(judges fuzz bench/random_user.cpp)
folders=($(git ls-files tests | awk -F/ 'NF > 2 { print $1 "/" $2 }' | uniq))

# Reads numbers; prints their median and 90th percentile.
spread() {
  sort -n | awk '{ n[NR] = $1 }
    END { if (NR) printf "median %d, 90th percentile %d, largest %d, of %d\n",
          n[int((NR + 1) / 2)], n[int(NR * 0.9 + 0.999)], n[NR], NR }'
}
files() { git ls-files -z "$@" | xargs -0 -r wc -l | awk '$2 != "total" { print $1 }'; }
functions() { git ls-files -z "$@" | xargs -0 -r awk -f tools/functions.awk; }

# Lines of C++, scripts and replays that are neither blank nor a comment.
lines() {
  git ls-files -z "$@" | grep -zE '(\.(cpp|h|sh|py|awk|replay)|/run)$' | xargs -0 -r awk '
    FILENAME ~ /\.(cpp|h)$/ ? !/^[ \t]*(\/\/|$)/ : !/^[ \t]*(#|$)/ { n++ }
    END { print n + 0 }'
}

echo "lines per file of code:      $(files "${code[@]}" | spread)"
echo "lines per function of code:  $(functions "${code[@]}" | spread)"
echo "lines per function of tests: $(functions 'tests/*.cpp' | spread)"
git ls-files -z "${code[@]}" | xargs -0 -r awk -f tools/duplicates.awk

of_code=$(lines "${code[@]}")
of_tests=$(lines tests "${judges[@]}")
for folder in "${folders[@]}"; do
  printf '%6d %s\n' "$(lines "$folder")" "$folder"
done
printf '%6d tests alone\n%6d what judges beside them\n' "$(lines 'tests/*.*' ':!tests/*/*')" "$(lines "${judges[@]}")"
echo "$of_tests lines of tests to $of_code of code, which may have a third of it: $((of_code / 3))"
[ $((of_tests * 3)) -le "$of_code" ]
