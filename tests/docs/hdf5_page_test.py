"""The Python of docs/hdf5_file.md, run as it stands on the parameter file of an example job."""

import os
import re
import sys
import tempfile
import unittest
from pathlib import Path

from pages import DOCS, REPOSITORY, blocks, run

EXPECTED = re.compile(r"print\(.*\)\s+# (.+)$", re.MULTILINE)


class Python(unittest.TestCase):
    def test_of_the_page_prints_what_its_comments_say(self):
        (program,) = blocks(DOCS / "hdf5_file.md", "python")
        with tempfile.TemporaryDirectory(prefix="orvel-page-") as folder:
            run(os.environ["ORVEL_PARFILE"], "import", REPOSITORY / "examples" / "bent_duct" / "job.toml", folder)
            script = Path(folder) / "page.py"
            script.write_text(program.text, encoding="utf-8")
            printed = run(sys.executable, script.name, folder=folder).splitlines()
        self.assertEqual(printed, EXPECTED.findall(program.text))
        self.assertEqual(printed, ["0.35", "design_space", "['pipe_transition']"])


if __name__ == "__main__":
    unittest.main()
