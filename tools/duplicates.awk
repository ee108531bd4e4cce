# Tells how many lines stand in a run of eight or more that occurs elsewhere too. Blank lines and lines of
# punctuation or includes do not count.
FNR == 1 { filled = 0 }
{ gsub(/[ \t]+/, " "); sub(/^ /, "") }
/^#/ || !/[A-Za-z0-9]/ || /^\/\// { next }
{
  total++
  for (i = 1; i < 8; i++) row[i] = row[i + 1]
  row[8] = $0
  if (++filled < 8) next
  text = row[1]
  for (i = 2; i <= 8; i++) text = text "\n" row[i]
  if (text in first) {
    for (i = 0; i < 8; i++) { twice[first[text] - i] = 1; twice[total - i] = 1 }
  } else {
    first[text] = total
  }
}
END {
  for (line in twice) lines++
  printf "lines in runs of eight or more that occur twice: %d of %d\n", lines, total
}
