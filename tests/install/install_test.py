"""What is installed, by component, and what find_package says of it."""

import os
import re
import unittest

from support import CMAKE, PREFIX, FolderTest, prefix_path, run, run_freely

BUILD = os.environ["ORVEL_BUILD"]
MODULES = ("BaseObjects", "CmdEngine", "Commands", "DbFactory", "Ids", "Utilities")


class InstalledFiles(FolderTest):
    def component(self, name):
        """The files of one component, without the headers, and with "N" for the numbers of the version."""
        prefix = self.folder / name
        run(CMAKE, "--install", BUILD, "--prefix", prefix, "--component", name)
        files = (path.relative_to(prefix).as_posix() for path in prefix.rglob("*") if not path.is_dir())
        return sorted(re.sub(r"[.]\d+", ".N", file) for file in files if not file.startswith("include/"))

    def test_of_the_component_lib_are_the_shared_libraries(self):
        expected = [f"lib/libOrvel{module}.so.N{rest}" for module in MODULES for rest in ("", ".N.N")]
        self.assertEqual(self.component("lib"), sorted(expected))

    def test_of_the_component_dev_is_what_building_needs(self):
        configuration = r"-\w+[.]cmake$"
        files = [file for file in self.component("dev") if not re.search("Targets" + configuration, file)]
        packages = [f"lib/cmake/{package}/{file}.cmake" for package in ("OrvelCommands", "OrvelPlatform")
                    for file in (f"{package}Config", f"{package}ConfigVersion", f"{package}Targets",
                                 "OrvelPackageComponents")]
        links = [f"lib/libOrvel{module}.so" for module in MODULES]
        for_pkg_config = [f"lib/pkgconfig/{name}.pc" for name in (
            "orvel-baseobjects", "orvel-cmdengine", "orvel-dbfactory", "orvel-ids", "orvel-utilities", "orvelcommands")]
        self.assertEqual(files, sorted(packages + links + for_pkg_config))

    def test_of_the_component_tools_is_the_tool_with_its_manual_and_its_completions(self):
        self.assertEqual(self.component("tools"), [
            "bin/orvel-parfile", "share/bash-completion/completions/orvel-parfile", "share/man/man1/orvel-parfile.N",
            "share/zsh/site-functions/_orvel-parfile"])

    def test_hold_the_public_headers_and_none_of_ours(self):
        include = PREFIX / "include"
        names = {path.relative_to(include).as_posix() for path in include.rglob("*.h")}
        for name in ("OrvelCommands/orvelcommands_export.h", "OrvelCommands/foundation/KLV_Failure.h",
                     "OrvelCommands/storage/ParfileHdf5Storage.h",
                     "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h", "OrvelCommands/storage/item_mapping.h",
                     "OrvelCommands/commands/gyre_commands.h", "OrvelCommands/commands/smooth_commands.h",
                     "OrvelCommands/commands/LocalGenerated/DV_.h", "OrvelCommands/commands/command_schema.h",
                     "OrvelCommands/parfile/Gyre_Parfile.h", "OrvelCommands/parfile/for_each_command.h",
                     "OrvelUtilities/KLV_Code.h", "OrvelIds/KLV_IdMap.h", "OrvelCmdEngine/OrvelCmdContainer.h"):
            with self.subTest(header=name):
                self.assertIn(name, names)
        for name in ("OrvelCommands/foundation/bounded_print.h", "OrvelCommands/foundation/throw_failure.h",
                     "OrvelCommands/commands/load_steps.h", "OrvelCommands/parfile/ResolveReferences.h",
                     "OrvelCommands/storage/hdf5_failures.h", "OrvelCmdEngine/OrvelCmdValueItems.h"):
            with self.subTest(header=name):
                self.assertNotIn(name, names)


class FindPackage(FolderTest):
    def find(self, *words):
        """Configures a project that finds a package, and gives how that ended, its texts in one line."""
        source = self.folder / "finds"
        source.mkdir(exist_ok=True)
        (source / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.21)\n"
            "project(Finds LANGUAGES CXX)\n"
            f"find_package({' '.join(words)})\n"
            "foreach(target OrvelCommands::OrvelCommands OrvelCommands::orvel-parfile Orvel::Ids)\n"
            "  if(TARGET ${target})\n"
            '    message(STATUS "gives ${target}")\n'
            "  endif()\n"
            "endforeach()\n")
        ended = run_freely(CMAKE, "-S", source, "-B", self.folder / "found", "-G", "Ninja", prefix_path(PREFIX))
        return ended.returncode, " ".join((ended.stdout + ended.stderr).split())

    def test_gives_the_library_the_tool_and_the_platform(self):
        code, text = self.find("OrvelCommands CONFIG REQUIRED COMPONENTS library tools")
        self.assertEqual(code, 0, text)
        for target in ("OrvelCommands::OrvelCommands", "OrvelCommands::orvel-parfile", "Orvel::Ids"):
            self.assertIn(f"gives {target}", text)

    def test_refuses_a_component_that_is_not_there_and_tells_those_that_are(self):
        code, text = self.find("OrvelCommands CONFIG REQUIRED COMPONENTS library wheels")
        self.assertNotEqual(code, 0)
        self.assertIn('OrvelCommands has no component "wheels" here. It has: library, tools.', text)
        code, text = self.find("OrvelPlatform CONFIG REQUIRED COMPONENTS Ids Wheels")
        self.assertNotEqual(code, 0)
        self.assertIn('OrvelPlatform has no component "Wheels" here. '
                      'It has: Utilities, BaseObjects, CmdEngine, Ids, DbFactory.', text)

    def test_goes_on_without_a_component_that_is_optional(self):
        code, text = self.find("OrvelCommands CONFIG REQUIRED COMPONENTS library OPTIONAL_COMPONENTS wheels")
        self.assertEqual(code, 0, text)
        self.assertIn("gives OrvelCommands::OrvelCommands", text)

    def test_refuses_another_major_version_and_before_the_first_another_minor_one(self):
        for package in ("OrvelCommands", "OrvelPlatform"):
            for version in ("99", "0.0", "0.2"):
                with self.subTest(package, version=version):
                    code, text = self.find(package, version, "CONFIG REQUIRED")
                    self.assertNotEqual(code, 0)
                    self.assertIn(f'compatible with requested version "{version}"', text)

    def test_takes_the_minor_version_that_is_asked_for(self):
        for package in ("OrvelCommands", "OrvelPlatform"):
            with self.subTest(package):
                code, text = self.find(package, "0.1", "CONFIG REQUIRED")
                self.assertEqual(code, 0, text)


if __name__ == "__main__":
    unittest.main()
