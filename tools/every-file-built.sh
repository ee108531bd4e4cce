#!/usr/bin/env bash
# Fails when a tracked source is compiled by no target of a build folder, such as a test in a new folder.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
left_out=0
while read -r file; do
  if ! grep -qF "\"file\": \"$PWD/$file\"" "$build/compile_commands.json"; then
    echo "No target compiles $file" >&2
    left_out=1
  fi
done < <(git ls-files '*.cpp' ':!fuzz')
exit "$left_out"
