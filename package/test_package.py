"""The package, installed and removed by the system's own dpkg on a private machine. What that
changes of the system lies in memory, and goes with each test."""

import os
import pathlib
import tempfile

from machine import SOURCE, InstallerTest, mount, read_tree, remove, run, write

NAME = "quillbarninstaller"
FOLDER = pathlib.Path("/Applications")


def dpkg(*arguments):
    """Without what other packages do then, such as listing all manual pages anew."""
    run("dpkg", "--no-triggers", *arguments)


def make_folder(group="root", mode="755"):
    remove(FOLDER)
    run("install", "-d", "-g", group, "-m", mode, FOLDER)


STEPS = {"install": lambda: dpkg("--install", os.environ["PACKAGE"]), "remove": lambda: dpkg("--remove", NAME),
         "purge": lambda: dpkg("--purge", NAME), "fill": lambda: write(f"{FOLDER}/file"),
         "empty": lambda: remove(f"{FOLDER}/file"), "make": make_folder,
         "make private": lambda: make_folder(mode="700"), "make alike": lambda: make_folder("sudo", "2775"),
         "drop the group": lambda: run("groupdel", "sudo")}
MADE = "root:sudo 2775"
# What is done, and what the folder is then; or None: it is not there.
CASES = (
    ("install", MADE), ("install, remove", None), ("install, install", MADE), ("install, install, purge", None),
    ("install, remove, install, purge", None), ("install, fill, remove", MADE), ("install, fill, purge", MADE),
    ("install, fill, remove, empty, purge", None), ("install, fill, remove, install, empty, purge", None),
    ("install, make, purge", "root:root 755"),
    ("install, fill, remove, make, install, purge", "root:root 755"),
    ("make private, install", "root:root 700"), ("make private, install, purge", "root:root 700"),
    ("make alike, install, purge", MADE), ("drop the group, install", "root:root 2775"))


class Package(InstallerTest):
    def setUp(self):
        for folder in "/etc", "/usr", "/var":
            upper, work = tempfile.mkdtemp(), tempfile.mkdtemp()
            os.chmod(upper, 0o755)
            mount(self, folder, "-t", "overlay",
                  "-o", f"lowerdir={folder},upperdir={upper},workdir={work}", "none")
        dpkg("--purge", NAME)  # which may have been tried out
        super().setUp()

    def test_administrators_install_without_root(self):
        run("useradd", "--groups", "sudo", "admin")
        administrator = "runuser", "-u", "admin", "--", NAME
        remove(FOLDER)
        STEPS["install"]()
        write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "the program")
        self.run_installer("-install", SOURCE, command=administrator)
        self.assertEqual(read_tree(FOLDER), read_tree(SOURCE))
        self.run_installer("-uninstall", command=administrator)
        self.assertEqual(read_tree(FOLDER), {})

    def test_the_folder_goes_with_the_package_that_made_it_and_all_else_in_any_case(self):
        def traces():
            """Of the program in the system."""
            return {path for top in ("/etc", "/usr", "/var/lib")
                    for path in pathlib.Path(top).rglob(f"*{NAME}*")}

        before = traces()
        for steps, left in CASES:
            with self.subTest(steps):
                remove(FOLDER)
                for step in steps.split(", "):
                    STEPS[step]()
                there = FOLDER.exists() and f"{FOLDER.owner()}:{FOLDER.group()} {FOLDER.stat().st_mode & 0o7777:o}"
                self.assertEqual(there or None, left)
                STEPS["purge"]()
                self.assertEqual(traces(), before)
        STEPS["install"]()
        self.assertGreater(traces(), before)
