#!/usr/bin/env bash
# Counts the instructions of each case of the growth suite and fails where twice the input takes
# more than 2.5 times as many: run.sh SUITE [PART OF THEIR NAMES [STEP [FIRST]]].
set -euo pipefail

suite=$(realpath "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cd "$folder"
valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file=counts \
    "$suite" "${2-}" "${3-1}" "${4-0}" >log 2>&1 || {
    cat log >&2
    exit 1
}
# Each dump names its case behind a trigger and ends with its total.
sort -V -t . -k 2 <(ls counts.*) | xargs awk '
    /^desc: Trigger: Client Request: / { sub(/^desc: Trigger: Client Request: /, ""); name = $0 }
    /^totals: / && name != "" {
        split(name, part, "/")
        growth = part[1] == last ? $2 / before : 0
        bad = growth > 2.5
        if (part[1] != last || bad) printf "%-45s", part[1]
        printf "%s %12d %s", bad ? "\n  grows too fast:" : "", $2, growth ? sprintf("%.2f", growth) : ""
        if (++runs % 3 == 0) print ""
        failed = failed || bad
        last = part[1]; before = $2; name = ""
    }
    END {
        if (runs == 0 || runs % 3 != 0) { print "growth: " runs " counts, expected three a case"; exit 1 }
        exit failed
    }'
