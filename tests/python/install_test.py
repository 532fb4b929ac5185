"""The installed package, below a prefix with a blank and with nothing but Python's path to find it by."""

import os
import pathlib
import subprocess
import sys

PROGRAM = """
import sys
import orvelcommands
with orvelcommands.ParfileHdf5Storage(sys.argv[1]) as storage:
    print(orvelcommands.Gyre_Parfile(storage).ALGO_.ID_NAME_, orvelcommands.__file__)
libraries = {line.split(maxsplit=5)[5].strip() for line in open("/proc/self/maps") if "libOrvelCommands.so" in line}
print(*libraries)
"""


def test_the_installed_package_finds_the_installed_libraries(tmp_path, bent_duct):
    prefix = tmp_path / "a prefix"
    subprocess.run([os.environ["ORVEL_CMAKE"], "--install", os.environ["ORVEL_BUILD"], "--prefix", prefix], check=True,
                   capture_output=True)
    packages = prefix / "lib" / "python3" / "dist-packages"
    ended = subprocess.run([sys.executable, "-B", "-c", PROGRAM, bent_duct], capture_output=True, text=True,
                           env={**os.environ, "PYTHONPATH": str(packages)}, check=True)
    loaded, library = ended.stdout.splitlines()
    assert loaded == f"bend_optimization {packages / 'orvelcommands' / '__init__.py'}"
    assert pathlib.Path(library).is_relative_to(prefix)


def test_the_component_python_holds_the_package_alone(tmp_path):
    subprocess.run([os.environ["ORVEL_CMAKE"], "--install", os.environ["ORVEL_BUILD"], "--prefix", tmp_path,
                    "--component", "python"], check=True, capture_output=True)
    package = tmp_path / "lib" / "python3" / "dist-packages" / "orvelcommands"
    files = [path for path in tmp_path.rglob("*") if path.is_file()]
    assert all(path.parent == package for path in files)
    names = sorted(path.name for path in files if path.suffix != ".so")
    assert names == ["__init__.py", "__init__.pyi", "_enumeration.py", "_native.pyi", "commands.pyi", "failures.py",
                     "parfile.pyi", "py.typed", "schema.py", "storage.pyi"]
    assert len(files) == len(names) + 1
