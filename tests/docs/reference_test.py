"""The reference that Doxygen makes of the public headers and the pages: no warning, no link that leads nowhere."""

import os
import re
import subprocess
import tempfile
import unittest
import urllib.parse
from pathlib import Path

from pages import REPOSITORY, run

CMAKE = os.environ["ORVEL_CMAKE"]
DOXYGEN = os.environ["ORVEL_DOXYGEN"]
DOXYFILE = Path(os.environ["ORVEL_DOXYFILE"])
TARGET = re.compile(r'(?:href|src)="([^"#?]+)')


def make_reference(folder, *settings):
    """How Doxygen ends with the settings of the build and a folder of our own."""
    text = "\n".join([DOXYFILE.read_text(encoding="utf-8"), f'OUTPUT_DIRECTORY = "{folder}"', *settings, ""])
    return subprocess.run([DOXYGEN, "-"], input=text, capture_output=True, text=True, check=False)


class Reference(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory(prefix="orvel reference ")
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def test_is_made_without_a_warning_and_its_links_lead_somewhere(self):
        ended = make_reference(self.folder)
        self.assertEqual((ended.stderr, ended.returncode), ("", 0))
        pages = sorted((self.folder / "html").glob("*.html"))
        self.assertGreater(len(pages), 100)
        for page in pages:
            targets = {urllib.parse.unquote(target) for target in TARGET.findall(page.read_text(encoding="utf-8"))}
            lost = [target for target in sorted(targets)
                    if not re.match(r"\w+:", target) and not (page.parent / target).exists()]
            with self.subTest(page=page.name):
                self.assertEqual(lost, [])

    def test_has_the_classes_that_users_start_from_and_nothing_of_ours(self):
        make_reference(self.folder)
        names = {page.name for page in (self.folder / "html").glob("*.html")}
        for name in ("classGyre__Parfile.html", "classParfileHdf5Storage.html", "classOrvelParfileStorage.html",
                     "classKLV__Failure.html", "classDV__.html", "classKLV__LogMacros.html", "index.html"):
            self.assertIn(name, names)
        self.assertEqual([name for name in names if "detail" in name or "ReferenceLinker" in name], [])

    def test_fails_for_a_public_declaration_without_a_comment(self):
        header = self.folder / "bare.h"
        header.write_text("/// \\file\n/// A file.\n\n/// A class.\nclass Bare\n{\npublic:\n  int Get() const;\n};\n",
                          encoding="utf-8")
        ended = make_reference(self.folder, f'INPUT = "{header}"', "USE_MDFILE_AS_MAINPAGE =")
        self.assertIn("Member Get() const (function) of class Bare is not documented", ended.stderr)
        self.assertNotEqual(ended.returncode, 0)

    def test_is_installed_with_the_pages_and_the_examples_as_a_component_of_its_own(self):
        build, prefix = self.folder / "build", self.folder / "prefix"
        run(CMAKE, "-S", REPOSITORY, "-B", build, "-G", "Ninja", "-DORVEL_BUILD_DOCS=ON", "-DBUILD_TESTING=OFF",
            "-DORVEL_BUILD_TOOLS=OFF", "-DORVEL_BUILD_EXAMPLES=OFF")
        run(CMAKE, "--build", build, "--target", "docs")
        run(CMAKE, "--install", build, "--component", "doc", "--prefix", prefix)
        documentation = prefix / "share" / "doc" / "orvelcommands"
        self.assertEqual({path.relative_to(prefix).parts[:3] for path in prefix.rglob("*") if path.is_file()},
                         {("share", "doc", "orvelcommands")})
        for name in ("html/index.html", "html/classDV__.html", "tour.md", "architecture.svg", "examples/README.md",
                     "examples/bent_duct/job.toml", "examples/map_storage/MapStorage.h", "examples/consumer/CMakeLists.txt"):
            self.assertTrue((documentation / name).is_file(), name)
        self.assertFalse((documentation / "examples" / "CMakeLists.txt").exists())


if __name__ == "__main__":
    unittest.main()
