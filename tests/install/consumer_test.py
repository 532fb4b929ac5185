"""The outside project of examples/consumer, built by find_package and by pkg-config against a prefix with a blank."""

import shutil
import unittest

from support import CMAKE, PREFIX, REPOSITORY, FolderTest, configure_and_build, prefix_path, run, sanitizer_flag

CONSUMER = REPOSITORY / "examples" / "consumer"
FILTERS = ("porosity: pipe_transition, BD_TRANSITION, radius 0.016\n"
           "wall_offset: wall_smoothing, SIGMUND_SURFACE, radius 0.012\n"
           "wall_offset: flange_plane, DA_PLANE_NORMAL, radius 0.012\n")
REPORT = ("pipe_transition filters porosity\n"
          "wall_smoothing filters wall_offset\n"
          "flange_plane filters wall_offset\n"
          "objective: minimal_loss\n")


class OutsideProject(FolderTest):
    def test_builds_and_runs_by_find_package(self):
        build = self.folder / "by cmake"
        of_library = self.folder / "filter report by cmake"
        for project in ("list_filters", "filter_report", "print_report"):
            configure_and_build(CONSUMER / project, build / project, prefix_path(PREFIX, of_library),
                                f"-DCMAKE_CXX_FLAGS={sanitizer_flag()}")
            if project == "filter_report":
                run(CMAKE, "--install", build / project, "--prefix", of_library)
        self.assertEqual(run(build / "list_filters" / "list_filters", folder=self.bent_duct()), FILTERS)
        self.assertEqual(run(build / "print_report" / "print_report", folder=self.bent_duct()), REPORT)

    def test_builds_and_runs_by_pkg_config(self):
        build = self.folder / "by make"
        of_library = self.folder / "filter report by make"
        shutil.copytree(CONSUMER, build)
        environment = {"PKG_CONFIG_PATH": f"{PREFIX}/lib/pkgconfig:{of_library}/lib/pkgconfig",
                       "CXXFLAGS": sanitizer_flag()}
        run("make", "-C", build / "list_filters", **environment)
        run("make", "-C", build / "filter_report", "install", f"PREFIX={of_library}", **environment)
        run("make", "-C", build / "print_report", **environment)
        self.assertEqual(run(build / "list_filters" / "list_filters", folder=self.bent_duct()), FILTERS)
        self.assertEqual(run(build / "print_report" / "print_report", folder=self.bent_duct()), REPORT)

    def test_gets_the_flags_of_hdf5_from_pkg_config(self):
        environment = {"PKG_CONFIG_PATH": f"{PREFIX}/lib/pkgconfig"}
        program = self.folder / "names_hdf5.cpp"
        program.write_text("#include <H5Cpp.h>\nint main() { return H5::H5File::isHdf5(\"none\") ? 1 : 0; }\n")
        flags = run("pkg-config", "--cflags", "--libs", "orvelcommands", **environment)
        run("sh", "-c", f"eval g++ {sanitizer_flag()} names_hdf5.cpp -o names_hdf5 '{flags.strip()}'",
            folder=self.folder)


if __name__ == "__main__":
    unittest.main()
