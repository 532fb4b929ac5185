"""What the tests of orvel-parfile share: temporary folders, running the tool, job descriptions and parameter files.

The environment variable ORVEL_PARFILE names the tool. Parameter files are built here with h5py, straight from the
layout of the file, so that the tool also reads what it did not write.
"""

import ctypes
import os
import pathlib
import subprocess
import tempfile
import typing
import unittest

import h5py
import numpy
from h5py import h5d, h5p, h5s, h5t

ROOT = pathlib.Path(__file__).resolve().parents[3]
EXAMPLES = ROOT / "examples"
FILE_NAME = "parfile_storage.hdf5"

if not os.environ.get("ORVEL_PARFILE"):
    raise SystemExit("the environment variable ORVEL_PARFILE must name the tool")
TOOL = os.path.abspath(os.environ["ORVEL_PARFILE"])

# Their usual exit code is that of faults in a job.
SANITIZERS = {"ASAN_OPTIONS": "exitcode=99", "UBSAN_OPTIONS": "exitcode=99"}

GOOD = 0
FAULTS = 1
UNUSABLE = 2

# What a dataset of each sort of values has as its type.
TYPES = {
    "integer": h5t.NATIVE_INT32,
    "double": h5t.NATIVE_DOUBLE,
    "text": h5t.vlen_create(h5t.C_S1),
    "list of integer": h5t.vlen_create(h5t.NATIVE_INT32),
    "list of double": h5t.vlen_create(h5t.NATIVE_DOUBLE),
    "reference": h5t.STD_REF_OBJ,
}


class Result(typing.NamedTuple):
    """How a run of the tool ended."""

    code: int
    out: str
    err: str


class ToolTest(unittest.TestCase):
    """Each test has a folder of its own, in which it runs the tool."""

    maxDiff = None

    def setUp(self):
        temporary = tempfile.TemporaryDirectory(prefix="orvel-parfile-test-")
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name).resolve() / "folder"
        self.scratch = self.folder.parent / "scratch"
        self.folder.mkdir()
        self.scratch.mkdir()

    def tool(self, *arguments, **options):
        """Runs the tool. Whatever it does, HDF5's own report must not show and no scratch file may stay."""
        run = subprocess.run(
            [TOOL, *map(str, arguments)], cwd=options.pop("cwd", self.folder), stdin=subprocess.DEVNULL,
            stdout=options.pop("stdout", subprocess.PIPE), stderr=subprocess.PIPE, timeout=120,
            env={**os.environ, **SANITIZERS, "TMPDIR": str(self.scratch), **options.pop("environment", {})}, check=False,
            **options)
        result = Result(run.returncode, (run.stdout or b"").decode(), run.stderr.decode())
        self.assertNotIn("HDF5-DIAG", result.out + result.err)
        self.assertLessEqual(result.code, UNUSABLE, result.err)  # else a sanitizer has something to say
        self.assertEqual(names_in(self.scratch), [])
        return result

    def write(self, name, text):
        """Writes a text file into the folder of the test."""
        path = self.folder / name
        path.write_bytes(text if isinstance(text, bytes) else text.encode())
        return path

    def copy_example(self, name):
        """Copies the job and the model ids of an example into the folder of the test."""
        for path in (EXAMPLES / name).glob("*.toml"):
            self.write(path.name, path.read_bytes())


def give_up_privileges():
    """For subprocess's preexec_fn: what is run then cannot write where its rights forbid it, not even as root."""
    drop_from_bounding_set, override_rights, override_searching = 24, 1, 2
    for capability in (override_rights, override_searching):
        ctypes.CDLL(None).prctl(drop_from_bounding_set, capability, 0, 0, 0)


def names_in(folder):
    """The names in a folder, hidden ones included."""
    return sorted(os.listdir(folder))


def integers(*values):
    """The values of a key for whole numbers or enumerators."""
    return "integer", values


def doubles(*values):
    """The values of a key for numbers."""
    return "double", values


def texts(*values):
    """The values of a key for texts or model ids."""
    return "text", values


def integer_lists(*values):
    """The values of a key of which each is a list."""
    return "list of integer", [numpy.array(value, dtype=numpy.int32) for value in values]


def references(*targets):
    """The values of a key for references, each given as "KIND_/id"."""
    return "reference", targets


def write_parameter_file(folder, job):
    """Builds a parameter file from kind -> id -> key -> values."""
    path = pathlib.Path(folder) / FILE_NAME
    with h5py.File(path, "w", libver=("earliest", "v108")) as file:
        root = file.create_group("PARFILE")
        for kind, commands in job.items():
            for name in commands:
                root.create_group(f"{kind}/{name}")
        for kind, commands in job.items():
            for name, keys in commands.items():
                for key, (sort, values) in keys.items():
                    write_key(root[kind][name], key, sort, values)
    return path


def write_key(command, key, sort, values):
    """Adds one key to the group of a command."""
    layout = h5p.create(h5p.DATASET_CREATE)
    layout.set_chunk((1,))
    space = h5s.create_simple((len(values),), (h5s.UNLIMITED,))
    dataset = h5d.create(command.id, key.encode(), TYPES[sort], space, layout)
    if sort == "text" and values:
        write_texts(dataset, values)
        return
    for position, value in enumerate(values):
        h5py.Dataset(dataset)[position] = command.file[f"PARFILE/{value}"].ref if sort == "reference" else value


