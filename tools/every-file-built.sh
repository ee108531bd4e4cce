#!/usr/bin/env bash
# Fails when a tracked source is compiled by no target of a build folder, such as a test in a new folder.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
# A source is compiled alone, or with others of its folder.
compiled=$({ cat "$build/compile_commands.json"; find "$build" -path '*/Unity/*.cxx' -exec cat {} +; } |
  sed -nE 's/^ *("file": |#include )"(.*\.cpp)",?$/\2/p' | sort -u)
left_out=$(comm -23 <(git ls-files '*.cpp' ':!fuzz' | sed "s#^#$PWD/#" | sort) <(echo "$compiled"))
[ -z "$left_out" ] || { printf 'No target compiles:\n%s\n' "$left_out" >&2; exit 1; }
