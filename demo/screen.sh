# The display for the demos: that of the user, or a virtual one, of which pictures are saved.

screen_is_virtual=no
installer=build/release/quillbarninstaller
any_title='quillbarn|disk image'

# start_screen WIDTHxHEIGHT: starts a virtual X server with a window manager
start_screen() {
    need "${for_showing[@]}"
    screen_is_virtual=yes
    mkdir -p build/demo
    local pipe=build/demo/display number
    rm -f "$pipe"
    mkfifo "$pipe"
    Xvfb -displayfd 3 -noreset -screen 0 "$1x24" 3<>"$pipe" 2>/dev/null &
    at_end "kill $!"
    read -r number <"$pipe"
    rm "$pipe"
    export DISPLAY=":$number" XDG_RUNTIME_DIR="$PWD/build/demo/runtime"
    export LC_ALL=C.UTF-8 LANGUAGE=en # for the pictures
    install -d -m 0700 "$XDG_RUNTIME_DIR"
    # openbox may exit on its own, or start before the X server accepts connections.
    until openbox; do sleep 0.1; done >/dev/null 2>&1 &
    at_end "kill $!"
    await window_manager_is_there # it may ignore windows that are mapped earlier
}

window_manager_is_there() {
    xdotool get_num_desktops >/dev/null 2>&1
}

ensure_display() {
    [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || start_screen 640x480
}

window_is_shown() { # a part of its title
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1
}

# picture FILE: saves the window with its frame, which is what the virtual screen shows
picture() {
    import -window root png:- | convert - -trim +repage -strip +dither -colors 128 PNG8:"$1"
    echo "Picture: $1"
}

# show NAME SECONDS COMMAND...: runs the installer; on a virtual display, saves a picture after the
# given time and presses the button
show() {
    local name="$1" seconds="$2" pid
    shift 2
    "$@" &
    pid=$!
    if [ "$screen_is_virtual" = yes ]; then
        await window_is_shown "$any_title"
        sleep "$seconds"
        picture "build/demo/$name.png"
        press_return_until_over "$pid"
    fi
    wait "$pid"
}

press_return_until_over() { # process
    while [ -e "/proc/$1" ]; do
        # Two commands: otherwise the key stays pressed if the window closes in between.
        ! xdotool search --onlyvisible --name "$any_title" windowactivate || xdotool key Return
        sleep 0.1
    done 2>/dev/null
}

show_log() {
    printf '\nThe end of the log, %s:\n' "$log"
    tail -n 5 "$log"
    [ -w "$log" ] || echo "The log is not writable: this run has no entries."
}
