# Reads C++ files and takes each source with its header for a module. Prints every module that
# includes itself by way of others, and, behind a table of floors, every module that stands on none,
# has no header of its own name where the table does not say so, or includes one of a higher floor.
# With -v list=1 it prints how many
# modules stand on each floor instead.
#   awk -f tools/floors.awk [tools/floors] FILES...

# A module's floor, or that of its whole folder; 0 for none.
function floor_of(m, folder) {
  folder = m
  sub(/[^\/]*$/, "", folder)
  return m in floor ? floor[m] : floor[folder] + 0
}
function module(file) {
  sub(/\.(cpp|h)$/, "", file)
  return file
}

# The table of floors: a name and a colon, then its modules; the lowest floor comes first.
FILENAME !~ /\.(cpp|h)$/ {
  if ($0 ~ /^[^#].*:/) name[++floors] = substr($0, 1, index($0, ":") - 1)
  sub(/^.*:|^#.*/, "")
  for (i = 1; i <= NF; ++i) {
    floor[module($i)] = floors
    if ($i ~ /cpp$/) headed[module($i)] = 1
  }
  next
}
FNR == 1 {
  here = module(FILENAME)
  known[here] = 1
}
FILENAME ~ /h$/ { headed[here] = 1 }
/^#include "/ {
  split($0, quoted, "\"")
  if (module(quoted[2]) != here) includes[here, module(quoted[2])] = 1
}

END {
  for (pair in includes) {
    split(pair, side, SUBSEP)
    if (side[2] in known) reaches[side[1], side[2]] = 1
  }
  for (by in known)
    for (from in known)
      if ((from, by) in reaches)
        for (to in known)
          if ((by, to) in reaches) reaches[from, to] = 1
  for (m in known) {
    ++modules
    ++on[floor_of(m)]
    if ((m, m) in reaches) {
      ++circling
      if (!list) print m ": includes itself by way of others"
    }
    if (!floors || list) continue
    if (!floor_of(m)) print m ": stands on no floor of tools/floors"
    if (!(m in headed)) print m ": has no header of its own name"
  }
  for (pair in includes) {
    split(pair, side, SUBSEP)
    if (!list && side[2] in known && floor_of(side[2]) > floor_of(side[1]))
      print side[1] ": includes " side[2] " of a higher floor"
  }
  if (list) {
    for (f = 1; f <= floors; ++f) printf "%s: %d modules\n", name[f], on[f]
    printf "modules in circles of includes: %d of %d\n", circling, modules
  }
}
