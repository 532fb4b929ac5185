"""The page docs/orvel-parfile.md: each command of its sessions, run in order, prints what the page says."""

import os
import pathlib
import re
import shutil
import subprocess
import unittest

from support import EXAMPLES, ROOT, TOOL, ToolTest

PAGE = ROOT / "docs" / "orvel-parfile.md"


def sessions_of(page):
    """Heading -> the commands below it, each with the output that the page shows."""
    sessions = {}
    for section in re.split(r"^## ", page, flags=re.M)[1:]:
        heading, text = section.split("\n", 1)
        steps = []
        for block in re.findall(r"^```console\n(.*?)^```", text, flags=re.M | re.S):
            for step in re.split(r"^\$ ", block, flags=re.M)[1:]:
                command, _, output = step.partition("\n")
                steps.append((command, output))
        if steps:
            sessions[heading] = steps
    return sessions


class Sessions(ToolTest):
    """One session after the other, in one folder that holds the examples."""

    def setUp(self):
        super().setUp()
        for example in ("bent_duct", "bent_duct_broken"):
            shutil.copytree(EXAMPLES / example, self.folder / example)

    def run_step(self, command):
        """Both streams together, as a terminal has them."""
        path = f"{pathlib.Path(TOOL).parent}:{os.environ['PATH']}"
        run = subprocess.run(
            ["bash", "-c", command], cwd=self.folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, env={**os.environ, "PATH": path}, timeout=120, check=False)
        return run.stdout.decode().replace(str(self.folder), "/home/you")

    def test_print_what_the_page_says(self):
        sessions = sessions_of(PAGE.read_text())
        self.assertGreaterEqual(sum(map(len, sessions.values())), 15)
        for heading, steps in sessions.items():
            for command, expected in steps:
                with self.subTest(session=heading, command=command):
                    self.assertEqual(expected, self.run_step(command))


if __name__ == "__main__":
    unittest.main()