def write_texts(dataset, values):
    """Writes texts with their terminating NUL. h5py itself would pad characters, which HDF5 then turns into NULs.

    A byte that is no UTF-8 is told as Python does it, 0xf6 as "\\udcf6".
    """
    buffers = [ctypes.create_string_buffer(value.encode(errors="surrogateescape")) for value in values]
    sequences = [(len(buffer), ctypes.addressof(buffer)) for buffer in buffers]
    memory = numpy.array(sequences, dtype=[("length", "u8"), ("data", "u8")])
    dataset.write(h5s.ALL, h5s.ALL, memory, mtype=TYPES["text"])


def minimal_job():
    """The least that loads: 11 kinds of one command, 77 values (2 of them model ids), 8 references."""
    curve = {
        "SCALING_CURVE_TYPE_": integers(73), "SCALING_CURVE_UPDATE_ID_": texts("constant"),
        "SCALING_CURVE_MIN_": doubles(0.0), "SCALING_CURVE_MAX_": doubles(1.0),
        "SCALING_CURVE_PENALISATION_": doubles(1.0)}
    sensitivity = {
        "PATCH_ID_": texts("default"), "ALGORITHM_": integers(77), "MATH_KERNEL_": integers(73),
        "MOVE_": doubles(0.1), **curve, "ASYM_MOVE_": integers(79), "ASYM_MOVE_LOW_": doubles(0.7),
        "ASYM_MOVE_UP_": doubles(1.2), "SUB_TOL_": doubles(1e-7)}
    return {
        "MODEL_": {"duct": {"FILE_": texts("duct.cgns")}},
        "DV_": {"porosity": {"INITIAL_": doubles(0.4), "TYPE_": integers(68)}},
        "OBJ_FUNC_": {"loss": {
            "TARGET_": integers(77), "SENSSCALING_TYPE_": integers(78), "SENSSCALING_VALUE_": doubles(1.0)}},
        "OPT_PARAM_": {"run": {"OPT_START_": integers(1)}},
        "STOP_": {"converged": {
            "ITER_MAX_": integers(80), "ITER_MIN_": integers(20), "RESIDUAL_OBJ_": doubles(1e-3),
            "RESIDUAL_DV_": doubles(5e-3)}},
        "PRE_PARAM_": {"open_box": {
            "PATCH_ID_": texts("default"), "VISCOSITY_": doubles(1.5e-5), "RESIDUAL_": doubles(1e-4),
            "ITER_MAX_": integers(600), "BACKFLOW_ANGLE_": integers(90), "PTRACK_PRI_VRML_": integers(70),
            "PTRACK_VAL_VRML_": integers(70), "REF_VRML_": integers(70), "PTRACK_KEEP_INVALID_": integers(70),
            "PTRACK_VRML_ADD_BOUNDS_": integers(84)}},
        "AS_TOPO_OC_": {"oc": {
            "PATCH_ID_": texts("default"), "BT_": doubles(0.5), "TA_MIN_": doubles(0.1), "TA_MAX_": doubles(0.9),
            **curve}},
        "AS_TOPO_SENS_": {"sens": {
            **sensitivity, "PRIMAL_ITER_MIN_": integers(200), "PRIMAL_ITER_MAX_": integers(1500),
            "PRIMAL_INTERVAL_": integers(50), "PRIMAL_RESIDUAL_": doubles(1e-5), "PRIMAL_DEVIATION_": doubles(1e-4),
            "ADJOINT_ITER_MIN_": integers(100), "ADJOINT_ITER_MAX_": integers(800),
            "ADJOINT_INTERVAL_": integers(50), "ADJOINT_DISC_": texts("upwind"),
            "ADJOINT_DRIVER_": texts("segregated"), "ADJOINT_CFL_": integers(20), "KEEP_INITIAL_": texts("YES"),
            "KEEP_ADJOINT_": texts("YES"), "SKIP_PRESSURE_SRC_": texts("NO"), "SKIP_TURBULENT_SRC_": texts("YES")}},
        "AS_SHAPE_SENS_": {"shape": {**sensitivity, "NORMAL_UPDATE_": integers(85), "DV_TYPE_": integers(68)}},
        "FLOWPATHS_": {"bend": {"IN_": texts("inlet"), "OUT_": texts("outlet")}},
        "ALGO_": {"topology": {
            "STRATEGY_": integers(84), "DEVELOPER_OUTPUT_": integers(70), "DV_": references("DV_/porosity"),
            "OBJ_FUNC_": references("OBJ_FUNC_/loss"), "OPT_PARAM_": references("OPT_PARAM_/run"),
            "STOP_": references("STOP_/converged"), "PRE_PARAM_": references("PRE_PARAM_/open_box"),
            "AS_TOPO_OC_": references("AS_TOPO_OC_/oc"), "AS_TOPO_SENS_": references("AS_TOPO_SENS_/sens"),
            "AS_SHAPE_SENS_": references("AS_SHAPE_SENS_/shape")}},
    }
