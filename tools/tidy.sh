#!/usr/bin/env bash
# clang-tidy over every source that a build folder compiles, as it compiles it: tools/tidy.sh BUILD.
# What has passed is stamped in BUILD/tidy with a sum of the source, of all files of ours that it includes and of
# .clang-tidy, and is not looked at again until one of them changes. What a source includes comes from the build's own
# record, so the folder must have been built.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
stamps=$build/tidy
mkdir -p "$stamps"
rules=$({ clang-tidy --version; cat .clang-tidy; } | cksum | tr ' ' -)

# made_of: "SOURCE FILE" for each file of ours that a compiled source is made of, itself among them.
made_of() {
  ninja -C "$build" -t deps | awk -v root="$PWD/" -v build="$build/" '
    /#deps/ { source = ""; next }
    NF {
      file = $1
      if (file !~ /^\//) file = build file
      while (sub(/[^\/]+\/\.\.\//, "", file)) {}
      if (source == "" && file ~ /\.c(pp|xx)$/) source = file
      blnOurs = index(file, root) == 1 && index(file, build) != 1
      if (blnOurs && (source ~ /\/Unity\// || index(source, build) != 1)) print source, file
    }' | sort -u
}

# look SUM SOURCE: prints what is found, and stamps what is clean.
look() {
  local said
  if said=$(clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option "$2" 2>&1); then
    touch "$stamps/$1"
  else
    echo "$said"
    return 1
  fi
}
export -f look
export build stamps

made_of >"$stamps/made-of"
cut -d ' ' -f 2 "$stamps/made-of" | sort -u | xargs md5sum >"$stamps/sums"
# The long ones first, so that no core idles at the end. What two targets compile is looked at once.
awk 'NR == FNR { sum[$2] = $1; next }
  { all[$1] = all[$1] sum[$2]; files[$1] += $2 ~ /cpp$/ }
  END { for (source in all) print files[source], source, all[source] }' "$stamps/sums" "$stamps/made-of" |
  sort -rn | while read -r _ source sums; do echo "$(md5sum <<<"$rules $sums" | cut -d ' ' -f 1) $source"; done |
  awk '!seen[$1]++' | while read -r sum source; do [ -e "$stamps/$sum" ] || echo "$sum $source"; done >"$stamps/todo"
echo "$(wc -l <"$stamps/todo") sources to look at"
xargs -r -P "$(nproc)" -L 1 bash -c 'look "$0" "$1"' <"$stamps/todo"
