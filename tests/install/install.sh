#!/usr/bin/env bash
# install.sh static|archive|deb|zip SCRATCH_DIR HEADER...
#
# Brings the library to a clean folder and builds an outside program with what lies there, by CMake and by
# pkg-config: "static" from the sources, the others from what scripts/make-packages.sh made. HEADERs are the
# public ones, below staad/. The environment may name CXX, CMAKE and CMAKE_GENERATOR.
set -euo pipefail

kind=$1 scratch=$(realpath -m "$2")
shift 2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source_dir=$(cd "$here/../.." && pwd)
packages=$source_dir/build/packages
export CXX=${CXX:-c++}
cmake=${CMAKE:-cmake}
strict=(-std=c++17 -Wall -Wextra -Wpedantic -Werror)
define=()
toolchain=()
unset LD_LIBRARY_PATH

step() { echo "== $*"; }

fail() {
    echo "$1" >&2
    exit 1
}

# ---- Bringing it there; each sets $prefix ----

# As a part of a host, from the sources; it brings itself into the host's installation only if asked to.
# Not optimised, as nothing but its being there is tested.
bring_static() {
    define=(-DSTAADKIT_STATIC)
    local build=("$cmake" -S "$here/subproject" -B "$scratch/build" -DSTAADKIT_SOURCE_DIR="$source_dir"
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0)
    "${build[@]}"
    "$cmake" --build "$scratch/build" --parallel 2
    "$cmake" --install "$scratch/build" --prefix "$scratch/host"
    [ "$(cd "$scratch/host" && find . -type f)" = ./bin/outside ] || fail "$(find "$scratch/host")"
    "${build[@]}" -DSTAADKIT_INSTALL=ON -DCMAKE_INSTALL_PREFIX="$scratch/prefix"
    "$cmake" --install "$scratch/build"
    prefix=$scratch/moved
    mv "$scratch/prefix" "$prefix"
    library_dir=
    compare_output "$prefix/bin/outside"
}

