"""Every catalogue has all texts of the sources, and no other, in its language."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
from xml.etree import ElementTree


class Translations(unittest.TestCase):
    def test_each_text_has_one_with_the_same_places(self):
        sources = pathlib.Path(os.environ["SOURCES"])
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        catalogues = [shutil.copy(path, folder.name) for path in sources.glob("resources/translations/*.ts")]
        subprocess.run([*os.environ["LUPDATE"].split(), "app", "controller", "disk", "install", "log", "platform",
                        "resources", "task", "-ts", *catalogues], cwd=sources, check=True)
        self.assertEqual(len(catalogues), 6)
        for message in (each for path in catalogues for each in ElementTree.parse(path).iter("message")):
            text, translation = message.find("source").text, message.find("translation")
            self.assertEqual(translation.attrib, {}, text)  # such as "unfinished" or "vanished"
            self.assertEqual(*(sorted(re.findall("%.", each)) for each in (text, translation.text)))
