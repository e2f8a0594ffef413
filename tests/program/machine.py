"""The real installer on a private machine, with a real X server and someone at its keys."""

import os
import re
import shutil
import subprocess
import time
import unittest
from glob import glob

LOG = "/tmp/quillbarninstaller.log"
BUNDLE = "/Applications/quillbarn.app"
SOURCE = "/tmp/source/"
INSTALLER = ".*(quillbarn|disk image).*"  # its window's title
GI = "/usr/lib/python3/dist-packages/gi"  # the package python3-gi
MARGIN = 20  # of the window, beside the bar

# Names of any bytes are text here, as Python has it for paths.
BYTES = {"encoding": "utf-8", "errors": "surrogateescape", "newline": ""}


def await_that(condition, seconds=20, pause=0.005):
    """Returns what the condition gives as soon as that is true."""
    end = time.monotonic() + seconds
    while not (result := condition()):
        if time.monotonic() > end:
            raise TimeoutError
        time.sleep(pause)
    return result


def require(*needed):
    """Skips the tests of a class where a program is missing, or a path, which may be a pattern. In CI
    that is an error."""
    for each in needed:
        if not shutil.which(each) and not glob(each):
            raise (RuntimeError if os.environ.get("CI") else unittest.SkipTest)(f"there is no {each}")


RUNNING = []  # what runs until the machine is gone


def keep_running(*command, **options):
    RUNNING.append(subprocess.Popen(command, **options))
    return RUNNING[-1]


