"""The real disk service on a private machine, and disk images. Their devices are the real machine's."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest

from machine import InstallerTest, await_that, keep_running, read, write

BUS = """<busconfig>
  <type>system</type>
  <listen>unix:path=/run/dbus/system_bus_socket</listen>
  <policy context="default">
    <allow own="*"/><allow send_destination="*"/><allow receive_sender="*"/>
  </policy>
</busconfig>"""
UDISKSD = "/usr/libexec/udisks2/udisksd"
UDEVD = "/usr/lib/systemd/systemd-udevd"
MEBIBYTE = 1 << 20
TEXT = {"encoding": "utf-8", "errors": "surrogateescape"}
QUIET = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, **TEXT).stdout.strip()


def missing():
    """What it takes that isn't here, or None."""
    for program in UDISKSD, UDEVD, "dbus-daemon", "mksquashfs", "sfdisk", "losetup":
        if not shutil.which(program):
            return program
    return None if os.access("/dev/loop-control", os.R_OK | os.W_OK) else "access to loop devices"


class DiskService:
    def __init__(self):
        write("/run/dbus/bus.conf", BUS)
        keep_running("dbus-daemon", "--config-file=/run/dbus/bus.conf", "--nofork", **QUIET)
        keep_running(UDEVD, **QUIET)
        await_that(lambda: os.path.exists("/run/udev/control"))
        await_that(lambda: os.path.exists("/run/dbus/system_bus_socket"))
        self.start()

    def start(self):
        self.process = keep_running(UDISKSD, **QUIET)
        await_that(lambda: subprocess.run(["udisksctl", "status"], **QUIET).returncode == 0)

    def kill(self):
        self.process.kill()
        self.process.wait()


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
        lack = missing()
        if lack and not os.environ.get("CI"):
            raise unittest.SkipTest(f"there is no {lack}")
        super().setUpClass()
        cls.service = DiskService()

    def log_of(self, path, *end):
        return ["n installer start", f"d unmount {path}", f"n unmount {path}", f"d unmount {path}",
                *end, "n installer exit"]

    def success(self, image):
        return self.log_of(image.bundle, "d unmount succeeded")

    def expect_detached(self, image):
        self.assertFalse(image.is_mounted())
        self.assertFalse(image.is_attached())
