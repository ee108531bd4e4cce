# Prints the number of lines of each function of clang-formatted sources, from its head to its closing brace.
# A head stands at the margin, or one step in when it is a member of a struct, and has its "(" before its "{".
FNR == 1 { start[0] = start[2] = 0; inside[0] = inside[2] = 0 }

function follow(indent, line) {
  if (inside[indent]) {
    if (line == "}" || line == "};") {
      print FNR - start[indent] + 1
      inside[indent] = start[indent] = 0
    }
    return
  }
  if (line ~ /^[A-Za-z~\[]/ && line !~ /^(namespace|struct|class|enum|union|using|typedef|extern|public|private)/) {
    start[indent] = FNR
    head[indent] = line
  } else if (start[indent]) {
    head[indent] = head[indent] line
  }
  if (!start[indent]) return
  if (line ~ /\{$/ || line ~ /\{.*\}$/) {
    if (head[indent] ~ /^[^=]*\(.*\{/) {
      if (line ~ /\}$/) {
        print FNR - start[indent] + 1
        start[indent] = 0
      } else {
        inside[indent] = 1
      }
    } else {
      start[indent] = 0
    }
  } else if (line ~ /;$/) {
    start[indent] = 0
  }
}

/^(struct|class|template.*(struct|class)).*\{$/ { in_struct = 1 }
/^};$/ { in_struct = 0 }
{ sub(/ *\/\/.*/, "") }
in_struct && (/^  [^ ]/ || inside[2] == 0 && start[2]) { line = $0; sub(/^ +/, "", line); follow(2, line) }
/^[^ ]/ || start[0] && !inside[0] { line = $0; sub(/^ +/, "", line); if (!in_struct) follow(0, line) }
