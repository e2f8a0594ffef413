import os

from machine import SOURCE, await_that, mount_memory, write
from screen_reader import CARET, FOCUS, VALUE, ScreenReaderTest

FILE = "quillbarn.app/Contents/file"
FAILURE = "quillbarn could not be installed"


class Accessibility(ScreenReaderTest):
    def shares(self):
        """How full the bar was at each of its steps that were told."""
        return [part[2] for kind, _, part in self.listen() if kind == VALUE]

    def test_how_far_a_run_came_and_why_it_failed(self):
        write(SOURCE + FILE, "x" * 2_000_000)
        mount_memory(self, "/Applications", "1m")
        for source, share, steps, error in (
                ("/tmp/nowhere/", 0, [],
                 "The folder “/tmp/nowhere/quillbarn.app/” couldn’t be opened because it doesn’t "
                 "exist (No such file or directory)."),
                (SOURCE, round(2 / 3, 3),
                 ["mkdir /Applications/quillbarn.app", "mkdir /Applications/quillbarn.app/Contents",
                  " copy /Applications/" + FILE],
                 f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because the "
                 "volume is out of space (No space left on device).")):
            with self.subTest(source=source):
                installer = self.start("-install", source)
                messages = "\n".join([*steps, "", error])
                text = ("text", "Messages", messages)
                button = ("button", "Close", error)
                self.screen.await_window(FAILURE)
                self.await_event(FOCUS, True, button)
                self.assertEqual(self.read_screen(), [
                    ("dialog", FAILURE, ""), ("label", "quillbarn", ""),
                    ("progress bar", "Progress", share), ("image", "Warning", ""), text, button])

                self.screen.press("shift+Tab")
                self.await_event(FOCUS, True, text)
                self.screen.press("ctrl+Home")
                self.await_event(CARET, 0, text)
                self.screen.press("Down")
                self.await_event(CARET, messages.index("\n") + 1, text)
                self.screen.press("Return")
                self.expect_orderly_end(installer)

    def test_a_run_is_told_as_it_goes_on(self):
        for number in range(1000):
            write(f"{SOURCE}quillbarn.app/files/{number}")
        for number in range(20):  # each makes it last as long again
            os.symlink("files", f"{SOURCE}quillbarn.app/{number}")
        self.listen().clear()
        installer = self.start("-install", SOURCE)
        await_that(self.shares)
        window, _, bar = self.read_screen()
        self.assertEqual(window, ("dialog", "Installing quillbarn", ""))
        self.assertEqual(bar[:2], ("progress bar", "Progress"))
        await_that(lambda: self.shares()[-1] == 1, seconds=60)
        self.assertLess(self.shares()[0], 1)
        self.assertEqual(self.shares(), sorted(self.shares()))
        self.expect_orderly_end(installer)
