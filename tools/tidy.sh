#!/usr/bin/env bash
# clang-tidy over every source but the tests that a build folder compiles, as it compiles them: tools/tidy.sh BUILD.
# What has passed is stamped in BUILD/tidy with a sum of the source, of all headers of ours that it includes and of
# .clang-tidy, and is not looked at again until one of them changes. Headers come from the build's own record, so the
# folder must have been built.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
root=$PWD
stamps=$build/tidy
mkdir -p "$stamps"
rules=$({ clang-tidy --version; cat .clang-tidy; } | cksum)

# sources_with_sums: "SUM SOURCE" for each source of ours, SUM over all that it is made of.
sources_with_sums() {
  ninja -C "$build" -t deps | awk -v root="$root/" -v build="$build/" '
    /^[^ ].*#deps/ { source = ""; next }
    NF {
      file = $1
      if (file !~ /^\//) file = build file
      while (sub(/[^\/]+\/\.\.\//, "", file)) {}
      if (index(file, root) != 1 || index(file, build) == 1) next
      if (source == "") source = file
      print source, file
    }' | sort -u >"$stamps/made-of"
  cut -d ' ' -f 2 "$stamps/made-of" | sort -u | xargs md5sum >"$stamps/sums"
  awk 'NR == FNR { sum[$2] = $1; next }
    { all[$1] = all[$1] sum[$2] } END { for (file in all) print file, all[file] }' \
    "$stamps/sums" "$stamps/made-of" |
    while read -r file sums; do
      case $file in
        "$root"/tests/*) ;;
        *.cpp) echo "$(cksum <<<"$rules $sums" | tr ' ' -) $file" ;;
      esac
    done
}

# look SUM SOURCE: prints what is found, and stamps what is clean.
look() {
  local stamp=$stamps/$1 said
  if said=$(clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option "$2" 2>&1); then
    touch "$stamp"
  else
    echo "$said"
    return 1
  fi
}
export -f look
export build stamps

todo=$stamps/todo
sources_with_sums | while read -r sum file; do [ -e "$stamps/$sum" ] || echo "$sum $file"; done >"$todo"
echo "$(wc -l <"$todo") sources to look at"
# The long ones first, so that no core idles at the end.
while read -r sum file; do echo "$(wc -l <"$file") $sum $file"; done <"$todo" | sort -rn | cut -d ' ' -f 2- |
  xargs -r -P "$(nproc)" -L 1 bash -c 'look "$0" "$1"'
