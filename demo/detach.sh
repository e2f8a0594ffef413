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
    prepare_demo
    need "${for_detaching[@]}"
    ensure_display
    ensure_disk_service
    mksquashfs build/demo/quillbarn.app "$image" -keep-as-directory -noappend -quiet -no-progress
    device="$("${as_root[@]}" losetup --find --show "$image")"
    "${as_root[@]}" mkdir -p "$volume"
    "${as_root[@]}" mount -t squashfs "$device" "$volume"
    await service_knows_volume "$device"

    echo "Detaching, which for two seconds can't be done:"
    losetup --list "$device"
    { sleep 2; } <"$volume/quillbarn.app/Contents/MacOS/quillbarn" &
    show detach 0.7 -install2 "$volume/quillbarn.app"
    ! mountpoint -q "$volume" || "${as_root[@]}" umount "$volume"
    show_log
    if losetup "$device" 2>/dev/null | grep -qF "$image"; then
        "${as_root[@]}" losetup --detach "$device"
        echo "It was not detached." >&2
        return 1
    fi
    echo "$volume is unmounted, and $device free."
}
