import os

from disks import DetachTest, DiskImage
from machine import await_that, read_log


class Detach(DetachTest):
    def test_every_kind_of_image_at_the_first_attempt(self):
        for kind, mount_point in (
                ("attached", "/Volumes/quillbarn installer"),
                ("self-detaching", "/Volumes/quillbarn installer"),
                ("partitioned", "/Volumes/quillbarn installer"),
                ("attached", "/Volumes/ü\t\\ \udcff")):
            with self.subTest(kind=kind, mount_point=mount_point):
                image = DiskImage(self, mount_point, kind)
                log = self.run_installer("-install2", image.bundle)
                self.assertEqual(log, self.success(image))
                self.expect_detached(image)

    def test_only_the_volume_of_that_name_also_from_a_folder_on_it(self):
        shorter = DiskImage(self, "/Volumes/quillbarn")
        image = DiskImage(self)
        log = self.run_installer("-install2", image.bundle, cwd=image.bundle)
        self.assertEqual(log, self.success(image))
        self.expect_detached(image)
        self.assertTrue(shorter.is_mounted())

    def test_nothing_to_detach(self):
        image = DiskImage(self)
        no_volume = ["d getDMGMountPointURL failed", "d failed"]
        for path, *end in (
                ("/Volumes/gone/quillbarn.app", "d unmount succeeded"),
                ("/Applications/", *no_volume),
                (image.mount_point, *no_volume),
                ("usr/", *no_volume)):
            with self.subTest(path=path):
                log = self.run_installer("-install2", path, cwd="/")
                self.assertEqual(log, self.log_of(path, *end))
        self.assertTrue(image.is_mounted())

    def test_the_service_dies_between_unmount_and_eject(self):
        image = DiskImage(self)
        with open(image.device, "rb"):  # keeps the eject waiting
            installer = self.start("-install2", image.bundle)
            await_that(lambda: not image.is_mounted())
            self.service.kill()
            self.expect_orderly_end(installer)
        self.service.start()
        self.assertEqual(read_log(), self.success(image))
        self.assertTrue(image.is_attached())
