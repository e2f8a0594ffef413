import os
import shutil
import socket
import subprocess
import tempfile
import unittest
from glob import glob

from machine import (
    BUNDLE, LOG, MARGIN, SOURCE, InstallerTest, await_that, keep_running, mount_memory, read_log,
    remove, write)

PLUGIN = "/usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so"
LACK = next((each for each in ("sway", "weston", "grim", "wtype") if not shutil.which(each)),
            None if glob(PLUGIN) else PLUGIN)
WIDTH, HEIGHT = 600, 400  # in points; the window fits only if its pane opens less far than usual
BAR = 520 - 2 * MARGIN


class Compositor:
    """One without a screen."""

    def __init__(self, *command, **environment):
        self.folder = tempfile.mkdtemp()
        self.environment = os.environ | environment | {"XDG_RUNTIME_DIR": self.folder}
        self.environment.pop("DISPLAY", None)
        self.process = keep_running(*command, env=self.environment, stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL)
        display = await_that(lambda: glob(self.folder + "/wayland-[0-9]"))[0]
        with socket.socket(socket.AF_UNIX) as client:
            await_that(lambda: client.connect_ex(display) == 0)
        self.environment["WAYLAND_DISPLAY"] = os.path.basename(display)

    def end(self):
        self.process.kill()
        self.process.wait()


class Sway(Compositor):
    """Of which pictures are taken, with someone at the keys."""

    def __init__(self, scale):
        write("/tmp/sway", f"xwayland disable\ndefault_floating_border none\n"
              f"output * resolution {WIDTH * scale:.0f}x{HEIGHT * scale:.0f} scale {scale}\n")
        # It refuses to start where it can become root.
        super().__init__("unshare", "--user", "sway", "--config", "/tmp/sway",
                         WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1")
        # A keyboard that stays: the first key of a new one may come before the window knows it.
        keep_running("wtype", "-s", "600000", env=self.environment)

    def press(self, key):
        subprocess.run(["wtype", "-k", key], env=self.environment, check=True)

    def close_window(self):
        """What the close control in the window's frame does, if there is a window."""
        subprocess.run(["swaymsg", "--quiet", "--socket", *glob(self.folder + "/sway-ipc*"), "kill"],
                       stderr=subprocess.DEVNULL, check=False)

    def rows(self):
        """How many points of each row of the screen are white, and how many are blue."""
        picture = subprocess.run(["grim", "-s", "1", "-t", "ppm", "-"], env=self.environment,
                                 check=True, capture_output=True).stdout[-3 * WIDTH * HEIGHT:]
        for start in range(0, len(picture), 3 * WIDTH):
            row = picture[start:start + 3 * WIDTH]
            red, blue = row[0::3], row[2::3]
            yield (sum(r == b == 255 for r, b in zip(red, blue)),
                   sum(b > r + 60 for r, b in zip(red, blue)))

    def shows_failure(self, share):
        """Whether the bar is filled to that share, and text is below it, and below that the whole
        button, by the frame it has once it takes keys."""
        rows = list(enumerate(self.rows()))
        bar = [row for row, (_, blue) in rows if abs(blue - share * BAR) < 5]
        text = [row for row, (white, _) in rows if white > BAR / 4 and row not in bar]
        frame = [row for row, (_, blue) in rows if 60 < blue < 100]
        return (bar and len(text) > 60 and frame and bar[-1] < text[0] < text[-1] < frame[0]
                and frame[-1] - frame[0] > 15)

    def await_window(self):
        await_that(lambda: self.shows_failure(2 / 3))


def write_files():
    for number in range(2000):
        write(f"{SOURCE}quillbarn.app/{number}", "x" * 5000)


class Wayland(InstallerTest):
    @classmethod
    def setUpClass(cls):
        if LACK:
            raise (RuntimeError if os.environ.get("CI") else unittest.SkipTest)(f"there is no {LACK}")

    def test_at_every_scale(self):
        mount_memory(self, "/Applications", "1m")
        for scale in 1, 1.5, 2:
            with self.subTest(scale=scale):
                self.screen = Sway(scale)
                write(SOURCE + "quillbarn.app/Contents/file", "x")
                self.run_installer("-install", SOURCE, env=self.screen.environment)
                write(SOURCE + "quillbarn.app/Contents/file", "x" * 2_000_000)
                self.press_until_closed(
                    self.start("-install", SOURCE, env=self.screen.environment))
                self.screen.end()

    def test_the_close_control_works_once_the_window_waits(self):
        write_files()
        sway = Sway(1)
        for arguments, last in ((["-install", SOURCE], "d completed"),
                                (["-install"], "d invalid options")):
            with self.subTest(arguments=arguments):
                remove(LOG)
                installer = self.start(*arguments, env=sway.environment)
                await_that(lambda: installer.poll() is not None or sway.close_window())
                self.expect_orderly_end(installer)
                self.assertEqual(read_log()[-2], last)

    def test_a_compositor_that_dies_is_told_in_the_log(self):
        write_files()
        weston = Compositor("weston", "--backend=headless-backend.so", "--no-config")
        self.run_installer("-install", SOURCE, env=weston.environment)
        remove(LOG)
        installer = self.start("-install", SOURCE, stderr=subprocess.DEVNULL, env=weston.environment)
        await_that(lambda: os.path.exists(LOG) and f"d  copy {BUNDLE}/1" in read_log())
        weston.end()
        self.assertEqual(installer.wait(10), 1)
        self.assertEqual(read_log()[-2:], ["e the display was lost, and the run ends here",
                                           "n installer exit"])

    def test_a_compositor_that_is_not_there(self):
        environment = os.environ | {"WAYLAND_DISPLAY": "wayland-0", "XDG_RUNTIME_DIR": "/tmp"}
        environment.pop("DISPLAY", None)
        installer = self.start("-uninstall", env=environment, stderr=subprocess.PIPE)
        _, errors = installer.communicate(timeout=20)
        self.assertEqual((errors.decode(), installer.returncode), (
            "The window can’t be opened on the Wayland display “wayland-0”: check that "
            "WAYLAND_DISPLAY names a running compositor.\n", 1))
        self.assertFalse(os.path.exists(LOG))
