"""The package, installed and removed by the system's own dpkg on a private machine. What that
changes of the system lies in memory, and goes with each test."""

import os
import pathlib
import tempfile

from disks import run
from machine import SOURCE, InstallerTest, mount, read_tree, remove, write

NAME = "quillbarninstaller"
FOLDER = pathlib.Path("/Applications")
ADMINISTRATOR = "runuser", "-u", "admin", "--", NAME


def dpkg(*arguments):
    """Without what other packages do then, such as listing all manual pages anew."""
    run("dpkg", "--no-triggers", *arguments)


def install():
    dpkg("--install", os.environ["PACKAGE"])


def access():
    return f"{FOLDER.owner()}:{FOLDER.group()} {FOLDER.stat().st_mode & 0o7777:o}"


def traces():
    """Of the program in the system."""
    return {path for top in ("/etc", "/usr", "/var/lib")
            for path in pathlib.Path(top).rglob(f"*{NAME}*")}


class Package(InstallerTest):
    def setUp(self):
        for folder in "/etc", "/usr", "/var":
            upper, work = tempfile.mkdtemp(), tempfile.mkdtemp()
            os.chmod(upper, 0o755)
            mount(self, folder, "-t", "overlay",
                  "-o", f"lowerdir={folder},upperdir={upper},workdir={work}", "none")
        dpkg("--purge", NAME)  # which may have been tried out
        remove(FOLDER)
        super().setUp()

    def test_administrators_install_without_root_and_nothing_stays(self):
        before = traces()
        install()
        self.assertEqual(access(), "root:sudo 2775")
        self.assertGreater(traces(), before)

        run("useradd", "--groups", "sudo", "admin")
        write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "the program")
        bundle = read_tree(SOURCE)
        self.run_installer("-install", SOURCE, command=ADMINISTRATOR)
        self.assertEqual(read_tree(FOLDER), bundle)
        dpkg("--remove", NAME)
        self.assertEqual(read_tree(FOLDER), bundle)

        install()
        self.run_installer("-uninstall", command=ADMINISTRATOR)
        dpkg("--purge", NAME)
        self.assertEqual(traces(), before)
        self.assertFalse(FOLDER.exists())

    def test_the_folder_goes_with_the_package_that_made_it_whatever_came_between(self):
        before = traces()
        steps = {"install": install, "remove": lambda: dpkg("--remove", NAME),
                 "fill": lambda: write(f"{FOLDER}/file"), "empty": lambda: remove(f"{FOLDER}/file"),
                 "make anew": lambda: FOLDER.rmdir() or FOLDER.mkdir()}
        for between in ([], ["install"], ["remove"], ["remove", "install"], ["fill"],
                        ["fill", "remove", "empty"], ["fill", "remove", "install", "empty"],
                        ["make anew"], ["fill", "remove", "empty", "make anew", "install"]):
            with self.subTest(between=between):
                install()
                for step in between:
                    steps[step]()
                dpkg("--purge", NAME)
                self.assertEqual(FOLDER.exists(), bool({"make anew"} & {*between}) or between == ["fill"])
                self.assertEqual(traces(), before)
                remove(FOLDER)

    def test_a_folder_that_was_there_is_left_alone(self):
        for group, mode in ("root", "700"), ("sudo", "2775"):  # the latter as the package makes it
            with self.subTest(group=group, mode=mode):
                run("install", "-d", "-g", group, "-m", mode, FOLDER)
                install()
                self.assertEqual(access(), f"root:{group} {mode}")
                dpkg("--purge", NAME)
                self.assertEqual(access(), f"root:{group} {mode}")
                remove(FOLDER)

    def test_without_the_group_of_administrators_it_is_for_root(self):
        run("groupdel", "sudo")
        install()
        self.assertEqual(access(), "root:root 2775")
