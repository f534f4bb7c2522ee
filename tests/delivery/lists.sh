#!/usr/bin/env bash
# Compares what a build exports and installs with the lists beside this script; --update rewrites
# them: run.sh BUILD_FOLDER [--update]
set -euo pipefail

lists=$(dirname "$(realpath "$0")")
build=$1
libraries=$(dirname "$(find "$build/lib" -name liblmrtext.so)")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

export LC_ALL=C
cmake --install "$build" --prefix "$folder/installed" >"$folder/log"
(cd "$folder/installed" && find . ! -type d | sed 's|/lib/[^/]*-linux-[^/]*/|/lib/|' | sort) \
    >"$folder/installed_files.txt"
for library in liblmrtext libkovrhost; do
    echo "# $library"
    # Weak ones are templates, of which a compiler leaves out what it has inlined.
    nm -D -C --defined-only "$libraries/$library.so" | cut -c18- | grep -v ^W | sort -u
done >"$folder/exported_symbols.txt"

status=0
for list in installed_files exported_symbols; do
    if [[ ${2-} == --update ]]; then
        cp "$folder/$list.txt" "$lists/$list.txt"
    elif ! diff -u "$lists/$list.txt" "$folder/$list.txt"; then
        echo "$list has changed: if that is meant, run tests/delivery/lists.sh $build --update"
        status=1
    fi
done
exit $status
