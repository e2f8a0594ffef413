import os
import subprocess

from disks import LOOPS, run
from machine import LOG, SOURCE, InstallerTest, await_that, mount, read_log, read_tree, remove, require, write

STORE = "/tmp/store"  # a volume that clones a file in no time, all of it at one moment
DISK = STORE + "/disk"
COPY = STORE + "/copy"


def make_volume(test, file, kind, folder):
    """That writes nothing by itself while the test runs."""
    with open(file, "wb") as image:
        image.truncate(1 << 30)
    run("mkfs." + kind, "-q", file)
    mount(test, folder, "-o", "loop" + ",commit=300" * (kind == "ext4"), file)


class PowerCut(InstallerTest):
    """What has been reported completed lasts, even if the power fails at that very moment."""

    @classmethod
    def setUpClass(cls):
        require(LOOPS)
        super().setUpClass()

    def setUp(self):
        super().setUp()
        make_volume(self, "/tmp/store.image", "xfs", STORE)
        make_volume(self, DISK, "ext4", "/Applications")

    def tree_after_power_cut(self):
        """What is found if nothing reaches the disk from now on."""
        run("cp", "--reflink=always", DISK, COPY)
        os.makedirs("/tmp/found", exist_ok=True)
        run("mount", "-o", "loop", COPY, "/tmp/found")
        try:
            return read_tree("/tmp/found/quillbarn.app")
        finally:
            run("umount", "/tmp/found")

    def expect_to_last(self, tree, *arguments):
        write(LOG)
        installer = self.start(*arguments)
        await_that(lambda: "d completed" in read_log())
        found = self.tree_after_power_cut()
        self.expect_orderly_end(installer)
        self.expect_same(found, tree)

    def install(self, version):
        remove(SOURCE)
        for number in range(300):
            content = version * (500_000 if number % 100 == 0 else 200)
            write(f"{SOURCE}quillbarn.app/{number % 7}/{version}{number}", content)
        self.expect_to_last(read_tree(SOURCE + "quillbarn.app"), "-install", SOURCE)

    def test_completed_means_on_the_disk(self):
        self.install("first")
        self.install("second")
        self.expect_to_last({}, "-uninstall")

    def test_completed_after_an_uninstall_that_did_not_get_to_the_disk(self):
        for what in "signal=KILL", "error=EIO":  # in place of the synchronisation
            with self.subTest(what):
                self.install("new")
                remove(LOG)
                installer = self.start("-uninstall", command=[
                    "strace", "--follow-forks", "--output=/dev/null", "--trace=syncfs", "--inject=syncfs:" + what,
                    os.environ["INSTALLER"]])
                if what == "error=EIO":
                    self.press_until_closed(installer)
                    self.assertRegex(read_log()[-2], "Input/output error")
                installer.wait()
                self.assertFalse(os.path.exists("/Applications/quillbarn.app"))
                self.expect_to_last({}, "-uninstall")
