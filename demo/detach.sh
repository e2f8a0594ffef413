# Mounts a sample disk image and ejects it with the installer.

bus_is_running() {
    dbus-send --system --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.GetId >/dev/null 2>&1
}
udev_is_running() {
    "${as_root[@]}" udevadm control --ping 2>/dev/null
}
disk_service_is_running() {
    udisksctl status >/dev/null 2>&1
}

# Without systemd, starts the bus and udev; the bus starts the disk service.
ensure_disk_service() {
    ! disk_service_is_running || return 0
    "${as_root[@]}" mkdir -p /run/dbus
    bus_is_running || keep_running dbus-daemon --system --nofork --nopidfile
    udev_is_running || keep_running /usr/lib/systemd/systemd-udevd
    await bus_is_running
    await udev_is_running
    await disk_service_is_running
}

service_lists_volume() { # device
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
    await service_lists_volume "$device"

    echo "Ejecting the image, which is busy for two seconds:"
    losetup --list "$device"
    { sleep 2; } <"$volume/quillbarn.app/Contents/MacOS/quillbarn" &
    # As root, who mounted the image: the disk service asks other users for a password.
    show detach 0.7 "${as_root[@]}" "$installer" -install2 "$volume/quillbarn.app"
    show_log
    if mountpoint -q "$volume" || is_attached "$device" "$image"; then
        echo "The image was not ejected." >&2
        return 1
    fi
    echo "$volume is unmounted and $device is free."
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
