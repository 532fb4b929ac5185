#!/usr/bin/python3
"""The library against programs that know nothing of it: h5py builds the files that it loads, and h5py and h5dump read
the files that it writes.

    ORVEL_LOAD_PARFILE=... ORVEL_WRITE_PARFILE=... interop_test.py

The two variables name the programs load_parfile and write_parfile.
"""

import ctypes
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import textwrap
import unittest

import h5py
import numpy
from h5py import h5d, h5s, h5t

HERE = pathlib.Path(__file__).resolve().parent
FILE = "parfile_storage.hdf5"
LOADER = os.environ["ORVEL_LOAD_PARFILE"]
WRITER = os.environ["ORVEL_WRITE_PARFILE"]
TEXT = h5t.vlen_create(h5t.C_S1)


def run(*command):
    return subprocess.run(command, capture_output=True, encoding="utf-8", timeout=120)


def build(*arguments):
    subprocess.run([sys.executable, "-B", HERE / "build_with_h5py.py", *arguments], check=True, timeout=120)


def expected(*names):
    return "".join((HERE / name).read_text(encoding="utf-8") for name in names)


class InteropTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)


class LibraryReadsWhatH5pyBuilt(InteropTest):
    def load(self, job):
        loaded = run(LOADER, job)
        self.assertEqual(loaded.stderr, "")
        self.assertEqual(loaded.returncode, 0)
        return loaded.stdout

    def test_fluid_job(self):
        build("fluid")
        self.assertMultiLineEqual(self.load("fluid"), expected("expected_fluid.txt", "expected_smooth_surface.txt"))

    def test_fluid_job_with_every_kind(self):
        build("fluid")
        kinds = {line.split()[0] for line in self.load("fluid").splitlines() if not line.startswith(" ")}
        self.assertEqual(len(kinds), 25)

    def test_fluid_job_in_the_newest_format(self):
        build("fluid", "--newest-format")
        self.assertMultiLineEqual(self.load("fluid"), expected("expected_fluid.txt", "expected_smooth_surface.txt"))

    def test_smoothing_job(self):
        build("smooth")
        self.assertMultiLineEqual(
            self.load("smooth"), expected("expected_smooth_surface.txt", "expected_smooth_volume.txt")
        )

    def test_smoothing_commands_of_a_fluid_job(self):
        build("fluid")
        self.assertMultiLineEqual(self.load("smooth"), expected("expected_smooth_surface.txt"))

    def test_smoothing_job_without_commands(self):
        with h5py.File(FILE, "w") as file:
            file.create_group("PARFILE")
        self.assertEqual(self.load("smooth"), "")


class LibraryRefusesWhatH5pyBroke(InteropTest):
    def assert_fails(self, job, message):
        loaded = run(LOADER, job)
        self.assertEqual((loaded.stdout, loaded.stderr, loaded.returncode), ("", message + "\n", 1))

    def assert_fails_in_hdf5(self, job, head):
        loaded = run(LOADER, job)
        self.assertEqual((loaded.stdout, loaded.returncode), ("", 1))
        self.assertRegex(loaded.stderr, r"\A" + re.escape(head) + r"\S.*\n\Z")

    def test_an_absent_file(self):
        self.assert_fails_in_hdf5(
            "fluid", "Failed to create the HDF5 optimization database.\n  HDF5 reported the following error:\n  "
        )
        self.assertEqual(os.listdir(), [])

    def test_an_empty_file(self):
        h5py.File(FILE, "w").close()
        self.assert_fails_in_hdf5(
            "fluid",
            "Failed to retrieve the parfile from the optimization database.\n"
            "Database reported the following error:\n ",
        )

    def test_a_fluid_job_without_flow_paths(self):
        build("fluid")
        with h5py.File(FILE, "r+") as file:
            del file["/PARFILE/FLOWPATHS_"]
        self.assert_fails("fluid", "0 commands of type FLOWPATHS_ detected. Only one is expected.")

    def test_a_command_without_a_key_that_it_needs(self):
        build("fluid")
        with h5py.File(FILE, "r+") as file:
            del file["/PARFILE/DV_/level/INITIAL_"]
        self.assert_fails("fluid", "Failed to retrieve value from the optimization database.")

    def test_a_reference_to_a_command_of_another_kind(self):
        build("fluid")
        with h5py.File(FILE, "r+") as file:
            file["/PARFILE/DV_/porosity/FILTER_"][1] = file["/PARFILE/CS_/axis"].ref
        self.assert_fails("fluid", "Invalid ID axis of the parameter file command FILTER_")

    def test_a_text_as_h5py_writes_one_by_itself(self):
        build("fluid")
        with h5py.File(FILE, "r+") as file:
            del file["/PARFILE/MODEL_/bend/FILE_"]
            file["/PARFILE/MODEL_/bend"].create_dataset("FILE_", data=["bent_duct.inp"], dtype=h5py.string_dtype())
        self.assert_fails_in_hdf5(
            "fluid",
            "Failed to read value from the optimization database.\nDatabase reported the following error:\n ",
        )


