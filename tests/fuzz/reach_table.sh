#!/usr/bin/env bash
# Prints how far a fuzz run reached: for each form, how many scripts ran
# one of its handlers, and for each handler the program has (as
# --describe lists them) how many scripts ran it and how often, so that a
# handler the generator never reaches shows as 0.
#
#   reach_table.sh PROGRAM REACH_DIR SCRIPTS
#
# REACH_DIR holds one file a script, lines "FORM CONTROL EVENT COUNT".
set -u
prog=$1 dir=$2 scripts=$3
export QT_QPA_PLATFORM=offscreen

# Every handler: "FORM CONTROL EVENT", from the forms' descriptions.
# The descriptions are made four at a time: each is a start of the program.
describe() {
  "$prog" --describe "$1" | awk -v form="$1" '
      /^form events: / { sub(/^form events: /, ""); n = split($0, e, ", "); for (i = 1; i <= n; i++) print form, "Form", e[i]; next }
      /\[[A-Za-z, ]*\]/ {
        events = $0; sub(/^[^[]*\[/, "", events); sub(/\].*$/, "", events)
        line = $0; sub(/ *\[.*$/, "", line); sub(/ ".*"$/, "", line)
        n = split(line, w, " "); name = w[n]; sub(/\(.*\)$/, "", name)
        m = split(events, e, ", "); for (i = 1; i <= m; i++) print form, name, e[i]
      }'
}
export -f describe
export prog
handlers() { "$prog" --list | cut -d' ' -f1 | xargs -P 4 -I{} bash -c 'describe {}' | sort -u; }

if ! ls "$dir" | head -n 1 | grep -q .; then
  echo "reach: no handler counts (the program was not built with GRIDPAGES_SANITIZE)"
  exit 0
fi
{ handlers | sed 's/^/H /'; for f in "$dir"/*; do sed 's/^/R /' "$f"; echo "E"; done; } | awk -v scripts="$scripts" '
  $1 == "H" { key = $2 " " $3 "_" $4; known[key] = 1; order[++n] = key; next }
  $1 == "R" { key = $2 " " $3 "_" $4; calls[key] += $5; inScript[key] = 1; formSeen[$2] = 1; next }
  $1 == "E" { for (k in inScript) scriptsOf[k]++; for (f in formSeen) formScripts[f]++; delete inScript; delete formSeen }
  END {
    printf "reach: %d scripts; forms (scripts that ran any handler of it):\n", scripts
    for (i = 1; i <= n; i++) { split(order[i], p, " "); if (!(p[1] in forms)) { forms[p[1]] = 1; formOrder[++nf] = p[1] } }
    for (i = 1; i <= nf; i++) printf "  %-16s %6d\n", formOrder[i], formScripts[formOrder[i]]
    printf "reach: handlers (scripts / calls):\n"
    never = 0
    for (i = 1; i <= n; i++) {
      k = order[i]; split(k, p, " ")
      printf "  %-16s %-26s %6d / %d\n", p[1], p[2], scriptsOf[k], calls[k]
      if (!scriptsOf[k]) never++
    }
    for (k in calls) if (!(k in known)) { split(k, p, " "); printf "  %-16s %-26s %6d / %d (not described)\n", p[1], p[2], scriptsOf[k], calls[k] }
    printf "reach: %d of %d handlers reached\n", n - never, n
  }'
