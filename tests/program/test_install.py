import os

from machine import BUNDLE, SOURCE, InstallerTest, read_tree, remove, write

NEW = SOURCE + "quillbarn.app"


def entries_of(folder):
    """The listing of a bundle, in its order, with what is a folder: links are followed."""
    yield folder, True
    for name in os.listdir(folder):
        path = f"{folder}/{name}"
        if os.path.isdir(path):
            yield from entries_of(path)
        elif os.path.exists(path):
            yield path, False


def created():
    """The log of the creation of what is in the source."""
    return [("d mkdir " if is_folder else "d  copy ") + path.replace(NEW, BUNDLE, 1).replace("\n", "\\n")
            for path, is_folder in entries_of(NEW)]


def removed():
    """The log of the removal of what is installed."""
    return [f"d remove {path}{'/' * is_folder}".replace("\n", "\\n") for path, is_folder in entries_of(BUNDLE)][::-1]


class Install(InstallerTest):
    def expect(self, *arguments, told, steps, **options):
        self.assertEqual(self.run_installer(*arguments, **options), [
            "n installer start", "d " + told, f"n {told.split()[0]} bundle", *steps, "d completed", "n installer exit"])

    def test_installs_replaces_and_removes_whatever_a_bundle_holds(self):
        for name in "Contents/old/only", ".hidden/.file", "line\nfeed", "not \udcff UTF-8/\udcfe", " ", "練習":
            write(f"{NEW}/{name}", name)
        os.mkdir(NEW + "/empty")
        for link, target in ("link", " "), ("link to a folder", ".hidden"), ("dangling", "nowhere"):
            os.symlink(target, f"{NEW}/{link}")
        wanted = read_tree(NEW)
        del wanted["dangling"]
        wanted |= {"link to a folder": None, "link to a folder/.file": ".hidden/.file"}
        self.expect("-install", SOURCE, told="install " + SOURCE, steps=created())
        self.assertEqual(read_tree(BUNDLE), wanted)

        remove(NEW)
        write(NEW + "/Contents/MacOS/quillbarn", "second")
        # An empty path is the working folder.
        self.expect("'-install'", "''", cwd=SOURCE, told="install ", steps=removed()[:-1] + created())
        self.assertEqual(read_tree(BUNDLE), read_tree(NEW))

        for name, target in ("Versions", "Contents"), ("program", "Versions/MacOS/quillbarn"):
            os.symlink(target, f"{BUNDLE}/{name}")
        for left in removed(), []:
            self.expect("-uninstall", told="uninstall ", steps=left)
            self.assertEqual(os.listdir("/Applications"), [])
