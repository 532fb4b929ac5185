"""The man page: formatted without a warning, and complete."""

import os
import re
import subprocess
import unittest

from support import GOOD, ROOT, ToolTest

PAGE = ROOT / "docs" / "man" / "orvel-parfile.1"


class ManPage(ToolTest):
    def format(self, *command):
        run = subprocess.run([*command, PAGE], capture_output=True, timeout=60, check=False,
                             env={**os.environ, "MANWIDTH": "1000", "LC_ALL": "C.UTF-8", "MANROFFOPT": ""})
        self.assertEqual((GOOD, ""), (run.returncode, run.stderr.decode()))
        return run.stdout.decode()

    def page(self):
        """The page as a reader sees it, in long lines."""
        return re.sub(".\x08", "", self.format("man", "--warnings", "--nh", "--nj", "-E", "UTF-8", "-Tutf8", "-l"))

    def test_formats_without_a_warning(self):
        self.page()
        self.format("groff", "-ww", "-z", "-mandoc", "-Tutf8")

    def test_a_fault_would_be_told(self):
        """That the test above can fail."""
        run = subprocess.run(["groff", "-ww", "-z", "-mandoc", "-Tutf8"], input=PAGE.read_bytes() + b".Xyz\n",
                             capture_output=True, timeout=60, check=False)
        self.assertNotEqual(b"", run.stderr)

    def test_has_all_that_the_tool_offers(self):
        page = self.page()
        synopsis = page[page.index("SYNOPSIS"):page.index("DESCRIPTION")]
        names = re.findall(r"^  ([a-z]+) ", self.tool("--help").out.split("Subcommands:")[1], re.MULTILINE)
        self.assertLessEqual({"init", "import", "export", "show", "check", "set", "unset", "schema"}, set(names))
        for name in names:
            lines = [line for line in re.split("(?=orvel-parfile )", synopsis) if line.startswith(f"orvel-parfile {name}")]
            self.assertNotEqual([], lines, name)
            self.assertRegex(page, rf"(?m)^ +{name} {{2,}}[A-Z]")
            for option in re.findall(r"^ .*?(--[a-z-]+)", self.tool(name, "--help").out, re.MULTILINE):
                with self.subTest(name, option=option):
                    if option not in ("--help", "--output"):  # -o stands for the last one
                        self.assertRegex(" ".join(lines), rf"{option}\b")
                    self.assertRegex(page[page.index("Options"):], rf"(?m)^ +(-[a-z], )?{option}\b")

    def test_has_the_usual_sections_and_all_exit_codes(self):
        page = self.page()
        sections = re.findall(r"^[A-Z][A-Z ]+$", page, re.MULTILINE)
        self.assertEqual(["NAME", "SYNOPSIS", "DESCRIPTION", "ENVIRONMENT", "FILES", "EXIT STATUS", "EXAMPLES", "SEE ALSO"],
                         sections)
        self.assertEqual(["0", "1", "2"],
                         re.findall(r"^ +(\d) ", page[page.index("EXIT STATUS"):page.index("EXAMPLES")], re.MULTILINE))
        self.assertIn("NO_COLOR", page)

    def test_its_examples_work(self):
        """Those of set and unset, on the example job."""
        page = self.page()
        self.copy_example("bent_duct")
        (self.folder / "run").mkdir()
        known = ("import", "set", "unset")
        lines = [line.split()[1:] for line in page[page.index("EXAMPLES"):].splitlines() if "orvel-parfile " in line]
        lines = [words for words in lines if words[0] in known]
        self.assertEqual(7, len(lines))
        for words in lines:
            with self.subTest(words):
                result = self.tool(*words)
                if words[-1] == "--attributes":
                    self.assertIn("has no attributes", result.err)
                else:
                    self.assertEqual((GOOD, ""), (result.code, result.err))


if __name__ == "__main__":
    unittest.main()
