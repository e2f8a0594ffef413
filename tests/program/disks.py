"""The real disk service on a private machine, and disk images. Their devices are the real machine's."""

import os
import re
import tempfile

from machine import InstallerTest, await_that, keep_running, read, require, run, start_bus, write

BUS = "/run/dbus/system_bus_socket"
UDISKSD = "/usr/libexec/udisks2/udisksd"
UDEVD = "/usr/lib/systemd/systemd-udevd"
LOOPS = "/dev/loop-control"


class DiskImage:
    """An image with a bundle in it, mounted until the test is over, and known to the service.

    `kind` is "attached" to a device that keeps it when it is unmounted, "self-detaching", or
    "partitioned" with the bundle in a partition.
    """

    def __init__(self, test, mount_point="/Volumes/quillbarn installer", kind="attached"):
        self.file = os.path.join(tempfile.mkdtemp(), "image")
        self.mount_point = mount_point
        self.bundle = mount_point + "/quillbarn.app"
        write("/tmp/content/quillbarn.app/quillbarn", "the program")
        run("mksquashfs", "/tmp/content", self.file, "-quiet", "-offset", "1M" if kind == "partitioned" else "0")
        if kind == "partitioned":
            run("sfdisk", self.file, input="label: dos\nstart=1MiB\n")
        self.device = run("losetup", "--find", "--show", self.file)
        test.addCleanup(self._clean_up)
        volume = self.device + ("p1" if kind == "partitioned" else "")
        if kind == "partitioned":
            run("partx", "--update", self.device)  # even where the kernel doesn't know the table
        os.makedirs(mount_point, exist_ok=True)
        run("mount", "-t", "squashfs", volume, mount_point)
        if kind == "self-detaching":
            run("losetup", "--detach", self.device)  # as soon as it is free
            write(f"/sys/block/{os.path.basename(self.device)}/uevent", "change")
        # The service hears of a device and its state only after a moment.
        known = "(?s)MountPoints: +/" + (".* Autoclear: +true" if kind == "self-detaching" else "")
        await_that(lambda: re.search(known, run("udisksctl", "info", "-b", volume, check=False)))

    def _clean_up(self):
        run("umount", "--lazy", self.mount_point, check=False)  # where it still is
        if self.is_attached():
            run("losetup", "--detach", self.device)

    def is_attached(self):
        backing_file = f"/sys/block/{os.path.basename(self.device)}/loop/backing_file"
        return os.path.exists(backing_file) and read(backing_file) == self.file + "\n"


class DetachTest(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(UDISKSD, UDEVD, LOOPS, "dbus-daemon", "mksquashfs", "sfdisk", "losetup")
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

    def expect_detached(self, image):
        self.assertFalse(os.path.ismount(image.mount_point))
        await_that(lambda: not image.is_attached())  # the service looks at a device that has changed
