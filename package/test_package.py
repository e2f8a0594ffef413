"""The package, installed and removed by dpkg. All changes of the system are in memory."""

import pathlib

from harness import *

NAME = "quillbarninstaller"
MADE, PRIVATE = "root:sudo 2775", "root:root 700"
# Steps, and the owner and mode of the folder afterwards if it exists.
CASES = (
    ("install", MADE), ("install, remove", None), ("install, install", MADE), ("install, remove, install, purge", None),
    ("install, fill, remove", MADE), ("install, fill, remove, install, empty, purge", None),
    ("create private, install, purge", PRIVATE), ("create alike, install, purge", MADE),
    ("install, fill, remove, create, install, purge", "root:root 755"),
    ("drop group, install", "root:root 2775"))


# Without the triggers of other packages, such as an update of the index of all manual pages.
DPKG, CREATE = "dpkg --no-triggers ", f"rm -rf {APPLICATIONS}; install -d {APPLICATIONS} "
STEPS = {"install": DPKG + '--install "$PACKAGE"', "remove": DPKG + "--remove " + NAME,
         "purge": DPKG + "--purge " + NAME, "drop group": "groupdel sudo",
         "fill": f"touch {APPLICATIONS}/file", "empty": f"rm {APPLICATIONS}/file", "create": CREATE,
         "create private": CREATE + "-m 700", "create alike": CREATE + "-g sudo -m 2775"}


def traces():
    """Returns the paths of the package in the system."""
    return {path for top in ("/etc", "/usr", "/var/lib") for path in pathlib.Path(top).rglob(f"*{NAME}*")}


class Package(InstallerTest):
    def test_folder_and_traces_after_each_step(self):
        for folder in "/etc", "/usr", "/var":
            overlay(folder)
        run("sh", "-ec", STEPS["purge"])  # of the real machine
        before = traces()
        run("useradd", "--groups", "sudo", "admin")
        for steps, left in CASES:
            with self.subTest(steps=steps):
                remove(APPLICATIONS)
                run("sh", "-ec", "; ".join(STEPS[step] for step in steps.split(", ")))
                self.assertEqual(run("stat", "--format=%U:%G %a", APPLICATIONS, check=False) or None, left)
                if steps == "install":  # a member of the group does not need root
                    self.assertGreater(traces(), before)
                    write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "the program")
                    for arguments, tree in (INSTALL, read_tree(SOURCE)), (UNINSTALL, {}):
                        self.run_installer(*arguments, command=["runuser", "-u", "admin", "--", NAME])
                        self.assertEqual(read_tree(APPLICATIONS), tree)
                run("sh", "-ec", STEPS["purge"])
                self.assertEqual(traces(), before)
