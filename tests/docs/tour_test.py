"""The programs of the pages, built from the text of the page alone against the installed library, and run as the page says."""

import os
import re
import shutil
import tempfile
import unittest
from pathlib import Path

from pages import DOCS, blocks, run

FILE_NAME = re.compile(r"`([\w.]+)`")
SANITIZE = os.environ.get("ORVEL_SANITIZE", "")


class PageOfPrograms:
    """Writes the sources of a page into a folder and runs its shell blocks there, with a prefix in the place of /usr."""

    def __init__(self, page, folder, prefix):
        self.page = page
        self.folder = folder
        self.prefix = prefix
        self.wrap_compiler()

    def wrap_compiler(self):
        """A library with sanitizers needs them in its users too, of which a page says nothing."""
        tools = self.folder / ".tools"
        tools.mkdir()
        flags = f"-fsanitize={SANITIZE}" if SANITIZE else ""
        wrapper = tools / "c++"
        wrapper.write_text(f'#!/bin/sh\nexec {shutil.which("c++")} {flags} "$@"\n', encoding="utf-8")
        wrapper.chmod(0o755)

    def environment(self):
        return {**os.environ, "CMAKE_PREFIX_PATH": str(self.prefix), "CMAKE_GENERATOR": "Ninja",
                "CXX": str(self.folder / ".tools" / "c++"),
                "PKG_CONFIG_PATH": str(next(self.prefix.rglob("pkgconfig"), "")),
                "LD_LIBRARY_PATH": str(next(self.prefix.rglob("libOrvelCommands.so")).parent),
                "PATH": f"{self.folder}/.tools:{self.prefix}/bin:{os.environ['PATH']}"}

    def write_sources(self):
        for block in blocks(self.page):
            if block.language == "cmake":
                (self.folder / "CMakeLists.txt").write_text(block.text, encoding="utf-8")
            elif block.language == "cpp":
                (self.folder / FILE_NAME.search(block.lead)[1]).write_text(block.text, encoding="utf-8")

    def shell(self, script):
        return run("bash", "-euc", "exec 2>&1\n" + script.replace("/usr/share/", f"{self.prefix}/share/"),
                   folder=self.folder, environment=self.environment())


class Pages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory(prefix="orvel-pages-")
        cls.prefix = Path(cls.temporary.name) / "prefix"
        run(os.environ["ORVEL_CMAKE"], "--install", os.environ["ORVEL_BUILD"], "--prefix", cls.prefix)

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    def programs(self, page):
        folder = Path(self.temporary.name) / Path(page).stem
        folder.mkdir()
        programs = PageOfPrograms(DOCS / page, folder, self.prefix)
        programs.write_sources()
        outputs = [block.text for block in blocks(programs.page, "output")]
        scripts = [block.text for block in blocks(programs.page, "sh")]
        return programs, scripts, outputs

    def test_the_tour_leads_to_the_responses_of_the_objective(self):
        programs, (make_file, with_cmake, with_pkg_config, without_file), (tree, failure) = self.programs("tour.md")
        programs.shell(make_file)
        self.assertEqual(programs.shell(with_cmake)[-len(tree):], tree)
        self.assertEqual(programs.shell(with_pkg_config), tree)
        ended = programs.shell(without_file)
        self.assertIn(failure, ended)
        self.assertTrue(ended.endswith("ended with 1\n"), ended)

    def test_a_storage_of_ones_own_serves_commands_and_aggregates(self):
        programs, (build_and_run,), (said,) = self.programs("own_storage.md")
        self.assertEqual(programs.shell(build_and_run)[-len(said):], said)


if __name__ == "__main__":
    unittest.main()
