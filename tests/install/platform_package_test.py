"""The library built on a platform that a job brings along: a package of its own whose log differs from the bundled one."""

import unittest
from pathlib import Path

from support import CMAKE, REPOSITORY, FolderTest, configure_and_build, prefix_path, run

OWN_PLATFORM = Path(__file__).resolve().parent / "platform_package"


class LibraryOnAnotherPlatform(FolderTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.platform = cls.folder / "own platform"
        cls.library = cls.folder / "library"
        configure_and_build(OWN_PLATFORM, cls.folder / "build of platform")
        run(CMAKE, "--install", cls.folder / "build of platform", "--prefix", cls.platform)
        configure_and_build(REPOSITORY, cls.folder / "build of library", prefix_path(cls.platform),
                            "-DORVEL_PLATFORM=external", "-DBUILD_TESTING=OFF", "-DORVEL_BUILD_TOOLS=OFF",
                            "-DORVEL_BUILD_EXAMPLES=OFF")
        run(CMAKE, "--install", cls.folder / "build of library", "--prefix", cls.library)

    def test_installs_nothing_of_the_platform(self):
        libraries = [path.name for path in (self.library / "lib").glob("*.so")]
        self.assertEqual(libraries, ["libOrvelCommands.so"])
        self.assertEqual([path.name for path in (self.library / "include").iterdir()], ["OrvelCommands"])

    def test_writes_to_the_log_of_that_platform(self):
        build = self.folder / "build of program"
        configure_and_build(OWN_PLATFORM / "log_commands", build, prefix_path(self.library, self.platform))
        self.assertEqual(run(build / "log_commands", folder=self.bent_duct()),
                         "own log: m_ID_NAME_: all_variables\n"
                         "own log: m_ID_NAME_: porosity\n"
                         "own log: m_ID_NAME_: wall_offset\n")


if __name__ == "__main__":
    unittest.main()
