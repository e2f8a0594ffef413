import os
import time

from disks import DetachTest, DiskImage
from machine import mount, read_log, write


class Detach(DetachTest):
    def test_every_kind_of_image(self):
        usual = "/Volumes/quillbarn installer"
        for kind, mount_point in (("attached", usual), ("self-detaching", usual), ("partitioned", usual),
                                  ("attached", "/Volumes/ü\t\\ \udcff")):
            with self.subTest(kind=kind, mount_point=mount_point):
                image = DiskImage(self, mount_point, kind)
                log = self.run_installer("-install2", image.bundle, cwd=image.bundle)
                self.assertEqual(log, self.log_of(image))
                self.expect_detached(image)

    def test_an_image_that_is_in_use_is_detached_with_its_last_user(self):
        image = DiskImage(self)
        with open(image.device, "rb"):
            self.assertEqual(self.run_installer("-install2", image.bundle), self.log_of(image))
            self.assertTrue(image.is_attached())
        self.expect_detached(image)


class Patience(DetachTest):
    """What takes its time, each test on a machine of its own, all at once."""

    def setUp(self):
        super().setUp()
        self.image = DiskImage(self)
        self.began = time.monotonic()

    def expect_success(self, installer, expected):
        """Not in less seconds, nor in as many as with pauses of a second more; busy as the machine
        may be."""
        self.expect_orderly_end(installer)
        seconds = time.monotonic() - self.began
        self.assertTrue(expected <= seconds < 1.2 * expected, seconds)
        self.assertEqual(read_log(), self.log_of(self.image))
        self.expect_detached(self.image)

    def test_becomes_free(self):
        with open(self.image.bundle + "/quillbarn"):
            installer = self.start("-install2", self.image.bundle)
            self.screen.await_window("Ejecting the disk image: waiting for the volume to be free")
            self.assertGreater(len(set(self.screen.picture())), 2)  # and not a black window
            time.sleep(max(0, self.began + 17 - time.monotonic()))
            self.assertIsNone(installer.poll())
        self.expect_success(installer, 20)

    def test_takes_longer_than_the_bus_gives_a_call(self):
        mount(self, "/usr/sbin", "-t", "tmpfs", "none")
        write("/usr/sbin/umount.squashfs", '#!/bin/sh\nsleep 27\nexec umount --internal-only "$1"\n')
        os.chmod("/usr/sbin/umount.squashfs", 0o755)  # which the service's library calls
        self.expect_success(self.start("-install2", self.image.bundle), 27)
