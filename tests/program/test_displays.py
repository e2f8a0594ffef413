"""The window on X and Wayland, and displays that are missing or lost."""

import json
import os
import tempfile

from harness import *

PLUGINS = "/usr/lib/*/qt6/plugins/platforms/libqwayland*"
HEIGHT = 400  # in points; the pane has less room than usual
WAYLAND = {"WAYLAND_DISPLAY": "wayland-0"}
WITHOUT_PLUGINS = "unshare", "--mount", "sh", "-ec", (
    f'for plugin in {PLUGINS}; do mount --bind /dev/null "$plugin"; done; exec "$0" "$@"')
MISSING = (  # the environment, the error, and the start of the command
    (WAYLAND, "on the Wayland display “wayland-0”. Check that WAYLAND_DISPLAY names"),
    (WAYLAND, "on the Wayland display “wayland-0”. Install the package qt6-wayland.", *WITHOUT_PLUGINS),
    ({}, "without a display. Start the installer in a desktop session, or"),
    ({"DISPLAY": ":4711"}, "on the display “:4711”. Check that DISPLAY names a running"),
    ({"QT_QPA_PLATFORM": "none"}, "with the Qt platform plugin “none”. Install the plugin, or"))


class Sway(Screen):
    """A Wayland compositor in memory."""

    def __init__(self):
        require("sway", "wtype", PLUGINS)
        write("/tmp/sway", "xwayland disable\nfor_window [title=.*] floating enable\n"
              f"output * resolution 900x{HEIGHT * 1.5:.0f} scale 1.5\n")
        folder = tempfile.mkdtemp()
        self.environment = os.environ | ON_DISPLAY | {
            "XDG_RUNTIME_DIR": folder, "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "DISPLAY": "",
            "WLR_LIBINPUT_NO_DEVICES": "1", "SWAYSOCK": folder + "/control", "WAYLAND_DISPLAY": "wayland-1"}
        # It refuses to start where it can become root.
        self.server = keep_running("unshare", "--user", "sway", "--config", "/tmp/sway", env=self.environment)
        await_that(lambda: self.run("swaymsg", "--type", "get_outputs"))
        # A permanent keyboard: the first key of a new one can arrive before the compositor announces the keyboard to the window.
        keep_running("wtype", "-s", "600000", env=self.environment)

    def places(self):
        """Returns the rectangle of the title bar, if there is a window, and of what is below it."""
        screens = json.loads(self.run("swaymsg", "--type", "get_tree"))["nodes"]
        return [(window["deco_rect"], window["rect"])
                for screen in screens for desk in screen["nodes"] for window in desk["floating_nodes"]]

    def press(self, key):
        self.run("wtype", "-k", key)


class Displays(InstallerTest):
    def test_complete_window_on_wayland(self):
        write_files(600, room="1m")
        screen = Sway()
        installer = self.start(*INSTALL, env=screen.environment)

        # The last size reaches the compositor with a frame, which can be later than the next key.
        await_that(lambda: any(title_bar["y"] >= 0 and place["y"] + place["height"] >= HEIGHT - 20
                               for title_bar, place in screen.places()))
        places = self.press_until_closed(screen, installer)
        self.assertLessEqual(max(place["y"] + place["height"] for _, place in places), HEIGHT)

    def test_lost_display(self):
        write_files(3000)
        for screen in Screen(), Sway():
            with self.subTest(screen=screen):
                remove(LOG)
                installer = self.start(*INSTALL, env=screen.environment)
                await_that(lambda: len(read_log()) > 100)
                screen.server.kill()
                self.assertEqual((installer.wait(10), read_log()[-2:]),
                                 (1, ["e display connection lost", "n installer exit"]))

    def test_missing_display(self):
        require(PLUGINS)
        usual = {"QT_QPA_PLATFORM": "", "DISPLAY": "", "WAYLAND_DISPLAY": "", "XDG_RUNTIME_DIR": "/tmp"}
        for environment, error, *command in MISSING:
            self.expect_no_start("window could not be opened " + error, *UNINSTALL, env=usual | environment,
                                 command=[*command, INSTALLER])

    def test_window_stays_when_pane_opens(self):
        write_files(600, room="3m")
        screen = Screen()
        installer = self.start(*INSTALL, command=SLOWLY, env=screen.environment)
        screen.await_window()
        framed = screen.places()
        screen.press("F2")  # removes the frame, so that cached margins are wrong
        place = await_that(lambda: screen.places() != framed and screen.places())
        self.assertEqual(set(self.press_until_closed(screen, installer)), set(place))

    def test_activation_and_hidden_window(self):
        screen = Screen()
        self.start(env=screen.environment)
        screen.await_window()
        self.start("-install", "/nowhere/", env=screen.environment)
        await_that(lambda: screen.run("xdotool", "getactivewindow", "getwindowname") == FAILURE)
        self.expect_orderly_end(self.start(*UNINSTALL, env=screen.environment))
