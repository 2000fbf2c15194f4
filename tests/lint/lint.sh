#!/usr/bin/env bash
# lint.sh format|ascii|tidy|analyzer [BUILD_DIR], from the project's root.
set -euo pipefail

sources() { # suffixes...
    local suffix patterns=()
    for suffix in "$@"; do patterns+=(-o -name "*.$suffix"); done
    find staad tools tests benchmarks examples fuzz scripts -type f \( "${patterns[@]:1}" \) | sort
}

clang_tidy() { # build folder, changes to the checks of .clang-tidy
    find staad tools -name '*.cpp' | sort | xargs -P 2 -n 4 clang-tidy -p "$1" --checks="$2" --quiet \
        --extra-arg=-Wno-unknown-warning-option 2>/dev/null # the compile commands are those of g++
}

case $1 in
format) sources h cpp | xargs clang-format --dry-run -Werror ;;
ascii)
    if { sources h cpp sh py && find . -name CMakeLists.txt -not -path './build/*'; } | xargs grep -nP '[^\x00-\x7F]'; then
        echo "sources hold only ASCII" >&2
        exit 1
    fi
    ;;
# The analyzer follows paths through the code and takes longer than all other checks together: by itself.
tidy) clang_tidy "$2" '-clang-analyzer-*' ;;
analyzer) clang_tidy "$2" '-*,clang-analyzer-*' ;;
esac
