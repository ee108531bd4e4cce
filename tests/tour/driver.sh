# What the tour says and sees: sourced by tour.sh. Mouse and keyboard are real events of the display; where a
# control is and what it says comes from the accessibility tree, by lines of
#   role TAB name TAB description TAB content TAB states TAB x TAB y TAB width TAB height
# in pixels of the screen, whatever scale factor the desktop has.

fail() {
  maim "$pictures/failed.png" 2>/dev/null || true
  look && cp "$seen" "$pictures/failed.txt" || true
  echo "The tour failed: $1" >&2
  echo "The screen at that moment: $pictures/failed.png, and what it told: $pictures/failed.txt" >&2
  exit 1
}

look() { "$eyes" 2>/dev/null >"$seen"; }

# line PATTERN: the first line of the last look that matches. <T> stands for a tab.
line() { grep -m 1 -E "${1//<T>/$'\t'}" "$seen"; }

# sees PATTERN: looks, and tells whether a line matches.
sees() { look && line "$1" >/dev/null; }

# wait_for SECONDS PATTERN SENTENCE: fails with the sentence when nothing matches in time.
wait_for() {
  local until=$((SECONDS + $1))
  until sees "$2"; do
    kill -0 "$program" 2>/dev/null || fail "the program has ended, though $3"
    [ "$SECONDS" -lt "$until" ] || fail "$3"
    sleep 0.1
  done
}

# wait_gone SECONDS PATTERN SENTENCE: the same until nothing matches.
wait_gone() {
  local until=$((SECONDS + $1))
  while sees "$2"; do
    [ "$SECONDS" -lt "$until" ] || fail "$3"
    sleep 0.1
  done
}

# place PATTERN: the middle of what matches, "x y" in pixels.
place() {
  local found
  found=$(line "$1") || fail "nothing on the screen is called $1"
  awk -F '\t' '{ print int($6 + $8 / 2), int($7 + $9 / 2) }' <<<"$found"
}

click_at() { xdotool mousemove "$1" "$2" sleep 0.05 click "${3:-1}" sleep 0.1; }

# click PATTERN [BUTTON]: looks, and clicks the middle of what matches.
click() {
  local at
  look
  at=$(place "$1")
  click_at ${at} "${2:-1}"
}

keys() { xdotool key --delay 40 "$@" sleep 0.1; }
typed() { xdotool type --delay 40 "$1"; }

# picture NAME: takes the whole screen as the next numbered picture.
picture() {
  number=$((number + 1))
  local file
  file=$(printf '%s/%02d-%s.png' "$pictures" "$number" "$1")
  xdotool sleep 0.3
  maim --hidecursor "$file"
  echo "$file"
  on_screen
}

# on_screen: fails when a window reaches beyond the screen.
on_screen() {
  local beyond
  look
  beyond=$(awk -F '\t' -v size="$size" '
    BEGIN { split(size, most, "x") }
    $1 ~ /^(frame|dialog|alert|filler)$/ &&
      ($6 < 0 || $7 < 0 || $6 + $8 > most[1] || $7 + $9 > most[2]) {
        print $1 " \"" $2 "\" at " $6 "," $7 " measuring " $8 "x" $9; exit }' "$seen")
  [ -z "$beyond" ] || fail "a window reaches beyond the screen of $size: $beyond"
}

# setting SECTION KEY: the value in the settings file, without its blanks; nothing when it is missing.
setting() {
  awk -v section="[$1]" -v key="$2" '
    { sub(/\r$/, "") }
    /^\[/ { inside = tolower($0) == tolower(section) }
    inside && tolower(substr($0, 1, length(key) + 1)) == tolower(key) "=" {
      value = substr($0, length(key) + 2); gsub(/^ +| +$/, "", value); print value; exit
    }' "$home/VELMORA.INI" 2>/dev/null
}

# expect SECTION KEY VALUE SENTENCE [SECONDS]: fails with the sentence when the settings file does not come to hold the
# value within 5 seconds, or as many as are given.
expect() {
  local value until=$((SECONDS + ${5:-5}))
  until value=$(setting "$1" "$2") && [ "$value" = "$3" ]; do
    [ "$SECONDS" -lt "$until" ] || fail "$4 (\"$2\" of [$1] is \"$value\", not \"$3\")"
    sleep 0.1
  done
}

# Places on the table are told in twips from its corner. The chip value box, which never moves, gives corner and scale.
measure_table() {
  local x y width
  look
  read -r x y width < <(line "$chip_value_box" | awk -F '\t' '{ print $6, $7, $8 }') ||
    fail "the table shows no chip value box"
  table_scale=$(awk -v w="$width" -v t="$chip_value_width" 'BEGIN { printf "%.6f", w / t }')
  table_left=$(awk -v x="$x" -v t="$chip_value_left" -v s="$table_scale" 'BEGIN { print x - t * s }')
  table_top=$(awk -v y="$y" -v t="$chip_value_top" -v s="$table_scale" 'BEGIN { print y - t * s }')
}

# expect_scale: fails when the table is not drawn at the largest hundredth at which 960x700 fit the screen.
expect_scale() {
  awk -v size="$size" -v w="$chip_value_width" -v s="$table_scale" 'BEGIN {
    split(size, most, "x")
    fits = most[1] / 960 < most[2] / 700 ? most[1] / 960 : most[2] / 700
    drawn = s * w; wanted = w / 15 * int(fits * 100) / 100
    printf "Drawn at scale %.2f\n", s * 15
    exit (drawn > wanted ? drawn - wanted : wanted - drawn) > 1.5 }' ||
    fail "the table is not drawn at the scale that fits $size"
}

# on_table X Y: a point of the table in twips, as "x y" in pixels.
on_table() {
  awk -v x="$1" -v y="$2" -v left="$table_left" -v top="$table_top" -v s="$table_scale" \
    'BEGIN { print int(left + x * s + 0.5), int(top + y * s + 0.5) }'
}

click_table() {
  local at
  at=$(on_table "$1" "$2")
  click_at ${at} "${3:-1}"
}
