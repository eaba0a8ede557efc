#!/usr/bin/env bash
# run-on-virtual-screen.sh PROGRAM PICTURE: starts PROGRAM under Xvfb, gets past what greets its user
# by keys, waits until it idles, writes a screenshot to PICTURE and has the program end as its close
# button would.
set -euo pipefail
program=$1
picture=$2

say() { printf '== %s\n' "$*"; }

folder=$(mktemp -d)
processes=()
clean_up() {
    for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap clean_up EXIT

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$folder/display" 2>"$folder/xvfb.log" &
processes+=($!)
for _ in $(seq 100); do
    [ -s "$folder/display" ] && break
    sleep 0.1
done
[ -s "$folder/display" ] || { say "The virtual display did not start:"; cat "$folder/xvfb.log"; exit 1; }
DISPLAY=":$(cat "$folder/display")"
export DISPLAY

openbox >"$folder/openbox.log" 2>&1 &
processes+=($!)
# A window that is mapped while the window manager is still starting is never managed by it.
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.1
done
"$program" &
pid=$!
processes+=("$pid")

# Clock ticks of processor time that the program has used.
ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }

# The program's window with that title; empty: there is none.
window_of() { xdotool search --all --onlyvisible --pid "$pid" --name "^$1\$" 2>/dev/null | head -1 || true; }

wait_until_idle() {
    local quiet=0 before
    for _ in $(seq 100); do
        before=$(ticks)
        sleep 0.1
        if [ "$(ticks)" -le "$((before + 1))" ]; then quiet=$((quiet + 1)); else quiet=0; fi
        [ "$quiet" -ge 5 ] && return
    done
}

# Presses KEY in the window with that title, if it stands, and waits until it has gone.
get_past() { # TITLE KEY
    local window
    window=$(window_of "$1")
    [ -n "$window" ] || return 0
    say "Pressing $2 in \"$1\""
    xdotool windowactivate --sync "$window" key "$2"
    for _ in $(seq 50); do
        [ -n "$(window_of "$1")" ] || return 0
        sleep 0.1
    done
    say "\"$1\" did not close."
    exit 1
}

window=
for _ in $(seq 300); do
    kill -0 "$pid" 2>/dev/null || { say "The program ended before its window came up."; exit 1; }
    window=$(window_of "VY Pixelworks")
    [ -n "$window" ] && break
    sleep 0.1
done
[ -n "$window" ] || { say "The program's window did not come up."; exit 1; }

wait_until_idle
get_past "Welcome" space
wait_until_idle
get_past "Tip of the Day" Escape
wait_until_idle

mkdir -p "$(dirname "$picture")"
import -window root "$picture"
say "The program runs. Screenshot: $picture"

# The window manager's own key for the close button.
xdotool windowactivate --sync "$window" key alt+F4
for _ in $(seq 50); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
done
if kill -0 "$pid" 2>/dev/null; then
    say "The program did not end when it was asked to."
    exit 1
fi
status=0
wait "$pid" || status=$?
[ "$status" -eq 0 ] || { say "The program ended with code $status."; exit 1; }
say "The program ended."
