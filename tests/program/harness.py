"""Runs the real installer in a sandbox, without a display or on an X server with simulated keyboard input."""

import os
import re
import shutil
import subprocess
import time
import unittest
from glob import glob
from pathlib import Path

INSTALLER = os.environ["INSTALLER"]
if os.path.exists(INSTALLER):  # other users may have no access to the build folder
    INSTALLER = shutil.copy(INSTALLER, "/run")
LOG = "/tmp/quillbarninstaller.log"
APPLICATIONS, BUNDLE = "/Applications", "/Applications/quillbarn.app"
SOURCE, MOUNTED = "/tmp/source/", "/tmp/mounted"  # the second for any volume
NEW = SOURCE + "quillbarn.app"
INSTALL, UNINSTALL = ("-install", SOURCE), ("-uninstall",)
COMPLETED = ["d completed", "n installer exit"]
FAILURE = "quillbarn could not be installed"  # the title
GI = "/usr/lib/python3/dist-packages/gi"  # the package python3-gi


def traced(calls, *options):
    """Returns the command that traces the installer."""
    return [*"strace -f --seccomp-bpf --output=/tmp/trace --trace".split(), calls, *options, INSTALLER]


SLOWLY = traced("linkat", "--inject=linkat:delay_enter=5000")  # so that a test can observe the progress


def await_that(condition, seconds=20, pause=0.005):
    """Returns the value of the condition as soon as it is true."""
    end = time.monotonic() + seconds
    while not (result := condition()):
        assert time.monotonic() < end, f"timeout; log: {read_log()}"
        time.sleep(pause)
    return result


def require(*needed):
    """Skips the tests of a class if a program or a path (or pattern) is missing. In CI that is an error."""
    if missing := [each for each in needed if not shutil.which(each) and not glob(each)]:
        raise (RuntimeError if os.environ.get("CI") else unittest.SkipTest)(f"missing: {missing}")


def run(*command, check=True, **options):
    """Returns the output of a program; bytes that are not UTF-8 become surrogates, as in names."""
    result = subprocess.run(command, check=check, capture_output=True, timeout=60, **options)
    return os.fsdecode(result.stdout.strip())


RUNNING = []  # background processes; they end with the sandbox


def keep_running(*command, stdout=subprocess.DEVNULL, **options):
    RUNNING.append(subprocess.Popen(command, stdout=stdout, stderr=subprocess.DEVNULL, text=True, **options))
    return RUNNING[-1]


def start_bus(*options):
    """Returns the address of a new D-Bus message bus."""
    command = "dbus-daemon", "--session", "--nofork", "--print-address", *options
    return keep_running(*command, stdout=subprocess.PIPE).stdout.readline().strip()


def overlay(folder):
    """All later changes of a folder of the machine are in memory."""
    upper, work = "/tmp/upper" + folder, "/tmp/work" + folder
    run("mkdir", "--parents", "--mode=755", upper, work)
    run("mount", "-t", "overlay", "-o", f"lowerdir={folder},upperdir={upper},workdir={work}", "none", folder)


def remove(*paths):
    run("rm", "-rf", *paths)


def write(path, content=""):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    Path(path).write_bytes(os.fsencode(content))


def write_files(count, room=None):
    """Writes a bundle, and limits the room in the applications folder."""
    for number in range(count):
        write(f"{NEW}/{number}", "x" * 5000)
    if room:
        run("mount", "-t", "tmpfs", "-o", f"size={room}", "none", APPLICATIONS)


def read(path):
    return os.fsdecode(Path(path).read_bytes())


def read_tree(top):
    """Returns for each path None (a folder), the target of a symlink or the content of a file."""
    return {str(path.relative_to(top)): f"-> {os.readlink(path)}" if path.is_symlink() else
            None if path.is_dir() else read(path) for path in Path(top).rglob("*")}


def read_log():
    """Returns the entries as "level message", without time and process."""
    lines = read(LOG).split("\n")[:-1] if os.path.exists(LOG) else []
    return [re.sub(r"^\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d \d+ (?=[nde] )", "", line) for line in lines]


