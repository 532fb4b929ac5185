"""Each public header compiles alone, without a warning, with both compilers and in both standards."""

import os
import subprocess
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

INCLUDE = Path(os.environ["ORVEL_INCLUDE"])
HDF5_INCLUDE = os.environ["ORVEL_HDF5_INCLUDE"].split(";")
COMPILERS = ("g++", "clang++")
STANDARDS = ("c++17", "c++20")
WARNINGS = ("-Wall", "-Wextra", "-Wpedantic", "-Werror")


def complaint(compiler, standard, header):
    """What a compiler says of a source that includes this header alone; nothing when it compiles."""
    command = [compiler, "-x", "c++", f"-std={standard}", *WARNINGS, "-fsyntax-only", "-I", str(INCLUDE)]
    for folder in HDF5_INCLUDE:
        command += ["-isystem", folder]
    ended = subprocess.run([*command, "-"], input=f'#include "{header}"\n', capture_output=True, text=True, check=False)
    if ended.returncode == 0:
        return ""
    return f"{header} with {compiler} -std={standard}:\n{ended.stderr}"


class PublicHeaders(unittest.TestCase):
    def test_compile_alone(self):
        headers = sorted(path.relative_to(INCLUDE).as_posix() for path in INCLUDE.rglob("*.h"))
        self.assertIn("OrvelCommands/parfile/Gyre_Parfile.h", headers)
        ways = [(compiler, standard, header) for header in headers for compiler in COMPILERS for standard in STANDARDS]
        with ThreadPoolExecutor(os.cpu_count()) as threads:
            complaints = [text for text in threads.map(lambda way: complaint(*way), ways) if text]
        self.assertEqual(complaints, [], "\n".join(complaints))


if __name__ == "__main__":
    unittest.main()
