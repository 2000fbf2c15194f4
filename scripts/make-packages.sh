#!/usr/bin/env bash
# make-packages.sh linux    builds library and tool, and packs them as DEBs and as a .tar.gz
# make-packages.sh windows  the same for Windows, as a .zip
#
# The packages go to build/packages/. On Debian the scripts install what they need.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/packages.sh

# Dates in packages are those of the sources.
if [ -z "${SOURCE_DATE_EPOCH:-}" ] && SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null); then
    export SOURCE_DATE_EPOCH
fi

pack() { # preset
    quietly "build/$1-configure.log" cmake --preset "$1"
    quietly "build/$1-build.log" cmake --build --preset "$1"
    quietly "build/$1-pack.log" cpack --preset "$1"
}

case ${1:-} in
linux)
    need_packages "${build_packages[@]}" dpkg-dev
    rm -f build/packages/*.deb build/packages/*.tar.gz
    # One build serves both; they differ in where files go.
    pack package
    pack package-archive
    ;;
windows)
    need_packages "${build_packages[@]}" "${windows_packages[@]}"
    rm -f build/packages/*.zip
    pack package-windows
    ;;
*)
    echo "usage: make-packages.sh linux|windows" >&2
    exit 2
    ;;
esac
rm -rf build/packages/_CPack_Packages
ls build/packages
