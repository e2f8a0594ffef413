# Installs a sample bundle for real.

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
    [ -w /Applications ] || "${as_root[@]}" install -d -o "$(id -u)" -g "$(id -g)" /Applications
}

demo_install() {
    prepare_demo
    ensure_display

    echo "Installing $(find build/demo/quillbarn.app | wc -l) entries into /Applications/quillbarn.app"
    # A full bar stands for a second; a pane takes half of one to open.
    show install 0.5 -install "$PWD/build/demo/"
    [ "$screen_in_memory" = no ] || show failure 0.7 -install "$PWD/build/demo"
    show_log
    cat <<END

Try next:
  ./dev demo detach
  build/release/quillbarninstaller -uninstall
  build/release/quillbarninstaller -install /nowhere/    (fails, says why and waits)
END
}

# The pictures of the README: a run that stands still half-way, and one that has failed after more
# lines than the pane holds.
take_shots() {
    prepare_demo
    start_screen 1024x768
    local installer
    build/release/quillbarninstaller -install "$PWD/build/demo/" &
    installer=$!
    await window_is_shown 'Installing quillbarn'
    await grep -q "$installer d  copy .*Lesson 20/" /tmp/quillbarninstaller.log
    kill -STOP "$installer"
    picture docs/running.png
    kill -CONT "$installer"
    wait "$installer"

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
    xdotool key Return
    wait $!
}
