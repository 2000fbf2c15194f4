#!/usr/bin/env bash
# dialogs.sh TEST DIALOG_HOST WIN32_HOST SCRATCH_DIR
#
# Runs one of the programs under Wine on a display of its own, with code page 936, answers by keys what it shows, and
# compares what came of it with expected/TEST.result. Leaves screenshots in SCRATCH_DIR. Skips (77) where a display or
# Wine is missing.
set -euo pipefail

name=$1 dialog_host=$2 win32_host=$3 scratch=$4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
. "$root/scripts/wine.sh"
export LC_ALL=zh_CN.UTF-8
work=$scratch/$name
result=$work/result
patience=120 # seconds for anything to happen: machines may be busy
program=     # process of the program under test
own=()       # processes of the desktop

# Names in Chinese: a folder (project), a model (frame), a listing (beam forces).
project=$'\u5DE5\u7A0B' frame=$'\u6846\u67B6' beam_forces=$'\u6881\u5185\u529B'

fail() {
    echo "$1" >&2
    exit 1
}

skip() {
    echo "skipped: $1" >&2
    exit 77
}

need_tools() {
    local tool
    for tool in Xvfb xkbcomp openbox xdotool import; do
        command -v "$tool" >/dev/null || skip "there is no $tool"
    done
    PATH=/usr/lib/wine:$PATH command -v wine64 >/dev/null || skip "there is no wine64"
    [ "$(locale charmap 2>/dev/null)" = UTF-8 ] || skip "there is no locale $LC_ALL"
}

# ---- the desktop ------------------------------------------------------------------------------------

start_desktop() {
    mkfifo "$work/display"
    # It must not forget its keyboard when its first client, which sets it, has gone.
    Xvfb -displayfd 7 -screen 0 1024x768x24 -nolisten tcp -noreset 7>"$work/display" 2>"$work/Xvfb.log" &
    own+=($!)
    local display
    read -r -t "$patience" display <"$work/display" || fail "Xvfb does not start: $(cat "$work/Xvfb.log")"
    export DISPLAY=:$display
    add_chinese_keys
    openbox --sm-disable >"$work/openbox.log" 2>&1 & # windows get the keyboard from a window manager
    own+=($!)
    until_true manages_windows || fail "openbox does not start: $(cat "$work/openbox.log")"
}

manages_windows() { xdotool get_num_desktops >/dev/null 2>&1; }

# Gives each Chinese character that is typed a key of its own: xdotool has one key for all that the keyboard lacks and
# changes what it stands for while it types, before programs have read what was typed.
add_chinese_keys() {
    local keysyms=(U5DE5 U7A0B U6881 U5185 U529B) keys='' i # of the folder and the listing
    for i in "${!keysyms[@]}"; do keys+="key <FK$((13 + i))> { [ ${keysyms[i]} ] };"; done
    printf '%s\n' 'xkb_keymap { xkb_keycodes { include "evdev+aliases(qwerty)" }; xkb_types { include "complete" };' \
        'xkb_compatibility { include "complete" }; xkb_symbols { include "pc+us"' "$keys" '}; };' >"$work/keys"
    xkbcomp -w 0 "$work/keys" "$DISPLAY" >"$work/xkbcomp.log" 2>&1 || fail "no keyboard: $(cat "$work/xkbcomp.log")"
}

stop_all() {
    stop_wine
    [ "${#own[@]}" -eq 0 ] || kill "${own[@]}" 2>/dev/null || true
    wait
}

windows_path() { echo "Z:${1//\//\\}"; }

start_program() { # program argument...
    (cd "$work" && exec wine64 "$@") </dev/null >"$work/output" 2>&1 &
    program=$!
}

start_scenario() { # scenario path...
    local scenario=$1 path paths=()
    shift
    for path in "$@"; do paths+=("$(windows_path "$path")"); done
    start_program "$dialog_host" "$scenario" "$(windows_path "$result")" "${paths[@]}"
}

end_program() {
    local code=0
    until_true is_over || fail "the program does not end"
    wait "$program" || code=$?
    [ "$code" -eq 0 ] || fail "the program ended with $code: $(cat "$work/output")"
}

# ---- eyes and hands ---------------------------------------------------------------------------------

# within SECONDS COMMAND...: tries every tenth of a second; false if it takes longer.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

soon() { within 15 "$@"; }

until_true() { within "$patience" "$@"; }

is_over() { ! runs; }

runs() { kill -0 "$program" 2>/dev/null; }

is_described_or_over() { grep -qx shown "$result" 2>/dev/null || ! runs; }

# Waits until the dialog is there and described, and gives it the keyboard.
see_dialog() {
    until_true is_described_or_over || fail "no dialog appears"
    runs || fail "no dialog was shown: $(cat "$result" "$work/output")"
    see_window "$(basename "$dialog_host")"
}

