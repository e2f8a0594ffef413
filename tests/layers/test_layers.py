"""The build enforces the dependencies between the folders: other headers cannot be included."""

import json
import os
import pathlib
import re
import subprocess
import unittest

SOURCES, BUILD = (pathlib.Path(os.environ[name]) for name in ("SOURCES", "BUILD"))
COMMANDS = {re.search(r"-o \S*CMakeFiles/(\w+)\.dir", entry["command"])[1]: entry["command"]
            for entry in json.loads((BUILD / "compile_commands.json").read_text())}

BASE = "Foundation/NSURL.h Logger.h "
TASK = BASE + "TaskReport.h "
DISKS, QUEUES, WINDOWS = "DiskArbitration/DADisk.h ", "Dispatch/DispatchQueue.h ", "AppKit/NSWindow.h "
CONTROLLER = TASK + DISKS + QUEUES + WINDOWS + "BundleTask.h UnmountTask.h ViewController.h "
# The targets, and the headers of this table that each can include.
LAYERS = {
    "quillbarn_log": BASE,
    "quillbarn_install": TASK + "BundleTask.h",
    "quillbarn_disk": TASK + DISKS + QUEUES + "UnmountTask.h",
    "quillbarn_controller": CONTROLLER,
    "quillbarn_app": BASE + WINDOWS + "AppDelegate.h",
    "quillbarn_resources": CONTROLLER + "MainInterface.h AppDelegate.h WindowQt.h QString QWidget",
    "Foundation": "Foundation/NSURL.h QString",
    "Dispatch": QUEUES + "Foundation/NSURL.h FileDescriptor.h ErrorText.h QString",
    "AppKit": QUEUES + WINDOWS + "Foundation/NSURL.h MainQueue.h QString QWidget",
    "DiskArbitration": QUEUES + DISKS + "Foundation/NSURL.h QString QDBusConnection"}
HEADERS = sorted({header for seen in LAYERS.values() for header in seen.split()}
                 | {path.name for path in SOURCES.glob("platform/DiskArbitration/*.h")}  # private
                 | {str(path.relative_to(SOURCES)) for path in SOURCES.glob("[a-z]*/*.h")})


class Layers(unittest.TestCase):
    def test_visible_headers(self):
        probe = "".join(f"#if __has_include(<{header}>)\n{header}\n#endif\n" for header in HEADERS)
        for name, seen in LAYERS.items():
            command = COMMANDS[name].partition(" -o ")[0] + " -E -P -x c++ -"
            found = subprocess.check_output(command, shell=True, cwd=BUILD, input=probe, text=True)
            self.assertEqual(found.split(), sorted(seen.split()), name)
