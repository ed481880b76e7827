#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# two_starts.sh CMAKE BUILD: real starts of the installed program on the display it is run on, two
# of them in one folder: the second brings the window of the first to the front and ends. After a
# kill, beside a program that hangs, on a folder of another machine and without rights on it the
# program still starts.
set -eu
cmake=$1 build=$2
work=$(mktemp -d)
started=()
cleanup() {
    for pid in "${started[@]}"; do
        kill -CONT "$pid" 2>/dev/null || true
        kill -KILL "$pid" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "FAILED: $*" >&2
    echo "in front: '$(title_in_front)' of process $(process_in_front)" >&2
    exit 1
}

title_in_front() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
process_in_front() { xdotool getactivewindow getwindowpid 2>/dev/null || true; }
# in_front PID TITLE: whether that window of that program takes the keys.
in_front() { [ "$(process_in_front)" = "$1" ] && [ "$(title_in_front)" = "$2" ]; }
ended() { ! kill -0 "$1" 2>/dev/null; }
# await WHAT COMMAND...: polls until COMMAND succeeds, 30 seconds at most.
await() {
    local what=$1
    shift
    for ((n = 0; n < 600; n++)); do
        ! "$@" || return 0
        sleep 0.05
    done
    fail "$what"
}
# start FOLDER: starts the program there; its process is in $program.
start() {
    "${user[@]}" "$1/boulix" &
    program=$!
    started+=("$program")
}
# ends_well PID: waits for the end of a start that ends by itself.
ends_well() {
    await "the second start did not end" ended "$1"
    wait "$1" || fail "the second start ended with code $?"
}
# answer KEY: leaves the box in front by that key.
answer() { xdotool key "$1"; }
# to_front PID: what a click of the user on its main window does.
to_front() {
    xdotool windowactivate "$(xdotool search --all --onlyvisible --pid "$1" --name "$main")"
    await "the window chosen did not come to the front" in_front "$1" "$main"
}
quit() {
    to_front "$1"
    xdotool key ctrl+q
    await "no question before quitting" in_front "$1" boulix
    answer alt+o
    await "the program did not quit" ended "$1"
}
hidden_files() { find "$1" -maxdepth 1 -name '.*' ! -path "$1"; }

user=(env)
main="boulix Version 4.0.3"
folder=$work/un other=$work/deux
"$cmake" --install "$build" --prefix "$folder" >/dev/null
"$cmake" --install "$build" --prefix "$other" >/dev/null

echo "== A new folder greets nobody with an error; two folders do not meet"
start "$folder" && first=$program
await "no main window" in_front "$first" "$main"
start "$other" && neighbour=$program
await "no main window in the second folder" in_front "$neighbour" "$main"

echo "== The second start brings the first window to the front and ends"
start "$folder"
ends_well "$program"
await "the first window did not come to the front" in_front "$first" "$main"
ended "$neighbour" && fail "the program in the other folder has ended"

echo "== So it does from another folder's path, minimised, and under a dialog"
ln -s "$folder" "$work/lien"
xdotool getactivewindow windowminimize
await "the window was not minimised" in_front "$neighbour" "$main"
start "$work/lien"
ends_well "$program"
await "the minimised window did not come back" in_front "$first" "$main"
xdotool key ctrl+q
await "no question before quitting" in_front "$first" boulix
to_front "$neighbour"
start "$folder"
ends_well "$program"
await "the dialog did not come to the front" in_front "$first" boulix
answer Escape
quit "$neighbour"

echo "== Beside a program that hangs the user decides"
kill -STOP "$first"
start "$folder"
await "no question beside a program that hangs" in_front "$program" boulix
answer Escape
ends_well "$program"
kill -CONT "$first"
quit "$first"
[ -z "$(hidden_files "$folder")" ] || fail "left behind: $(hidden_files "$folder")"

echo "== After a kill the program starts without a question"
start "$folder" && first=$program
await "no main window" in_front "$first" "$main"
kill -KILL "$first"
wait "$first" || true
[ -e "$folder/.boulix.lock" ] || fail "the killed program left no lock: nothing is tried here"
start "$folder" && first=$program
await "no main window after a kill" in_front "$first" "$main"
quit "$first"
[ -z "$(hidden_files "$folder")" ] || fail "left behind: $(hidden_files "$folder")"

echo "== On a folder of another machine the user decides"
printf '1\nboulix\ngrenier\n' >"$folder/.boulix.lock"
start "$folder"
await "no question about the other machine" in_front "$program" boulix
answer Escape
ends_well "$program"
grep -qx grenier "$folder/.boulix.lock" || fail "the lock of the other machine is gone"
start "$folder" && first=$program
await "no question about the other machine" in_front "$first" boulix
answer alt+o
await "no main window after the answer" in_front "$first" "$main"
grep -qx "$first" "$folder/.boulix.lock" || fail "the lock was not taken over"
quit "$first"
[ -z "$(hidden_files "$folder")" ] || fail "left behind: $(hidden_files "$folder")"

echo "== In a folder without rights the program starts, as often as one likes"
printf '%s\nboulix\n%s\n' "$first" "$(hostname)" >"$folder/.boulix.lock" # of a dead program
chmod -R a+rX "$work"
chmod 555 "$folder"
if [ "$(id -u)" -eq 0 ]; then
    mkdir -m 700 "$work/home"
    chown 65534:65534 "$work/home"
    user=(setpriv --reuid=65534 --regid=65534 --clear-groups
        env "HOME=$work/home" "XDG_RUNTIME_DIR=$work/home" "XDG_CONFIG_HOME=$work/home")
fi
start "$folder" && first=$program
await "no main window without rights" in_front "$first" "$main"
start "$folder" && second=$program
await "no second main window without rights" in_front "$second" "$main"
[ "$(hidden_files "$folder")" = "$folder/.boulix.lock" ] || fail "left behind: $(hidden_files "$folder")"
quit "$second"
quit "$first"
echo "All starts went well."
