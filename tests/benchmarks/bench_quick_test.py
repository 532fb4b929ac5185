"""The comparison of `./run bench` runs and gives every row; what it measures is not looked at."""

import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = os.environ["ORVEL_BUILD_FOLDER"]
COMPARE = os.environ["ORVEL_COMPARE"]

ROWS = {
    "Loading 25 commands from HDF5": [
        "library / demanded calls in C", "library / the same calls with its small transfer buffer",
        "library / each dataset once, no look-up", "h5py / library", "h5py / demanded calls in C",
        "library / JSON into structs"],
    "Writing 250 commands to HDF5": [
        "library / demanded calls in C", "library / the same calls with its small transfer buffer"],
    "A read of parsed commands, in look-ups of its key in a hash table": [
        "PresentInteger, one command", "PresentEnumerator, one command", "PresentText, one command",
        "HasPresentKey, one command", "CountOfKey, one command", "AbsentKey, one command", "Reference"],
    "A read of each parsed response, in look-ups of the ids in a hash table": [
        "PresentInteger, all responses", "PresentEnumerator, all responses", "PresentText, all responses",
        "AbsentKey, all responses"],
    "Loading 2500 parsed commands": [
        "complete job from JSON / library", "what the engine holds from JSON / library",
        "complete job from JSON / a storage that answers nothing"],
    "Queries by id": ["library / bare loop over strings"],
}
SIZES = ["library, stripped, bytes", "symbols exported", "relocations of the library", "dynamic loading, time stamp ticks",
         "compiling a file that includes everything, seconds", "bytes of DRESP_", "bytes of Gyre_Parfile"]


class BenchQuickTest(unittest.TestCase):

    def test_a_quick_comparison_has_every_row(self):
        with tempfile.TemporaryDirectory() as folder:
            report_file = Path(folder) / "benchmarks.json"
            result = subprocess.run(["/usr/bin/python3", "-B", COMPARE, "--quick", "--build", BUILD, "--output", report_file],
                                    text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
            self.assertEqual(result.returncode, 0, result.stdout)
            report = json.loads(report_file.read_text(encoding="utf-8"))
        found = {}
        for row in report["ratios"]:
            found.setdefault(row["group"], []).append(row["what"])
            self.assertGreater(row["ratio"], 0.0, row["what"])
        self.assertEqual(found, ROWS)
        self.assertEqual([name for name in SIZES if name not in report["sizes"]], [])
        self.assertIn("GetReference", report["growth"]["25"])
        self.assertIn("| h5py / library |", result.stdout)


if __name__ == "__main__":
    unittest.main()
