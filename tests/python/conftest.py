"""What the tests of the Python module share. CTest says where the tool and the build lie."""

import os
import pathlib
import subprocess
import sys
import tomllib

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"

sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "tools" / "orvel-parfile"))  # its support module builds files with h5py


def import_job(job, folder):
    folder.mkdir()
    subprocess.run([os.environ["ORVEL_PARFILE"], "import", EXAMPLES / job / "job.toml", folder], check=True,
                   capture_output=True)
    return folder


@pytest.fixture(scope="session")
def bent_duct(tmp_path_factory):
    """A folder with the parameter file of the example, which no test changes."""
    return import_job("bent_duct", tmp_path_factory.mktemp("jobs") / "bent duct")


@pytest.fixture(scope="session")
def smoothing(tmp_path_factory):
    """The same of the smoothing job."""
    return import_job("smooth", tmp_path_factory.mktemp("jobs") / "smooth")


@pytest.fixture
def model_ids():
    """The names that the model of the bent duct knows."""
    return tomllib.loads((EXAMPLES / "bent_duct" / "model_ids.toml").read_text(encoding="utf-8"))
