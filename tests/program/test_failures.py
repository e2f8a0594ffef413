import fcntl
import os
from resource import RLIMIT_FSIZE, setrlimit

from machine import (
    BUNDLE, INSTALLER, LOG, SOURCE, InstallerTest, mount, mount_memory, read_log, read_tree, remove, run, write)

FILE = "quillbarn.app/Contents/file"
INSTALL, UNINSTALL = ("-install", SOURCE), ("-uninstall",)

LANGUAGES = {  # what the desktop asks for, and what it gets
    "ar_EG": ("تعذّر تثبيت quillbarn", "تعذّر فتح المجلد «\u2066{}\u2069»: إنّه غير موجود (\u2068{}\u2069)."),
    "xx:de_AT:fr": ("quillbarn konnte nicht installiert werden",
                    "Der Ordner „{}“ konnte nicht geöffnet werden: Das Objekt existiert nicht ({})."),
    "es": ("No se pudo instalar quillbarn", "No se pudo abrir la carpeta «{}»: el elemento no existe ({})."),
    "fr": ("quillbarn n’a pas pu être installé",
           "Le dossier «\xa0{}\xa0» n’a pas pu être ouvert\xa0: l’élément n’existe pas ({})."),
    "ja": ("quillbarn をインストールできませんでした", "フォルダー「{}」を開けませんでした: 存在しません ({})。"),
    "zh_CN": ("无法安装 quillbarn", "无法打开文件夹“{}”：它不存在（{}）。"),
}


class Failure(InstallerTest):
    """Each tells what, where and why in the pane, waits, and leaves on the disk what it should."""

    def setUp(self):
        super().setUp()
        write(SOURCE + FILE, "x" * 2_000_000)
        write(BUNDLE + "/kept", "installed")

    def expect(self, description, *runs, step=None, left=None, key="Return", title=INSTALLER, **options):
        """At the end of each of the runs, after that step. Nothing has changed unless told."""
        left = left or read_tree("/Applications")
        for arguments in runs or (INSTALL, UNINSTALL):
            with self.subTest(arguments=arguments, description=description):
                remove(LOG)
                self.press_until_closed(self.start(*arguments, **options), key, title)
                self.assertEqual(read_log()[-4:], [
                    step or f"n {arguments[0][1:]} bundle", "d ", "d " + description, "n installer exit"])
                self.expect_same(read_tree("/Applications"), left)

    def test_a_source_that_cannot_be_followed_or_holds_what_is_installed(self):
        write(BUNDLE + "/folder/file")
        mount(self, "/tmp/partly/quillbarn.app/mounted", "--bind", BUNDLE + "/folder")
        os.makedirs("/tmp/linked/quillbarn.app")
        os.symlink(BUNDLE, "/tmp/linked/quillbarn.app/link")
        for source, name, same in (("/Applications/", "", ""), ("/tmp/linked/", "/link", ""),
                                   ("/tmp/partly/", "/mounted", "/folder")):
            self.expect(f"“{source}quillbarn.app{name}” couldn’t be installed because it is “{BUNDLE}{same}”, "
                        "which would be emptied first.", ("-install", source))
        os.symlink("..", SOURCE + "quillbarn.app/Contents/loop")
        self.expect(f"The link “{SOURCE}quillbarn.app/Contents/loop” couldn’t be followed because it leads "
                    f"back to “{SOURCE}quillbarn.app/”, a folder that holds it.", INSTALL, key="space")
        remove(SOURCE + "quillbarn.app/Contents/loop")
        os.symlink(300 * "x", SOURCE + "quillbarn.app/Contents/long")
        self.expect(f"“{SOURCE}quillbarn.app/Contents/long” couldn’t be looked at because its name or path is too "
                    "long (File name too long).", INSTALL)

    def test_it_is_told_in_the_language_of_the_desktop(self):
        for language, (title, description) in LANGUAGES.items():
            desktop = os.environ | {"LANGUAGE": language}
            words = run("sh", "-c", "cat /nowhere 2>&1 || true", env=desktop).split(": ")[-1]  # the library's
            self.expect(description.format("/nowhere/quillbarn.app/", words), ("-install", "/nowhere/"),
                        title=title, env=desktop)

    def test_a_limit_to_the_size_of_a_file(self):
        self.expect(
            f"“{SOURCE + FILE}” couldn’t be copied to “/Applications/{FILE}” because it is larger than a "
            "file may be (File too large).", INSTALL, step="d  copy /Applications/" + FILE,
            left={"quillbarn.app": None, "quillbarn.app/Contents": None},
            preexec_fn=lambda: setrlimit(RLIMIT_FSIZE, (1_000_000, 1_000_000)))

    def test_what_cannot_be_removed(self):
        write("/tmp/outside/file")
        mount(self, BUNDLE + "/mounted", "--bind", "/tmp/outside")
        remove(BUNDLE + "/kept")
        self.expect(f"“{BUNDLE}/mounted/file” couldn’t be removed because it lies on another volume, which is "
                    "mounted there (Invalid cross-device link).", step=f"d remove {BUNDLE}/mounted/file")
        mount_memory(self, "/Applications", "1m")
        write(BUNDLE + "/kept", "installed")
        run("mount", "-o", "remount,ro", "/Applications")
        self.expect(f"“{BUNDLE}/kept” couldn’t be removed because the volume is read only (Read-only file "
                    "system).", step=f"d remove {BUNDLE}/kept", key="Escape")

    def test_another_program_is_at_work(self):
        folder = os.open("/Applications", os.O_RDONLY)
        self.addCleanup(os.close, folder)
        fcntl.flock(folder, fcntl.LOCK_EX)
        self.expect("The folder “/Applications/” couldn’t be opened because another program holds it locked.")

    def test_something_else_in_the_place_of_the_bundle(self):
        outside = "/tmp/outside"
        write(outside + "/letter", "dear")
        os.symlink(outside, BUNDLE + "/link")
        self.expect(f"“{BUNDLE}” couldn’t be changed because the link “{BUNDLE}/link” leads out of it, to “{outside}”.")
        remove(BUNDLE)
        os.symlink(outside, BUNDLE)
        for change in None, outside + "/letter", outside:  # as it is, to nothing, to nowhere
            remove(change or "")
            found = read_tree("/tmp/outside")
            self.expect(f"“{BUNDLE}” couldn’t be changed because it is a link, to “{outside}”.")
            self.assertEqual(read_tree("/tmp/outside"), found)
        remove(BUNDLE)
        write(BUNDLE, "a file")
        self.expect(f"The folder “{BUNDLE}/” couldn’t be opened because a part of its path is not a folder "
                    "(Not a directory).")

    def test_a_link_that_leads_nowhere_in_the_place_of_an_entry(self):
        os.symlink("../License.txt", SOURCE + "quillbarn.app/License.txt")
        write(SOURCE + "License.txt")
        write(SOURCE + "quillbarn.app/notes")
        self.run_installer(*INSTALL)
        for name, target in ("License.txt", "../License.txt"), ("notes", "gone"):
            remove(f"{BUNDLE}/{name}")
            os.symlink(target, f"{BUNDLE}/{name}")
            self.expect(f"“{BUNDLE}/{name}” couldn’t be installed because a link that leads nowhere has its "
                        "place. Uninstall first, which removes the link, too.", INSTALL)
            for arguments in UNINSTALL, INSTALL:
                self.assertEqual(self.run_installer(*arguments)[-2], "d completed")
