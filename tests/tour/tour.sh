#!/usr/bin/env bash
# The tour: the real program on a virtual display, driven by a real mouse and keyboard from the start screen to the
# end of a shoe. Leaves numbered pictures in build/tour and prints their paths; fails with a sentence when a step has
# no effect, or when something is drawn at another scale than fits the screen, or beyond its edge.
#   tests/tour/tour.sh [WIDTHxHEIGHT[@FACTOR][:DPI] [full|short [PRESET]]]
# The screen is 1366x768 when left out, the desktop's own scale factor 1, its font resolution 96, the build release.
set -eEuo pipefail
trap 'echo "The tour stopped in $BASH_SOURCE, line $LINENO: $BASH_COMMAND" >&2' ERR
cd "$(dirname "$0")/../.."

screen=${1:-1366x768}
length=${2:-full}
preset=${3:-release}
IFS='@:' read -r size factor <<<"${screen%:*}"
factor=${factor:-1}
resolution=96
[[ $screen != *:* ]] || resolution=${screen#*:}
build=$PWD/build/$preset
eyes=$build/tests/tour/velmora_eyes
pictures=$PWD/build/tour
[ "$screen" = 1366x768 ] || pictures=$pictures/$screen

# The only places that the tour knows by heart, in twips on the table: a control that is found neither by its name
# nor by its text.
chip_value_box='<T>Enter between \$10 and \$9990<T>'
chip_value_left=1620 chip_value_top=4920 chip_value_width=780
seat1_banker_chip5="5182 2872"
seat1_tie_chip1="4762 2242"
seat2_player_box="5572 3487"
bare_felt="250 2500"
first_strip="1492 4207"
second_card="2692 3420"
third_card="8032 3420"
fourth_card="9232 3420"

# A session bus of its own, which goes when the tour does.
if [ -z "${TOUR_INSIDE:-}" ]; then
  export TOUR_INSIDE=1
  exec dbus-run-session -- "$0" "$screen" "$length" "$preset" 2> >(grep -v -e dbus-daemon -e '^SpiRegistry' >&2 || true)
fi

home=$(mktemp -d)
seen=$home/seen
number=0
program=
jobs_to_end=()
trap 'kill "${jobs_to_end[@]}" 2>/dev/null; wait 2>/dev/null; rm -rf "$home"' EXIT
. tests/tour/driver.sh

mkdir -p "$pictures"
rm -f "$pictures"/*.png "$pictures"/failed.txt
cp "$build/velmora" "$build/VELMORA.HLP" "$home/"
export HOME=$home XDG_RUNTIME_DIR=$home XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config LC_ALL=C.UTF-8
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_SCALE_FACTOR=$factor
unset WAYLAND_DISPLAY QT_FONT_DPI QT_SCREEN_SCALE_FACTORS

# The first free display that the server finds.
Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp >"$home/display" 2>/dev/null &
jobs_to_end+=($!)
until [ -s "$home/display" ]; do
  kill -0 $! 2>/dev/null || fail "the virtual display does not start"
  sleep 0.1
done
DISPLAY=:$(cat "$home/display")
export DISPLAY

jwm -f tests/tour/jwmrc 2>/dev/null &
jobs_to_end+=($!)
look || fail "there is no accessibility bus"
xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER "Xft.dpi:	$resolution"

start_program() {
  "$home/velmora" 2>"$pictures/velmora.log" &
  program=$!
  jobs_to_end+=("$program")
}

start_play() {
  start_program
  wait_for 20 'Click to START' "the start screen does not show"
}

. tests/tour/steps.sh
"${length}_tour"
