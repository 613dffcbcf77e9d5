#!/usr/bin/env bash
# Whole process of quorix-calc beside its peers: lines a second and a long sum against gp at 100 digits, start-up against
# calc, and peak memory. Own and peer run in turn; the medians are compared.
# Usage: bench/console_throughput.sh PATH_OF_QUORIX_CALC [ROUNDS]
set -euo pipefail

calculator=${1:?path of quorix-calc}
rounds=${2:-7}
line_count=20000
starts=100
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Mixed four-function lines with parentheses and decimals; no divisor is zero.
awk -v count="$line_count" '
function number() {
    kind = rand()
    if (kind < 0.5) return 1 + int(rand() * 1000)
    if (kind < 0.9) return sprintf("%.3f", 1 + rand() * 1000)
    return sprintf("%.12f", 1 + rand() * 100)
}
function expression(depth,    kind, sign) {
    if (depth == 0 || rand() < 0.2) return number()
    kind = rand()
    sign = substr("+-*/", 1 + int(rand() * 4), 1)
    if (kind < 0.5) return expression(depth - 1) sign number()
    if (kind < 0.75) return "(" expression(depth - 1) ")" sign number()
    return expression(depth - 1) sign "(" number() "+" number() ")"
}
BEGIN { srand(7); for (i = 0; i < count; i++) print expression(3) }' > "$work/lines"
{ echo 'default(realprecision,100)'; cat "$work/lines"; } > "$work/gp_lines"

# A sum of one line here, and its terms line by line there.
terms=10000
sum="fnSum(x^2,x,1,$terms)"
{ echo 'default(realprecision,100)'; for ((i = 1; i <= terms; i++)); do echo "$i^2"; done; } > "$work/gp_terms"

# microseconds COMMAND...: time of one run, output thrown away.
microseconds() {
    local begin=${EPOCHREALTIME/[.,]/}
    "$@" > /dev/null 2>&1
    echo $(( ${EPOCHREALTIME/[.,]/} - begin ))
}
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
run_own() { "$calculator" < "$work/lines"; }
run_gp() { gp -q < "$work/gp_lines"; }
sum_own() { "$calculator" "$sum"; }
sum_gp() { gp -q < "$work/gp_terms"; }
start_own() { for ((i = 0; i < starts; i++)); do "$calculator" 1+1; done; }
start_calc() { for ((i = 0; i < starts; i++)); do calc 1+1; done; }

# compare OWN PEER: medians of the two commands into own and peer.
compare() {
    : > "$work/own"
    : > "$work/peer"
    for ((round = 0; round < rounds; round++)); do
        microseconds "$1" >> "$work/own"
        microseconds "$2" >> "$work/peer"
    done
    own=$(median < "$work/own")
    peer=$(median < "$work/peer")
}

if command -v gp > /dev/null; then
    compare run_own run_gp
    awk -v own="$own" -v peer="$peer" -v lines="$line_count" 'BEGIN {
        printf "lines a second: %.2f times those of gp (goal 1.5); %.2f us a line\n", peer / own, own / lines }'
    compare sum_own sum_gp
    awk -v own="$own" -v peer="$peer" -v sum="$sum" 'BEGIN {
        printf "%s: %.2f times the time of gp for its terms (goal 2.0)\n", sum, own / peer }'
fi
if command -v calc > /dev/null; then
    compare start_own start_calc
    awk -v own="$own" -v peer="$peer" 'BEGIN { printf "start-up: %.2f times that of calc (goal 2.0)\n", own / peer }'
fi
if [ -x /usr/bin/time ]; then
    /usr/bin/time -f %M -o "$work/memory" "$calculator" < "$work/lines" > /dev/null
    awk '{ printf "peak memory: %.1f MiB (goal 8.0)\n", $1 / 1024 }' "$work/memory"
fi
