#!/usr/bin/env bash
# Kills the program at random moments while it edits files, until a thousand have been written: each
# must be whole, as it was before or as it shall be: kill_set.sh PROGRAM
set -euo pipefail

program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

{
    echo data_x
    for i in {1..400}; do echo "_item_$i 'before the value'"; done
    echo "_exptl_crystal_colour v0"
    for i in {401..800}; do echo "_item_$i 'behind the value'"; done
} >one
files=()
for i in {1..120}; do
    files+=("$i.cif")
    cp one "$i.cif"
done

all_without_values() {
    cat "${files[@]}" | sed 's/^_exptl_crystal_colour v[0-9]*$/_exptl_crystal_colour/' | cksum
}

whole=$(all_without_values)
written=0 killed=0
for ((round = 1; written < 1000 || killed == 0; ++round)); do
    "$program" set -j 2 --field Color --value "v$round" "${files[@]}" &
    process=$!
    sleep "0.$((RANDOM % 2))$((RANDOM % 10))$((RANDOM % 10))"
    kill -KILL $process 2>/dev/null || true
    status=0
    wait $process 2>/dev/null || status=$?
    [[ $status -eq 0 || $status -eq 137 ]] || { echo "round $round: exit status $status"; exit 1; }
    [[ $status -eq 0 ]] || ((++killed))
    [[ $(all_without_values) == "$whole" ]] || { echo "round $round: a file is not whole"; exit 1; }
    written=$((written + $(cat "${files[@]}" | grep -cx "_exptl_crystal_colour v$round" || true)))
done
echo "$written writes in $round rounds, $killed killed"
