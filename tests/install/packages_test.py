"""The Debian packages: what they are called, need and hold, what lintian says, and the tool run from a root of their own."""

import os
import re
import unittest
from pathlib import Path

from support import BENT_DUCT, REPOSITORY, FolderTest, run, run_freely

# Kept between runs, so that only what changed is compiled again.
BUILD = Path(os.environ["ORVEL_PACKAGE_BUILD"])
NAMES = ["liborvelcommands-dev", "liborvelcommands0", "orvel-parfile", "orvelcommands-doc", "python3-orvelcommands"]


def field(package, name):
    return run("dpkg-deb", "--field", package, name).strip()


class DebianPackages(FolderTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Quick to compile; ./run packages optimises more.
        run(Path(__file__).parent / "build_packages", BUILD, "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -DNDEBUG",
            DEB_CXXFLAGS_STRIP="-g", DEB_CFLAGS_STRIP="-g")
        cls.packages = {path.name.split("_")[0]: path for path in (BUILD / "packages").glob("*.deb")}
        cls.version = field(cls.packages["liborvelcommands0"], "Version")

    def names_needed(self, package):
        return re.findall(r"(?:^|, )([^ ,]+)", field(self.packages[package], "Depends"))

    def test_are_one_for_each_component(self):
        self.assertEqual(sorted(self.packages), NAMES)

    def test_need_each_other_in_the_same_version(self):
        for package in ("liborvelcommands-dev", "orvel-parfile", "python3-orvelcommands"):
            with self.subTest(package=package):
                self.assertIn(f"liborvelcommands0 (= {self.version})", field(self.packages[package], "Depends"))

    def test_make_whoever_links_a_library_need_the_same_version(self):
        run("dpkg-deb", "--control", self.packages["liborvelcommands0"], self.folder / "control")
        self.assertEqual((self.folder / "control" / "shlibs").read_text().splitlines(), [
            f"libOrvel{module} 0 liborvelcommands0 (= {self.version})"
            for module in ("Utilities", "BaseObjects", "CmdEngine", "Ids", "DbFactory", "Commands")])

    def test_need_the_libraries_that_their_programs_load(self):
        self.assertEqual(sorted(self.names_needed("liborvelcommands0")),
                         ["libc6", "libfmt9", "libgcc-s1", "libhdf5-103-1", "libhdf5-cpp-103-1", "libspdlog1.10-fmt9",
                          "libstdc++6"])
        self.assertEqual(self.names_needed("liborvelcommands-dev"), ["liborvelcommands0", "libhdf5-dev"])
        self.assertEqual(self.names_needed("orvelcommands-doc"), [])

    def test_name_neutral_maintainers(self):
        for name, package in self.packages.items():
            with self.subTest(package=name):
                self.assertEqual(field(package, "Maintainer"), "OrvelCommands maintainers <maintainers@orvel.invalid>")

    def test_have_nothing_that_lintian_objects_to(self):
        ended = run_freely("lintian", "--fail-on", "error,warning", "--allow-root", *self.packages.values())
        self.assertEqual((ended.returncode, ended.stdout), (0, ""), ended.stderr)

    def install(self, root):
        """Installs all packages into an empty root with a database of its own. What they need from Debian is not in it."""
        for folder in ("updates", "info"):
            (root / "var/lib/dpkg" / folder).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        self.dpkg(root, "--install", *self.packages.values())

    def dpkg(self, root, *words):
        return run("dpkg", f"--root={root}", "--log=/dev/null", "--force-not-root", "--force-depends", *words,
                   PATH=f"{os.environ['PATH']}:/usr/sbin:/sbin")

    def test_install_into_an_empty_root_where_the_tool_runs(self):
        root = self.folder / "root"
        self.install(root)
        multiarch = run("dpkg-architecture", "-qDEB_HOST_MULTIARCH").strip()
        libraries = {"LD_LIBRARY_PATH": f"{root}/usr/lib/{multiarch}"}
        tool = root / "usr/bin/orvel-parfile"
        example = root / "usr/share/doc/orvelcommands/examples/bent_duct"
        job = self.folder / "job of the package"
        job.mkdir()
        loaded = run("ldd", tool, **libraries)
        self.assertIn(f"{root}/usr/lib/{multiarch}/libOrvelCommands.so.0", loaded)
        self.assertIn("55 commands", run(tool, "import", example / "job.toml", job, **libraries))
        run(tool, "check", job, "--model-ids", example / "model_ids.toml", **libraries)
        self.assertEqual((example / "job.toml").read_text(), BENT_DUCT.read_text())
        program = "import orvelcommands; print(orvelcommands.Gyre_Parfile.__name__, orvelcommands.__file__)"
        packages = root / "usr/lib/python3/dist-packages"
        self.assertEqual(run("/usr/bin/python3", "-B", "-c", program, PYTHONPATH=str(packages), **libraries),
                         f"Gyre_Parfile {packages}/orvelcommands/__init__.py\n")

    def test_leave_nothing_behind_when_they_are_purged(self):
        root = self.folder / "purged root"
        self.install(root)
        self.dpkg(root, "--purge", *NAMES)
        files = [path for path in root.rglob("*") if path.is_file() and "var/lib/dpkg" not in str(path)]
        self.assertEqual(files, [])

    def test_need_nothing_that_a_machine_that_builds_them_lacks(self):
        plan = run("apt-get", "install", "--simulate", "--no-install-recommends", *self.packages.values(), LC_ALL="C")
        self.assertIn(f"0 upgraded, {len(NAMES)} newly installed", plan)


if __name__ == "__main__":
    unittest.main()
