"""What `orvel-parfile init` makes, and what it leaves alone."""

import sys
import unittest
from pathlib import Path

import h5py

sys.path.insert(0, str(Path(__file__).resolve().parent))
import support  # noqa: E402


class Init(support.ToolTest):
    def test_makes_a_file_that_holds_the_root_group_alone(self):
        (self.folder / "run").mkdir()
        ended = self.tool("init", "run")
        file = self.folder / "run" / "parfile_storage.hdf5"
        self.assertEqual((ended.code, ended.out, ended.err), (0, f"made {file}, without commands\n", ""))
        with h5py.File(file) as tree:
            names = []
            tree.visit(names.append)
        self.assertEqual(names, ["PARFILE"])

    def test_gives_a_file_whose_load_misses_the_first_command_that_a_job_needs(self):
        self.tool("init")
        ended = self.tool("check", ".")
        self.assertEqual((ended.code, ended.out.splitlines()[0]), (
            1, ".: error: 0 commands of type MODEL_ detected. Only one is expected. [library]"))

    def test_refuses_to_touch_a_file_that_is_there(self):
        file = self.folder / "parfile_storage.hdf5"
        file.write_bytes(b"precious")
        ended = self.tool("init")
        self.assertEqual((ended.code, ended.err), (2, f"{file} exists already; --force replaces it\n"))
        self.assertEqual(file.read_bytes(), b"precious")
        self.assertEqual([path.name for path in self.folder.iterdir()], ["parfile_storage.hdf5"])

    def test_replaces_a_file_when_it_is_forced(self):
        file = self.folder / "parfile_storage.hdf5"
        file.write_bytes(b"worthless")
        self.assertEqual(self.tool("init", "--force").code, 0)
        with h5py.File(file) as tree:
            self.assertEqual(list(tree), ["PARFILE"])


if __name__ == "__main__":
    unittest.main()
