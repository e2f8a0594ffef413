"""The package, installed and removed by the system's own dpkg on a private machine. What that
changes of the system lies in memory, and goes with each test."""

import os
import pathlib
import subprocess
import tempfile

from machine import SOURCE, InstallerTest, mount, read_tree, remove, write

NAME = "quillbarninstaller"
FOLDER = pathlib.Path("/Applications")
ADMINISTRATOR = "runuser", "-u", "ada", "--", NAME


def run(*command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)


def dpkg(*arguments):
    """Without what other packages do then, such as listing all manual pages anew."""
    run("dpkg", "--no-triggers", *arguments)


def access():
    return f"{FOLDER.owner()}:{FOLDER.group()} {FOLDER.stat().st_mode & 0o7777:o}"


def traces():
    """Of the program in the system."""
    return {path for top in ("/etc", "/usr", "/var/lib/dpkg")
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
        dpkg("--install", os.environ["PACKAGE"])
        self.assertEqual(access(), "root:sudo 2775")
        self.assertGreater(traces(), before)

        run("useradd", "--groups", "sudo", "ada")
        write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "the program")
        bundle = read_tree(SOURCE)
        self.run_installer("-install", SOURCE, command=ADMINISTRATOR)
        self.assertEqual(read_tree(FOLDER), bundle)
        dpkg("--remove", NAME)
        self.assertEqual(read_tree(FOLDER), bundle)

        dpkg("--install", os.environ["PACKAGE"])
        self.run_installer("-uninstall", command=ADMINISTRATOR)
        dpkg("--purge", NAME)
        self.assertEqual(traces(), before)
        self.assertFalse(FOLDER.exists())

    def test_a_folder_that_was_there_is_left_alone(self):
        FOLDER.mkdir(0o700)
        dpkg("--install", os.environ["PACKAGE"])
        self.assertEqual(access(), "root:root 700")
        dpkg("--purge", NAME)
        self.assertEqual(access(), "root:root 700")
