#!/usr/bin/env bash
# Plays the tour on screens of four sizes, two of them with a scale factor of the desktop, and once more at a font
# resolution of the desktop, unless it has passed with just this program and these steps.
set -euo pipefail
cd "$(dirname "$0")/../.."
passed=build/tour/passed
now=$(cat build/release/velmora build/release/VELMORA.HLP build/release/tests/tour/velmora_eyes tests/tour/*.sh | cksum)
if [ -f "$passed" ] && [ "$(cat "$passed")" = "$now" ]; then
  echo "The tour has passed with this program; its pictures are in build/tour."
  exit 0
fi
tests/tour/tour.sh
for screen in 1366x768:192 1920x1080 2560x1440@1.25 3840x2160@2; do
  tests/tour/tour.sh "$screen" short
done
echo "$now" >"$passed"
