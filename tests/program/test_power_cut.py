import os

from disks import LOOPS
from machine import LOG, SOURCE, InstallerTest, await_that, mount, read_log, read_tree, remove, require, run, write

DISK, COPY = "/tmp/disk", "/tmp/copy"


class PowerCut(InstallerTest):
    """What has been reported completed lasts, even if the power fails at that very moment."""

    def setUp(self):
        require(LOOPS)
        super().setUp()
        run("truncate", "--size=256M", DISK)
        run("mkfs.ext4", "-q", DISK)
        mount(self, "/Applications", "-o", "loop,commit=300", DISK)  # which writes nothing by itself meanwhile

    def expect_to_last(self, tree, *arguments):
        """If nothing reaches the disk from then on."""
        write(LOG)
        installer = self.start(*arguments)
        await_that(lambda: "d completed" in read_log())
        run("cp", "--sparse=always", DISK, COPY)
        self.expect_orderly_end(installer)
        os.makedirs("/tmp/found", exist_ok=True)
        run("mount", "-o", "loop", COPY, "/tmp/found")
        found = read_tree("/tmp/found/quillbarn.app")
        run("umount", "/tmp/found")
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
                installer.wait()
                self.assertFalse(os.path.exists("/Applications/quillbarn.app"))
                self.expect_to_last({}, "-uninstall")
