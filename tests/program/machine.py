"""The real installer on a private machine, with a real X server and someone at its keys."""

import os
import re
import shutil
import subprocess
import time
import unittest
from glob import glob
from pathlib import Path

LOG = "/tmp/quillbarninstaller.log"
BUNDLE = "/Applications/quillbarn.app"
SOURCE = "/tmp/source/"
INSTALLER = ".*(quillbarn|disk image).*"  # its window's title
GI = "/usr/lib/python3/dist-packages/gi"  # the package python3-gi

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


def keep_running(*command, stdout=subprocess.DEVNULL, **options):
    RUNNING.append(subprocess.Popen(command, stdout=stdout, stderr=subprocess.DEVNULL, text=True, **options))
    return RUNNING[-1]


def start_server(*command):
    """With the line by which it tells where it can be reached."""
    server = keep_running(*command, stdout=subprocess.PIPE)
    return server, server.stdout.readline().strip()


def start_bus(*options):
    """A bus of the test's own. Its address."""
    return start_server("dbus-daemon", "--session", "--nofork", "--print-address", *options)[1]


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
    return {str(path.relative_to(top)): (
        f"-> {os.readlink(path)}" if path.is_symlink() else None if path.is_dir() else read(path))
            for path in Path(top).rglob("*")}


def run(*command, check=True, **options):
    """What a program says."""
    return subprocess.run(command, check=check, capture_output=True, encoding="utf-8",
                          errors="surrogateescape", **options).stdout.strip()


def remove(*paths):
    run("rm", "-rf", *paths)


def read_log():
    """The entries as "level message", whatever their time and process."""
    return [re.sub(r"^\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d \d+ (?=[nde] )", "", line)
            for line in read(LOG).split("\n")[:-1]]


def mount(test, place, *arguments):
    """Until the test is over. A place that is not there becomes a folder."""
    if not os.path.exists(place):
        os.makedirs(place)
    run("mount", *arguments, place)
    test.addCleanup(run, "umount", "--lazy", place)


def mount_memory(test, folder, size):
    """A volume of that size."""
    mount(test, folder, "-t", "tmpfs", "-o", "size=" + size, "none")


class Screen:
    """An X server in memory, with a window manager, and someone at the keys."""

    def __init__(self, *options):
        os.makedirs("/run/user", 0o700, exist_ok=True)
        os.environ["XDG_RUNTIME_DIR"] = "/run/user"
        self.server, number = start_server("Xvfb", "-displayfd", "1", "-noreset", "-screen", "0", "800x600x24")
        self.environment = os.environ | {"DISPLAY": ":" + number}
        self.options = options
        self.window_manager = None
        self._manage_windows()

    def _manage_windows(self):
        """Once more where that is over: the window manager ends by itself now and then, and at times
        finds no display in the moment in which the server says that it is there."""
        def is_there():
            if not self.window_manager or self.window_manager.poll() is not None:
                self.window_manager = keep_running("openbox", *self.options, env=self.environment)
            return self._xdotool("get_num_desktops")  # or it may forget a window that comes before

        await_that(is_there)

    def run(self, *command):
        """What a program says that looks at the screen, or changes something there."""
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              env=self.environment, check=False).stdout

    def _xdotool(self, *arguments):
        return self.run("xdotool", *arguments).decode().strip()

    def _find_windows(self, title):
        return self._xdotool("search", "--onlyvisible", "--name", f"^{title}$").split()

    def active_title(self):
        self._manage_windows()
        return self._xdotool("getactivewindow", "getwindowname")

    def _give_keyboard(self, window):
        """As long as it is there. The window manager denies it to a window that comes while somebody
        types, and forgets to give it now and then."""
        def has_keyboard():
            self._manage_windows()
            if self._xdotool("getactivewindow") == window:
                return True
            self._xdotool("windowactivate", window)
            return not self._xdotool("getwindowname", window)

        await_that(has_keyboard)

    def press(self, key):
        for window in self._find_windows(INSTALLER):
            self._give_keyboard(window)
        self._xdotool("key", key)

    def await_window(self, title=INSTALLER):
        """Once it is on the screen with that title, it has the keyboard."""
        self._manage_windows()
        self._give_keyboard(await_that(lambda: self._find_windows(title))[0])

    def picture(self):
        """Of the active window: red, green and blue of each point."""
        return self.run("import", "-window", self._xdotool("getactivewindow"), "-depth", "8", "rgb:-")


class InstallerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if not hasattr(InstallerTest, "screen"):
            InstallerTest.screen = Screen()
            os.environ.update(InstallerTest.screen.environment)

    def setUp(self):
        remove(BUNDLE, LOG, SOURCE)
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
        """Told without the contents, which may be large."""
        self.assertEqual(sorted(path for path, _ in found.items() ^ tree.items()), [])

    def press_until_closed(self, installer, key="Return", *title):
        try:
            self.screen.await_window(*title)
            await_that(lambda: installer.poll() is not None or self.screen.press(key))
        except TimeoutError:
            self.fail(f"“{self.screen.active_title()}” is on the screen, and the log ends in {read_log()[-3:]}")
        self.expect_orderly_end(installer)
