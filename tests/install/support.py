"""What the tests of the installation share: running programs, building outside projects, the installed prefix.

CTest says in the environment where the prefix is, which CMake to use and which sanitizers the installed libraries need.
"""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
CMAKE = os.environ["ORVEL_CMAKE"]
PREFIX = Path(os.environ["ORVEL_PREFIX"])
SANITIZE = os.environ.get("ORVEL_SANITIZE", "")
BENT_DUCT = REPOSITORY / "examples" / "bent_duct" / "job.toml"


def run_freely(*command, folder=None, **environment):
    """Runs a program and gives how it ended."""
    return subprocess.run([str(word) for word in command], cwd=folder, capture_output=True, text=True, check=False,
                          env={**os.environ, **environment})


def run(*command, folder=None, **environment):
    """Runs a program that has to end well and gives its output."""
    ended = run_freely(*command, folder=folder, **environment)
    if ended.returncode != 0:
        raise AssertionError(f"{command} ended with {ended.returncode}\n{ended.stdout}\n{ended.stderr}")
    return ended.stdout


def configure_and_build(source, build, *options):
    """Builds a CMake project without optimisation, which is quickest."""
    run(CMAKE, "-S", source, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=", *options)
    run(CMAKE, "--build", build)


def prefix_path(*prefixes):
    """The option that tells CMake where packages are."""
    return "-DCMAKE_PREFIX_PATH=" + ";".join(str(prefix) for prefix in prefixes)


def sanitizer_flag():
    """The compiler flag that a program of sanitized libraries needs; empty where they are not."""
    return f"-fsanitize={SANITIZE}" if SANITIZE else ""


class FolderTest(unittest.TestCase):
    """All tests of a class share one temporary folder, whose name has a blank."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="orvel install "))
        cls.addClassCleanup(shutil.rmtree, cls.folder)

    @classmethod
    def bent_duct(cls):
        """A folder with the parameter file of the bent duct."""
        job = cls.folder / "job"
        if not job.exists():
            job.mkdir()
            run(PREFIX / "bin" / "orvel-parfile", "import", BENT_DUCT, job)
        return job
