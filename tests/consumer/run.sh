#!/usr/bin/env bash
# Installs the build, and builds the README's example, which it runs, and the tutorials' programs
# against what was installed:
# run.sh SOURCE_FOLDER BUILD_FOLDER COMPILER
set -euo pipefail

source=$1 build=$2 compiler=$3
work=$build/consumer
prefix=$work/prefix
expected='κ<sup>2</sup>N-μ<sub>3</sub>-oxo'

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$prefix" >"$work/install.log"
sed -n '/^```cpp$/,/^```$/p' "$source/README.md" | sed '/^```/d' >"$work/example.cpp"

check() {
    local output
    output=$("$@")
    [[ $output == "$expected" ]] || { echo "$1 printed '$output', not '$expected'"; exit 1; }
}

cmake -S "$source/tests/consumer" -B "$work/build" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_PREFIX_PATH="$prefix" -DEXAMPLE="$work/example.cpp" \
    -DTUTORIALS="$source/docs/tutorials" >"$work/configure.log"
cmake --build "$work/build"
check "$work/build/by_package"

libraries=$(dirname "$(find "$prefix" -name liblmrtext.so)")
export PKG_CONFIG_PATH=$libraries/pkgconfig
eval "flags=($(pkg-config --cflags --libs lmrtext))" # it quotes blanks as a shell reads them
"$compiler" -std=c++20 "$work/example.cpp" "${flags[@]}" -o "$work/by_pkg_config"
LD_LIBRARY_PATH=$libraries check "$work/by_pkg_config"

"$prefix/bin/lmrtext" --version
