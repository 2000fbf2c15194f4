#!/usr/bin/env bash
# refresh-docs.sh [--check] TOOL [CODES]
#
# Updates the generated blocks of README*.md and docs/**/*.md, or with --check shows how they
# differ from what they should be and fails. TOOL is the built staadkit, CODES the program that prints the
# table of finding codes; by default that of the same build tree. A block is a marker line and the fence
# right after it, whose content is replaced:
#
#   <!-- output: staadkit info examples/x.std -->   then ```text: the command and what it prints
#   <!-- source: examples/x.cpp -->                 then ```cpp:  the file
#
# and <!-- table: finding-codes -->, where everything up to <!-- end of table --> is replaced.
#
# Commands are run from the project's root; standard error is ignored.
set -euo pipefail

usage() {
    echo "usage: refresh-docs.sh [--check] TOOL [CODES]" >&2
    exit 2
}

check=no
if [ "${1:-}" = --check ]; then
    check=yes
    shift
fi
{ [ $# -eq 1 ] || [ $# -eq 2 ]; } && [ -x "$1" ] || usage
absolute() { echo "$(cd "$(dirname "$1")" && pwd)/$(basename "$1")"; }
tool=$(absolute "$1")
codes=$(absolute "${2:-$(dirname "$tool")/../../tests/docs/staadkit_finding_codes}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "$place: $1" >&2
    exit 1
}

# The content of a block, by the marker's KIND and ARGUMENT, ending in a newline.
content() {
    case $1 in
    output)
        local words
        read -ra words <<<"$2"
        [ "${words[0]}" = staadkit ] || fail "not a command of the tool: $2"
        printf '$ %s\n' "$2"
        "$tool" "${words[@]:1}" 2>"$scratch/messages" </dev/null || fail "'$2' failed: $(cat "$scratch/messages")"
        ;;
    source)
        cat "$2" || fail "no such file: $2"
        ;;
    table)
        [ "$2" = finding-codes ] || fail "no such table: $2"
        "$codes" || fail "cannot print the table: $codes"
        ;;
    esac | awk 1
}

# A markdown file from standard input with its blocks made anew.
regenerate() { # file
    local file=$1 place=$1 number=0 line kind argument language
    local marker='^<!-- (output|source|table): (.+) -->$' end
    while IFS= read -r line || [ -n "$line" ]; do
        number=$((number + 1))
        place=$file:$number
        printf '%s\n' "$line"
        [[ $line =~ $marker ]] || continue
        kind=${BASH_REMATCH[1]} argument=${BASH_REMATCH[2]}
        end='<!-- end of table -->'
        if [ "$kind" != table ]; then
            end='```' language=text
            [ "$kind" = output ] || language=cpp
            IFS= read -r line && [ "$line" = "\`\`\`$language" ] || fail "no \`\`\`$language after the marker"
            number=$((number + 1))
            printf '%s\n' "$line"
        fi
        content "$kind" "$argument"
        until [ "$line" = "$end" ]; do
            IFS= read -r line || fail "the block is not closed"
            number=$((number + 1))
        done
        printf '%s\n' "$line"
        number=$((number + 1))
        echo "$place" >>"$scratch/blocks"
    done
}

: >"$scratch/blocks"
stale=0
while IFS= read -r file; do
    regenerate "$file" <"$file" >"$scratch/new"
    if cmp -s "$file" "$scratch/new"; then
        continue
    fi
    if [ $check = yes ]; then
        diff -u --label "$file" --label "$file, made anew" "$file" "$scratch/new" || stale=1
    else
        cat "$scratch/new" >"$file"
        echo "refreshed $file"
    fi
done < <(find README*.md docs -name '*.md' 2>/dev/null | LC_ALL=C sort)

if [ ! -s "$scratch/blocks" ]; then
    echo "no generated block found" >&2
    exit 1
fi
if [ $stale -ne 0 ]; then
    echo "Run: scripts/refresh-docs.sh $tool" >&2
    exit 1
fi
