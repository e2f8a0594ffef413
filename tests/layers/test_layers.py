"""The build holds the arrows between the folders: what reaches past them does not compile."""

import json
import os
import pathlib
import re
import shlex
import subprocess
import unittest

SOURCES = pathlib.Path(os.environ["SOURCES"])
BUILD = pathlib.Path(os.environ["BUILD"])

# A file of each layer: what its like may include, and what it must not.
LAYERS = {
    "log/Logger.cpp": (
        ["Logger.h", "Foundation/NSFileHandle.h"],
        ["TaskReport.h", "ViewController.h", "Dispatch/DispatchQueue.h", "FileDescriptor.h", "QString"]),
    "install/InstallTask.cpp": (
        ["TaskReport.h", "Logger.h", "Foundation/NSFileManager.h"],
        ["ViewController.h", "UnmountTask.h", "AppKit/NSWindow.h", "Dispatch/DispatchQueue.h",
         "FileCopy.h", "ErrorText.h", "QString"]),
    "disk/UnmountTask.cpp": (
        ["TaskReport.h", "Logger.h", "DiskArbitration/DADisk.h", "Dispatch/DispatchQueue.h"],
        ["ViewController.h", "InstallTask.h", "AppKit/NSWindow.h", "MainQueue.h", "UDisks2.h",
         "QDBusConnection"]),
    "controller/StartUp.cpp": (
        ["InstallTask.h", "UnmountTask.h", "AppKit/NSWindow.h"],
        ["MainInterface.h", "AppDelegate.h", "WindowQt.h", "FileDescriptor.h", "QWidget"]),
    "app/AppDelegate.cpp": (
        ["Logger.h", "AppKit/NSApplication.h"],
        ["ViewController.h", "MainInterface.h", "Dispatch/DispatchQueue.h", "QWidget"]),
    "resources/MainInterface.cpp": (
        ["ViewController.h", "AppDelegate.h", "InterfaceQt.h", "QWidget"],
        ["MainQueue.h", "FileDescriptor.h", "UDisks2.h"]),
    "platform/Foundation/NSURL.cpp": (
        ["Foundation/NSURL.h", "QString"],
        ["Logger.h", "TaskReport.h", "AppKit/NSView.h", "Dispatch/DispatchQueue.h", "QWidget"]),
    "platform/Dispatch/MainQueue.cpp": (
        ["Foundation/NSThread.h", "FileDescriptor.h"],
        ["Logger.h", "TaskReport.h", "AppKit/NSView.h", "QWidget"]),
    "platform/AppKit/NSWindowQt.cpp": (
        ["Foundation/NSURL.h", "Dispatch/DispatchQueue.h", "QWidget"],
        ["Logger.h", "ViewController.h", "FileDescriptor.h", "QDBusConnection"]),
    "platform/DiskArbitration/UDisks2Qt.cpp": (
        ["Dispatch/DispatchQueue.h", "QDBusConnection"],
        ["Logger.h", "AppKit/NSView.h", "FileDescriptor.h", "QWidget"]),
}


def compile_command(source):
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        if entry["file"] == str(SOURCES / source):
            command = shlex.split(entry["command"])
            return command[:command.index("-o")], entry["directory"]
    raise KeyError(source)


class Layers(unittest.TestCase):
    def compile_with(self, source, header):
        """The errors of a file in the place of `source` that includes nothing else."""
        command, folder = compile_command(source)
        return subprocess.run(
            [*command, "-E", "-o", os.devnull, "-x", "c++", "-"], cwd=folder, text=True,
            input=f"#include <{header}>\n", capture_output=True).stderr

    def test_a_file_sees_what_its_target_links_and_nothing_else(self):
        for source, (seen, hidden) in LAYERS.items():
            for header in seen:
                with self.subTest(source=source, header=header):
                    self.assertEqual(self.compile_with(source, header), "")
            for header in hidden:
                with self.subTest(source=source, header=header):
                    self.assertIn(f"fatal error: {header}: No such file", self.compile_with(source, header))

    def test_every_hidden_header_is_there_for_somebody(self):
        names = {path.name for path in SOURCES.glob("**/*.h")}
        hidden = {header for _, headers in LAYERS.values() for header in headers[1:]}
        self.assertEqual({pathlib.Path(header).name for header in hidden if header.endswith(".h")} - names, set())

    def test_public_headers_of_the_layer_are_free_of_the_toolkit(self):
        headers = list(SOURCES.glob("platform/*/include/*/*.h"))
        self.assertGreater(len(headers), 20)
        for path in headers:
            self.assertIsNone(re.search(r"\bQ[A-Z]\w+|<sys/|<unistd", path.read_text()), path)
