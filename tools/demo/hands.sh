# A mouse on the display of tools/demo/screen.sh, which finds controls by their names. Meant to be sourced after it.
# shellcheck shell=bash disable=SC2154

HANDLE=20 # width of a slider's handle in points: the groove ends half of it from the slider's ends
EDGE=30   # from a window's lower edge, in points: nothing lights up there

# Prints "x y width height", in pixels of the display, of what can be seen of the control of that name. Waits for it.
place_of() {
    wait_for 10 ask_place "$1" || die "there is no control to be seen that is named $1"
    cat "$places/place.txt"
}

ask_place() {
    ask "$1" && grep -q '[0-9]' "$places/place.txt"
}

# Prints the names of the controls to be seen whose own name or class begins so, a line each.
names_of() {
    ask "$1*" || die "the program does not tell what is to be seen"
    cat "$places/place.txt"
}

# Puts a question to the program and waits for the answer.
ask() {
    rm -f "$places/place.txt"
    printf '%s\n' "$1" >"$places/question"
    mv "$places/question" "$places/where.txt"
    wait_for 5 test -e "$places/place.txt"
}

point_at() {
    timeout 5 xdotool mousemove "$1" "$2" || die "the mouse does not move"
}

# Moves the mouse into the middle of a control.
point_into() {
    local place x y width height
    place=$(place_of "$1")
    read -r x y width height <<<"$place"
    point_at $((x + width / 2)) $((y + height / 2))
}

click_on() {
    point_into "$1"
    timeout 5 xdotool click 1
}

# Prints the point of a slider of 0 to 100 where a value has its handle: value_place NAME VALUE
value_place() {
    local place x y width height handle=$((HANDLE * percent / 100))
    place=$(place_of "$1_slider")
    read -r x y width height <<<"$place"
    printf '%s %s\n' $((x + handle / 2 + (width - handle) * $2 / 100)) $((y + height / 2))
}

# Drags a slider in a few moves, as a hand would: drag NAME FROM TO
drag() {
    local value from to x y
    from=$(value_place "$1" "$2")
    to=$(value_place "$1" "$3")
    read -r x y <<<"$from"
    point_at "$x" "$y"
    timeout 5 xdotool mousedown 1
    for value in $(seq 1 10); do
        point_at $((x + (${to% *} - x) * value / 10)) "$y"
        sleep 0.08
    done
    timeout 5 xdotool mouseup 1
}

# Takes the mouse off everything that would light up: to the lower edge of a window.
put_mouse_away() {
    local X Y WIDTH HEIGHT
    eval "$(timeout 5 xdotool getwindowgeometry --shell "$1" 2>/dev/null | grep -E '^(X|Y|WIDTH|HEIGHT)=[-0-9]*$')"
    point_at $((X + WIDTH / 2)) $((Y + HEIGHT - EDGE * percent / 100))
}
