"""UDisks2 in a private namespace, and disk images. Loop devices are shared with the real machine."""

import os
import re
import tempfile

from harness import InstallerTest, await_that, keep_running, read_log, require, run, start_bus, write

UDISKSD = "/usr/libexec/udisks2/udisksd"
UDEVD = "/usr/lib/systemd/systemd-udevd"
ATTACH = "losetup --find --show image"  # the loop device keeps the image after an unmount
KINDS = {
    "attached": f'mksquashfs content image; mount $({ATTACH}) "$place"',
    "self-detaching": 'mksquashfs content image; mount -o loop image "$place"',
    "partitioned": "mksquashfs content image -offset 1M; echo start=1MiB | sfdisk --label dos image; "
                   f'disk=$({ATTACH}); partx --update $disk; mount ${{disk}}p1 "$place"',
    "default subvolume": 'mkfs.btrfs --rootdir content image; mount image "$place"; cd "$place"; '
                         "btrfs subvolume snapshot . default; btrfs subvolume set-default default; cd -; "
                         f'umount "$place"; mount $({ATTACH}) "$place"'}


class DiskImage:
    """An image that contains a bundle, mounted until the end of the test and known to the service."""

    def __init__(self, test, mount_point="/Volumes/quillbarn installer", kind="attached"):
        folder = tempfile.mkdtemp()
        self.file, self.mount_point = folder + "/image", mount_point
        self.bundle = mount_point + "/quillbarn.app"
        write(folder + "/content/quillbarn.app/quillbarn", "the program")
        os.makedirs(mount_point, exist_ok=True)
        test.addCleanup(lambda: run("losetup", "--detach", self.device(), check=False))
        test.addCleanup(run, "umount", "--lazy", "--all-targets", mount_point, check=False)
        run("sh", "-ec", KINDS[kind], cwd=folder, env=os.environ | {"place": mount_point})
        # The service notices devices and their state asynchronously.
        for partition, state in ("", "BackingFile: +/"), ("p1" * (kind == "partitioned"), "MountPoints: +/"):
            await_that(lambda: re.search(state, run("udisksctl", "info", "-b", self.device() + partition, check=False)))

    def device(self):
        """Returns the loop device, or nothing if the image is detached."""
        return run("losetup", "--noheadings", "--output=NAME", "--associated", self.file)

    def log(self, end="d unmount succeeded"):
        """Returns the log of a run with this image."""
        step = "unmount " + self.bundle
        return ["n installer start", "d " + step, "n " + step, "d " + step, end, "n installer exit"]


class DetachTest(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(UDISKSD, UDEVD, "/dev/loop-control", "faketime", "mkfs.btrfs", "mksquashfs", "sfdisk")
        run("mount", "-t", "tmpfs", "none", "/dev/shm")  # libfaketime leaves files there
        os.mkdir("/run/dbus")
        start_bus("--address=unix:path=/run/dbus/system_bus_socket")
        keep_running(UDEVD)
        await_that(lambda: os.path.exists("/run/udev/control"))
        keep_running(UDISKSD)
        await_that(lambda: run("udisksctl", "status", check=False))

    def start_with_fast_clock(self, bus, image):
        """A pause of 5 seconds ends after 0.1 seconds."""
        clock = {"LD_PRELOAD": "/usr/$LIB/faketime/libfaketimeMT.so.1", "FAKETIME": "+0 x50"}
        return self.start("-install2", image.bundle, env=clock | {"DBUS_SYSTEM_BUS_ADDRESS": bus})

    def expect_detach(self, image, installer):
        self.expect_orderly_end(installer)
        self.assertEqual(read_log(), image.log())
        self.assertFalse(os.path.ismount(image.mount_point))
        await_that(lambda: not image.device())  # asynchronous; the service may hold the device open
