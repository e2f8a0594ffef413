"""What takes its time, each test on a machine of its own, all at once."""

import os
import time

from disks import DetachTest, DiskImage, run
from machine import LOG, await_that, read_log, write


class Patience(DetachTest):
    def setUp(self):
        super().setUp()
        self.image = DiskImage(self)
        self.began = time.monotonic()

    def expect_seconds(self, expected):
        """Not less, nor a pause more, however busy the machine is."""
        self.assertAlmostEqual(time.monotonic() - self.began, expected + 2, delta=2.5)

    def test_becomes_free(self):
        with open(self.image.bundle + "/quillbarn"):
            installer = self.start("-install2", self.image.bundle)
            self.screen.await_window("Ejecting the disk image: waiting for the volume to be free")
            time.sleep(max(0, self.began + 7 - time.monotonic()))
            self.assertIsNone(installer.poll())
        self.expect_orderly_end(installer)
        self.expect_seconds(10)
        self.assertEqual(read_log(), self.success(self.image))
        self.expect_detached(self.image)

    def test_in_use_to_the_end_and_no_service_at_all(self):
        nowhere = os.environ | {"DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nowhere"}
        with open(self.image.bundle + "/quillbarn"):
            other = self.start("-install2", self.image.bundle, env=nowhere)
            await_that(lambda: os.path.exists(LOG) and len(read_log()) == 4)
            window = self.screen.await_window("Ejecting the disk image: .*")
            self.assertAlmostEqual(self.screen.bar(window), 1, delta=0.01)  # and not a black window
            self.expect_orderly_end(self.start("-install2", self.image.bundle))
            self.expect_seconds(35)
            self.assertEqual(other.wait(5), 0)
        self.assertCountEqual(read_log(), self.log_of(self.image.bundle, "d failed") * 2)
        self.assertTrue(self.image.is_mounted())

    def test_takes_longer_than_the_bus_gives_a_call(self):
        run("mkdir", "/tmp/upper", "/tmp/work")
        run("mount", "-t", "overlay", "none", "/usr/sbin", "-o",
            "lowerdir=/usr/sbin,upperdir=/tmp/upper,workdir=/tmp/work")
        helper = "/usr/sbin/umount.squashfs"  # which the service's library calls
        write(helper, '#!/bin/sh\nsleep 27\nexec umount --internal-only "$1"\n')
        os.chmod(helper, 0o755)
        log = self.run_installer("-install2", self.image.bundle)
        self.expect_seconds(27)
        self.assertEqual(log, self.success(self.image))
        self.expect_detached(self.image)
