import os
import socket
import subprocess
import tempfile
from glob import glob

from machine import (
    LOG, MARGIN, SOURCE, InstallerTest, Screen, await_that, keep_running, mount, mount_memory, read_log,
    remove, require, write, write_files)

PLUGINS = "/usr/lib/*/qt6/plugins/platforms/libqwayland*"
SCALE = 1.5
WIDTH, HEIGHT = 600, 400  # in points; the window fits only if its pane opens less far than usual
BAR = 520 - 2 * MARGIN


class Sway:
    """A Wayland compositor in memory, of which pictures are taken, with someone at the keys."""

    def __init__(self):
        write("/tmp/sway", f"xwayland disable\ndefault_floating_border none\n"
              f"output * resolution {WIDTH * SCALE:.0f}x{HEIGHT * SCALE:.0f} scale {SCALE}\n")
        folder = tempfile.mkdtemp()
        self.environment = os.environ | {
            "XDG_RUNTIME_DIR": folder, "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman",
            "WLR_LIBINPUT_NO_DEVICES": "1", "SWAYSOCK": folder + "/control"}
        del self.environment["DISPLAY"]
        # It refuses to start where it can become root.
        self.server = self.keep_running("unshare", "--user", "sway", "--config", "/tmp/sway")
        display = await_that(lambda: glob(folder + "/wayland-[0-9]"))[0]
        with socket.socket(socket.AF_UNIX) as client:
            await_that(lambda: client.connect_ex(display) == 0)
        self.environment["WAYLAND_DISPLAY"] = os.path.basename(display)
        # A keyboard that stays: the first key of a new one may come before the window knows it.
        self.keep_running("wtype", "-s", "600000")

    def keep_running(self, *command):
        return keep_running(*command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def press(self, key):
        subprocess.run(["wtype", "-k", key], env=self.environment, check=True)

    def close_window(self):
        """What the close control in the window's frame does, if there is a window."""
        subprocess.run(["swaymsg", "--quiet", "kill"], env=self.environment, stderr=subprocess.DEVNULL, check=False)

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


class Displays(InstallerTest):
    """Of both kinds, each with what differs from the other."""

    @classmethod
    def setUpClass(cls):
        require("sway", "grim", "wtype", PLUGINS)
        super().setUpClass()

    def test_the_window_on_wayland(self):
        screen = self.screen = Sway()
        write_files(2000)
        installer = self.start("-install", SOURCE, env=screen.environment)
        await_that(lambda: installer.poll() is not None or screen.close_window())
        self.expect_orderly_end(installer)
        self.assertEqual(read_log()[-2], "d completed")

        remove(SOURCE)
        write(SOURCE + "quillbarn.app/Contents/file", "x" * 2_000_000)
        mount_memory(self, "/Applications", "1m")
        self.press_until_closed(self.start("-install", SOURCE, env=screen.environment))

    def test_one_that_dies_is_told_in_the_log(self):
        write_files(3000)
        x, sway = Screen(), Sway()
        for server, environment in (x.server, os.environ | {"DISPLAY": x.display}), (sway.server, sway.environment):
            with self.subTest(server.args[0]):
                remove(LOG)
                installer = self.start("-install", SOURCE, stderr=subprocess.DEVNULL, env=environment)
                await_that(lambda: os.path.exists(LOG) and len(read_log()) > 100)
                server.kill()
                self.assertEqual(installer.wait(10), 1)
                self.assertEqual(read_log()[-2:], [
                    "e the display was lost, and the run ends here", "n installer exit"])

    def test_one_that_cannot_be_had(self):
        def expect(told, **environment):
            with self.subTest(told):
                installer = self.start("-uninstall", env=os.environ | environment, stderr=subprocess.PIPE)
                output, errors = installer.communicate(timeout=20)
                self.assertEqual((output, errors.decode(), installer.returncode),
                                 (b"", f"The window can’t be opened {told}\n", 1))
                self.assertFalse(os.path.exists(LOG))

        wayland = {"DISPLAY": "", "WAYLAND_DISPLAY": "wayland-0", "XDG_RUNTIME_DIR": "/tmp"}
        expect("on the Wayland display “wayland-0”: check that WAYLAND_DISPLAY names a running compositor.", **wayland)
        for plugin in glob(PLUGINS):
            mount(self, plugin, "--bind", "/dev/null")
        expect("on the Wayland display “wayland-0”: install the package qt6-wayland.", **wayland)
        expect("without a display: start it in a desktop session, or set DISPLAY.", DISPLAY="")
        expect("on the display “:4711”: check that DISPLAY names a running X server.", DISPLAY=":4711")
        expect("by the plugin “none”: install it, or unset QT_QPA_PLATFORM.", QT_QPA_PLATFORM="none")
