#!/usr/bin/env bash
# The walls of the house, and what no committed file may hold. Prints each breach; silent when all is well.
set -euo pipefail
cd "$(dirname "$0")/.."
breaches=0

# wall REASON PATTERN PATHSPEC...: no line of these tracked files may match.
wall() {
  local reason=$1 pattern=$2
  shift 2
  if git grep -nIE "$pattern" -- "$@"; then
    echo "  ^ $reason" >&2
    breaches=1
  fi
}

code=('*.cpp' '*.h')
outside_platform=("${code[@]}" ':!platform' ':!tests' ':!judges' ':!bench' ':!fuzz')
game=(table betting learn reveal marking shell evening)

wall "only platform/qt and its tests may include the toolkit" \
  '#include *[<"](Q[A-Z]|Qt)' "${code[@]}" ':!platform/qt' ':!tests/qt' ':!bench/qt'
wall "the game does not know which platform stands behind platform.h" \
  '#include *"platform/(qt|headless)/' "${game[@]}" main.cpp 'platform/*.cpp' 'platform/*.h' \
  ':!platform/qt' ':!platform/headless'
wall "the platform knows nothing of the game" \
  '#include *"(table|betting|learn|reveal|marking|shell|evening)/' platform
for folder in tests bench fuzz; do
  wall "tests, measurements and fuzz targets share what stands in judges/, and nothing else" \
    "#include *\"$folder/" "${code[@]}" ":!$folder"
done
wall "only platform/ knows the clock" \
  '<chrono>|<ctime>|<time\.h>|std::chrono|(^|[^A-Za-z0-9_.])(time|clock|clock_gettime|gettimeofday)\(' \
  "${outside_platform[@]}"
wall "only platform/ knows the random seed; the game's generator is its own" \
  '<random>|random_device|mt19937|(^|[^A-Za-z0-9_])s?rand\(' "${outside_platform[@]}"
wall "only platform/ knows the file system" \
  '<(filesystem|fstream|cstdio|stdio\.h|unistd\.h|fcntl\.h|sys/[a-z]+\.h)>|std::filesystem|fopen\(' \
  "${outside_platform[@]}"
wall "only platform/ knows the locale and the environment" \
  '<(locale|clocale)>|setlocale|std::locale|getenv|strto[dflu]|sto[dfil]\(' "${outside_platform[@]}"
wall "sections and keys of the settings file are named in shell/SettingsKeys.h" \
  '(Setting|ProfileString|Switch|SwitchedOn|Place)\(([A-Za-z0-9_.()]+, *)?"' "${game[@]}"
wall "unfinished work belongs in an issue" \
  '(TO''DO|FIX''ME|\bXX''X\b)' "${code[@]}" '*.sh' '*.cmake' '*.md' play check
wall "name the thing itself: numbers of chapters go stale" \
  '(^|[^A-Za-z])Parts? [0-9]+\.[0-9]' .
wall "lines end without blanks, and are indented with blanks" \
  $'[ \t]$|^ *\t' "${code[@]}" '*.sh' '*.cmake' '*.txt' play check

# No circle of includes, and none that climbs a floor.
climbing=$(git ls-files -z 'platform/*.cpp' 'platform/*.h' "${game[@]/%//*.cpp}" "${game[@]/%//*.h}" |
  xargs -0 awk -f tools/floors.awk tools/floors)
if [ -n "$climbing" ]; then
  sort <<<"$climbing"
  echo "  ^ the house has floors (tools/floors), and a module includes downwards only" >&2
  breaches=1
fi

while IFS=: read -r page path; do
  if [ ! -e "$path" ] && [ ! -e "$(dirname "$page")/$path" ]; then
    echo "$page names $path, which is not there" >&2
    breaches=1
  fi
done < <(git grep -oE '`[a-z]+/[A-Za-z0-9_/.-]+\.[a-z]+`' -- '*.md' | tr -d '`' | sort -u)

while read -r name; do
  if ! grep -qF "\`$name\`" docs/settings.md; then
    echo "docs/settings.md does not tell \`$name\` of shell/SettingsKeys.h" >&2
    breaches=1
  fi
done < <(sed -nE 's/.* = "([^"]+)";.*/\1/p' shell/SettingsKeys.h)

exit "$breaches"
