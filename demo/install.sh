# Installs a sample application in /Applications.

bundle=/Applications/quillbarn.app
log=/tmp/quillbarninstaller.log
made=build/demo/made # paths that the demos created on the machine, one per line

# write_bundle FOLDER: a few hundred entries of all kinds
write_bundle() {
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
    need_to_build
    build release
    mkdir -p build/demo
    write_bundle build/demo
    note_new "$log"
    [ -e "$log" ] || : >"$log" # owned by the user, even if root writes to it first
}

note_new() { # path...
    local path
    for path; do
        [ -e "$path" ] || echo "$path" >>"$made"
    done
}

prepare_applications() {
    if [ -e "$bundle" ] && ! grep -qxF "$bundle" "$made" 2>/dev/null; then
        echo "$bundle exists and was not created by the demo. It is not changed." >&2
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

    # The full bar is shown for 1 second, and the pane opens within 0.5 seconds.
    if [ "$screen_is_virtual" = yes ]; then
        echo "Installing from a missing folder, to show a failure"
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

# Prints commands that work on the current display.
suggest() {
    if [ "$screen_is_virtual" = yes ]; then
        echo "  xvfb-run $installer -uninstall"
    else
        echo "  $installer -uninstall"
        echo "  $installer -install /nowhere/    (fails, states why and waits)"
    fi
    echo "  ./dev demo detach"
    echo "  ./dev demo clean"
}

# Removes the installed bundle, the log and the folders if a demo created them and they are empty.
demo_clean() {
    local path
    [ -e "$made" ] || { echo "The demos have left nothing." && return; }
    sort --unique --reverse "$made" | while read -r path; do
        case $path in
        "$bundle" | "$log") "${as_root[@]}" rm -rf "$path" ;;
        *) "${as_root[@]}" rmdir "$path" || { echo "$path" >>"$made.left" && continue; } ;;
        esac
        echo "Removed: $path"
    done
    if [ -e "$made.left" ]; then mv "$made.left" "$made"; else rm -rf build/demo; fi
}

# Takes the pictures of the README: a run that is stopped halfway, and a failure with more lines than the
# pane can show.
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
