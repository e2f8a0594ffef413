"""What a screen reader gets to know of the window on a private machine."""

import os
import shutil
import unittest

from machine import InstallerTest, await_that, start_bus

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
LACK = None if shutil.which(LAUNCHER) else "there is no " + LAUNCHER
try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as error:
    LACK = str(error)

FOCUS = "object:state-changed:focused"
VALUE = "object:property-change:accessible-value"
CARET = "object:text-caret-moved"
LAYOUT = "application", "filler", "scroll bar"


def describe(part):
    """Its role, its name, and its share of the range, its text or else its description."""
    interfaces = part.get_interfaces()
    if "Value" in interfaces:
        least, most = Atspi.Value.get_minimum_value(part), Atspi.Value.get_maximum_value(part)
        content = round((Atspi.Value.get_current_value(part) - least) / (most - least), 3)
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


class ScreenReaderTest(InstallerTest):
    @classmethod
    def setUpClass(cls):
        if LACK:
            raise (RuntimeError if os.environ.get("CI") else unittest.SkipTest)(LACK)
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

    def await_event(self, *event):
        await_that(lambda: event in self.listen())

    @staticmethod
    def read_screen():
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        return list(read(desktop))