only_one() { # file...
    if [ $# -ne 1 ] || [ ! -e "$1" ]; then fail "not one package, but: $*"; fi
    echo "$1"
}

bring_archive() {
    tar -xzf "$(only_one "$packages"/staadkit-*-linux-*.tar.gz)" -C "$scratch"
    prefix=$(only_one "$scratch"/staadkit-*)
}

bring_deb() {
    local package
    for package in "$packages"/*.deb; do dpkg-deb -x "$package" "$scratch/root"; done
    prefix=$scratch/root/usr
}

bring_zip() {
    CXX=x86_64-w64-mingw32-g++-posix
    toolchain=(-DCMAKE_TOOLCHAIN_FILE="$source_dir/cmake/mingw-w64.cmake")
    unzip -q "$(only_one "$packages"/staadkit-*-windows-*.zip)" -d "$scratch"
    prefix=$(only_one "$scratch"/staadkit-*)
}

# ---- What every kind must hold; $library_dir is where the library lies ----

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
    if grep -rIF -e "$source_dir/" -e "$scratch/build" -e "$scratch/prefix" -e /opt/ "$prefix"; then
        fail "installed files name folders of the build"
    fi
}

# Runs a program of the outside and compares what it prints, whatever its line ends.
compare_output() { # program
    run_program "$1" | tr -d '\r' >"$1.actual"
    cmp "$here/outside/outside.output" "$1.actual" || fail "$(cat "$1.actual")"
}

run_program() {
    if [ "$kind" = zip ]; then
        [ -e "$(dirname "$1")/libstaadkit.dll" ] || cp "$prefix/bin/libstaadkit.dll" "$(dirname "$1")"
        in_wine "$@"
    else
        LD_LIBRARY_PATH=$library_dir "$@"
    fi
}

build_by_cmake() {
    "$cmake" -S "$here/outside" -B "$scratch/outside" -DCMAKE_PREFIX_PATH="$prefix" "${toolchain[@]}"
    "$cmake" --build "$scratch/outside"
    if [ "$kind" = zip ]; then
        compare_output "$scratch/outside/outside.exe"
    else
        "$scratch/outside/outside" >/dev/null # finds a shared library without help
        compare_output "$scratch/outside/outside"
    fi
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
    # The C++ runtime goes into the program, as the toolchain has it; the import library is one of a DLL.
    [ "$kind" != zip ] || flags=(-static -Wl,-Bdynamic "${flags[@]}" -Wl,-Bstatic)
    "$CXX" "${strict[@]}" "$here/outside/outside.cpp" "${flags[@]}" -o "$scratch/by-pkg-config.exe"
    compare_output "$scratch/by-pkg-config.exe"
}

# ---- What belongs to one kind ----

# A host that links with a C compiler gets the C++ runtime from Libs.private.
build_by_c_linker() {
    local flags
    read -ra flags <<<"$(pkg-config --static --libs staadkit)"
    "$CXX" "${strict[@]}" "${define[@]}" -I "$prefix/include" -c "$here/outside/outside.cpp" -o "$scratch/outside.o"
    "${CC:-cc}" "$scratch/outside.o" "${flags[@]}" -o "$scratch/by-c-linker"
    compare_output "$scratch/by-c-linker"
}

# The names that programs are bound to are the listed ones, each with the number of its overloads, so that none goes or
# comes unseen. A new name is added to the list; one that goes or changes breaks programs built before, and needs a new
# interface version.
check_listed_exports() {
    nm -DC --defined-only "$library_dir/libstaadkit.so" | sed -E 's/^[0-9a-f]* +. //' | grep -E '(^| for )STAAD::' |
        sort -u | sed -E 's/\[abi:[a-z0-9]+\]//; s/\(.*//' | LC_ALL=C sort | uniq -c |
        awk '{ count = $1; $1 = ""; print substr($0, 2) (count > 1 ? " " count : "") }' >"$scratch/listed-exports"
    diff "$here/exports.txt" "$scratch/listed-exports" ||
        fail "the exported names are not those of tests/install/exports.txt; if they should be, they are in $scratch/listed-exports"
}

# A shared library offers its API and what the language makes of it, nothing of its insides.
check_exports() {
    local names=$scratch/exports
    nm -DC --defined-only "$library_dir/libstaadkit.so" |
        sed -E 's/^[0-9a-f]* +. //; s/^(vtable|typeinfo|typeinfo name) for //' >"$names"
    grep -q '^STAAD::SdReader::' "$names" || fail "no API symbol is exported"
    if grep -E '^STAAD::detail::|\(anonymous namespace\)' "$names"; then
        fail "private symbols are exported"
    fi
    # Instantiations of the standard library's templates cannot be hidden; linkers merge them.
    if grep -vE '^(STAAD|std|__gnu_cxx)::' "$names"; then
        fail "foreign symbols are exported"
    fi
}

# The tool and all that stands beside it; "$@" gives what it is run with.
check_tool() { # zsh folder, command...
    local zsh=$1 man
    shift
    [ "$("$@" --version)" = "staadkit $(pkg-config --modversion staadkit)" ] || fail "the tool does not run"
    "$@" info "$source_dir/examples/steel-portal.std" | grep -q '^joints: ' || fail "the tool reads nothing"
    man=$(only_one "$prefix"/share/man/man1/staadkit.1*)
    man -l "$man" | grep -q '^STAADKIT(1)' || fail "no manual page"
    cmp "$prefix/share/bash-completion/completions/staadkit" "$source_dir/share/bash-completion/completions/staadkit" || fail "bash"
    cmp "$prefix/share/$zsh/_staadkit" "$source_dir/share/zsh/site-functions/_staadkit" || fail "zsh"
    cmp "$prefix/share/fish/vendor_completions.d/staadkit.fish" "$source_dir/share/fish/vendor_completions.d/staadkit.fish" || fail "fish"
    grep -rqs 'Redistributions in binary form' "$prefix/share/doc/staadkit" || fail "no notices of others' work"
}

package() { # name
    only_one "$packages/$1"_*.deb
}

control() { # package, field
    dpkg-deb -f "$(package "$1")" "$2"
}

# What dpkg and apt will make of them.
check_control_data() {
    local library version each
    library=$(dpkg-deb -f "$(only_one "$packages"/libstaadkit[0-9]*.deb)" Package)
    version=$(control "$library" Version)
    [ "$library" = "libstaadkit${version%.*}" ] || fail "$library is not named after its interface, of $version"
    [ "$(control libstaadkit-dev Depends)" = "$library (= $version)" ] || fail "$(control libstaadkit-dev Depends)"
    [[ ", $(control staadkit Depends), " = *", $library (= $version), "* ]] || fail "$(control staadkit Depends)"
    [[ $(control "$library" Depends) = *libc6\ *libstdc++6\ * ]] || fail "$(control "$library" Depends)"
    for each in "$library" libstaadkit-dev staadkit; do
        [ "$(control "$each" Version)" = "$version" ] || fail "$each is of another version"
        (mkdir "$scratch/$each" && cd "$scratch/$each" && dpkg-deb -R "$(package "$each")" . &&
            md5sum --quiet -c DEBIAN/md5sums) || fail "$each: damaged"
        gunzip -c "$prefix/share/doc/$each/changelog.Debian.gz" | grep -q "^staadkit ($version) " || fail "$each: changelog"
        grep -q '^Copyright' "$prefix/share/doc/$each/copyright" || fail "$each: copyright"
    done
    [ "$(cat "$scratch/$library/DEBIAN/triggers")" = 'activate-noawait ldconfig' ] || fail "no ldconfig"
    [ "$(cat "$scratch/$library/DEBIAN/shlibs")" = "libstaadkit ${version%.*} $library (>= $version)" ] ||
        fail "$(cat "$scratch/$library/DEBIAN/shlibs")"
    [ -e "$prefix/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/libstaadkit.so" ] || fail "not where Debian has libraries"
    ! readelf -d "$prefix/bin/staadkit" | grep -E 'R(UN)?PATH' || fail "the tool looks for libraries on its own"
    apt-get install --simulate "$packages"/*.deb >"$scratch/apt" 2>&1 || fail "$(cat "$scratch/apt")"
}

check_by_lintian() {
    lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$packages"/*.deb || fail "lintian finds fault"
}

# Programs of Windows, with services of a folder of our own; these must not inherit our output, or who
# reads it waits for their end.
in_wine() {
    WINEPREFIX=$scratch/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= /usr/lib/wine/wine64 "$@"
}

start_wine() {
    mkdir -p "$scratch/wine"
    WINEPREFIX=$scratch/wine setsid /usr/lib/wine/wineserver -p </dev/null >/dev/null 2>&1
    trap 'WINEPREFIX=$scratch/wine /usr/lib/wine/wineserver -k -w; rm -rf "$scratch/wine"' EXIT # 700 MB
    WINEPREFIX=$scratch/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= \
        setsid /usr/lib/wine/wine64 wineboot -i </dev/null >/dev/null 2>&1
}

# DLL and tool need nothing that Windows does not have.
check_imports() {
    x86_64-w64-mingw32-objdump -p "$prefix"/bin/* | sed -n 's/.*DLL Name: //p' >"$scratch/imports"
    grep -qix 'KERNEL32\.dll' "$scratch/imports" || fail "imports were not found"
    if grep -vixE '(libstaadkit|KERNEL32|USER32|COMDLG32|msvcrt)\.dll' "$scratch/imports"; then
        fail "more is needed than Windows"
    fi
}

check_windows_tool() {
    local program=$prefix/bin/staadkit.exe example=Z:$source_dir/examples/steel-portal.std
    run_program "$program" --version | tr -d '\r' >"$scratch/version"
    [ "$(cat "$scratch/version")" = "staadkit $(pkg-config --modversion staadkit)" ] || fail "the tool does not run"
    run_program "$program" info "${example//\//\\}" | grep -q '^joints: ' || fail "it reads nothing"
    grep -qs 'Redistributions in binary form' "$prefix/share/doc/staadkit/NOTICES.txt" || fail "no notices"
}

rm -rf "$scratch"
mkdir -p "$scratch"
step "bring it there ($kind)" && "bring_$kind"
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name staadkit.pc)")
export PKG_CONFIG_PATH
library_dir=$(dirname "$(find "$prefix" -name 'libstaadkit.*' | grep -v '\.dll$' | head -n 1)")
step "headers" && check_headers "$@"
step "paths" && check_no_build_paths
case $kind in
archive)
    step "exports" && check_exports && check_listed_exports
    step "tool" && check_tool zsh/site-functions "$prefix/bin/staadkit" # finds the library without help
    ;;
deb)
    step "control data" && check_control_data
    step "tool" && check_tool zsh/vendor-completions env LD_LIBRARY_PATH="$library_dir" "$prefix/bin/staadkit"
    step "lintian" && check_by_lintian
    ;;
zip)
    step "imports" && check_imports
    step "Wine" && start_wine
    ;;
esac
step "outside program by CMake" && build_by_cmake
step "versions" && check_versions
step "outside program by pkg-config" && build_by_pkg_config
case $kind in
static)
    step "outside program by a C linker" && build_by_c_linker
    ;;
zip)
    step "tool" && check_windows_tool
    ;;
esac
