import json
import os
import subprocess
import tempfile
from glob import glob

from machine import (
    LOG, SOURCE, InstallerTest, Screen, await_that, keep_running, mount, mount_memory, read_log, remove,
    require, write, write_files)

PLUGINS = "/usr/lib/*/qt6/plugins/platforms/libqwayland*"
SCALE = 1.5
WIDTH, HEIGHT = 600, 400  # in points; the window fits only if its pane opens less far than usual
MARGIN = 20  # of the window, below the button


class Sway(Screen):
    """A Wayland compositor in memory."""

    def __init__(self):
        write("/tmp/sway", f"xwayland disable\ndefault_floating_border none\n"
              f"output * resolution {WIDTH * SCALE:.0f}x{HEIGHT * SCALE:.0f} scale {SCALE}\n")
        folder = tempfile.mkdtemp()
        self.environment = os.environ | {
            "XDG_RUNTIME_DIR": folder, "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman",
            "WLR_LIBINPUT_NO_DEVICES": "1", "SWAYSOCK": folder + "/control", "WAYLAND_DISPLAY": "wayland-1"}
        del self.environment["DISPLAY"]
        # It refuses to start where it can become root.
        self.server = keep_running("unshare", "--user", "sway", "--config", "/tmp/sway", env=self.environment)
        await_that(self.picture)
        # A keyboard that stays: the first key of a new one may come before the window knows it.
        keep_running("wtype", "-s", "600000", env=self.environment)

    def press(self, key):
        for place in (window["rect"] for window in self.windows()):
            self.bottom = place["y"] + place["height"]
        self.run("wtype", "-k", key)

    def picture(self):
        return self.run("grim", "-t", "ppm", "-")

    def windows(self):
        """Each with its title, and the rectangle it has on the screen."""
        tree = json.loads(self.run("swaymsg", "-t", "get_tree"))
        return [window for screen in tree["nodes"] for desk in screen["nodes"] for window in desk["floating_nodes"]]

    def active_title(self):
        return [window["name"] for window in self.windows()]

    def await_window(self):
        """Once it is drawn: an empty screen has few colours."""
        await_that(lambda: len(set(self.picture())) > 100)


class Displays(InstallerTest):
    """Of both kinds, each with what differs from the other."""

    @classmethod
    def setUpClass(cls):
        require("sway", "grim", "wtype", PLUGINS)
        super().setUpClass()

    def test_the_window_on_wayland(self):
        self.screen = Sway()
        write(SOURCE + "quillbarn.app/Contents/file", "x" * 2_000_000)
        mount_memory(self, "/Applications", "1m")
        self.press_until_closed(self.start("-install", SOURCE, env=self.screen.environment))
        self.assertAlmostEqual(self.screen.bottom, HEIGHT, delta=MARGIN)  # so that all of the button can be seen

    def test_one_that_dies_is_told_in_the_log(self):
        write_files(3000)
        for display in Screen(), Sway():
            with self.subTest(display):
                remove(LOG)
                installer = self.start("-install", SOURCE, stderr=subprocess.DEVNULL, env=display.environment)
                await_that(lambda: os.path.exists(LOG) and len(read_log()) > 100)
                display.server.kill()
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


class Window(InstallerTest):
    """What a person sees of it, and can do to it."""

    def test_its_frame_closes_it_only_once_it_waits(self):
        write_files(2000)
        for arguments, last in (["-install", SOURCE], "d completed"), (["-install"], "d invalid options"):
            with self.subTest(arguments=arguments):
                self.press_until_closed(self.start(*arguments), "alt+F4")
                self.assertEqual(read_log()[-2], last)

    def test_what_the_toolkit_says_stays_out_of_the_log(self):
        closed = ["sh", "-c", 'exec "$0" "$@" <&- >&- 2>&-', os.environ["INSTALLER"]]
        talkative = os.environ | {"XDG_RUNTIME_DIR": "/nowhere", "QT_DEBUG_PLUGINS": "1"}
        self.assertEqual(self.start("-uninstall", command=closed, env=talkative).wait(20), 0)
        self.assertEqual(read_log(), [
            "n installer start", "d uninstall ", "n uninstall bundle", "d completed", "n installer exit"])

    def test_it_comes_to_the_front_by_itself_or_does_without(self):
        # Only a window that asks gets the keyboard, and one is not shown at all.
        write("/tmp/openbox", "<openbox_config xmlns='http://openbox.org/3.4/rc'><focus><focusNew>no</focusNew></focus>"
              "<applications><application title='Removing*'><iconic>yes</iconic></application></applications>"
              "</openbox_config>")
        screen = Screen("--config-file", "/tmp/openbox")
        self.start(env=screen.environment)
        screen.await_window("quillbarn installer")
        self.start("-install", "/nowhere/", env=screen.environment)
        await_that(lambda: screen.active_title() == "quillbarn could not be installed")
        self.expect_orderly_end(self.start("-uninstall", env=screen.environment))
