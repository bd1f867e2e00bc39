# A mouse on the display of tools/demo/screen.sh. Meant to be sourced after it.
# shellcheck shell=bash disable=SC2154

# Where things are, in points from the corner of their window. The one table of places: mend it when the layout changes.
declare -A PLACE=(
    [tab]='268 36' [tab-step]='104 0'
    [entry]='116 108' [entry-step]='0 48'
    [panel]='380 141' [panel-step]='0 48'     # in a settings page's own list
    [option]='300 190' [listed-option]='540 190' # the first of a panel's options, without and with a list of panels
    [default-half]='1039 142' [custom-half]='1166 142'
    [slider-left]='449 216' [slider-right]='643 216' # of the first slider, Brightness: its groove's ends
    [page]='460 600'
    [first-lock]='735 452' # of the scene page, scrolled to its end
    [nothing]='640 770' # the window's lower edge: nothing lights up there
    [read-everything]='560 678' # of the health page, with one monitor
    [music-open]='564 190'
    [unplug]='342 393'  # in the desk's window
    [accessory-tab]='246 28'
)

# Prints a place, some steps on: place NAME [STEPS]
place() {
    local x y dx dy
    read -r x y <<<"${PLACE[$1]}"
    read -r dx dy <<<"${PLACE[$1-step]:-0 0}"
    printf '%s %s\n' $((x + ${2:-0} * dx)) $((y + ${2:-0} * dy))
}

# Prints the point of Brightness's groove for a value of 0 to 100.
brightness_place() {
    local left right y
    read -r left y <<<"${PLACE[slider-left]}"
    read -r right y <<<"${PLACE[slider-right]}"
    printf '%s %s\n' $((left + (right - left) * $1 / 100)) "$y"
}

# Moves the mouse to a point of a window.
point_at() {
    timeout 5 xdotool mousemove --window "$1" $(($2 * scale)) $(($3 * scale)) || die "the mouse does not move"
}

# Clicks a place: click_at WINDOW NAME [STEPS]
click_at() {
    local x y
    read -r x y < <(place "${@:2}")
    point_at "$1" "$x" "$y"
    timeout 5 xdotool click 1
}

# Presses the option some steps after the first, by the keyboard, as widths differ: choose_option WINDOW FIRST STEPS
choose_option() {
    local step
    click_at "$1" "$2"
    for ((step = 0; step < $3; ++step)); do timeout 5 xdotool key Right; done
    timeout 5 xdotool key space
}

# Drags Brightness in a few moves, as a hand would: drag_brightness WINDOW FROM TO
drag_brightness() {
    local value x y
    read -r x y < <(brightness_place "$2")
    point_at "$1" "$x" "$y"
    timeout 5 xdotool mousedown 1
    for value in $(seq "$2" $((($3 - $2) / 10)) "$3") "$3"; do
        read -r x y < <(brightness_place "$value")
        point_at "$1" "$x" "$y"
        sleep 0.08
    done
    timeout 5 xdotool mouseup 1
}

# Takes the mouse off everything that would light up.
put_mouse_away() {
    local x y
    read -r x y < <(place nothing)
    point_at "$1" "$x" "$y"
}
