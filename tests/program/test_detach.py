from disks import DetachTest, DiskImage


class Detach(DetachTest):
    def test_every_kind_of_image_at_the_first_attempt(self):
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
