# A display that nobody sees, with the program on it. Meant to be sourced after tools/lib.sh, from the project's folder.
# shellcheck shell=bash

# shellcheck disable=SC2034
SCREEN_PACKAGES=(xvfb openbox xdotool imagemagick)

SCREEN_GROUND='#070a09'

# What follows is for the tools that source this file.
# shellcheck disable=SC2034
program_window=''
percent=100 # pixels for a hundred points

started=() # processes to end with the tool
places=''  # where a program answers where its controls are, see hands.sh
scratch='' # sockets and lock files, apart from those of a program that somebody uses meanwhile
program_pid=''

# Waits until a command succeeds: wait_for SECONDS COMMAND...; fails when the time is over.
wait_for() {
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# Starts a display of WIDTHxHEIGHT pixels. It and all that is started on it end with the tool, however that ends, or
# when close_screen is called.
open_display() {
    scratch=$(mktemp -d)
    places=$scratch
    trap close_screen EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    # The server looks for a free number itself, so two tools at a time are no trouble.
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$scratch/number" >"$scratch/screen.log" 2>&1 &
    started+=($!)
    wait_for 15 test -s "$scratch/number" || die "no virtual display: $(<"$scratch/screen.log")"
    DISPLAY=":$(<"$scratch/number")"
    export DISPLAY
}

# The same with a window manager and a ground.
open_screen() {
    open_display "$1"
    export QT_QPA_PLATFORM=xcb
    openbox --config-file "$PWD/tools/demo/openbox.xml" >/dev/null 2>&1 &
    started+=($!)
    wait_for 10 timeout 5 xdotool get_desktop || die "the window manager does not start"
    # Succeeds, yet reports failure, as it leaves no window behind.
    timeout 10 display -window root "xc:${SCREEN_GROUND}[64x64]" >/dev/null 2>&1 || true
}

close_screen() {
    close_program
    local index
    for ((index = ${#started[@]} - 1; index >= 0; --index)); do
        kill "${started[index]}" 2>/dev/null || true
        wait "${started[index]}" 2>/dev/null || true
    done
    started=()
    rm -rf "$scratch"
}

# Starts the program in a folder of its own and waits for its window: open_program PROGRAM FOLDER [VARIABLE=VALUE...]
open_program() {
    local program=$1 folder=$2
    shift 2
    (cd "$folder" && exec env TMPDIR="$scratch" XDG_RUNTIME_DIR="$scratch" QUORVEL_DESK=virtual \
        QUORVEL_DESK_PLACES="$places" "$@" "$program") \
        >"$folder/output.txt" 2>&1 &
    program_pid=$!
    program_window=$(window_named QUORVEL 1280) || die "the program shows no window; see $folder"
}

close_program() {
    [[ -n $program_pid ]] || return 0
    kill "$program_pid" 2>/dev/null || true
    wait "$program_pid" 2>/dev/null || true
    program_pid=''
}

# Prints the id of the visible window with that title and at least that width in points; waits for it.
window_named() {
    wait_for 20 find_window "$@" && find_window "$@"
}

# The same without waiting. Titles are not enough: the bar that shows the progress of reading has the program's.
find_window() {
    local id WIDTH
    for id in $(timeout 5 xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
        WIDTH=0
        eval "$(timeout 5 xdotool getwindowgeometry --shell "$id" 2>/dev/null | grep '^WIDTH=[0-9]*$')"
        ((WIDTH >= $2 * percent / 100)) && { printf '%s\n' "$id" && return; }
    done
    return 1
}

# Moves a window's corner to a place in points, and waits until it is there.
move_window() {
    timeout 5 xdotool windowmove --sync "$1" $(($2 * percent / 100)) $(($3 * percent / 100)) || die "the window does not move"
}
