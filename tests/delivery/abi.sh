#!/usr/bin/env bash
# Compares the binary interface of a build, which has debug information, with that of the last
# release; --record makes it that of the release: abi.sh BUILD_FOLDER [--record]
set -euo pipefail

released=$(dirname "$(realpath "$0")")/released
build=$1
libraries=$(dirname "$(find "$build/lib" -name liblmrtext.so)")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

status=0
for name in liblmrtext libkovrhost; do
    now=$folder/now.abi
    abidw --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs \
        --no-parameter-names --drop-undefined-syms --out-file "$now" "$libraries/$name.so"
    grep -q '<class-decl' "$now" || {
        echo "$name has no debug information, which tells its interface" >&2
        exit 1
    }
    if grep -q "path='/" "$now"; then
        echo "$name tells where it was built" >&2
        exit 1
    fi
    if [[ ${2-} == --record ]]; then
        gzip -9n <"$now" >"$released/$name.abi.gz"
        continue
    fi
    gzip -d <"$released/$name.abi.gz" >"$folder/released.abi"
    if ! abidiff --no-added-syms "$folder/released.abi" "$now"; then
        echo "$name differs from the last release: where programs built with that would break," \
            "raise the first number of interface_version; then --record what is meant"
        status=1
    fi
done
exit $status
