import os

from machine import BUNDLE, SOURCE, InstallerTest, read_tree, remove, write


def entries_of(parent):
    """What a listing of the bundle in `parent` holds, in its order: links are followed."""
    def walk(folder):
        for name in os.listdir(folder):
            path = os.path.join(folder, name)
            if os.path.exists(path):
                yield path
            if os.path.isdir(path):
                yield from walk(path)

    return [parent + "quillbarn.app", *walk(parent + "quillbarn.app")]


def created():
    """The log of the creation of what is in the source."""
    return [("d mkdir " if os.path.isdir(path) else "d  copy ") + "/Applications/"
            + path[len(SOURCE):].replace("\n", "\\n") for path in entries_of(SOURCE)]


def removed():
    """The log of the removal of what is installed."""
    return ["d remove " + path + ("/" if os.path.isdir(path) else "")
            for path in reversed(entries_of("/Applications/"))]


class Install(InstallerTest):
    START = ["n installer start", "d install " + SOURCE, "n install bundle"]
    UNINSTALL = ["n installer start", "d uninstall ", "n uninstall bundle"]
    END = ["d completed", "n installer exit"]

    def test_installs_replaces_and_removes_a_bundle(self):
        write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "first")
        write(SOURCE + "quillbarn.app/Contents/old/only")
        self.assertEqual(
            self.run_installer("-install", SOURCE), self.START + created() + self.END)
        self.assertEqual(read_tree(BUNDLE), read_tree(SOURCE + "quillbarn.app"))

        remove(SOURCE + "quillbarn.app/Contents/old")
        write(SOURCE + "quillbarn.app/Contents/MacOS/quillbarn", "second")
        emptied = removed()[:-1]
        self.assertEqual(
            self.run_installer("'-install'", "''", cwd=SOURCE),  # an empty path is the working folder
            ["n installer start", "d install ", "n install bundle", *emptied, *created(), *self.END])
        self.assertEqual(read_tree(BUNDLE), read_tree(SOURCE + "quillbarn.app"))

        for name, target in ("Versions", "Contents"), ("program", "Versions/MacOS/quillbarn"):
            os.symlink(target, f"{BUNDLE}/{name}")
        for left in removed(), []:
            self.assertEqual(self.run_installer("-uninstall"), self.UNINSTALL + left + self.END)
            self.assertEqual(os.listdir("/Applications"), [])

    def test_carries_over_whatever_a_bundle_holds(self):
        bundle = SOURCE + "quillbarn.app/"
        for name in ".hidden/.file", "line\nfeed", "not \udcff UTF-8/\udcfe", " ", "練習":
            write(bundle + name, name)
        os.mkdir(bundle + "empty")
        os.chmod(bundle + "練習", 0o751)
        os.utime(bundle + "練習", ns=(1, 2))
        os.symlink(" ", bundle + "link")
        os.symlink(".hidden", bundle + "link to a folder")
        os.symlink("nowhere", bundle + "dangling")

        log = self.run_installer("-install", SOURCE)
        self.assertEqual(log, self.START + created() + self.END)
        expected = read_tree(bundle)
        del expected["dangling"]
        expected["link to a folder"] = None
        expected["link to a folder/.file"] = ".hidden/.file"
        self.assertEqual(read_tree(BUNDLE), expected)
        status = os.stat(BUNDLE + "/練習")
        self.assertEqual((status.st_mode & 0o7777, status.st_mtime_ns), (0o751, 2))
