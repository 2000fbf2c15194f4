#!/usr/bin/env bash
# refresh-pages.sh [--check] PAGES
#
# Makes the manual page and the completions under share/ anew, or with --check shows how they differ from what
# they should be and fails. PAGES is the built program staadkit_pages.
set -euo pipefail

check=no
if [ "${1:-}" = --check ]; then
    check=yes
    shift
fi
if [ $# -ne 1 ] || [ ! -x "$1" ]; then
    echo "usage: refresh-pages.sh [--check] PAGES" >&2
    exit 2
fi
share=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/share
if [ $check = no ]; then
    exec "$1" "$share"
fi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$1" "$scratch"
if ! diff -ru "$share" "$scratch"; then
    echo "Run: scripts/refresh-pages.sh $1" >&2
    exit 1
fi
