"""Detaches of real disk images by the real disk service."""

import os
import socket
import time

from disks import KINDS, DetachTest, DiskImage
from harness import Screen, await_that, overlay, read_log, run, write


class Detach(DetachTest):
    def test_kinds_of_image(self):
        for kind in KINDS:
            with self.subTest(kind=kind):
                self.setUp()
                image = DiskImage(self, f"/Volumes/ü\t\\ {kind}\udcff", kind)
                self.expect_detach(image, self.start("-install2", image.bundle, cwd=image.bundle))

    def test_detach_after_last_close(self):
        image = DiskImage(self)
        with open(image.device(), "rb"):
            self.assertEqual(self.run_installer("-install2", image.bundle), image.log())
            self.assertTrue(image.device())
        await_that(lambda: not image.device())

    def test_bus_without_authentication(self):
        image = DiskImage(self)
        with socket.create_server("/tmp/bus", family=socket.AF_UNIX, backlog=9) as bus:
            self.expect_orderly_end(self.start_with_fast_clock("unix:path=/tmp/bus", image))
            self.assertEqual(read_log(), image.log("d failed"))
            bus.settimeout(0)
            for _attempt in range(7):
                bus.accept()[0].close()
            self.assertRaises(BlockingIOError, bus.accept)


class SlowDetach(DetachTest):
    """Slow detaches, each in a ctest test of its own."""

    def test_busy_volume(self):
        """Another mount point of the volume is busy for more than a pause. The window is drawn meanwhile."""
        screen = Screen()
        image = DiskImage(self)
        run("mount", "--bind", "--mkdir", image.bundle, "/Volumes/second")
        await_that(lambda: "/Volumes/second" in run("udisksctl", "info", "-b", image.device()))
        with open("/Volumes/second/quillbarn"):
            installer = self.start("-install2", image.bundle, env=screen.environment)
            screen.await_window("Ejecting the disk image: trying again")
            window = screen.run("xdotool", "getactivewindow")
            picture = "import", "-window", window, "ppm:-"
            drawn = screen.run(*picture)
            screen.run("xdotool", "windowunmap", "--sync", window, "windowmap", "--sync", window)
            await_that(lambda: screen.run(*picture) == drawn, seconds=3)
            time.sleep(6)
            self.assertIsNone(installer.poll())
        self.expect_detach(image, installer)

    def test_slow_unmount(self):
        """If the call timed out, the image would not be ejected after the unmount."""
        image = DiskImage(self)
        overlay("/usr/sbin")
        write("/usr/sbin/umount.squashfs", '#!/bin/sh\nsleep 27\nexec umount --internal-only "$1"\n')
        os.chmod("/usr/sbin/umount.squashfs", 0o755)  # run by the library of the service
        self.expect_detach(image, self.start("-install2", image.bundle))
