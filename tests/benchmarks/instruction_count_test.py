"""The instructions of one fixed load stay what they are: callgrind counts them, whatever else the machine does.

Only the instructions of our own code between the call of Gyre_Parfile::Load and its return count, not those of HDF5 and of
the system's libraries, so that another patch level of these changes nothing. The program has all of our code in it and is
built with flags of its own.
"""

import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROGRAM = Path(os.environ["ORVEL_COUNTED_LOAD"]).resolve()
TOOL = os.environ["ORVEL_PARFILE_TOOL"]
BENT_DUCT = os.environ["ORVEL_BENT_DUCT_JOB"]
KEPT = HERE / "instruction_counts.json"
MOST_GROWTH = 1.05


def own_instructions(profile):
    """The sum of what callgrind counted in the program itself: a cost line stands below the "ob=" of its object; the line
    that follows a "calls=" tells what the callee took."""
    names, inside, is_call, total = {}, False, False, 0
    for line in profile.splitlines():
        if line.startswith("ob="):
            number, name = re.fullmatch(r"ob=(\(\d+\))(?: (.*))?", line).groups()
            if name:
                names[number] = name
            inside = Path(names[number]) == PROGRAM
        elif match := re.fullmatch(r"cob=(\(\d+\)) (.*)", line):
            names[match.group(1)] = match.group(2)
        elif line.startswith("calls="):
            is_call = True
        elif re.match(r"[+\-*\d]", line):
            if inside and not is_call:
                total += int(line.split()[1])
            is_call = False
    return total


def count_load(source, folder):
    profile = Path(folder) / "profile"
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}", "--collect-atstart=no",
                    "--toggle-collect=Gyre_Parfile::Load()", PROGRAM, source],
                   cwd=folder, check=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return own_instructions(profile.read_text(encoding="utf-8"))


class InstructionCountTest(unittest.TestCase):

    def expect_no_growth(self, source, found):
        kept = json.loads(KEPT.read_text(encoding="utf-8"))[source]
        self.assertGreater(found, 0, "callgrind counted nothing in the program")
        self.assertLessEqual(
            found, MOST_GROWTH * kept,
            f"loading from {source} takes {found} instructions, {100.0 * found / kept - 100.0:.1f}% more than the {kept} of "
            f"{KEPT}. If it must be so, write {found} there and say why in docs/performance.md.")
        if found < kept / MOST_GROWTH:
            self.fail(f"loading from {source} takes only {found} instructions and not {kept}: write it into {KEPT}, so "
                      "that it stays so")

    def test_a_load_of_parsed_commands_takes_no_more_instructions_than_it_did(self):
        with tempfile.TemporaryDirectory() as folder:
            self.expect_no_growth("parsed", count_load("parsed", folder))

    def test_a_load_of_a_parameter_file_takes_no_more_instructions_than_it_did(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([TOOL, "import", BENT_DUCT, folder], check=True, stdout=subprocess.PIPE)
            self.expect_no_growth("file", count_load("file", folder))


if __name__ == "__main__":
    unittest.main()
