"""What takes its time, each test on a machine of its own, all at once."""

import os
import time

from disks import DetachTest, DiskImage, run
from machine import read_log, write


class Patience(DetachTest):
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
            window = self.screen.await_window("Ejecting the disk image: waiting for the volume to be free")
            self.assertAlmostEqual(self.screen.bar(window), 1, delta=0.01)  # and not a black window
            time.sleep(max(0, self.began + 17 - time.monotonic()))
            self.assertIsNone(installer.poll())
        self.expect_success(installer, 20)

    def test_takes_longer_than_the_bus_gives_a_call(self):
        run("mkdir", "/tmp/upper", "/tmp/work")
        run("mount", "-t", "overlay", "none", "/usr/sbin", "-o",
            "lowerdir=/usr/sbin,upperdir=/tmp/upper,workdir=/tmp/work")
        helper = "/usr/sbin/umount.squashfs"  # which the service's library calls
        write(helper, '#!/bin/sh\nsleep 27\nexec umount --internal-only "$1"\n')
        os.chmod(helper, 0o755)
        self.expect_success(self.start("-install2", self.image.bundle), 27)
