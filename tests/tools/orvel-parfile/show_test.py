"""orvel-parfile show: the commands of a file as the debug log has them."""

import pathlib
import unittest

from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, UNUSABLE, ToolTest, doubles, integers, minimal_job, texts,
                     write_parameter_file)

GOLDEN = pathlib.Path(__file__).resolve().parent / "golden"

KINDS = ["MODEL_", "ELEMENT_GROUP_", "FACE_GROUP_", "NODE_GROUP_", "DV_", "DRESP_", "OPERATOR_", "OBJ_FUNC_",
         "CONSTRAINT_", "CS_", "DV_CONSTRAINT_", "MONITOR_", "ALGO_", "OPT_PARAM_", "STOP_", "MESH_SMOOTH_",
         "FILTER_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_", "FLOWPATHS_", "OUTPUT_",
         "SCALING_CURVE_", "SMOOTH_"]


class ShowTest(ToolTest):
    """With what several groups of tests need."""

    def show(self, *arguments):
        """The standard output of a run that must be good."""
        result = self.tool("show", *arguments)
        self.assertEqual((GOOD, ""), (result.code, result.err))
        return result.out

    def assert_shows(self, job, *lines):
        """That these lines follow each other in what is shown of a file that h5py wrote."""
        write_parameter_file(self.folder, job)
        self.assertIn("\n".join(lines) + "\n", self.show())


class BentDuct(ShowTest):
    def setUp(self):
        super().setUp()
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")

    def test_shows_as_reviewed(self):
        self.assertEqual((GOLDEN / "bent_duct_show.txt").read_text(), self.show())

    def test_shows_the_same_by_folder_and_by_file(self):
        expected = self.show()
        for argument in (".", FILE_NAME, self.folder, self.folder / FILE_NAME):
            with self.subTest(argument):
                self.assertEqual(expected, self.show(argument))

    def test_shows_every_kind_in_the_order_of_loading(self):
        shown = []
        for line in self.show().splitlines():
            if line.startswith("[%T|%n|%P|OrvelCommands|"):
                shown.append(line.split("|")[4].split("]")[0])
        self.assertEqual(55, len(shown))
        self.assertEqual(KINDS, list(dict.fromkeys(shown)))

    def test_ends_with_the_counts(self):
        self.assertEqual(
            "25 kinds, 55 commands, 477 values (50 of them model ids), 49 references", self.show().splitlines()[-1])

    def test_shows_its_smoothing_part_alone_as_a_smoothing_job(self):
        shown = self.show("--job", "smooth").splitlines()
        self.assertEqual(
            ["[%T|%n|%P|OrvelCommands|SMOOTH_] LocalGenerated\\win_b64\\smooth_commands:1371"],
            [line for line in shown if line.startswith("[%T")])
        self.assertEqual("m_ID_NAME_: first_look", shown[1])

    def test_can_be_shown_without_the_right_to_write(self):
        (self.folder / FILE_NAME).chmod(0o444)
        before = (self.folder / FILE_NAME).read_bytes()
        self.show()
        self.assertEqual(before, (self.folder / FILE_NAME).read_bytes())


class SmoothingJob(ShowTest):
    def test_is_cut_at_1023_characters(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        head, rest = self.show("--job", "smooth").split("\n", 1)
        text, counts = rest.split("\n\n")
        self.assertEqual("[%T|%n|%P|OrvelCommands|SMOOTH_] LocalGenerated\\win_b64\\smooth_commands:1371", head)
        self.assertEqual("1 kinds, 1 commands, 74 values (0 of them model ids), 0 references\n", counts)
        self.assertEqual(1023, len(text))
        self.assertTrue(text.startswith(
            "m_ID_NAME_: bent_duct_surface\nm_PATCH_ID_: default\nm_TASK_: ISO\n"), text)
        self.assertTrue(text.endswith("m_num_EXCLUDE_GROUP_: 1\nm_EXCLUDE_GROUP_: [\nbolt_bosses]\nm_num_IN"), text)


class FilesOfOtherPrograms(ShowTest):
    def test_a_model(self):
        write_parameter_file(self.folder, minimal_job())
        self.assertTrue(self.show().startswith(
            "[%T|%n|%P|OrvelCommands|MODEL_] LocalGenerated\\win_b64\\gyre_commands:104\n"
            "m_ID_NAME_: duct\nm_FILE_: duct.cgns\nm_has_SOLVER_: no\n\n"))

    def test_a_number_that_is_no_enumerator(self):
        job = minimal_job()
        job["DV_"]["porosity"]["TYPE_"] = integers(67)
        self.assert_shows(job, "m_FILTER_: [", "]", "m_TYPE_: INVALID", "m_num_DV_: 0")

    def test_numbers_as_the_shortest_text_that_reads_back(self):
        job = minimal_job()
        job["STOP_"]["converged"] = {
            "ITER_MAX_": integers(2147483647), "ITER_MIN_": integers(-2147483648),
            "RESIDUAL_OBJ_": doubles(0.1 + 0.2), "RESIDUAL_DV_": doubles(1e300)}
        self.assert_shows(
            job, "m_ID_NAME_: converged", "m_ITER_MAX_: 2147483647", "m_ITER_MIN_: -2147483648",
            "m_RESIDUAL_OBJ_: 0.30000000000000004", "m_RESIDUAL_DV_: 1e+300")

    def test_a_per_cent_sign_acts_as_a_conversion_of_the_print(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = texts("100%% of %d nodes")
        self.assert_shows(job, "m_FILE_: 100% of 0 nodes", "m_has_SOLVER_: no")

    def test_commands_in_the_byte_order_of_their_ids(self):
        group = {"MERGE_": texts("a")}
        job = {**minimal_job(), "FACE_GROUP_": {"b": group, "Z": group, "a10": group, "a9": group, "ä": group}}
        write_parameter_file(self.folder, job)
        ids = [block.splitlines()[1] for block in self.show().split("\n\n") if "|FACE_GROUP_]" in block]
        self.assertEqual([f"m_ID_NAME_: {name}" for name in ("Z", "a10", "a9", "b", "ä")], ids)

    def test_a_text_beyond_ascii(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["SOLVER_"] = texts("Löser")
        self.assert_shows(job, "m_has_SOLVER_: yes", "m_SOLVER_: Löser")


class FilesThatDoNotLoad(ShowTest):
    def test_show_nothing_but_the_fault(self):
        job = minimal_job()
        del job["ALGO_"]["topology"]["DEVELOPER_OUTPUT_"]
        write_parameter_file(self.folder, job)
        self.assertEqual(
            (FAULTS, "", "Failed to retrieve value from the optimization database.\n"), self.tool("show"))

    def test_a_smoothing_job_is_no_fluid_job(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        self.assertEqual(
            (FAULTS, "", "0 commands of type MODEL_ detected. Only one is expected.\n"), self.tool("show"))

    def test_a_job_description_is_not_shown(self):
        self.copy_example("bent_duct")
        self.assertEqual(
            (UNUSABLE, "", "job.toml: a parameter file must have the name parfile_storage.hdf5\n"),
            self.tool("show", "job.toml"))


if __name__ == "__main__":
    unittest.main()
