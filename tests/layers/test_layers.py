"""The build holds the arrows between the folders: what reaches past them does not compile."""

import json
import os
import pathlib
import shlex
import subprocess
import unittest

SOURCES, BUILD = (pathlib.Path(os.environ[name]) for name in ("SOURCES", "BUILD"))
COMMANDS = {entry["file"]: entry for entry in json.loads((BUILD / "compile_commands.json").read_text())}

BASE = "Foundation/NSURL.h Logger.h "
TASK = BASE + "TaskReport.h "
CONTROLLER = TASK + "BundleTask.h UnmountTask.h ViewController.h AppKit/NSWindow.h Dispatch/DispatchQueue.h "

# A file of each layer, and which of all the headers in this table it sees.
LAYERS = {
    "log/Logger.cpp": BASE,
    "install/BundleTask.cpp": TASK + "BundleTask.h",
    "disk/UnmountTask.cpp": TASK + "UnmountTask.h DiskArbitration/DADisk.h Dispatch/DispatchQueue.h",
    "controller/StartUp.cpp": CONTROLLER + "DiskArbitration/DADisk.h",
    "app/AppDelegate.cpp": BASE + "AppDelegate.h AppKit/NSWindow.h",
    "resources/MainInterface.cpp":
        CONTROLLER + "DiskArbitration/DADisk.h MainInterface.h AppDelegate.h WindowQt.h QString QWidget",
    "platform/Foundation/NSURL.cpp": "Foundation/NSURL.h QString",
    "platform/Dispatch/MainQueue.cpp":
        "Foundation/NSURL.h Dispatch/DispatchQueue.h FileDescriptor.h ErrorText.h QString",
    "platform/AppKit/NSWindowQt.cpp":
        "Foundation/NSURL.h AppKit/NSWindow.h Dispatch/DispatchQueue.h MainQueue.h QString QWidget",
    "platform/DiskArbitration/UDisks2Qt.cpp":
        "Foundation/NSURL.h DiskArbitration/DADisk.h Dispatch/DispatchQueue.h QString QDBusConnection",
}
HEADERS = sorted({header for seen in LAYERS.values() for header in seen.split()}
                 | {path.name for path in SOURCES.glob("platform/DiskArbitration/*.h")})  # for nobody


class Layers(unittest.TestCase):
    def test_a_file_sees_what_its_target_links_and_nothing_else(self):
        probe = "".join(f"#if __has_include(<{header}>)\n{header}\n#endif\n" for header in HEADERS)
        for name, seen in LAYERS.items():
            entry = COMMANDS[str(SOURCES / name)]
            compiler = shlex.split(entry["command"].partition(" -o ")[0])
            found = subprocess.check_output(
                [*compiler, "-E", "-P", "-x", "c++", "-"], cwd=entry["directory"], input=probe, text=True)
            self.assertEqual(found.split(), sorted(seen.split()), name)
