# Attaches a sample disk image, and has it unmounted and ejected by the disk service.

bus_answers() {
    dbus-send --system --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.GetId >/dev/null 2>&1
}
udev_answers() {
    "${as_root[@]}" udevadm control --ping 2>/dev/null
}
disk_service_answers() {
    udisksctl status >/dev/null 2>&1
}

# Where systemd is not running, the bus and udev are started by hand; the bus starts the service.
ensure_disk_service() {
    ! disk_service_answers || return 0
    "${as_root[@]}" mkdir -p /run/dbus
    bus_answers || keep_running dbus-daemon --system --nofork --nopidfile
    udev_answers || keep_running /usr/lib/systemd/systemd-udevd
    await bus_answers
    await udev_answers
    await disk_service_answers
}

service_knows_volume() { # device
    udisksctl info -b "$1" | grep -q 'MountPoints: */'
}

demo_detach() {
    local image="$PWD/build/demo/image" volume="/Volumes/quillbarn installer" device
    become_root
    prepare_demo
    need "${for_detaching[@]}"
    ensure_display
    ensure_disk_service
    rm -f "$image"
    mksquashfs build/demo/quillbarn.app "$image" -keep-as-directory -noappend -quiet -no-progress
    note_new /Volumes "$volume"
    "${as_root[@]}" mkdir -p "$volume"
    device="$("${as_root[@]}" losetup --find --show "$image")"
    at_end "detach_by_hand '$volume' '$device' '$image'"
    "${as_root[@]}" mount -t squashfs "$device" "$volume"
    await service_knows_volume "$device"

    echo "Detaching, which for two seconds can't be done:"
    losetup --list "$device"
    { sleep 2; } <"$volume/quillbarn.app/Contents/MacOS/quillbarn" &
    # As root, who has mounted it: anybody else the disk service asks for a password first.
    show detach 0.7 "${as_root[@]}" "$installer" -install2 "$volume/quillbarn.app"
    show_log
    if mountpoint -q "$volume" || is_attached "$device" "$image"; then
        echo "It was not detached." >&2
        return 1
    fi
    echo "$volume is unmounted, and $device free."
    echo
    echo "Try next:"
    echo "  ./dev demo clean"
}

is_attached() { # device image
    losetup "$1" 2>/dev/null | grep -qF "$2"
}

detach_by_hand() { # volume device image
    ! mountpoint -q "$1" || "${as_root[@]}" umount "$1"
    ! is_attached "$2" "$3" || "${as_root[@]}" losetup --detach "$2"
}
