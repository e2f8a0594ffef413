"""UDisks2 in a private namespace, and disk images. Loop devices are shared with the real machine."""

import os
import re
import tempfile

from machine import InstallerTest, await_that, keep_running, read, read_log, require, run, start_bus, write

BUS = "/run/dbus/system_bus_socket"
UDISKSD = "/usr/libexec/udisks2/udisksd"
UDEVD = "/usr/lib/systemd/systemd-udevd"
LOOPS = "/dev/loop-control"


class DiskImage:
    """An image that contains a bundle, mounted until the end of the test and known to the service.

    `kind` is "attached" (the loop device keeps the image after an unmount), "mounted twice",
    "self-detaching", "partitioned" (the bundle is in a partition) or "btrfs" (the bundle is in a
    default subvolume).
    """

    def __init__(self, test, mount_point="/Volumes/quillbarn installer", kind="attached"):
        self.file = os.path.join(tempfile.mkdtemp(), "image")
        self.mount_point = mount_point
        self.bundle = mount_point + "/quillbarn.app"
        write("/tmp/content/quillbarn.app/quillbarn", "the program")
        os.makedirs(mount_point, exist_ok=True)
        if kind == "btrfs":
            run("mkfs.btrfs", "--rootdir=/tmp/content", self.file)
            run("mount", self.file, mount_point)
            run("btrfs", "subvolume", "snapshot", mount_point, mount_point + "/default")
            run("btrfs", "subvolume", "set-default", mount_point + "/default")
            run("umount", mount_point)
        else:
            run("mksquashfs", "/tmp/content", self.file, "-quiet", "-offset", "1M" if kind == "partitioned" else "0")
        self.device = run("losetup", "--find", "--show", self.file)
        test.addCleanup(self._clean_up)
        self.volume = self.device + ("p1" if kind == "partitioned" else "")
        if kind == "partitioned":
            run("sfdisk", self.device, input="label: dos\nstart=1MiB\n")
            run("partx", "--update", self.device)  # a kernel without support for the table
        if kind == "mounted twice":
            run("mount", "--mkdir", self.volume, "/Volumes/first")
        run("mount", self.volume, mount_point)
        if kind == "self-detaching":
            run("losetup", "--detach", self.device)  # sets autoclear, because the device is busy
            write(f"/sys/block/{os.path.basename(self.device)}/uevent", "change")
        # The service notices devices and their state asynchronously.
        known = "(?s)MountPoints: +/" + (".* Autoclear: +true" if kind == "self-detaching" else "")
        await_that(lambda: re.search(known, run("udisksctl", "info", "-b", self.volume, check=False)))

    def _clean_up(self):
        run("umount", "--lazy", "--all-targets", self.volume, check=False)  # if it is still mounted
        if self.is_attached():
            run("losetup", "--detach", self.device)

    def is_attached(self):
        backing_file = f"/sys/block/{os.path.basename(self.device)}/loop/backing_file"
        return os.path.exists(backing_file) and read(backing_file) == self.file + "\n"


class DetachTest(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(UDISKSD, UDEVD, LOOPS, "dbus-daemon", "faketime", "mkfs.btrfs", "mksquashfs", "sfdisk", "losetup")
        super().setUpClass()
        os.makedirs(os.path.dirname(BUS))
        start_bus("--address=unix:path=" + BUS)
        keep_running(UDEVD)
        await_that(lambda: os.path.exists("/run/udev/control"))
        keep_running(UDISKSD)
        await_that(lambda: run("udisksctl", "status", check=False))

    @staticmethod
    def log_of(image, end="d unmount succeeded"):
        step = "unmount " + image.bundle
        return ["n installer start", "d " + step, "n " + step, "d " + step, end, "n installer exit"]

    def expect_detach(self, image, installer):
        self.expect_orderly_end(installer)
        self.assertEqual(read_log(), self.log_of(image))
        self.assertFalse(os.path.ismount(image.mount_point))
        await_that(lambda: not image.is_attached())  # asynchronous; the service may hold the device open
