#!/usr/bin/env bash
# Makes the Debian packages of a build and installs, uses, upgrades and removes them in a root of
# their own: packages.sh BUILD_FOLDER COMPILER
set -euo pipefail

build=$1 compiler=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
root=$folder/root
cd "$folder"

fail() {
    echo "$*" >&2
    exit 1
}

make_packages() {
    cpack --config "$build/CPackConfig.cmake" -B "$1" "${@:2}" >"$folder/log" 2>&1 || fail "$(<"$folder/log")"
}

# What the packages depend on is taken from this machine, as if the root held it.
borrow_dependencies() {
    local names architecture
    architecture=$(dpkg --print-architecture)
    names=$(for package in packages/*.deb; do dpkg-deb -f "$package" Depends; done |
        tr , '\n' | sed 's/ *\([^ ]*\).*/\1/' | grep -v lmrtext | sort -u)
    mkdir -p "$root/var/lib/dpkg/info"
    for name in $names; do
        dpkg-query -s "$name"
        echo
        touch "$root/var/lib/dpkg/info/$name.list" "$root/var/lib/dpkg/info/$name:$architecture.list"
    done >"$root/var/lib/dpkg/status"
}

# Scripts of the packages run here, but not the cache of libraries of this machine.
in_root() {
    PATH=$folder/bin:$PATH:/usr/sbin:/sbin fakeroot dpkg --root="$root" --log=/dev/null --force-not-root \
        --force-script-chrootless "$@" >"$folder/log" 2>&1 || fail "$(<"$folder/log")"
}

check() {
    local expected=$1 output
    shift
    output=$("$@")
    [[ $output == "$expected" ]] || fail "$1 printed '$output', not '$expected'"
}

mkdir bin
ln -s /bin/true bin/ldconfig
make_packages packages
lintian --fail-on error packages/*.deb || fail "lintian finds errors in the packages"
borrow_dependencies
in_root --install packages/*.deb

program=$root/usr/bin/lmrtext
name='kappa$2!N-mu!3$-oxo'
html='κ<sup>2</sup>N-μ<sub>3</sub>-oxo'
check "$html" "$program" convert --from tevo-name --to html5 <<<"$name"

cat >use.cpp <<'END'
#include <iostream>

#include "text/StringSlice.h"

int main() { std::cout << StringSlice(2, 5) << '\n'; }
END
libraries=$(dirname "$(find "$root" -name lmrtext.pc)")
eval "flags=($(PKG_CONFIG_PATH=$libraries pkg-config --cflags --libs lmrtext))"
"$compiler" -std=c++20 use.cpp "${flags[@]}" -Wl,-rpath,"${libraries%/*}" -o use
check "2 5" ./use

make_packages upgrade -R 99.0
in_root --install upgrade/*.deb
check "$html" "$program" convert --from tevo-name --to html5 <<<"$name"

mapfile -t names < <(for package in packages/*.deb; do dpkg-deb -f "$package" Package; done)
in_root --purge "${names[@]}"
left=$(find "$root" -path "$root/var/lib/dpkg" -prune -o ! -type d -print)
[[ -z $left ]] || fail "left behind: $left"
