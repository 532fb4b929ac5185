"""The installed packages, as an outside project finds and links them. Run by CTest, which says where the build lies."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
CMAKE = os.environ["ORVEL_CMAKE"]
SANITIZE = os.environ.get("ORVEL_SANITIZE", "")


def run(*command, folder=None):
    ended = subprocess.run([str(word) for word in command], cwd=folder, capture_output=True, text=True, check=False)
    if ended.returncode != 0:
        raise AssertionError(f"{command} ended with {ended.returncode}\n{ended.stdout}\n{ended.stderr}")
    return ended.stdout


def configure_and_build(source, build, *options):
    flags = f"-DCMAKE_CXX_FLAGS=-fsanitize={SANITIZE}" if SANITIZE else "-DCMAKE_CXX_FLAGS="
    run(CMAKE, "-S", source, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", flags, *options)
    run(CMAKE, "--build", build)


class InstalledPackages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="orvel install ")
        cls.prefix = Path(cls.folder.name) / "a prefix"
        run(CMAKE, "--install", os.environ["ORVEL_BUILD"], "--prefix", cls.prefix)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_hold_the_public_headers_and_none_of_ours(self):
        include = self.prefix / "include"
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

    def test_serve_an_outside_project_from_a_prefix_with_blanks(self):
        build = Path(self.folder.name) / "consumer"
        configure_and_build(REPOSITORY / "examples" / "consumer", build, f"-DCMAKE_PREFIX_PATH={self.prefix}")
        job = Path(self.folder.name) / "job"
        job.mkdir()
        run(self.prefix / "bin" / "orvel-parfile", "import", REPOSITORY / "examples" / "bent_duct" / "job.toml", job)
        self.assertEqual(run(build / "list_filters", folder=job),
                         "porosity: pipe_transition, BD_TRANSITION, radius 0.016\n"
                         "wall_offset: wall_smoothing, SIGMUND_SURFACE, radius 0.012\n"
                         "wall_offset: flange_plane, DA_PLANE_NORMAL, radius 0.012\n")

    def test_give_a_platform_that_the_library_builds_on_in_place_of_the_bundled_one(self):
        build = Path(self.folder.name) / "external"
        configure_and_build(REPOSITORY, build, f"-DCMAKE_PREFIX_PATH={self.prefix}", "-DORVEL_PLATFORM=external",
                            "-DBUILD_TESTING=OFF", "-DORVEL_BUILD_TOOLS=OFF", "-DORVEL_BUILD_EXAMPLES=OFF")
        libraries = sorted(path.name for path in build.rglob("*.so"))
        self.assertEqual(libraries, ["libOrvelCommands.so"])


if __name__ == "__main__":
    unittest.main()
