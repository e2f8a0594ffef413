import os
import subprocess
import unittest

from machine import LOG, SOURCE, InstallerTest, await_that, mount, read_log, read_tree, remove, write

STORE = "/tmp/store"  # a volume that clones a file in no time, all of it at one moment
DISK = STORE + "/disk"
COPY = STORE + "/copy"


def make_volume(test, file, kind, folder):
    with open(file, "wb") as image:
        image.truncate(1 << 30)
    subprocess.run(["mkfs." + kind, "-q", file], check=True)
    mount(test, folder, "-o", "loop", file)


class PowerCut(InstallerTest):
    """What has been reported completed lasts, even if the power fails at that very moment."""

    @classmethod
    def setUpClass(cls):
        may_attach = os.geteuid() == 0 and os.access("/dev/loop-control", os.R_OK | os.W_OK)
        if not may_attach and not os.environ.get("CI"):
            raise unittest.SkipTest("there is no access to loop devices")
        super().setUpClass()

    def tree_after_power_cut(self, *options):
        """What is found if nothing reaches the disk from now on."""
        subprocess.run(["cp", "--reflink=always", DISK, COPY], check=True)
        os.makedirs("/tmp/found", exist_ok=True)
        subprocess.run(["mount", "-o", ",".join(["loop", *options]), COPY, "/tmp/found"], check=True)
        try:
            return read_tree("/tmp/found/quillbarn.app")
        finally:
            subprocess.run(["umount", "/tmp/found"], check=True)

    def expect_to_last(self, tree, arguments, options):
        subprocess.run(["sync", "--file-system", "/Applications"], check=True)
        write(LOG)
        installer = self.start(*arguments)
        await_that(lambda: "d completed" in read_log())
        found = self.tree_after_power_cut(*options)
        self.expect_orderly_end(installer)
        with self.subTest(arguments=arguments):
            self.expect_same(found, tree)

    def expect_all_to_last(self, *options):
        for version in "first", "second":
            remove(SOURCE)
            for number in range(300):
                content = version * (500_000 if number % 100 == 0 else 200)
                write(f"{SOURCE}quillbarn.app/{number % 7}/{version}{number}", content)
            self.expect_to_last(read_tree(SOURCE + "quillbarn.app"), ["-install", SOURCE], options)
        self.expect_to_last({}, ["-uninstall"], options)

    def test_the_log_on_another_volume(self):
        make_volume(self, "/tmp/store.image", "xfs", STORE)
        make_volume(self, DISK, "ext4", "/Applications")
        self.expect_all_to_last()

    def test_the_log_on_the_same_volume(self):
        make_volume(self, "/tmp/store.image", "xfs", STORE)
        make_volume(self, DISK, "xfs", "/Applications")
        write("/Applications/log")
        write(LOG)
        mount(self, LOG, "--bind", "/Applications/log")
        self.expect_all_to_last("nouuid")  # beside the one it is a copy of