class H5pyReadsWhatTheLibraryWrote(InteropTest):
    def setUp(self):
        super().setUp()
        self.assertEqual(run(WRITER).stderr, "")
        self.file = h5py.File(FILE, "r")
        self.addCleanup(self.file.close)

    def key(self, path):
        return self.file["/PARFILE/" + path]

    def texts(self, path):
        """The bytes of each element as they lie in the file."""
        dataset = self.key(path)
        elements = numpy.zeros(dataset.shape, dtype=[("length", "u8"), ("data", "u8")])
        dataset.id.read(h5s.ALL, h5s.ALL, elements, mtype=TEXT)
        return [ctypes.string_at(int(data), int(length)) if length else b"" for length, data in elements]

    def lists(self, path):
        return [element.tolist() for element in self.key(path)[:]]

    def targets(self, path):
        return [self.file[reference].name for reference in self.key(path)[:]]

    def test_tree(self):
        names = []
        self.file.visit(names.append)
        self.assertEqual(
            names,
            [
                "PARFILE",
                "PARFILE/DV_",
                "PARFILE/DV_/porosity",
                "PARFILE/DV_/porosity/DV_",
                "PARFILE/DV_/porosity/FILTER_",
                "PARFILE/FILTER_",
                "PARFILE/FILTER_/coarse",
                "PARFILE/FILTER_/fine",
                "PARFILE/OUTPUT_",
                "PARFILE/OUTPUT_/fields",
                "PARFILE/OUTPUT_/fields/BACKFLOW_ANGLE_",
                "PARFILE/OUTPUT_/fields/CUTOFF_",
                "PARFILE/OUTPUT_/fields/ELEMENT_GROUP_",
                "PARFILE/OUTPUT_/fields/FILENAME_",
                "PARFILE/OUTPUT_/fields/FORMAT_",
                "PARFILE/OUTPUT_/fields/ITERATION_",
                "PARFILE/OUTPUT_/fields/SPREAD_PERCENTAGE_",
                "PARFILE/SMOOTH_",
                "PARFILE/SMOOTH_/surface",
                "PARFILE/SMOOTH_/surface/EXCLUDE_GROUP_",
                "PARFILE/SMOOTH_/surface/FORMAT_",
                "PARFILE/SMOOTH_/surface/GROUP_FILE_",
                "PARFILE/SMOOTH_/surface/ITERATION_",
                "PARFILE/SMOOTH_/surface/SLICE_X_",
            ],
        )

    def test_no_attributes(self):
        counts = [len(self.file.attrs)]
        self.file.visititems(lambda _, item: counts.append(len(item.attrs)))
        self.assertEqual(counts, [0] * 25)

    def test_oldest_format(self):
        self.assertEqual(self.file.id.get_create_plist().get_version(), (0, 0, 0, 0))

    def test_shape_of_every_key(self):
        extents = {
            "DV_/porosity/DV_": 1,
            "DV_/porosity/FILTER_": 2,
            "OUTPUT_/fields/BACKFLOW_ANGLE_": 1,
            "OUTPUT_/fields/CUTOFF_": 1,
            "OUTPUT_/fields/ELEMENT_GROUP_": 1,
            "OUTPUT_/fields/FILENAME_": 1,
            "OUTPUT_/fields/FORMAT_": 1,
            "OUTPUT_/fields/ITERATION_": 1,
            "OUTPUT_/fields/SPREAD_PERCENTAGE_": 1,
            "SMOOTH_/surface/EXCLUDE_GROUP_": 3,
            "SMOOTH_/surface/FORMAT_": 3,
            "SMOOTH_/surface/GROUP_FILE_": 1,
            "SMOOTH_/surface/ITERATION_": 1,
            "SMOOTH_/surface/SLICE_X_": 3,
        }
        for path, extent in extents.items():
            with self.subTest(path):
                dataset = self.key(path)
                creation = dataset.id.get_create_plist()
                self.assertEqual(dataset.shape, (extent,))
                self.assertEqual(dataset.maxshape, (None,))
                self.assertEqual(creation.get_layout(), h5d.CHUNKED)
                self.assertEqual(dataset.chunks, (1,))
                self.assertEqual(creation.get_nfilters(), 0)

    def test_type_of_every_key(self):
        integers = h5t.vlen_create(h5t.STD_I32LE)
        doubles = h5t.vlen_create(h5t.IEEE_F64LE)
        types = {
            "DV_/porosity/DV_": h5t.STD_REF_OBJ,
            "DV_/porosity/FILTER_": h5t.STD_REF_OBJ,
            "OUTPUT_/fields/BACKFLOW_ANGLE_": h5t.STD_I32LE,
            "OUTPUT_/fields/CUTOFF_": doubles,
            "OUTPUT_/fields/ELEMENT_GROUP_": TEXT,
            "OUTPUT_/fields/FILENAME_": TEXT,
            "OUTPUT_/fields/FORMAT_": h5t.STD_I32LE,
            "OUTPUT_/fields/ITERATION_": integers,
            "OUTPUT_/fields/SPREAD_PERCENTAGE_": h5t.IEEE_F64LE,
            "SMOOTH_/surface/EXCLUDE_GROUP_": TEXT,
            "SMOOTH_/surface/FORMAT_": h5t.STD_I32LE,
            "SMOOTH_/surface/GROUP_FILE_": TEXT,
            "SMOOTH_/surface/ITERATION_": integers,
            "SMOOTH_/surface/SLICE_X_": h5t.IEEE_F64LE,
        }
        for path, wanted in types.items():
            with self.subTest(path):
                found = self.key(path).id.get_type()
                # Sequences in a file and in memory are different types to HDF5, so their items are compared.
                self.assertEqual(found.get_class(), wanted.get_class())
                if found.get_class() == h5t.VLEN:
                    found, wanted = found.get_super(), wanted.get_super()
                self.assertTrue(found.equal(wanted), f"{found.dtype} in place of {wanted.dtype}")

    def test_numbers(self):
        self.assertEqual(self.key("OUTPUT_/fields/BACKFLOW_ANGLE_")[:].tolist(), [-60])
        self.assertEqual(self.key("OUTPUT_/fields/FORMAT_")[:].tolist(), [86])
        self.assertEqual(self.key("OUTPUT_/fields/SPREAD_PERCENTAGE_")[:].tolist(), [12.5])
        self.assertEqual(self.key("SMOOTH_/surface/SLICE_X_")[:].tolist(), [0.5, 0.25, 0.125])
        self.assertEqual(self.key("SMOOTH_/surface/FORMAT_")[:].tolist(), [83, 0, 90])

    def test_texts_end_in_nul(self):
        self.assertEqual(self.texts("OUTPUT_/fields/FILENAME_"), ["Krümmer\0".encode()])
        self.assertEqual(self.texts("OUTPUT_/fields/ELEMENT_GROUP_"), [b"design\0"])
        self.assertEqual(self.texts("SMOOTH_/surface/GROUP_FILE_"), [b"\0"])

    def test_gap_between_texts_holds_nothing(self):
        self.assertEqual(self.texts("SMOOTH_/surface/EXCLUDE_GROUP_"), [b"frozen\0", b"", b"bolts\0"])

    def test_lists(self):
        self.assertEqual(self.lists("OUTPUT_/fields/ITERATION_"), [[1, 10, -100]])
        self.assertEqual(self.lists("OUTPUT_/fields/CUTOFF_"), [[0.1, 0.9]])
        self.assertEqual(self.lists("SMOOTH_/surface/ITERATION_"), [[]])

    def test_references(self):
        self.assertEqual(self.targets("DV_/porosity/FILTER_"), ["/PARFILE/FILTER_/fine", "/PARFILE/FILTER_/coarse"])
        self.assertEqual(self.targets("DV_/porosity/DV_"), ["/PARFILE/DV_/porosity"])


