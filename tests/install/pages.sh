#!/usr/bin/env bash
# pages.sh SHARE: the shells offer what they should, and no program finds fault with the manual page.
set -euo pipefail
share=$1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
bash=$share/bash-completion/completions/staadkit
zsh=$share/zsh/site-functions/_staadkit
cp "$share/fish/vendor_completions.d/staadkit.fish" "$scratch/fish"
man=$share/man/man1/staadkit.1
touch "$scratch/tower.std"
failed=0

fail() {
    echo "$1" >&2
    failed=1
}

# Each answers with the matches for a command line, in one line, sorted.
# shellcheck disable=SC1091
. "$bash"
in_bash() { # line
    local each
    read -ra COMP_WORDS <<<"${1//=/ = }"
    [ "${1% }" = "$1" ] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _staadkit
    for each in "${COMPREPLY[@]}"; do echo "$each"; done
}
in_zsh() { (cd "$scratch" && timeout 60 zsh -f "$here/capture.zsh" "$zsh" "$1"); }
in_fish() { (cd "$scratch" && HOME=$scratch fish --no-config -c "source fish; complete -C '$1'" | cut -f 1); }
in_one_line() { LC_ALL=C sort | tr '\n' ' ' | sed 's/ $//'; }

expect() { # line, matches in bash, zsh, fish
    local shell want=("$2" "$3" "$4") got
    for shell in bash zsh fish; do
        got=$("in_$shell" "$1" | in_one_line)
        [ "$got" = "${want[0]}" ] || fail "$shell offers for '$1': '$got', not '${want[0]}'"
        want=("${want[@]:1}")
    done
}

same() { # line, matches in every shell
    expect "$1" "$2" "$2" "$2"
}

same 'staadkit ' 'compare convert dump forces help info storeys'
same 'staadkit co' 'compare convert'
same 'staadkit --v' '--version'
same 'staadkit --color ' 'always auto never'
same 'staadkit --color never conv' 'convert'
same 'staadkit info --color al' 'always'
same 'staadkit help st' 'storeys'
same 'staadkit convert --temp' '--template'
same 'staadkit convert --template ' 'seismic wind'
same 'staadkit convert --template w' 'wind'
same 'staadkit dump --' '--color --form --help --notes --quiet --reading'
same 'staadkit forces --member ' ''
expect 'staadkit convert --template=s' 'seismic' 'seismic' '--template=seismic'
# Names of files: bash leaves them to readline, and offers nothing itself.
expect 'staadkit info to' '' 'tower.std' 'tower.std'
expect 'staadkit convert --wind to' '' 'tower.std' 'tower.std'
expect 'staadkit compare tower.std to' '' 'tower.std' 'tower.std'
complete -p staadkit | grep -q -- '-o default' || fail "bash does not complete the names of files"

man --warnings -E UTF-8 -l "$man" 2>&1 >/dev/null | grep . && fail "man warns"
# The page bears no date, so that the same sources give the same bytes.
mandoc -T lint -W warning "$man" | grep -v 'missing date' && fail "mandoc warns"
[ "$(man -l "$man" | grep -c '^SYNOPSIS$')" = 1 ] || fail "man does not show the page"
exit $failed
