"""Creates bundles, and measures programs that install and uninstall them or open a window."""

import ctypes
import os
import random
import select
import shlex
import signal
import subprocess
import sys
import time
from collections import defaultdict
from pathlib import Path
from subprocess import DEVNULL, PIPE
from typing import NamedTuple

# On the tmpfs of the private namespace; short: the path of 2000 nested folders needs 4000 of 4095
# bytes.
MEMORY = Path("/run/bench")
STEPS = ("install", "uninstall")
LONGEST_RUN = 300  # seconds; after a failure the installer waits for the user
MAP_NOTIFY, SUBSTRUCTURE_NOTIFY_MASK = 19, 1 << 19  # as in X11/X.h


class Program(NamedTuple):
    """Commands with the placeholders {app} (to install), {folder} (that contains it), {package}."""
    install: str
    uninstall: str = ""  # not measured
    pause: float = 0  # milliseconds that do not count


class Sample(NamedTuple):
    time: float  # milliseconds
    memory: float  # MiB; not less than this script uses, because a process starts as its copy


def fail(command, errors):
    sys.exit(f"Failed: {' '.join(map(str, command))}\n{errors}")


def run(*command):
    done = subprocess.run(command, capture_output=True, encoding="utf-8", errors="replace")
    if done.returncode:
        fail(command, done.stderr)
    return done.stdout.strip()


def count_entries(folder):
    return len(run("find", folder, "-mindepth", "1", "-printf", "."))


def measure(command):
    """Runs a command to its end."""
    words = ["sh", "-c", command] if "&&" in command else shlex.split(command)
    start = time.perf_counter()
    process = subprocess.Popen(words, stdout=DEVNULL, stderr=PIPE)
    signal.signal(signal.SIGALRM, lambda *_: process.kill())
    signal.alarm(LONGEST_RUN)
    _, status, usage = os.wait4(process.pid, 0)
    elapsed = time.perf_counter() - start
    signal.alarm(0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode:
        fail(words, process.stderr.read().decode(errors="replace"))
    return Sample(1000 * elapsed, usage.ru_maxrss / 1024)


class Bundle:
    """Contains, for example, "1000 files" of at most 32 KiB, "2000 nested folders", "2000 adjacent
    folders" or one file of "2048 MiB". Only the data of the large file differ between runs."""

    def __init__(self, folder, content, with_package=False):
        self.folder = folder
        self.app = folder / "Applications/quillbarn.app"
        self.app.mkdir(parents=True)
        count, kind = content.split()[:2]
        getattr(self, f"create_{kind}")(int(count))
        self.entries = count_entries(self.app.parent)
        self.size = int(run("du", "-sm", folder).split()[0])  # MiB
        paths = {"app": self.app, "folder": self.app.parent, "package": f"{folder}.deb"}
        self.paths = {name: shlex.quote(str(path)) for name, path in paths.items()}
        if with_package:
            self.create_package(paths["package"])

    def create_MiB(self, count):
        run("dd", "if=/dev/urandom", f"of={self.app}/data", "bs=1M", f"count={count}",
            "iflag=fullblock")

    def create_nested(self, count):
        run("mkdir", "-p", self.app / "/".join("d" * count))

    def create_adjacent(self, count):
        for i in range(count):
            (self.app / f"folder-{i}").mkdir()

    def create_files(self, count):
        generator = random.Random(1)
        data = generator.randbytes(32 * 1024)
        for i in range(count):
            group, part = divmod(i // 16, 16)
            area = ("Resources", "Frameworks", "PlugIns", "SharedSupport")[group % 4]
            folder = self.app / f"Contents/{area}/group-{group}/part-{part}"
            folder.mkdir(parents=True, exist_ok=True)
            size = 64 << generator.randrange(9)
            (folder / f"file-{i}.dat").write_bytes(data[:size + generator.randrange(size)])

    def create_package(self, path):
        (self.folder / "DEBIAN").mkdir()
        (self.folder / "DEBIAN/control").write_text(
            "Package: quillbarn-bench\nVersion: 1\nArchitecture: all\nMaintainer: nobody\n"
            "Description: bundle for measurements\n")
        # Without compression, which is the fastest for dpkg.
        run("dpkg-deb", "-Znone", "--root-owner-group", "--build", self.folder, path)


def take_turn(volume, program, bundle):
    """Installs and uninstalls, with /Applications and /tmp on the volume. Returns both samples."""
    place = volume / "place"
    for folder in "Applications", "tmp/dpkg/info", "tmp/dpkg/updates":
        (place / folder).mkdir(parents=True)
    (place / "tmp/dpkg/status").touch()
    for folder in "Applications", "tmp":
        run("mount", "--bind", place / folder, f"/{folder}")
    samples = []
    for command, entries in (program.install, bundle.entries), (program.uninstall, 0):
        if command:
            run("sync", "-f", place)
            sample = measure(command.format(**bundle.paths))
            samples.append(sample._replace(time=sample.time - program.pause))
            if count_entries(place / "Applications") != entries:
                fail([command], f"It did not leave {entries} entries.")
    run("umount", "/Applications", "/tmp")
    run("rm", "-r", place)
    return samples


def alternate(volume, contestants, order, rounds):
    """In each round, the contestants (program and bundle, by name) take turns in the given order.
    Returns lists of samples by name and step."""
    samples = defaultdict(lambda: defaultdict(list))
    order = list(order)
    for _ in range(rounds):
        for name in order:
            program, bundle = contestants[name]
            # The host of a virtual machine reclaims unused memory. Without this, the first program
            # that needs the memory again would wait for the host.
            run("dd", "if=/dev/zero", f"of={MEMORY}/touched", "bs=1M",
                f"count={128 + bundle.size * 5 // 4}")
            (MEMORY / "touched").unlink()
            for step, sample in zip(STEPS, take_turn(volume, program, bundle)):
                samples[name][step].append(sample)
        order.append(order.pop(0))  # so that no contestant is always the first
    return samples


class Screen:
    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.x11.XSelectInput(self.display, self.x11.XDefaultRootWindow(self.display),
                              SUBSTRUCTURE_NOTIFY_MASK)

    def time_until_shown(self, command):
        """Returns the milliseconds from the start of the program to its first window."""
        event = (ctypes.c_long * 24)()
        self.x11.XSync(self.display, True)  # discards the events of the previous program
        start = time.perf_counter()
        process = subprocess.Popen(command, stdout=DEVNULL, stderr=DEVNULL)
        while not self.x11.XCheckTypedEvent(self.display, MAP_NOTIFY, event):
            if not select.select([self.x11.XConnectionNumber(self.display)], [], [], 10)[0]:
                fail(command, "It showed no window.")
        elapsed = time.perf_counter() - start
        process.kill()
        process.wait()
        return 1000 * elapsed