class H5dumpReadsWhatTheLibraryWrote(InteropTest):
    def setUp(self):
        super().setUp()
        self.assertEqual(run(WRITER).stderr, "")

    def dump(self, *options):
        dumped = run("h5dump", *options, FILE)
        self.assertEqual((dumped.stderr, dumped.returncode), ("", 0))
        return dumped.stdout

    def assert_dumps(self, path, text):
        # Where an object lies in the file is no concern of anybody.
        found = re.sub(r"GROUP \d+ ", "GROUP <address> ", self.dump("-d", "/PARFILE/" + path))
        self.assertMultiLineEqual(found, textwrap.dedent(text).lstrip())

    def test_oldest_format(self):
        self.assertIn("   SUPERBLOCK_VERSION 0\n", self.dump("-B", "-H"))

    def test_no_attributes(self):
        self.assertNotIn("ATTRIBUTE", self.dump())

    def test_one_element_a_chunk_without_filters(self):
        dumped = self.dump("-p", "-H")
        self.assertEqual(dumped.count("DATASET "), 14)
        self.assertEqual(dumped.count("         CHUNKED ( 1 )\n"), 14)
        self.assertEqual(len(re.findall(r"FILTERS \{\s*NONE\s*\}", dumped)), 14)
        self.assertEqual(len(re.findall(r"DATASPACE  SIMPLE \{ \( \d \) / \( H5S_UNLIMITED \) \}", dumped)), 14)

    def test_integer(self):
        self.assert_dumps(
            "OUTPUT_/fields/BACKFLOW_ANGLE_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/OUTPUT_/fields/BACKFLOW_ANGLE_" {
               DATATYPE  H5T_STD_I32LE
               DATASPACE  SIMPLE { ( 1 ) / ( H5S_UNLIMITED ) }
               DATA {
               (0): -60
               }
            }
            }
            """,
        )

    def test_doubles(self):
        self.assert_dumps(
            "SMOOTH_/surface/SLICE_X_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/SMOOTH_/surface/SLICE_X_" {
               DATATYPE  H5T_IEEE_F64LE
               DATASPACE  SIMPLE { ( 3 ) / ( H5S_UNLIMITED ) }
               DATA {
               (0): 0.5, 0.25, 0.125
               }
            }
            }
            """,
        )

    def test_texts(self):
        self.assert_dumps(
            "SMOOTH_/surface/EXCLUDE_GROUP_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/SMOOTH_/surface/EXCLUDE_GROUP_" {
               DATATYPE  H5T_VLEN { H5T_STRING {
                  STRSIZE 1;
                  STRPAD H5T_STR_NULLTERM;
                  CSET H5T_CSET_ASCII;
                  CTYPE H5T_C_S1;
               }}
               DATASPACE  SIMPLE { ( 3 ) / ( H5S_UNLIMITED ) }
               DATA {
               (0): ("f", "r", "o", "z", "e", "n", ""), (), ("b", "o", "l", "t", "s", "")
               }
            }
            }
            """,
        )

    def test_integer_list(self):
        self.assert_dumps(
            "OUTPUT_/fields/ITERATION_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/OUTPUT_/fields/ITERATION_" {
               DATATYPE  H5T_VLEN { H5T_STD_I32LE}
               DATASPACE  SIMPLE { ( 1 ) / ( H5S_UNLIMITED ) }
               DATA {
               (0): (1, 10, -100)
               }
            }
            }
            """,
        )

    def test_double_list(self):
        self.assert_dumps(
            "OUTPUT_/fields/CUTOFF_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/OUTPUT_/fields/CUTOFF_" {
               DATATYPE  H5T_VLEN { H5T_IEEE_F64LE}
               DATASPACE  SIMPLE { ( 1 ) / ( H5S_UNLIMITED ) }
               DATA {
               (0): (0.1, 0.9)
               }
            }
            }
            """,
        )

    def test_references(self):
        self.assert_dumps(
            "DV_/porosity/FILTER_",
            """
            HDF5 "parfile_storage.hdf5" {
            DATASET "/PARFILE/DV_/porosity/FILTER_" {
               DATATYPE  H5T_REFERENCE { H5T_STD_REF_OBJECT }
               DATASPACE  SIMPLE { ( 2 ) / ( H5S_UNLIMITED ) }
               DATA {
                  GROUP <address> "/PARFILE/FILTER_/fine"
                     DATA {
                     }
                  GROUP <address> "/PARFILE/FILTER_/coarse"
                     DATA {
                     }
               }
            }
            }
            """,
        )


if __name__ == "__main__":
    unittest.main()