class InstallerTest(unittest.TestCase):
    """Without a display. Tests mount volumes below the folders that are restored for the next test."""

    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*=false"}

    def setUp(self):
        for place in re.findall(rf" ((?:{APPLICATIONS}|{MOUNTED}|{NEW})\S*) ", read("/proc/mounts")):
            run("umount", "--lazy", place)
        remove(BUNDLE, LOG, SOURCE)
        run("mkdir", "--parents", SOURCE, MOUNTED, APPLICATIONS)

    def start(self, *arguments, command=(INSTALLER,), env=(), **options):
        installer = self.enterContext(subprocess.Popen(
            [*command, *arguments], stdout=subprocess.PIPE, env=self.environment | dict(env), **options))
        self.addCleanup(installer.kill)
        return installer

    def expect_no_start(self, error, *arguments, **options):
        installer = self.start(*arguments, stderr=subprocess.PIPE, text=True, **options)
        output, errors = installer.communicate(timeout=20)
        self.assertRegex(errors, f"^quillbarninstaller: The {error}.*\n$")
        self.assertEqual((output, installer.returncode, os.path.exists(LOG)), ("", 1, False))

    def expect_orderly_end(self, installer):
        self.assertEqual((installer.communicate(timeout=60)[0], installer.returncode), (b"", 0))
        self.assertEqual(read_log()[-1], "n installer exit")

    def run_installer(self, *arguments, **options):
        """Runs the installer until it closes its window. Returns the log."""
        remove(LOG)
        self.expect_orderly_end(self.start(*arguments, **options))
        return read_log()

    def run_until_failure(self, *arguments, **options):
        """Ends the installer when it has opened the pane. Returns the log."""
        remove(LOG)
        installer = self.start(*arguments, **options)
        await_that(lambda: read_log()[-2:-1] == ["d "] or self.assertIsNone(installer.poll(), read_log()))
        installer.kill()
        installer.wait()
        return read_log()

    def press_until_closed(self, screen, installer):
        """Presses Return, also before the pane is open. Returns the places of the window until it closed."""
        places = []
        await_that(lambda: places.extend(screen.places()) or screen.press("Return") or installer.poll() == 0)
        self.expect_orderly_end(installer)
        return places

    def expect_same(self, found, tree):
        """Reports paths without contents, which may be large."""
        self.assertEqual(sorted(path for path, _ in found.items() ^ tree.items()), [])


ON_DISPLAY = {"QT_QPA_PLATFORM": "", "QT_LOGGING_RULES": ""}


class Screen:
    """A virtual X server with a window manager, which activates only windows that request it."""

    def __init__(self):
        os.makedirs("/run/user", 0o700, exist_ok=True)
        command = "Xvfb", "-displayfd", "1", "-noreset", "-screen", "0", "800x600x24"
        self.server = keep_running(*command, stdout=subprocess.PIPE)
        display = ":" + self.server.stdout.readline().strip()
        self.environment = os.environ | ON_DISPLAY | {"DISPLAY": display, "XDG_RUNTIME_DIR": "/run/user"}
        write("/tmp/openbox", """<openbox_config xmlns='http://openbox.org/3.4/rc'>
            <focus><focusNew>no</focusNew></focus><applications>
            <application title='Uninstalling*'><iconic>yes</iconic></application></applications>
            <keyboard><keybind key='F2'><action name='ToggleDecorations'/></keybind></keyboard></openbox_config>""")
        keep_running("openbox", "--config-file", "/tmp/openbox", env=self.environment)
        await_that(lambda: self.run("xdotool", "get_num_desktops") != "0")  # without a window manager it prints 0

    def run(self, *command):
        """Returns the output of a program that uses the screen; nothing if it fails."""
        return run(*command, check=False, env=self.environment)

    def await_window(self, title=".*(quillbarn|disk image).*", at_once=False):
        """Returns when a window with that title is visible and has the keyboard focus, or is closed."""
        def find():
            return self.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

        for window in find() if at_once else await_that(find):
            # The window manager may refuse the request.
            await_that(lambda: self.run("xdotool", "getactivewindow") == window
                       or self.run("xdotool", "windowactivate", window) or window not in find())

    def places(self):
        """Returns the position of the active window, if there is one."""
        return self.run("xdotool", "getactivewindow", "getwindowgeometry").split()[3:4]

    def press(self, key):
        self.await_window(at_once=True)
        self.run("xdotool", "key", key)
