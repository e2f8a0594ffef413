import os

from machine import SOURCE, InstallerTest, Screen, await_that, read_log, write, write_files


class Window(InstallerTest):
    """What a person sees of it, and can do to it."""

    def test_it_closes_only_once_it_waits(self):
        write_files(2000)
        for arguments, keys, last in ((["-install", SOURCE], ("Return", "Escape", "space"), "d completed"),
                                      (["-install"], (), "d invalid options")):
            with self.subTest(arguments=arguments):
                installer = self.start(*arguments)
                self.screen.await_window()
                while installer.poll() is None:
                    for key in keys:
                        self.screen.press(key)
                    self.screen.close_window()
                self.expect_orderly_end(installer)
                self.assertEqual(read_log()[-2], last)

    def test_what_the_toolkit_says_stays_out_of_the_log(self):
        closed = ["sh", "-c", 'exec "$0" "$@" <&- >&- 2>&-', os.environ["INSTALLER"]]
        talkative = os.environ | {"XDG_RUNTIME_DIR": "/nowhere", "QT_DEBUG_PLUGINS": "1"}
        self.assertEqual(self.start("-uninstall", command=closed, env=talkative).wait(20), 0)
        self.assertEqual(read_log(), [
            "n installer start", "d uninstall ", "n uninstall bundle", "d completed", "n installer exit"])

    def test_it_comes_to_the_front_by_itself(self):
        write("/tmp/openbox", "<openbox_config xmlns='http://openbox.org/3.4/rc'><focus><focusNew>no"
              "</focusNew></focus></openbox_config>")  # so that only a window which asks gets the keyboard
        screen = Screen("--config-file", "/tmp/openbox")
        environment = os.environ | {"DISPLAY": screen.display}
        self.start(env=environment)
        other = screen.await_window("quillbarn installer")
        self.assertTrue(screen.has_keyboard(other))
        self.start("-install", "/nowhere/", env=environment)
        window = screen.find_window("quillbarn could not be installed")
        await_that(lambda: screen.has_keyboard(window))
