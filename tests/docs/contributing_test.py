"""The worked example of CONTRIBUTING.md, followed to the letter on a copy of the tree: its changes are applied, its commands are
run, the library is built, and the expectations that the example adds are met. Only that of a whole job's log is compared by its names
alone, as the whole tool would have to be built to print it."""

import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from pages import FENCE, REPOSITORY, run

CMAKE = os.environ["ORVEL_CMAKE"]
ADDING_A_KEY = re.compile(r"^## Adding a key$(.*?)^## ", re.MULTILINE | re.DOTALL)
LOGGED_CURVE = re.compile(r"\|SCALING_CURVE_\] .*\n((?:m_.*\n)+)")
SCALING_CURVE = re.compile(r"^## SCALING_CURVE_$(.*?)^## ", re.MULTILINE | re.DOTALL)

# The tests of the class and of the schema, a program of a user, and the tool with the one subcommand that the page calls: all
# of the tool would take most of the time of this test.
PROJECT = """
cmake_minimum_required(VERSION 3.21)
project(WorkedExample LANGUAGES C CXX)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
add_subdirectory("@TREE@" tree)
find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(GTest REQUIRED)

set(tool "@TREE@/tools/orvel-parfile")
add_executable(orvel-parfile tool.cpp "${tool}/subcommands/schema.cpp" "${tool}/job/stored_type.cpp"
  "${tool}/support/exit_code.cpp"
  "${tool}/support/nearest_name.cpp" "${tool}/support/plain_text.cpp" "${tool}/support/schema_names.cpp")
target_include_directories(orvel-parfile PRIVATE "${tool}")
target_link_libraries(orvel-parfile PRIVATE OrvelCommands::OrvelCommands CLI11::CLI11 nlohmann_json::nlohmann_json)

set(tests "@TREE@/tests")
add_executable(expectations "${tests}/OrvelCommands/commands/SCALING_CURVE_test.cpp"
  "${tests}/OrvelCommands/commands/command_schema_rows_test.cpp" "${tests}/support/RecordingStorage.cpp")
target_include_directories(expectations PRIVATE "${tests}")
target_link_libraries(expectations PRIVATE OrvelCommands::OrvelCommands Orvel::DbFactory GTest::gmock_main)

add_executable(user user.cpp "@TREE@/examples/map_storage/MapStorage.cpp")
target_include_directories(user PRIVATE "@TREE@/examples/map_storage")
target_link_libraries(user PRIVATE OrvelCommands::OrvelCommands)

add_executable(load_parfile "${tests}/interop/load_parfile.cpp")
target_link_libraries(load_parfile PRIVATE OrvelCommands::OrvelCommands)
"""

TOOL = """
#include "subcommands/subcommands.h"

#include <CLI/CLI.hpp>

int main(int count, char** words)
{
  CLI::App tool;
  AddSchema(tool);
  tool.parse(count, words);
}
"""

USER = """
#include "MapStorage.h"
#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelUtilities/KLV_LogMacros.h"

#include <iostream>

int main()
{
  MapStorage storage;
  storage.AddCommand("SCALING_CURVE_", "ramp");
  storage.AddValue("SCALING_CURVE_", "ramp", "TYPE_", vtmEnum, 83);
  storage.AddValue("SCALING_CURVE_", "ramp", "UPDATE_ID_", vtmString, std::string());
  for (const char* key : {"MIN_", "MAX_", "PENALISATION_", "DATA_SHIFT_"})
  {
    storage.AddValue("SCALING_CURVE_", "ramp", key, vtmDouble, 1.0);
  }
  SCALING_CURVE_ curve;
  curve.Load(storage, "ramp");
  std::cout << curve.HasSTEEPNESS_() << " " << curve.GetSTEEPNESS_() << "\\n";
  storage.AddValue("SCALING_CURVE_", "ramp", "STEEPNESS_", vtmDouble, 7.25);
  curve.Load(storage, "ramp");
  std::cout << curve.HasSTEEPNESS_() << " " << curve.GetSTEEPNESS_() << "\\n";
  KLV_LogMacros::SetSink([](const KLV_LogRecord& record) { std::cout << record.text; });
  curve.ToString();
}
"""


