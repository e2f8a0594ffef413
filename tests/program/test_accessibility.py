"""The window as a screen reader receives it (AT-SPI)."""

import os

from harness import *

FOCUS, VALUE, CARET = "state-changed:focused", "property-change:accessible-value", "text-caret-moved"


def describe(part):
    """Returns the role, the name, and the value, the text or the description of a part of the window."""
    interfaces = part.get_interfaces()
    content = (Atspi.Value.get_current_value(part) if "Value" in interfaces else
               Atspi.Text.get_text(part, 0, -1) if "Text" in interfaces else part.get_description())
    # Newer versions name the role "button" instead of "push button".
    return part.get_role_name().removeprefix("push "), part.get_name(), content


def visible_parts(whole):
    """Yields the descriptions of all visible parts that are not layout, the outer before the inner."""
    for part in map(whole.get_child_at_index, range(whole.get_child_count())):
        if part.get_state_set().contains(Atspi.StateType.SHOWING):
            if part.get_role_name() not in ("application", "filler", "scroll bar"):
                yield describe(part)
            yield from visible_parts(part)


class Accessibility(InstallerTest):
    def test_progress_and_failure(self):
        require("/usr/libexec/at-spi-bus-launcher", GI, "/usr/lib/*/girepository-1.0/Atspi-2.0.typelib")
        global Atspi
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        screen, events = Screen(), []
        os.environ.update(screen.environment, DBUS_SESSION_BUS_ADDRESS=start_bus(),
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        # By default a call fails after 0.8 s, and the result of a failed call is undefined.
        Atspi.set_timeout(20_000, 20_000)
        listener = Atspi.EventListener.new(lambda each: events.append((each.type, each.detail1, each.source)))
        for event in FOCUS, VALUE, CARET:
            listener.register("object:" + event)

        def await_event(kind, detail, role):
            def is_received():
                while GLib.MainContext.default().iteration(False):
                    pass
                screen.press("Shift_L")  # has no effect, but gives the window the keyboard focus
                return [e[2] for e in events if ("object:" + kind, detail, role) == (*e[:2], describe(e[2])[0])]

            return await_that(is_received)[0]

        write_files(600, room="3m")
        installer = self.start(*INSTALL, command=SLOWLY, env=os.environ)
        progress = describe(await_event(VALUE, 0, "progress bar"))[2]
        await_event(FOCUS, True, "button")  # when the pane is open
        screen.await_window(FAILURE)
        *messages, error = [entry[2:] for entry in read_log()[3:]]
        self.assertRegex(error, "^“.*” could not be copied to “.*”. The volume has no space left")
        # The failed entry and the empty line are not done.
        bar = "progress bar", "Progress", round(1000 * (len(messages) - 2) / 601)
        text, button = ("text", "Messages", "\n".join([*messages, error])), ("button", "Close", error)
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        self.assertEqual(list(visible_parts(desktop)), [
            ("dialog", FAILURE, ""), ("label", FAILURE, ""), bar, ("image", "Warning", ""), text, button])
        self.assertLess(progress, bar[2])
        for key, *event in ("shift+Tab", FOCUS, True), ("ctrl+Home", CARET, 0), ("Down", CARET, len(messages[0]) + 1):
            screen.press(key)
            await_event(*event, "text")
        self.press_until_closed(screen, installer)
        events.clear()
        self.start(env=os.environ | {"LANGUAGE": "ar"})  # from right to left
        self.assertLess(await_event(FOCUS, True, "button").get_position(Atspi.CoordType.WINDOW).x, 100)
