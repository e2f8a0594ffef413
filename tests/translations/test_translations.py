"""All texts exist in all languages, and the documents list the same languages and options."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
from xml.etree import ElementTree

SOURCES = pathlib.Path(os.environ["SOURCES"])
CATALOGUES = list(SOURCES.glob("resources/translations/*.ts"))
FOLDERS = "app controller disk install log platform resources task".split()


class Translations(unittest.TestCase):
    def test_catalogues_are_complete(self):
        folder = self.enterContext(tempfile.TemporaryDirectory())
        copies = [pathlib.Path(shutil.copy(path, folder)) for path in CATALOGUES]
        subprocess.run([*os.environ["LUPDATE"].split(), *FOLDERS, "-ts", *copies], cwd=SOURCES, check=True)
        texts = {path.stem: {(context.find("name").text, text.find("source").text): (
                             result.attrib, result.text and sorted(re.findall("%.", result.text)))
                             for context in ElementTree.parse(path).iter("context")
                             for text in context.iter("message") for result in text.iter("translation")}
                 for path in copies}
        # Without attributes such as "unfinished" or "vanished".
        complete = {key: ({}, placeholders) for key, (_, placeholders) in texts["en"].items()}
        for language in texts:
            self.assertEqual(texts[language], complete, language)

    def test_languages_and_options_in_documents(self):
        languages = sorted({path.stem for path in CATALOGUES} - {"en"})
        entry, metainfo, manual, readme, modes = ((SOURCES / path).read_text() for path in (
            "share/quillbarninstaller.desktop", "share/org.example.quillbarn.installer.metainfo.xml.in",
            "share/quillbarninstaller.1.in", "README.md", "controller/Modes.cpp"))
        for text, pattern, keys in (entry, r"^(\w+)\[(\w+)\]=", ["Name", "Comment"]), (
                metainfo, r'<(\w+) xml:lang="(\w+)">', ["name", "summary", "p", "p"]):
            self.assertEqual(re.findall(pattern, text, re.MULTILINE), [(key, each) for key in keys for each in languages])
        for text in readme, manual.replace("\\", ""):
            names = re.search(r"(Arabic[\w\s(),]+\sor\s+\w+)", text)[1]
            self.assertEqual(len(re.split(r",\s+|\s+or\s+", names)), len(languages), names)
            for option in re.findall(r'"(-\w+)"', modes):
                self.assertIn(option, text)