has_window() { # program [title]
    local candidate
    for candidate in $(xdotool search --onlyvisible --class "^$1\$" 2>/dev/null); do
        window=$candidate
        [ $# -gt 1 ] || return 0
        [ "$(title_of_window)" != "$2" ] || return 0
    done
    return 1
}

see_window() { # program [title]
    until_true has_window "$@" || fail "no window appears: $*"
    until_true has_keyboard || fail "no keyboard for the window of $1"
}

has_keyboard() { timeout 10 xdotool windowactivate --sync "$window" 2>/dev/null; }

title_of_window() { xdotool getwindowname "$window" 2>/dev/null; }

take_picture() { import -window root "$scratch/$name${1:-}.png"; }

press() { xdotool key "$@"; }

read_with() { # scenario result
    (cd "$work" && timeout "$patience" wine64 "$dialog_host" "$1" "$(windows_path "$2")" </dev/null >/dev/null 2>&1)
}

is_typed() {
    read_with read-file-dialog "$work/typed" && [ "$(head -n 1 "$work/typed")" = "name [$1]" ]
}

# A busy program may lose keys, so a name is typed anew until it stands in the dialog ...
type_name() {
    local end=$((SECONDS + patience))
    while [ "$SECONDS" -lt "$end" ]; do
        press End shift+Home
        xdotool type --delay 20 "$1"
        ! soon is_typed "$1" || return 0
    done
    fail "the name does not arrive; typed is $(cat "$work/typed" 2>/dev/null)"
}

# ... and a key that closes a window is pressed until that is gone.
answer() { # key
    local end=$((SECONDS + patience))
    while [ "$SECONDS" -lt "$end" ]; do
        press "$1"
        ! soon is_gone || return 0
    done
    fail "the window stays"
}

is_gone() { ! xdotool search --onlyvisible --name '' 2>/dev/null | grep -qx "$window"; }

expect_title() {
    [ "$(title_of_window)" = "$1" ] || fail "the title is '$(title_of_window)', not '$1'"
}

expect_result() {
    diff "$here/expected/$name.result" "$result" || fail "expected is what is marked <"
}

# ---- files ------------------------------------------------------------------------------------------

# A column 11 and a beam 12 on it.
frame_model() { # further lines
    printf '%s\n' 'STAAD SPACE' 'UNIT MMS KN' 'JOINT COORDINATES' '1 0 0 0; 2 0 3000 0; 3 6000 3000 0' \
        'MEMBER INCIDENCES' '11 1 2; 12 2 3' "$@" 'FINISH'
}

frame_with_definitions() {
    frame_model 'START GROUP DEFINITION' 'JOINT' '_OWN 2' 'END GROUP DEFINITION' 'SUPPORTS' '2 PINNED'
}

# The same frame under other numbers, with other definitions.
earlier_frame() {
    printf '%s\n' 'STAAD SPACE' 'UNIT METER KN' 'JOINT COORDINATES' '30 6 3 0; 20 0 3 0; 10 0 0 0' \
        'MEMBER INCIDENCES' '7 10 20; 8 30 20' \
        'START GROUP DEFINITION' 'JOINT' '_J 10 30' 'MEMBER' '_M 7 8' 'END GROUP DEFINITION' \
        'SUPPORTS' '10 FIXED' 'MEMBER RELEASE' '8 START MZ' 'FINISH'
}

# Forces in m, kN and kN m; the title, "details of beam element internal forces", is in GBK.
frame_forces() {
    printf '%s\n' $'\xC1\xBA\xB5\xA5\xD4\xAA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2' '-----' \
        ' member' ' case' ' (m) (kN) (kN-m)' \
        ' 11 1:DEAD 0 -10 0.5 0.25 0.002 0.003 1.5' '  3 -10.5 0.5 0.25 0.002 0.004 0' \
        ' 2:LIVE 0 -4 0 0 0 0 0' ' 3 -4 0 0 0 0 0.25' \
        ' 12 1:DEAD 0 0 1 0 0 0 0' ' 6 0 -1 0 0 0 0' ''
}

# ---- tests ------------------------------------------------------------------------------------------

import-without-model() {
    frame_forces >"$work/forces.txt"
    start_scenario import-without-model "$work/forces.txt"
    see_dialog
    expect_title $'Error--Velkor\u8F6F\u4EF6'
    take_picture
    answer Return
}

ask_to_take_over() {
    frame_with_definitions >"$work/frame.std"
    earlier_frame >"$work/earlier.std"
    start_scenario take-over "$work/frame.std" "$work/earlier.std"
    see_dialog
    expect_title ''
    take_picture
}

take-over-yes() {
    ask_to_take_over
    answer Return
}

take-over-no() {
    ask_to_take_over
    answer n
}

# The model lies beside nothing, its listing in another folder.
ask_for_forces() {
    mkdir "$work/$project"
    frame_model >"$work/frame.std"
    frame_forces >"$work/$project/$beam_forces.txt"
    start_scenario forces "$work/frame.std"
    see_dialog
    take_picture
}

force-file-typed() {
    ask_for_forces
    type_name "$(windows_path "$work/$project/$beam_forces.txt")"
    take_picture -typed
    answer Return
}

force-file-cancelled() {
    ask_for_forces
    answer Escape
}

# The listing lies beside the model, so nothing is asked before the window is there.
host-of-frame() {
    mkdir "$work/$project"
    frame_model >"$work/$project/$frame.std"
    frame_forces >"$work/$project/$frame.txt"
    start_program "$win32_host" "$(windows_path "$work/$project/$frame.std")"
    see_window "$(basename "$win32_host")" "$frame.std"
    take_picture
    title_of_window >"$result"
    answer Escape
}

# Nothing is there to show a dialog on: each is over at once.
without-desktop() {
    frame_with_definitions >"$work/frame.std"
    earlier_frame >"$work/earlier.std"
    frame_forces >"$work/forces.txt"
    start_scenario import-without-model "$work/forces.txt"
    end_program
    mv "$result" "$work/import"
    start_scenario take-over "$work/frame.std" "$work/earlier.std"
    end_program
    mv "$result" "$work/take-over"
    start_scenario forces "$work/frame.std"
    end_program
    cat "$work/import" "$work/take-over" "$result" >"$work/all"
    mv "$work/all" "$result"
}

need_tools
rm -rf "$work"
mkdir -p "$work"
trap stop_all EXIT
unset DISPLAY
[ "$name" = without-desktop ] || start_desktop
start_wine "${STAADKIT_WINE_PREFIX:-$scratch/wine}"
"$name"
end_program
expect_result
