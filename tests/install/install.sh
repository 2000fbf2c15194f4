#!/usr/bin/env bash
# install.sh static|shared SOURCE_DIR SCRATCH_DIR HEADER...
#
# Builds and installs the library to a clean prefix, moves that elsewhere, and builds an outside program
# with what lies there, by CMake and by pkg-config. HEADERs are the public ones, below staad/. The
# environment may name CXX, CMAKE and CMAKE_GENERATOR.
set -euo pipefail

kind=$1 source_dir=$2 scratch=$3
shift 3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export CXX=${CXX:-c++}
cmake=${CMAKE:-cmake}
prefix=$scratch/moved
strict=(-std=c++17 -Wall -Wextra -Wpedantic -Werror)
define=()
[ "$kind" = shared ] || define=(-DSTAADKIT_STATIC)

step() { echo "== $*"; }

fail() {
    echo "$1" >&2
    exit 1
}

install_and_move() {
    local shared=OFF
    [ "$kind" = static ] || shared=ON
    rm -rf "$scratch"
    "$cmake" -S "$source_dir" -B "$scratch/build" -DBUILD_SHARED_LIBS=$shared -DCMAKE_BUILD_TYPE=Release \
        -DSTAADKIT_BUILD_TOOL=OFF -DCMAKE_INSTALL_PREFIX="$scratch/prefix"
    "$cmake" --build "$scratch/build" --parallel 2
    "$cmake" --install "$scratch/build"
    mv "$scratch/prefix" "$prefix"
}

# No private header is there, no public one is missing, and each compiles on its own.
check_headers() {
    diff <(printf 'staad/%s\n' "$@" | sort) <(cd "$prefix/include" && find . -type f | sed 's|^\./||' | sort) ||
        fail "the installed headers are not the public ones"
    local header
    for header in "$@"; do
        "$CXX" "${strict[@]}" "${define[@]}" -fsyntax-only -I "$prefix/include" -x c++ - \
            <<<"#include \"staad/$header\"" || fail "$header does not compile alone"
    done
}

check_no_build_paths() {
    if grep -rIF -e "$source_dir/staad" -e "$scratch/build" -e "$scratch/prefix" "$prefix"; then
        fail "installed files name folders of the build"
    fi
}

library() { find "$prefix" -name "libstaadkit.$1" | grep .; }

# A shared library offers its API and what the language makes of it, nothing of its insides.
check_exports() {
    local names=$scratch/exports
    nm -DC --defined-only "$(library so)" | sed -E 's/^[0-9a-f]* +. //; s/^(vtable|typeinfo|typeinfo name) for //' \
        >"$names"
    grep -q '^STAAD::SdReader::' "$names" || fail "no API symbol is exported"
    if grep -E '^STAAD::detail::|\(anonymous namespace\)' "$names"; then
        fail "private symbols are exported"
    fi
    # Instantiations of the standard library's templates cannot be hidden; linkers merge them.
    if grep -vE '^(STAAD|std|__gnu_cxx)::' "$names"; then
        fail "foreign symbols are exported"
    fi
}

compare_output() { # program
    LD_LIBRARY_PATH=$(dirname "$(library '*' | head -n 1)") "$1" >"$1.actual"
    cmp "$here/outside/outside.output" "$1.actual" || fail "$(cat "$1.actual")"
}

build_by_cmake() {
    "$cmake" -S "$here/outside" -B "$scratch/outside" -DCMAKE_PREFIX_PATH="$prefix"
    "$cmake" --build "$scratch/outside"
    "$scratch/outside/outside" >/dev/null # finds a shared library without help
    compare_output "$scratch/outside/outside"
}

# Another minor version is another interface: who asks for one must not get this one.
check_versions() {
    local version major minor
    version=$(pkg-config --modversion staadkit)
    IFS=. read -r major minor _ <<<"$version"
    "$cmake" -S "$here/outside" -B "$scratch/outside" -DWANTED_VERSION="$version" >/dev/null ||
        fail "version $version is refused"
    if "$cmake" -S "$here/outside" -B "$scratch/outside" -DWANTED_VERSION="$major.$((minor + 1))" \
        >"$scratch/refusal" 2>&1; then
        fail "version $major.$((minor + 1)) is accepted"
    fi
    grep -q 'compatible with requested version' "$scratch/refusal" || fail "$(cat "$scratch/refusal")"
}

build_by_pkg_config() {
    local flags
    read -ra flags <<<"$(pkg-config --cflags --libs staadkit)"
    "$CXX" "${strict[@]}" "$here/outside/outside.cpp" "${flags[@]}" -o "$scratch/by-pkg-config"
    compare_output "$scratch/by-pkg-config"
    [ "$kind" = static ] || return 0
    # A host that links with a C compiler gets the C++ runtime from Libs.private.
    read -ra flags <<<"$(pkg-config --static --libs staadkit)"
    "$CXX" "${strict[@]}" "${define[@]}" -I "$prefix/include" -c "$here/outside/outside.cpp" -o "$scratch/outside.o"
    "${CC:-cc}" "$scratch/outside.o" "${flags[@]}" -o "$scratch/by-c-linker"
    compare_output "$scratch/by-c-linker"
}

step "install ($kind)" && install_and_move
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name staadkit.pc)")
export PKG_CONFIG_PATH
step "headers" && check_headers "$@"
step "paths" && check_no_build_paths
if [ "$kind" = shared ]; then
    step "exports" && check_exports
fi
step "outside program by CMake" && build_by_cmake
step "versions" && check_versions
step "outside program by pkg-config" && build_by_pkg_config
