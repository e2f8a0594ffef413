import os
import struct
from resource import RLIMIT_NOFILE, setrlimit

from machine import BUNDLE, SOURCE, InstallerTest, read_tree, remove, write

NEW = SOURCE + "quillbarn.app"
LIST, LIST_OF_NEW = "system.posix_acl_access", "system.posix_acl_default"
NOBODY = 0xffffffff


def list_with(user):
    """An access control list as the system keeps it: the owner may do all, and that user read and write."""
    return struct.pack("<I" + 5 * "HHI", 2, 1, 7, NOBODY, 2, 6, user, 4, 0, NOBODY, 16, 6, NOBODY, 32, 0, NOBODY)


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
        os.rmdir("/Applications")
        self.expect("-uninstall", told="uninstall ", steps=[])
        for name in "Contents/old/only", ".hidden/.file", "line\nfeed", "not \udcff UTF-8/\udcfe", " ", "練習":
            write(f"{NEW}/{name}", name)
        os.mkdir(NEW + "/empty")
        for depth in range(200):  # deeper than the program may have files open
            write(f"{NEW}{depth * '/d'}/file")
        os.symlink(" ", NEW + "/link")
        wanted = read_tree(NEW)
        for link, target in ("dangling", "nowhere"), ("circle", "circle"), ("astray", " /x"), ("folder", ".hidden"):
            os.symlink(target, f"{NEW}/{link}")
        wanted |= {"folder": None, "folder/.file": ".hidden/.file"}
        self.expect("-install", SOURCE, told="install " + SOURCE, steps=created(),
                    preexec_fn=lambda: setrlimit(RLIMIT_NOFILE, (320, 320)))
        self.assertEqual(read_tree(BUNDLE), wanted)

        remove(NEW)
        write(NEW + "/Contents/MacOS/quillbarn", "second")
        # An empty path is the working folder.
        self.expect("'-install'", "''", cwd=SOURCE, told="install ", steps=removed()[:-1] + created())
        self.assertEqual(read_tree(BUNDLE), read_tree(NEW))

        for name, target in ("Versions", "Contents"), ("program", "Versions/MacOS/quillbarn"):
            os.symlink(target, f"{BUNDLE}/{name}")
        self.expect("-uninstall", told="uninstall ", steps=removed())
        self.assertEqual(os.listdir("/Applications"), [])

    def test_a_copy_carries_what_a_file_has_but_no_rights_of_its_own(self):
        for name in "file", "shared":
            write(f"{NEW}/{name}", "x")
        os.truncate(NEW + "/file", 40_000_000)
        os.setxattr(NEW + "/file", "security.capability", b"\1\0\0\2\0\4".ljust(20, b"\0"))
        os.chmod(NEW + "/file", 0o6451)
        os.utime(NEW + "/file", ns=(10**18 + 123, 10**18 + 456))
        os.setxattr(NEW + "/shared", LIST, list_with(1))
        os.setxattr("/Applications", LIST_OF_NEW, list_with(2))
        self.addCleanup(os.removexattr, "/Applications", LIST_OF_NEW)
        self.run_installer("-install", SOURCE)
        found = os.stat(BUNDLE + "/file")
        self.assertEqual((found.st_mode & 0o7777, found.st_atime_ns, found.st_mtime_ns, found.st_size),
                         (0o451, 10**18 + 123, 10**18 + 456, 40_000_000))
        self.assertLess(512 * found.st_blocks, 4_000_000)  # a hole stays a hole
        self.assertEqual(os.listxattr(BUNDLE + "/file"), [])
        self.assertEqual(os.getxattr(BUNDLE + "/shared", LIST), list_with(1))
