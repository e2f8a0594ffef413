"""The real disk service on a private machine, and disk images. Their devices are the real machine's."""

import os
import re
import subprocess
import tempfile

from machine import InstallerTest, await_that, keep_running, read, require, write

BUS = """<busconfig>
  <type>system</type>
  <listen>unix:path=/run/dbus/system_bus_socket</listen>
  <policy context="default">
    <allow own="*"/><allow send_destination="*"/><allow receive_sender="*"/>
  </policy>
</busconfig>"""
UDISKSD = "/usr/libexec/udisks2/udisksd"
UDEVD = "/usr/lib/systemd/systemd-udevd"
LOOPS = "/dev/loop-control"
MEBIBYTE = 1 << 20
TEXT = {"encoding": "utf-8", "errors": "surrogateescape"}
QUIET = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, **TEXT).stdout.strip()


def start_disk_service():
    write("/run/dbus/bus.conf", BUS)
    keep_running("dbus-daemon", "--config-file=/run/dbus/bus.conf", "--nofork", **QUIET)
    keep_running(UDEVD, **QUIET)
    await_that(lambda: os.path.exists("/run/udev/control"))
    await_that(lambda: os.path.exists("/run/dbus/system_bus_socket"))
    keep_running(UDISKSD, **QUIET)
    await_that(lambda: subprocess.run(["udisksctl", "status"], **QUIET).returncode == 0)


class DiskImage:
    """An image with a bundle in it, mounted until the test is over, and known to the service.

    `kind` is "attached" to a device that keeps it when it is unmounted, "self-detaching", or
    "partitioned" with the bundle in the first of two partitions.
    """

    def __init__(self, test, mount_point="/Volumes/quillbarn installer", kind="attached"):
        self.file = os.path.join(tempfile.mkdtemp(), "image")
        self.mount_point = mount_point
        self.bundle = mount_point + "/quillbarn.app"
        write("/tmp/content/quillbarn.app/quillbarn", "the program")
        run("mksquashfs", "/tmp/content", self.file, "-quiet", "-no-progress")
        if kind == "partitioned":
            self._partition()
        self.device = run("losetup", "--find", "--show", self.file)
        test.addCleanup(self._clean_up)
        volume = self.device
        if kind == "partitioned":
            run("partx", "--update", self.device)  # even where the kernel doesn't know the table
            volume += "p1"
        os.makedirs(mount_point, exist_ok=True)
        run("mount", "-t", "squashfs", volume, mount_point)
        if kind == "self-detaching":
            run("losetup", "--detach", self.device)  # as soon as it is free
        await_that(lambda: self._is_known_mounted(volume))

    def _partition(self):
        with open(self.file, "rb+") as file:
            volume = file.read()
            file.seek(MEBIBYTE)
            file.write(volume)
            file.truncate(4 * MEBIBYTE)
        subprocess.run(
            ["sfdisk", "--quiet", "--wipe-partitions", "never", self.file], check=True, text=True,
            input="label: gpt\nstart=1MiB, size=1MiB\nstart=2MiB, size=1MiB\n", **QUIET)

    @staticmethod
    def _is_known_mounted(volume):
        """To the service, which hears of a new device only after a moment."""
        info = subprocess.run(["udisksctl", "info", "-b", volume], capture_output=True, **TEXT)
        return re.search("MountPoints: +/", info.stdout)

    def _clean_up(self):
        if self.is_mounted():
            run("umount", "--lazy", self.mount_point)
        if self.is_attached():
            run("losetup", "--detach", self.device)

    def is_mounted(self):
        return os.path.ismount(self.mount_point)

    def is_attached(self):
        backing_file = f"/sys/block/{os.path.basename(self.device)}/loop/backing_file"
        return os.path.exists(backing_file) and read(backing_file) == self.file + "\n"


class DetachTest(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(UDISKSD, UDEVD, LOOPS, "dbus-daemon", "mksquashfs", "sfdisk", "losetup")
        super().setUpClass()
        start_disk_service()

    @staticmethod
    def log_of(image, end="d unmount succeeded"):
        step = "unmount " + image.bundle
        return ["n installer start", "d " + step, "n " + step, "d " + step, end, "n installer exit"]

    def expect_detached(self, image):
        self.assertFalse(image.is_mounted())
        await_that(lambda: not image.is_attached())  # the service looks at a device that has changed
