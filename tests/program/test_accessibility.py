"""What a screen reader gets to know of the window."""

import os

from machine import GI, SOURCE, InstallerTest, await_that, mount_memory, require, start_bus, write

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
TYPES = "/usr/lib/*/girepository-1.0/Atspi-2.0.typelib"
try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    Atspi = None

FOCUS = "object:state-changed:focused"
VALUE = "object:property-change:accessible-value"
CARET = "object:text-caret-moved"
LAYOUT = "application", "filler", "scroll bar"
FILE = "quillbarn.app/Contents/file"
FAILURE = "quillbarn could not be installed"


def describe(part):
    """Its role, its name, and its share of the range, its text or else its description."""
    interfaces = part.get_interfaces()
    if "Value" in interfaces:
        content = round(Atspi.Value.get_current_value(part) / Atspi.Value.get_maximum_value(part), 3)
    elif "Text" in interfaces:
        content = Atspi.Text.get_text(part, 0, Atspi.Text.get_character_count(part))
    else:
        content = part.get_description()
    role = part.get_role_name().removeprefix("push ")  # which newer ones leave out of "push button"
    return role, part.get_name(), content


def read(whole):
    """All that can be seen in it and is more than layout, the outer before the inner."""
    for index in range(whole.get_child_count()):
        part = whole.get_child_at_index(index)
        if part.get_state_set().contains(Atspi.StateType.SHOWING):
            if part.get_role_name() not in LAYOUT:
                yield describe(part)
            yield from read(part)


def read_screen():
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    return list(read(desktop))


class Accessibility(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(LAUNCHER, GI, TYPES)
        super().setUpClass()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = start_bus()
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        cls.heard = []
        cls.listener = Atspi.EventListener.new(cls._hear)
        for event in FOCUS, VALUE, CARET:
            cls.listener.register(event)

    @classmethod
    def _hear(cls, event):
        if event.source.get_role_name() not in LAYOUT:
            cls.heard.append((event.type, event.detail1, describe(event.source)))

    def listen(self):
        """The events until now: the kind, its number, and the part as it was then."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self.heard

    def shares(self):
        """How full the bar was at each of its steps that were told."""
        return [part[2] for kind, _, part in self.listen() if kind == VALUE]

    def test_how_far_a_run_came_and_why_it_failed(self):
        write(SOURCE + FILE, "x" * 2_000_000)
        mount_memory(self, "/Applications", "1m")
        installer = self.start("-install", SOURCE)
        error = (f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because the volume is out of "
                 "space (No space left on device).")
        messages = (f"mkdir /Applications/quillbarn.app\nmkdir /Applications/quillbarn.app/Contents\n"
                    f" copy /Applications/{FILE}\n\n{error}")
        text, button = ("text", "Messages", messages), ("button", "Close", error)
        self.screen.await_window(FAILURE)
        await_that(lambda: (FOCUS, True, button) in self.listen())
        self.assertEqual(read_screen(), [
            ("dialog", FAILURE, ""), ("label", "quillbarn", ""), ("progress bar", "Progress", round(2 / 3, 3)),
            ("image", "Warning", ""), text, button])
        for key, *event in (("shift+Tab", FOCUS, True), ("ctrl+Home", CARET, 0),
                            ("Down", CARET, messages.index("\n") + 1)):
            self.screen.press(key)
            await_that(lambda wanted=(*event, text): wanted in self.listen())
        self.press_until_closed(installer)

    def test_a_run_is_told_as_it_goes_on(self):
        for number in range(1000):
            write(f"{SOURCE}quillbarn.app/files/{number}")
        for number in range(20):  # each makes it last as long again
            os.symlink("files", f"{SOURCE}quillbarn.app/{number}")
        self.listen().clear()
        installer = self.start("-install", SOURCE)
        await_that(self.shares)
        window, _, bar = read_screen()
        self.assertEqual(window, ("dialog", "Installing quillbarn", ""))
        self.assertEqual(bar[:2], ("progress bar", "Progress"))
        await_that(lambda: self.shares()[-1] == 1, seconds=60)
        self.assertLess(self.shares()[0], 1)
        self.assertEqual(self.shares(), sorted(self.shares()))
        self.expect_orderly_end(installer)
