"""What a type checker learns from the stubs, and that the stubs tell what the module has."""

import os
import pathlib
import subprocess
import sys

import pytest

PROGRAM = """
from orvelcommands import DV_, Gyre_Parfile, ParfileHdf5Storage, schema

with ParfileHdf5Storage("run") as storage:
    job = Gyre_Parfile(storage)
    storage.AddValue("DV_", "porosity", "INITIAL_", 0.5)
reveal_type(job.ALGO_.DV_.FILTER_[0].RADIUS_)
reveal_type(job.ALGO_.DV_.DV_)
reveal_type(job.DV_[0].ELEMENT_GROUP_)
reveal_type(job.DV_[0].TYPE_)
reveal_type(job.NODE_GROUP_[0].LIST_)
reveal_type(job.CONSTRAINT_[0].DRESP_)
reveal_type(DV_.Enum_TYPE_.NODAL.value)
reveal_type(schema.Commands()[0].fields[0].presence)
"""
TYPES = """builtins.float
builtins.tuple[orvelcommands.commands.DV_, ...]
Union[builtins.str, None]
orvelcommands.commands.DV_.Enum_TYPE_
Union[builtins.tuple[builtins.int, ...], None]
Union[orvelcommands.commands.DRESP_, None]
Literal[78]?
Union[Literal['always'], Literal['optional'], Literal['repeated']]"""

# pybind11's own: the type of its classes, and a constructor that refuses every call.
NOT_IN_STUBS = (" is inconsistent, metaclass differs",
                '.__init__ is inconsistent, stub does not have *args argument "args"',
                '.__init__ is inconsistent, stub does not have **kwargs argument "kwargs"')


def check(folder, cache, program):
    """What mypy prints for a program. It runs none of our code, so that no sanitizer need be there."""
    path = pathlib.Path(folder) / "program.py"
    path.write_text(program, encoding="utf-8")
    environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
    return subprocess.run([sys.executable, "-B", "-m", "mypy", "--strict", "--no-error-summary", "--cache-dir", cache,
                           path.name], cwd=folder, env=environment, capture_output=True, text=True, check=False).stdout


@pytest.fixture(scope="module")
def cache(tmp_path_factory):
    return tmp_path_factory.mktemp("mypy cache")


def test_attributes_have_the_types_of_their_keys(tmp_path, cache):
    revealed = [line.split('"')[1] for line in check(tmp_path, cache, PROGRAM).splitlines()]
    assert "\n".join(revealed) == TYPES


@pytest.mark.parametrize("statement, error", [
    ("job.DV_[0].RADIUS_", '"DV_" has no attribute "RADIUS_"'),
    ("job.DV_[0].INITIAL_ = 0.5", 'Property "INITIAL_" defined in "DV_" is read-only'),
    ("len(job.DV_[0].ELEMENT_GROUP_)", 'incompatible type "Optional[str]"'),
    ("job.ValidateModelIds(['inlet'])", 'incompatible type "List[str]"')])
def test_wrong_use_is_found(tmp_path, cache, statement, error):
    program = f"from orvelcommands import Gyre_Parfile\n\ndef use(job: Gyre_Parfile) -> None:\n    {statement}\n"
    assert error in check(tmp_path, cache, program)


def test_the_stubs_tell_what_the_module_has(tmp_path):
    ended = subprocess.run([sys.executable, "-B", "-m", "mypy.stubtest", "--concise", "orvelcommands"], cwd=tmp_path,
                           capture_output=True, text=True, check=False)
    assert [line for line in ended.stdout.splitlines() if not line.endswith(NOT_IN_STUBS)] == []
    assert ended.stderr == ""
    assert "orvelcommands.commands.DV_ is inconsistent, metaclass differs" in ended.stdout  # it was looked at
