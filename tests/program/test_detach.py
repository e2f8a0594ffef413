import os
import socket
import time

from disks import DetachTest, DiskImage
from machine import LOG, await_that, mount, remove, run, write


class Detach(DetachTest):
    def test_kinds_of_image(self):
        usual = "/Volumes/quillbarn installer"
        for kind, mount_point in (("attached", usual), ("mounted twice", usual), ("self-detaching", usual),
                                  ("partitioned", usual), ("btrfs", usual), ("attached", "/Volumes/ü\t\\ \udcff")):
            with self.subTest(kind=kind, mount_point=mount_point):
                remove(LOG)
                image = DiskImage(self, mount_point, kind)
                self.expect_detach(image, self.start("-install2", image.bundle, cwd=image.bundle))

    def test_detach_after_last_close(self):
        image = DiskImage(self)
        with open(image.device, "rb"):
            self.assertEqual(self.run_installer("-install2", image.bundle), self.log_of(image))
            self.assertTrue(image.is_attached())
        await_that(lambda: not image.is_attached())

    def test_bus_without_authentication(self):
        image = DiskImage(self)
        mount(self, "/dev/shm", "-t", "tmpfs", "none")  # libfaketime leaves files there
        with socket.socket(socket.AF_UNIX) as bus:
            bus.bind("/tmp/bus")
            bus.listen(9)
            log = self.run_installer("-install2", image.bundle, env=os.environ | {
                "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/tmp/bus", "FAKETIME": "+0 x80",
                "LD_PRELOAD": "/usr/$LIB/faketime/libfaketimeMT.so.1"})
            self.assertEqual(log, self.log_of(image, "d failed"))
            bus.settimeout(0)
            for _attempt in range(7):
                bus.accept()[0].close()
            self.assertRaises(BlockingIOError, bus.accept)


class Patience(DetachTest):
    """Slow detaches. Each test has a private namespace of its own, so that all run at once."""

    def test_becomes_free(self):
        """Another mount point of the volume is busy, for longer than one pause."""
        image = DiskImage(self)
        run("mount", "--bind", "--mkdir", image.bundle, "/Volumes/second")
        with open("/Volumes/second/quillbarn"):
            installer = self.start("-install2", image.bundle)
            self.screen.await_window("Ejecting the disk image: waiting for the volume to be free")
            self.assertGreater(len(set(self.screen.picture())), 2)  # not a black window
            time.sleep(6)
            self.assertIsNone(installer.poll())
        self.expect_detach(image, installer)

    def test_takes_longer_than_the_bus_gives_a_call(self):
        """If the call timed out, the image would not be ejected after the unmount."""
        image = DiskImage(self)
        mount(self, "/usr/sbin", "-t", "tmpfs", "none")
        write("/usr/sbin/umount.squashfs", '#!/bin/sh\nsleep 27\nexec umount --internal-only "$1"\n')
        os.chmod("/usr/sbin/umount.squashfs", 0o755)  # run by the library of the service
        self.expect_detach(image, self.start("-install2", image.bundle))