def start_bus():
    """A bus of the test's own. Its address."""
    bus = keep_running("dbus-daemon", "--session", "--nofork", "--print-address",
                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return bus.stdout.readline().decode().strip()


def write(path, content=""):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", **BYTES) as file:
        file.write(content)


def write_files(count):
    """To be installed, for long enough."""
    for number in range(count):
        write(f"{SOURCE}quillbarn.app/{number}", "x" * 5000)


def read(path):
    with open(path, **BYTES) as file:
        return file.read()


def read_tree(top):
    """What is below a folder: None for a folder, the target of a link, or the content of a file."""
    tree = {}
    for folder, folders, files in os.walk(top):
        for name in folders + files:
            path = os.path.join(folder, name)
            tree[os.path.relpath(path, top)] = (
                "-> " + os.readlink(path) if os.path.islink(path)
                else None if os.path.isdir(path) else read(path))
    return tree


def remove(path):
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    elif os.path.lexists(path):
        os.unlink(path)


def read_log():
    """The entries as "level message", whatever their time and process."""
    entries = []
    for line in read(LOG).split("\n")[:-1]:
        match = re.fullmatch(r"\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d \d+ ([nde] .*)", line, re.DOTALL)
        entries.append(match[1] if match else "not an entry: " + line)
    return entries


def mount(test, place, *arguments):
    """Until the test is over. A place that is not there becomes a folder."""
    if not os.path.exists(place):
        os.makedirs(place)
    subprocess.run(["mount", *arguments, place], check=True)
    test.addCleanup(subprocess.run, ["umount", "--lazy", place], check=True)


def mount_memory(test, folder, size):
    """A volume of that size."""
    mount(test, folder, "-t", "tmpfs", "-o", "size=" + size, "none")


class Screen:
    """An X server in memory, with a window manager."""

    def __init__(self, *options):
        os.makedirs("/run/user", 0o700, exist_ok=True)
        os.environ["XDG_RUNTIME_DIR"] = "/run/user"
        ours, servers = os.pipe()
        self.server = keep_running(
            "Xvfb", "-displayfd", str(servers), "-noreset", "-screen", "0", "800x600x24",
            pass_fds=[servers], stderr=subprocess.DEVNULL)
        os.close(servers)  # so that the end of a server that couldn't start shows
        self.display = ":" + os.read(ours, 9).decode().strip()
        self.options = options
        self.window_manager = None
        self._manage_windows()

    def _manage_windows(self):
        """Once more where that is over: the window manager ends by itself now and then, and at times
        finds no display in the moment in which the server says that it is there."""
        while not self.window_manager or self.window_manager.poll() is not None:
            self.window_manager = keep_running(
                "openbox", *self.options, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                env=os.environ | {"DISPLAY": self.display})
            # Or it may forget a window that comes at that moment.
            await_that(lambda: self._xdotool("get_num_desktops") or self.window_manager.poll() is not None)

    def _xdotool(self, *arguments):
        return subprocess.run(
            ["xdotool", *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
            env=os.environ | {"DISPLAY": self.display}).stdout

    def _find_windows(self, title):
        return self._xdotool("search", "--onlyvisible", "--name", f"^{title}$").split()

    def has_keyboard(self, window):
        return self._xdotool("getactivewindow").strip() == window

    def give_keyboard(self, window):
        """As long as it is there. The window manager denies it to a window that comes while somebody
        types, and forgets to give it now and then."""
        def has_keyboard():
            self._manage_windows()
            if self.has_keyboard(window):
                return True
            self._xdotool("windowactivate", window)
            return self.size(window) is None

        await_that(has_keyboard)

    def press(self, key):
        for window in self._find_windows(INSTALLER):
            self.give_keyboard(window)
        self._xdotool("key", key)

    def close_window(self):
        """What the close control in the window's frame does."""
        self.press("alt+F4")

    def find_window(self, title):
        """Its number, once it is on the screen with that title."""
        self._manage_windows()
        return await_that(lambda: self._find_windows(title))[0]

    def await_window(self, title=INSTALLER):
        """Finds it and gives it the keyboard."""
        window = self.find_window(title)
        self.give_keyboard(window)
        return window

    def size(self, window):
        """Width and height, without the frame; none once it has gone."""
        lines = self._xdotool("getwindowgeometry", "--shell", window).splitlines()
        values = dict(line.split("=") for line in lines)
        return (int(values["WIDTH"]), int(values["HEIGHT"])) if values else None

    def bar(self, window):
        """How much of the bar in the window is filled, by its colour."""
        picture = subprocess.run(
            ["import", "-silent", "-display", self.display, "-window", window, "-depth", "8", "rgb:-"],
            check=True, capture_output=True).stdout
        width, _ = self.size(window)
        rows = [picture[start:start + 3 * width] for start in range(0, len(picture), 3 * width)]
        blue = max(sum(row[i + 2] > row[i] + 60 for i in range(0, 3 * width, 3)) for row in rows[:110])
        return blue / (width - 2 * MARGIN)


class InstallerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if not hasattr(InstallerTest, "screen"):
            InstallerTest.screen = Screen()
            os.environ["DISPLAY"] = InstallerTest.screen.display

    def setUp(self):
        for path in BUNDLE, LOG, SOURCE:
            remove(path)
        os.mkdir(SOURCE)

    def start(self, *arguments, command=(os.environ["INSTALLER"],), **options):
        installer = subprocess.Popen([*command, *arguments], stdout=subprocess.PIPE, **options)
        self.addCleanup(installer.stdout.close)
        self.addCleanup(installer.kill)
        return installer

    def expect_orderly_end(self, installer):
        output, _ = installer.communicate(timeout=60)
        self.assertEqual((output, installer.returncode), (b"", 0))
        self.assertEqual(read_log()[-1], "n installer exit")

    def run_installer(self, *arguments, **options):
        """Runs to the end without a person. The log."""
        remove(LOG)
        self.expect_orderly_end(self.start(*arguments, **options))
        return read_log()

    def expect_same(self, found, tree):
        wrong = {path for path, _ in found.items() ^ tree.items()}
        self.assertEqual(len(wrong), 0, f"such as “{min(wrong, default='')}”")

    def press_until_closed(self, installer, key="Return"):
        self.screen.await_window()
        while installer.poll() is None:
            self.screen.press(key)
        self.expect_orderly_end(installer)
