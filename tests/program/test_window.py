import os
import subprocess
from glob import glob

from machine import (
    LOG, MARGIN, SOURCE, InstallerTest, Screen, await_that, mount, mount_memory, read_log, write)

FAILURE = "quillbarn could not be installed"


class Window(InstallerTest):
    """What a person sees of it, on screens of all kinds."""

    def test_the_bar_shows_the_part_that_is_done(self):
        mount_memory(self, "/Applications", "1m")
        for number in range(40):
            write(f"{SOURCE}quillbarn.app/{number}", "x" * (2_000_000 if number == 20 else 1))
        installer = self.start("-install", SOURCE)
        window = self.screen.await_window(FAILURE)
        tried = len([line for line in read_log() if line.startswith(("d mkdir ", "d  copy "))])
        self.assertTrue(10 < tried < 35)
        await_that(lambda: abs(self.screen.bar(window) - (tried - 1) / 41) < 0.01)
        self.press_until_closed(installer)

    def test_a_display_that_cannot_be_had(self):
        for plugin in glob("/usr/lib/*/qt6/plugins/platforms/libqwayland*"):
            mount(self, plugin, "--bind", "/dev/null")
        for environment, told in (
                ({"DISPLAY": ""}, "without a display: start it in a desktop session, or set DISPLAY."),
                ({"DISPLAY": ":4711"}, "on the display “:4711”: check that DISPLAY names a running X server."),
                ({"DISPLAY": "", "WAYLAND_DISPLAY": "wayland-0"},
                 "on the Wayland display “wayland-0”: install the package qt6-wayland."),
                ({"QT_QPA_PLATFORM": "none"},
                 "by the plugin “none”: install it, or unset QT_QPA_PLATFORM.")):
            with self.subTest(environment=environment):
                installer = self.start("-uninstall", env=os.environ | environment, stderr=subprocess.PIPE)
                output, errors = installer.communicate(timeout=20)
                self.assertEqual(
                    (output, errors.decode(), installer.returncode),
                    (b"", f"The window can’t be opened {told}\n", 1))
                self.assertFalse(os.path.exists(LOG))

    def test_what_the_toolkit_says_stays_out_of_the_log(self):
        closed = ["sh", "-c", 'exec "$0" "$@" <&- >&- 2>&-', os.environ["INSTALLER"]]
        talkative = os.environ | {"XDG_RUNTIME_DIR": "/nowhere", "QT_DEBUG_PLUGINS": "1"}
        self.assertEqual(self.start("-uninstall", command=closed, env=talkative).wait(20), 0)
        self.assertEqual(read_log(), [
            "n installer start", "d uninstall ", "n uninstall bundle", "d completed", "n installer exit"])

    def test_on_a_small_screen_the_button_is_within_reach(self):
        small = Screen("640x480")
        scale = 2
        installer = self.start(
            "-install", "/nowhere/",
            env=os.environ | {"DISPLAY": small.display, "QT_SCALE_FACTOR": str(scale)})
        window = small.await_window(FAILURE)
        await_that(lambda: small.click(window, scale * (MARGIN + 20), scale * (MARGIN + 10))
                   or installer.poll() is not None, seconds=60)
        self.expect_orderly_end(installer)
