import os
import subprocess
from resource import RLIMIT_FSIZE, setrlimit

from machine import (
    BUNDLE, LOG, SOURCE, InstallerTest, mount_memory, read, read_log, read_tree, remove, write)

FILE = "quillbarn.app/Contents/file"


class Failure(InstallerTest):
    """Each tells what, where and why in the pane, waits, and leaves on the disk what it should."""

    def setUp(self):
        super().setUp()
        write(SOURCE + FILE, "x" * 2_000_000)
        write(BUNDLE + "/kept", "installed")

    def expect_end(self, log, last_step, description):
        self.assertEqual(log[-4:], [last_step, "d ", "d " + description, "n installer exit"])

    def expect_installed(self, tree):
        self.assertEqual(read_tree(BUNDLE), tree)

    def test_a_source_that_is_not_there(self):
        self.expect_end(
            self.run_and_press("-install", "/tmp/source"), "n install bundle",
            "The folder “/tmp/sourcequillbarn.app/” couldn’t be opened because it doesn’t exist "
            "(No such file or directory).")
        self.expect_installed({"kept": "installed"})

    def test_a_link_that_leads_back(self):
        os.symlink("..", SOURCE + "quillbarn.app/Contents/loop")
        self.expect_end(
            self.run_and_press("-install", SOURCE), "n install bundle",
            f"The link “{SOURCE}quillbarn.app/Contents/loop” couldn’t be followed because it leads "
            f"back to “{SOURCE}quillbarn.app/”, a folder that holds it.")
        self.expect_installed({"kept": "installed"})

    def test_the_installed_bundle_as_its_own_source(self):
        os.symlink("/Applications", SOURCE + "link")
        os.symlink(BUNDLE, SOURCE + "quillbarn.app/link")
        for source, name in ("/Applications/", ""), (SOURCE + "link/", ""), (SOURCE, "/link"):
            self.expect_end(
                self.run_and_press("-install", source), "n install bundle",
                f"“{source}quillbarn.app{name}” couldn’t be installed because it is “{BUNDLE}”, "
                "which would be emptied first.")
        self.expect_installed({"kept": "installed"})

    def test_a_full_volume(self):
        mount_memory(self, "/Applications", "1m")
        self.expect_end(
            self.run_and_press("-install", SOURCE, key="space"),
            "d  copy /Applications/" + FILE,
            f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because the volume "
            "is out of space (No space left on device).")
        self.expect_installed({"Contents": None})

    def test_a_limit_to_the_size_of_a_file(self):
        self.press_until_closed(self.start("-install", SOURCE, preexec_fn=lambda: setrlimit(
            RLIMIT_FSIZE, (1_000_000, 1_000_000))))
        self.expect_end(
            read_log(), "d  copy /Applications/" + FILE,
            f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because it is larger "
            "than a file may be (File too large).")

    def test_a_read_only_volume(self):
        mount_memory(self, "/Applications", "1m")
        write(BUNDLE + "/kept", "installed")
        subprocess.run(["mount", "-o", "remount,ro", "/Applications"], check=True)
        for arguments in ["-install", SOURCE], ["-uninstall"]:
            self.expect_end(
                self.run_and_press(*arguments, key="Escape"), f"d remove {BUNDLE}/kept",
                f"“{BUNDLE}/kept” couldn’t be removed because the volume is read only "
                "(Read-only file system).")
        self.expect_installed({"kept": "installed"})

    def test_a_link_that_leads_out_of_the_bundle(self):
        write("/tmp/desktop/letter", "dear")
        os.symlink("/tmp/desktop", BUNDLE + "/link")
        for arguments in ["-install", SOURCE], ["-uninstall"]:
            self.expect_end(
                self.run_and_press(*arguments), f"n {arguments[0][1:]} bundle",
                f"“{BUNDLE}” couldn’t be changed because the link “{BUNDLE}/link” leads out of it, "
                "to “/tmp/desktop”.")
        self.assertEqual(read("/tmp/desktop/letter"), "dear")
        self.expect_installed({"kept": "installed", "link": "-> /tmp/desktop"})

    def test_a_link_in_the_place_of_the_bundle(self):
        os.rename(BUNDLE, "/tmp/desktop")
        os.symlink("/tmp/desktop", BUNDLE)
        for letters in True, False:
            for arguments in ["-install", SOURCE], ["-uninstall"]:
                self.expect_end(
                    self.run_and_press(*arguments), f"n {arguments[0][1:]} bundle",
                    f"“{BUNDLE}” couldn’t be changed because it is a link, to “/tmp/desktop”.")
            self.assertEqual(os.listdir("/tmp/desktop"), ["kept"] if letters else [])
            remove("/tmp/desktop/kept")

    def test_a_link_that_leads_nowhere_in_the_place_of_an_entry(self):
        os.symlink("../License.txt", SOURCE + "quillbarn.app/License.txt")
        write(SOURCE + "License.txt")
        write(SOURCE + "quillbarn.app/notes")
        self.run_installer("-install", SOURCE)
        for name, target in ("License.txt", "../License.txt"), ("notes", "gone"):
            remove(f"{BUNDLE}/{name}")
            os.symlink(target, f"{BUNDLE}/{name}")
            self.expect_end(
                self.run_and_press("-install", SOURCE), "n install bundle",
                f"“{BUNDLE}/{name}” couldn’t be installed because a link that leads nowhere has "
                "its place. Uninstall first, which removes the link, too.")
            self.assertTrue(os.path.exists(f"/Applications/{FILE}"))
            for arguments in ["-uninstall"], ["-install", SOURCE]:
                self.assertEqual(self.run_installer(*arguments)[-2], "d completed")

    def test_a_file_in_the_place_of_the_bundle(self):
        os.rename(BUNDLE, "/tmp/away")
        write(BUNDLE, "a file")
        for arguments in ["-install", SOURCE], ["-uninstall"]:
            self.expect_end(
                self.run_and_press(*arguments), f"n {arguments[0][1:]} bundle",
                f"The folder “{BUNDLE}/” couldn’t be opened because a part of its path is not a "
                "folder (Not a directory).")
        self.assertEqual(read(BUNDLE), "a file")

    def test_no_permission_for_the_bundle_nor_for_the_log(self):
        for arguments, log_mode in (["-install", SOURCE], 0o666), (["-uninstall"], 0o600):
            write(LOG)
            os.chmod(LOG, log_mode)
            somebody = ["setpriv", "--reuid=65534", "--clear-groups", os.environ["INSTALLER"]]
            installer = self.start(*arguments, command=somebody, env=os.environ | {"XDG_RUNTIME_DIR": ""})
            self.screen.await_window()
            while installer.poll() is None:
                self.screen.press("Return")
            self.assertEqual(installer.returncode, 0)
            if log_mode == 0o600:
                self.assertEqual(read(LOG), "")
            else:
                self.expect_end(
                    read_log(), f"d remove {BUNDLE}/kept",
                    f"“{BUNDLE}/kept” couldn’t be removed because you don’t have permission to access "
                    f"it (Permission denied). Only “root” may write in “{BUNDLE}”: start the installer "
                    "as one who may.")
        self.expect_installed({"kept": "installed"})