def copy_the_tree(folder):
    """The files that are in version control or would be, whoever owns the folder."""
    listed = run("git", "-c", "safe.directory=*", "ls-files", "-z", "--cached", "--others", "--exclude-standard",
                 folder=REPOSITORY)
    for name in filter(None, listed.split("\0")):
        source, target = REPOSITORY / name, folder / name
        if source.is_file():
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(source.read_bytes())
            target.chmod(source.stat().st_mode)


class WorkedExample(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        temporary = tempfile.TemporaryDirectory(prefix="orvel-contributing-")
        self.addCleanup(temporary.cleanup)
        folder = Path(temporary.name)
        self.tree, self.project, self.build = folder / "tree", folder / "project", folder / "build"
        copy_the_tree(self.tree)
        self.project.mkdir()
        for name, text in (("CMakeLists.txt", PROJECT.replace("@TREE@", str(self.tree))), ("tool.cpp", TOOL),
                           ("user.cpp", USER)):
            (self.project / name).write_text(text, encoding="utf-8")

    def apply(self, change):
        ended = subprocess.run(["git", "apply", "-"], cwd=self.tree, input=change, text=True,
                               capture_output=True, check=False)
        self.assertEqual(ended.returncode, 0, f"a change of the page no longer fits:\n{ended.stderr}\n{change}")

    def follow(self, language, text):
        if language == "diff":
            self.apply(text)
            return
        if "orvel-parfile" in text:
            run(CMAKE, "--build", self.build, "--target", "orvel-parfile")
        path = f"{self.build}/bin:{os.environ['PATH']}"
        run("bash", "-euc", text, folder=self.tree, environment={**os.environ, "PATH": path})

    @staticmethod
    def names_in(log):
        """What is told of a scaling curve, but for the values of keys that it may have."""
        return [name for name in re.findall(r"^(m_\w+): ", log, re.MULTILINE) if name != "m_STEEPNESS_"]

    def test_leads_to_a_key_that_works(self):
        run(CMAKE, "-S", self.project, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None")
        page = (self.tree / "CONTRIBUTING.md").read_text(encoding="utf-8")
        steps = [(match[1], match[2]) for match in FENCE.finditer(ADDING_A_KEY.search(page)[1])]
        self.assertEqual([language for language, _ in steps], ["diff", "sh", "sh", "diff", "diff"])
        for step in steps:
            self.follow(*step)
        run(CMAKE, "--build", self.build, "--target", "expectations", "user", "load_parfile")

        found = run(self.build / "bin" / "user")
        self.assertTrue(found.startswith("0 0\n1 7.25\n"), found)
        log = (self.tree / "tests/tools/orvel-parfile/golden/bent_duct_log.txt").read_text(encoding="utf-8")
        self.assertEqual([self.names_in(logged) for logged in LOGGED_CURVE.findall(log)], [self.names_in(found)])
        self.assertIn("m_has_STEEPNESS_: no", log)
        ended = run(self.build / "bin" / "expectations")
        self.assertIn("[  PASSED  ]", ended)
        self.assertIn("ScalingCurve.LoadsAllItsKeysInOrderAndAsksForTheOptionalOne", ended)
        run(sys.executable, "-B", "interop_test.py", "LibraryReadsWhatH5pyBuilt", folder=self.tree / "tests" / "interop",
            environment={**os.environ, "ORVEL_LOAD_PARFILE": str(self.build / "bin" / "load_parfile"),
                         "ORVEL_WRITE_PARFILE": ""})
        described = SCALING_CURVE.search((self.tree / "docs" / "commands.md").read_text(encoding="utf-8"))[1]
        self.assertIn("`STEEPNESS_`", described)


if __name__ == "__main__":
    unittest.main()
