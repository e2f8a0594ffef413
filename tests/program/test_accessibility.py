"""What a screen reader gets to know of the window."""

import os

from machine import GI, SOURCE, InstallerTest, await_that, mount_memory, read_log, require, start_bus, write_files

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
TYPES = "/usr/lib/*/girepository-1.0/Atspi-2.0.typelib"

FOCUS = "object:state-changed:focused"
VALUE = "object:property-change:accessible-value"
CARET = "object:text-caret-moved"
FAILURE = "quillbarn could not be installed"


def describe(part):
    """Its role, its name, and its value, its text or else its description."""
    interfaces = part.get_interfaces()
    if "Value" in interfaces:
        content = Atspi.Value.get_current_value(part)
    elif "Text" in interfaces:
        content = Atspi.Text.get_text(part, 0, Atspi.Text.get_character_count(part))
    else:
        content = part.get_description()
    role = part.get_role_name().removeprefix("push ")  # which newer ones leave out of "push button"
    return role, part.get_name(), content


def read(whole):
    """All that can be seen in it and is more than layout, the outer before the inner."""
    for part in map(whole.get_child_at_index, range(whole.get_child_count())):
        if part.get_state_set().contains(Atspi.StateType.SHOWING):
            if part.get_role_name() not in ("application", "filler", "scroll bar"):
                yield describe(part)
            yield from read(part)


class Accessibility(InstallerTest):
    @classmethod
    def setUpClass(cls):
        require(LAUNCHER, GI, TYPES)
        global Atspi, GLib
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        super().setUpClass()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = start_bus()
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"

    def test_how_far_a_run_came_and_why_it_failed(self):
        heard = []
        listener = Atspi.EventListener.new(
            lambda event: heard.append((event.type, event.detail1, describe(event.source))))
        for event in FOCUS, VALUE, CARET:
            listener.register(event)

        def await_heard(*event):
            """Or the start of one."""
            def is_heard():
                while GLib.MainContext.default().iteration(False):
                    pass
                self.screen.press("Shift_L")  # does nothing, with the keyboard on the window
                return event in (each[:len(event)] for each in heard)

            await_that(is_heard)

        write_files(600)
        mount_memory(self, "/Applications", "3m")
        installer = self.start("-install", SOURCE, command=[  # slowly, or it is over before anything is heard
            "strace", "--follow-forks", "--output=/dev/null", "--trace=linkat", "--inject=linkat:delay_enter=2000",
            os.environ["INSTALLER"]])
        await_heard(FOCUS, True)  # by the button at the end
        self.screen.await_window(FAILURE)
        *messages, error = [entry[2:] for entry in read_log()[3:]]
        done = len(messages) - 2  # the one that failed, and an empty line
        self.assertRegex(error, "^“.*” couldn’t be copied to “.*” because the volume is out of space")
        bar = "progress bar", "Progress", round(1000 * done / 601)
        text, button = ("text", "Messages", "\n".join([*messages, error])), ("button", "Close", error)
        await_heard(FOCUS, True, button)
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        self.assertEqual(list(read(desktop)), [
            ("dialog", FAILURE, ""), ("label", "quillbarn", ""), bar, ("image", "Warning", ""), text, button])
        values = [part[2] for kind, _, part in heard if kind == VALUE and part[:2] == bar[:2]]
        self.assertEqual(values, sorted(values))
        self.assertEqual((values[0] < bar[2] / 2, values[-1]), (True, bar[2]))
        for key, *event in (("shift+Tab", FOCUS, True), ("ctrl+Home", CARET, 0),
                            ("Down", CARET, len(messages[0]) + 1)):
            self.screen.press(key)
            await_heard(*event, text)
        self.press_until_closed(installer)
