"""Power loss, simulated by a copy of the disk that contains only what has been flushed."""

import os

from harness import *

DISK, COPY = "/tmp/disk", "/tmp/copy"


class Durability(InstallerTest):
    """What a completed run has changed survives a power loss at the moment of "completed"."""

    def setUp(self):
        require("/dev/loop-control", "bindfs")
        super().setUp()
        run("mkfs.ext4", "-q", DISK, "64M")
        run("mount", "-o", "loop,commit=300", DISK, MOUNTED)  # commits nothing on its own meanwhile

    def expect_to_survive(self, tree, *arguments):
        remove(LOG)
        installer = self.start(*arguments)
        await_that(lambda: "d completed" in read_log())
        run("cp", "--sparse=always", DISK, COPY)
        self.expect_orderly_end(installer)
        run("mount", "--mkdir", "-o", "loop", COPY, "/tmp/found")
        self.expect_same(read_tree("/tmp/found/quillbarn.app"), tree)
        run("umount", "/tmp/found")

    def install(self, version):
        remove(NEW)
        for number in range(100):
            write(f"{NEW}/{number % 7}/{version}{number}", version * (500_000 if number % 50 == 0 else 200))
        self.expect_to_survive(read_tree(NEW), *INSTALL)

    def test_completed_run(self):
        run("mount", "--bind", MOUNTED, APPLICATIONS)
        self.install("first")
        self.install("second")
        # A run that was killed before it flushed its changes leaves this to the next one.
        self.start(*UNINSTALL, command=traced("syncfs", "--inject=syncfs:signal=KILL")).wait()
        self.assertFalse(os.path.exists(BUNDLE))
        self.expect_to_survive({}, *UNINSTALL)

    def test_completed_run_behind_fuse(self):
        run("bindfs", MOUNTED, APPLICATIONS)
        self.install("new")
        self.expect_to_survive({}, *UNINSTALL)
        run("mount", "-o", "remount,ro", MOUNTED)
        self.assertIn("d completed", self.run_installer(*UNINSTALL))
