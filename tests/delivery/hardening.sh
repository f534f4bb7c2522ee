#!/usr/bin/env bash
# Checks that the program and the libraries of a release build are hardened: hardening.sh BUILD_FOLDER
set -euo pipefail

build=$1
libraries=$(dirname "$(find "$build/lib" -name liblmrtext.so)")
status=0

# These leave no mark in a file that has nothing for them to protect.
flags=(-D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
[[ $(uname -m) != x86_64 ]] || flags+=(-fcf-protection)
commands=$(grep '"command":' "$build/compile_commands.json")
for flag in "${flags[@]}"; do
    without=$(grep -cvF -e "$flag" <<<"$commands") || true
    if ((without > 0)); then
        echo "$without sources are compiled without $flag"
        status=1
    fi
done

for path in "$build/cli/lmrtext" "$libraries"/lib{lmrtext,kovrhost}.so; do
    file=$(basename "$path")
    marks=$(readelf --wide --file-header --segments --dynamic --dyn-syms "$path")
    while IFS='|' read -r pattern meaning; do
        line=$(grep -m 1 -E -e "$pattern" <<<"$marks") && printf '%s: %s\n' "$file" "$(xargs <<<"$line")" && continue
        echo "$file: not $meaning"
        status=1
    done <<'END'
^ *Type: +DYN |independent of its position
 GNU_STACK .* RW +0x|free of code on the stack
 GNU_RELRO |read-only where it has been relocated
 \(FLAGS_1\) .*\bNOW\b|bound when it is loaded
 __stack_chk_fail@|protected by canaries
END
    # An empty path among those of its libraries is the folder in which a program is started.
    paths=$(grep -E '\((RPATH|RUNPATH)\)' <<<"$marks" | sed 's/.*\[\(.*\)\]/:\1:/') || true
    [[ $paths != *::* ]] || { echo "$file: looks for libraries in the current folder: $paths" && status=1; }
done
exit $status
