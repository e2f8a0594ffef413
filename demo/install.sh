# Installs a sample bundle for real.

bundle=/Applications/quillbarn.app
log=/tmp/quillbarninstaller.log
made=build/demo/made # what the demos have brought to the machine, a path a line

# draw_bundle FOLDER: a few hundred entries of all kinds that a bundle can hold
draw_bundle() {
    local contents="$1/quillbarn.app/Contents" number
    rm -rf "$1/quillbarn.app"
    mkdir -p "$contents/MacOS" "$contents/Resources/Empty folder" "$contents/Frameworks/Core/A"
    printf '#!/bin/sh\necho quillbarn\n' >"$contents/MacOS/quillbarn"
    chmod 755 "$contents/MacOS/quillbarn"
    for number in $(seq 40); do
        mkdir -p "$contents/Resources/Lesson $number/Bögen & Klänge"
        seq "$number" >"$contents/Resources/Lesson $number/notes.txt"
        seq 500 >"$contents/Resources/Lesson $number/Bögen & Klänge/übung.txt"
        seq 2000 >"$contents/Resources/Lesson $number/Bögen & Klänge/練習.txt"
        seq 100 >"$contents/Resources/Lesson $number/.hidden"
    done
    head -c 20000000 /dev/urandom >"$contents/Frameworks/Core/A/Core"
    ln -s A "$contents/Frameworks/Core/Current"
    ln -s ../Frameworks/Core/A/Core "$contents/MacOS/Core"
    ln -s nowhere "$contents/Resources/dangling"
}

prepare_demo() {
    need "${for_building[@]}"
    build release
    mkdir -p build/demo
    draw_bundle build/demo
    note_new "$log"
    [ -e "$log" ] || : >"$log" # the person's own, also where root is the first to write to it
}

note_new() { # path...
    local path
    for path; do
        [ -e "$path" ] || echo "$path" >>"$made"
    done
}

prepare_applications() {
    if [ -e "$bundle" ] && ! grep -qxF "$bundle" "$made" 2>/dev/null; then
        echo "There is a $bundle that is not the demo's. It stays as it is." >&2
        return 1
    fi
    note_new /Applications "$bundle"
    [ -e /Applications ] \
        || "${as_root[@]}" install -d -o "$(id -u)" -g "$(id -g)" /Applications
}

demo_install() {
    prepare_demo
    prepare_applications
    ensure_display

    # A full bar stands for a second; a pane takes half of one to open.
    if [ "$screen_in_memory" = yes ]; then
        echo "Installing from a folder that is not there, to see how that is told"
        show failure 0.7 "$installer" -install /nowhere/
    fi
    echo "Installing $(find build/demo/quillbarn.app | wc -l) entries into $bundle"
    show install 0.5 "$installer" -install "$PWD/build/demo/"
    show_log
    [ -e "$bundle/Contents/MacOS/quillbarn" ] || return 1
    echo "Installed: $bundle, with $(find "$bundle" | wc -l) entries."
    echo
    echo "Try next:"
    suggest
}

# What works on the display of this run.
suggest() {
    if [ "$screen_in_memory" = yes ]; then
        echo "  xvfb-run $installer -uninstall"
    else
        echo "  $installer -uninstall"
        echo "  $installer -install /nowhere/    (fails, says why and waits)"
    fi
    echo "  ./dev demo detach"
    echo "  ./dev demo clean"
}

# Only what the demos have made; folders only when they are empty.
demo_clean() {
    local path
    [ -e "$made" ] || { echo "No demo has left anything." && return; }
    tac "$made" | while read -r path; do
        case $path in
        "$bundle" | "$log") "${as_root[@]}" rm -rf "$path" ;;
        *) "${as_root[@]}" rmdir "$path" || continue ;;
        esac
        echo "Removed: $path"
    done
    rm -rf build/demo
}

# The pictures of the README: a run that stands still half-way, and one that has failed after more
# lines than the pane holds.
take_shots() {
    prepare_demo
    prepare_applications
    start_screen 1024x768
    local pid
    "$installer" -install "$PWD/build/demo/" &
    pid=$!
    await window_is_shown 'Installing quillbarn'
    await grep -q "$pid d  copy .*Lesson 20/" "$log"
    kill -STOP "$pid"
    picture docs/running.png
    kill -CONT "$pid"
    wait "$pid"

    local room=build/demo/full
    mkdir -p "$room"
    "${as_root[@]}" mount -t tmpfs -o size=8m,mode=777 none "$room"
    at_end "${as_root[*]} umount $room"
    "${as_root[@]}" unshare --mount sh -c \
        'mount --bind build/demo/full /Applications && mount --bind build/demo /media \
            && exec build/release/quillbarninstaller -install /media/' &
    await window_is_shown 'could not be installed'
    sleep 1
    picture docs/failure.png
    press_return_until_over $!
}
