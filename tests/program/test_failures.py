import os
import subprocess

from machine import BUNDLE, LOG, SOURCE, InstallerTest, mount_memory, read, read_tree, write

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
        for source in "/Applications/", SOURCE + "link/":
            self.expect_end(
                self.run_and_press("-install", source), "n install bundle",
                f"“{source}quillbarn.app” couldn’t be installed as “{BUNDLE}” because these are "
                "one folder, or one holds the other.")
        self.expect_installed({"kept": "installed"})

    def test_a_full_volume(self):
        mount_memory(self, "/Applications", "1m")
        self.expect_end(
            self.run_and_press("-install", SOURCE, key="space"),
            "d  copy /Applications/" + FILE,
            f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because the volume "
            "is out of space (No space left on device).")
        self.expect_installed({"Contents": None})

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

    def test_a_mount_point_in_the_bundle(self):
        mount_memory(self, BUNDLE + "/mount", "1m")
        self.expect_end(
            self.run_and_press("-uninstall"), f"d remove {BUNDLE}/mount/",
            f"“{BUNDLE}/mount” couldn’t be removed because it is in use, or another volume is "
            "mounted there (Device or resource busy).")
        self.assertIn("mount", os.listdir(BUNDLE))

    def test_a_link_that_leads_out_of_the_bundle(self):
        write("/tmp/desktop/letter", "dear")
        os.symlink("/tmp/desktop", BUNDLE + "/link")
        self.expect_end(
            self.run_and_press("-uninstall"), f"d remove {BUNDLE}/link/letter",
            f"“{BUNDLE}/link/letter” couldn’t be removed because it is not in the bundle: "
            f"“{BUNDLE}/link” leads to “/tmp/desktop”.")
        self.assertEqual(read("/tmp/desktop/letter"), "dear")

    def test_a_link_that_leads_out_of_the_bundle_and_back(self):
        os.mkdir("/tmp/outside")
        os.symlink("/tmp/outside", BUNDLE + "/link")
        os.symlink(BUNDLE + "/folder", "/tmp/outside/back")
        write(BUNDLE + "/folder/file", "removed through the links, whose turn comes first")
        self.expect_end(
            self.run_and_press("-uninstall"), f"d remove {BUNDLE}/link/back/",
            f"“{BUNDLE}/link/back” couldn’t be removed because it is not in the bundle: "
            f"“{BUNDLE}/link” leads to “/tmp/outside”.")
        self.assertTrue(os.path.islink("/tmp/outside/back"))

    def test_a_link_in_the_place_of_the_bundle(self):
        write("/tmp/desktop/letter", "dear")
        os.rename(BUNDLE, "/tmp/elsewhere")
        os.symlink("/tmp/desktop", BUNDLE)
        self.run_and_press("-install", SOURCE)
        self.assertEqual(read_tree("/tmp/desktop"), {"letter": "dear"})

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
        write(LOG, "")
        os.chmod(LOG, 0o600)
        os.chmod(BUNDLE, 0o700)
        somebody = ["setpriv", "--reuid=65534", "--clear-groups", os.environ["INSTALLER"]]
        installer = self.start("-uninstall", command=somebody, env=os.environ | {"XDG_RUNTIME_DIR": ""})
        self.screen.await_window()
        while installer.poll() is None:
            self.screen.press("Return")
        self.assertEqual(installer.returncode, 0)
        self.assertEqual(read(LOG), "")
        self.expect_installed({"kept": "installed"})
