#!/usr/bin/env bash
# Shares one batch among two machines with GNU parallel, by a remote shell that stays here and notes
# which machine it was asked for: run.sh PROGRAM NAMES
set -euo pipefail

program=$1 names=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export PARALLEL_HOME=$folder/settings
mkdir "$PARALLEL_HOME"
# Without a login shell GNU parallel asks its parent process, and then writes nothing.
export SHELL=/bin/bash

cat >remote_shell <<'END'
#!/bin/sh
export MACHINE="$1"
shift
[ "$1" != -- ] || shift
exec sh -c "$*"
END
cat >on_machine <<END
#!/bin/sh
echo "\$MACHINE" >>"$folder/machines"
exec "$program" "\$@"
END
chmod +x remote_shell on_machine

for _ in {1..200}; do cut -f1 "$names"; done >all
parallel --will-cite --pipe --keep-order --block 20k \
    -S "$folder/remote_shell one" -S "$folder/remote_shell two" \
    "$folder/on_machine" convert --from cif-name --to html5 <all >shared
"$program" convert --from cif-name --to html5 all | cmp - shared
[[ $(sort -u machines) == $'one\ntwo' ]] || { echo "not both machines converted"; exit 1; }
