"""orvel-parfile show: the commands of a file as people read them, as the debug log has them, and as JSON."""

import json
import os
import pathlib
import pty
import re
import unittest

import h5py
import numpy

from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, UNUSABLE, ToolTest, doubles, integer_lists, integers,
                     minimal_job, references, texts, write_parameter_file)

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

    def log(self, *arguments):
        """What a run that must be good shows in the form of the debug log."""
        return self.show(*arguments, "--log")

    def assert_shows(self, job, *lines):
        """That this is what is shown of a file that h5py wrote, but for the inventory at its end."""
        write_parameter_file(self.folder, job)
        self.assertEqual([*lines, ""], self.show().splitlines()[:-1])

    def assert_logs(self, job, *lines):
        """That these lines follow each other in the log form of a file that h5py wrote."""
        write_parameter_file(self.folder, job)
        self.assertIn("\n".join(lines) + "\n", self.log())


class BentDuct(ShowTest):
    def setUp(self):
        super().setUp()
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")

    def test_is_listed_as_reviewed(self):
        self.assertEqual((GOLDEN / "bent_duct_show.txt").read_text(), self.show())

    def test_is_listed_alike_from_its_description(self):
        self.assertEqual(self.show(), self.show(EXAMPLES / "bent_duct" / "job.toml"))

    def test_its_kinds_come_in_the_order_of_loading(self):
        titles = [line.split(" ")[0] for line in self.show().splitlines()[:-1] if re.match("[A-Z]", line)]
        self.assertEqual(55, len(titles))
        self.assertEqual(KINDS, list(dict.fromkeys(titles)))

    def test_one_kind(self):
        self.assertEqual(
            "MONITOR_ backflow\n  DRESP_  DRESP_ backflow_outlet\n\n"
            "MONITOR_ noise\n  DRESP_  DRESP_ noise_outlet\n\n"
            "MONITOR_ passage\n  DRESP_  DRESP_ passage_width\n\n"
            "MONITOR_ swirl\n  DRESP_  DRESP_ swirl_outlet\n\n"
            "1 kind, 4 commands, 0 values (0 of them model ids), 4 references\n", self.show("MONITOR_"))

    def test_one_command(self):
        expected = (
            "DV_ porosity\n  ELEMENT_GROUP_  design_space\n  INITIAL_        0.35\n"
            "  FILTER_         FILTER_ pipe_transition\n  TYPE_           DENSITY\n\n"
            "1 kind, 1 command, 3 values (1 of them a model id), 1 reference\n")
        self.assertEqual(expected, self.show("DV_", "porosity"))
        for file in (".", FILE_NAME, self.folder, EXAMPLES / "bent_duct" / "job.toml"):
            with self.subTest(file):
                self.assertEqual(expected, self.show(file, "DV_", "porosity"))

    def test_a_folder_may_have_the_name_of_a_kind(self):
        place = self.folder / "DV_"
        place.mkdir()
        self.tool("init", place)
        self.assertIn("DV_ porosity\n", self.show("DV_"))
        self.assertEqual("0 kinds, 0 commands, 0 values (0 of them model ids), 0 references\n", self.show("./DV_"))

    def test_a_kind_that_is_not_there(self):
        result = self.tool("show", "FILTR_")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertEqual(
            ". has no commands of the kind FILTR_; the nearest is FILTER_; there are " + ", ".join(KINDS) + "\n",
            result.err)

    def test_an_id_that_is_not_there(self):
        expected = ". has no DV_ porsity; the nearest is porosity; there are all_variables, porosity, wall_offset\n"
        for option in ((), ("--log",), ("--json",)):
            with self.subTest(option):
                self.assertEqual((UNUSABLE, "", expected), self.tool("show", "DV_", "porsity", *option))

    def test_a_word_too_many(self):
        result = self.tool("show", "DV_", "porosity", "INITIAL_")
        self.assertEqual(
            (UNUSABLE, "", "a kind and an id are all that can be chosen; INITIAL_ is too much\n"), result)

    def test_as_json(self):
        self.assertEqual(
            {"DV_": {"porosity": {"ELEMENT_GROUP_": "design_space", "INITIAL_": 0.35, "FILTER_": ["pipe_transition"],
                                  "TYPE_": "DENSITY"}}},
            json.loads(self.show("DV_", "porosity", "--json")))
        self.assertEqual(self.tool("export", "--json").out, self.show("--json"))

    def test_json_and_log_exclude_each_other(self):
        self.assertEqual(UNUSABLE, self.tool("show", "--json", "--log").code)


class Listing(ShowTest):
    def test_long_lists_are_wrapped_below_their_first_value(self):
        numbers = range(1000, 1020)
        names = [f"group_{number}" for number in range(10)]
        self.assert_shows(
            {"NODE_GROUP_": {"many": {"LIST_": integer_lists([*numbers]), "SUBTRACT_": texts(*names)}}},
            "NODE_GROUP_ many",
            "  LIST_      [1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013,",
            "             1014, 1015, 1016, 1017, 1018, 1019]",
            "  SUBTRACT_  group_0, group_1, group_2, group_3, group_4, group_5, group_6, group_7, group_8,",
            "             group_9")

    def test_numbers_are_the_shortest_texts_that_read_back(self):
        self.assert_shows(
            {"STOP_": {"s": {"RESIDUAL_OBJ_": doubles(0.1 + 0.2), "RESIDUAL_DV_": doubles(1e300)}},
             "DRESP_": {"d": {"RESIDUAL_": doubles(-0.0), "ADJOINT_RESIDUAL_": doubles(float("nan"))}}},
            "DRESP_ d", "  RESIDUAL_          -0", "  ADJOINT_RESIDUAL_  nan", "",
            "STOP_ s", "  RESIDUAL_OBJ_  0.30000000000000004", "  RESIDUAL_DV_   1e+300")

    def test_a_number_that_is_no_enumerator(self):
        self.assert_shows({"DV_": {"d": {"TYPE_": integers(67)}}}, "DV_ d", "  TYPE_  67 (no enumerator)")

    def test_what_no_command_reads_stands_with_its_type(self):
        self.assert_shows(
            {"DV_": {"d": {"INITIAL_": doubles(1.5), "WEIGHT_": doubles(0.25), "AGE_": integers(3, 4)}},
             "GADGET_": {"g": {"NAME_": texts("x")}}},
            "DV_ d", "  INITIAL_  1.5", "  AGE_      3, 4 (integer, a key that no command reads)",
            "  WEIGHT_   0.25 (number, a key that no command reads)", "",
            "GADGET_ g (a kind that no command reads)", "  NAME_  x (text)")

    def test_another_type_than_the_one_that_is_read(self):
        self.assert_shows(
            {"DV_": {"d": {"INITIAL_": integers(1), "TYPE_": texts("DENSITY")}}},
            "DV_ d", "  INITIAL_  1 (integer where number is read)", "  TYPE_     DENSITY (text where integer is read)")

    def test_another_number_of_values_than_is_read(self):
        self.assert_shows(
            {"DV_": {"d": {"INITIAL_": doubles(1.0, 2.0), "TYPE_": integers()}}},
            "DV_ d", "  INITIAL_  1, 2 (2 values where one is read)", "  TYPE_     (no values)")

    def test_what_cannot_be_read_is_told(self):
        path = write_parameter_file(self.folder, {"DV_": {"d": {}}})
        with h5py.File(path, "a") as file:
            pair = numpy.zeros(2, dtype=[("a", "i4"), ("b", "f8")])
            file["PARFILE/DV_/d"].create_dataset("INITIAL_", data=pair)
            file["PARFILE/DV_/d"].create_dataset("TYPE_", data=numpy.zeros((2, 2)))
            file.create_group("PARFILE/CS_")
            file["PARFILE"].attrs["author"] = 1
        self.assertEqual(
            ["DV_ d", "  INITIAL_  (a compound of 12 bytes, which this tool cannot read)",
             "  TYPE_     (a dataset of rank 2, where a key has rank 1, which this tool cannot read)", "",
             "CS_ (no commands)", "",
             "/PARFILE (1 attribute, no part of the layout)", "",
             "1 kind, 1 command, 0 values (0 of them model ids), 0 references"],
            self.show().splitlines())
        self.assertEqual(
            (FAULTS, "", "/PARFILE is 1 attribute\nDV_ d: INITIAL_ is a compound of 12 bytes\n"
             "DV_ d: TYPE_ is a dataset of rank 2, where a key has rank 1\n"
             "JSON cannot hold this; show it without --json\n"), self.tool("show", "--json"))
        self.assertEqual("{\n  \"CS_\": {}\n}\n", self.show("CS_", "--json"))

    def test_references_that_lead_nowhere(self):
        path = write_parameter_file(self.folder, {"DV_": {"d": {"FILTER_": references("DV_/d", "DV_/d")}}})
        with h5py.File(path, "a") as file:
            file["PARFILE/DV_/d/FILTER_"][1] = h5py.Reference()
        self.assertEqual(["DV_ d", "  FILTER_  DV_ d, nothing"], self.show().splitlines()[:2])
        self.write("job.toml", '[DV_.d]\nFILTER_ = ["fine"]\n')
        self.assertEqual(["DV_ d", "  FILTER_  FILTER_ fine (there is none)"], self.show("job.toml").splitlines()[:2])

    def test_a_target_outside_the_shown_part_is_there(self):
        self.write("job.toml", '[FILTER_.fine]\n[DV_.d]\nFILTER_ = ["fine"]\n')
        self.assertEqual(["DV_ d", "  FILTER_  FILTER_ fine"], self.show("job.toml", "DV_").splitlines()[:2])

    def test_a_key_of_too_many_values_is_not_read(self):
        path = write_parameter_file(self.folder, {"DV_": {"d": {}}})
        with h5py.File(path, "a") as file:
            for key, count in (("INITIAL_", 100_000_000), ("TYPE_", 100_000_001)):
                file["PARFILE/DV_/d"].create_dataset(key, (count,), chunks=(1000,), dtype=[("a", "i4"), ("b", "f8")])
        self.assertEqual(
            ["DV_ d", "  INITIAL_  (a compound of 12 bytes, which this tool cannot read)",
             "  TYPE_     (100000001 values, which this tool cannot read)"], self.show().splitlines()[:3])
        self.assertIn("TYPE_ is 100000001 values\n", self.tool("export").err)

    def test_texts_that_could_be_mistaken_are_quoted(self):
        group = {"MERGE_": texts("plain text", "a, b", "", " blank", 'say "yes"', "back\\slash", "Löser")}
        self.assert_shows(
            {"FACE_GROUP_": {"g": group}}, "FACE_GROUP_ g",
            '  MERGE_  plain text, "a, b", "", " blank", "say \\"yes\\"", back\\slash, Löser')

    def test_control_characters_do_not_reach_the_terminal(self):
        path = write_parameter_file(self.folder, {"DV_": {"a\x1b]0;title\x07": {}}})
        with h5py.File(path, "a") as file:
            group = file["PARFILE/DV_"].values().__iter__().__next__()
            group.create_dataset("KEY\n", data=[1], dtype="i4")
            strings = [b"line\nend\ttab\r\x7f", b"\xc2\x9b31m", b"\xff\xc0\x80", b"\xe2\x80\xaeright to left"]
            group.create_dataset("TEXT", data=strings, dtype=h5py.string_dtype("ascii"))
        self.assertEqual(
            ['DV_ "a\\u001b]0;title\\u0007"',
             '  "KEY\\n"  1 (integer, a key that no command reads)',
             '  TEXT     "line\\nend\\ttab\\r\\u007f", "\\u009b31m", "\\xff\\xc0\\x80", "\\u202eright to left"',
             '           (string, a key that no command reads)'],
            self.show().splitlines()[:4])

    def test_faults_of_a_description_are_told_instead(self):
        self.write("job.toml", '[DV_.d]\nTYPE_ = "DENSTY"\n')
        result = self.tool("show", "job.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertIn("job.toml:2:9: DV_ d: TYPE_ must be an enumerator, not ", result.err)


class Colors(ShowTest):
    def setUp(self):
        super().setUp()
        self.write("job.toml", '[DV_.d]\nTYPE_ = "DENSITY"\nFILTER_ = ["fine"]\n')

    def on_a_terminal(self, *arguments, **environment):
        """What a run writes whose standard output is a terminal."""
        ours, theirs = pty.openpty()
        try:
            options = {"TERM": "xterm", "NO_COLOR": "", **environment}
            self.assertEqual(
                GOOD, self.tool("show", "job.toml", *arguments, stdout=theirs, environment=options).code)
            return os.read(ours, 10000).decode()
        finally:
            os.close(ours)
            os.close(theirs)

    def test_there_are_none_without_a_terminal(self):
        self.assertNotIn("\x1b", self.show("job.toml"))

    def test_can_be_asked_for(self):
        shown = self.show("job.toml", "--color", "always")
        self.assertTrue(shown.startswith(
            "\x1b[1;34mDV_\x1b[0m \x1b[1md\x1b[0m\n  \x1b[36mFILTER_\x1b[0m  \x1b[1;31mFILTER_\x1b[0m "), repr(shown))
        self.assertIn("  \x1b[36mTYPE_\x1b[0m    \x1b[35mDENSITY\x1b[0m\n", shown)
        self.assertEqual(self.show("job.toml"), re.sub(r"\x1b\[[0-9;]*m", "", shown))

    def test_are_on_a_terminal(self):
        self.assertIn("\x1b[1;34mDV_\x1b[0m", self.on_a_terminal())

    def test_are_not_on_a_terminal_that_is_told_so(self):
        self.assertNotIn("\x1b", self.on_a_terminal(NO_COLOR="1"))
        self.assertNotIn("\x1b", self.on_a_terminal(TERM="dumb"))
        self.assertNotIn("\x1b", self.on_a_terminal("--color", "never"))

    def test_no_other_word_is_taken(self):
        self.assertEqual(UNUSABLE, self.tool("show", "job.toml", "--color", "sometimes").code)


class LogOfTheBentDuct(ShowTest):
    def setUp(self):
        super().setUp()
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")

    def test_shows_as_reviewed(self):
        self.assertEqual((GOLDEN / "bent_duct_log.txt").read_text(), self.log())

    def test_shows_the_same_by_folder_and_by_file(self):
        expected = self.log()
        for argument in (".", FILE_NAME, self.folder, self.folder / FILE_NAME):
            with self.subTest(argument):
                self.assertEqual(expected, self.log(argument))

    def test_shows_every_kind_in_the_order_of_loading(self):
        shown = []
        for line in self.log().splitlines():
            if line.startswith("[%T|%n|%P|OrvelCommands|"):
                shown.append(line.split("|")[4].split("]")[0])
        self.assertEqual(55, len(shown))
        self.assertEqual(KINDS, list(dict.fromkeys(shown)))

    def test_ends_with_the_counts(self):
        self.assertEqual(
            "25 kinds, 55 commands, 477 values (50 of them model ids), 49 references", self.log().splitlines()[-1])

    def test_shows_its_smoothing_part_alone_as_a_smoothing_job(self):
        shown = self.log("--job", "smooth").splitlines()
        self.assertEqual(
            ["[%T|%n|%P|OrvelCommands|SMOOTH_] LocalGenerated\\win_b64\\smooth_commands:1371"],
            [line for line in shown if line.startswith("[%T")])
        self.assertEqual("m_ID_NAME_: first_look", shown[1])

    def test_shows_one_kind(self):
        shown = self.log("STOP_")
        self.assertEqual(
            "[%T|%n|%P|OrvelCommands|STOP_] LocalGenerated\\win_b64\\gyre_commands:3711\n"
            "m_ID_NAME_: converged\nm_ITER_MAX_: 80\nm_ITER_MIN_: 20\nm_RESIDUAL_OBJ_: 0.001\nm_RESIDUAL_DV_: 0.005\n\n"
            "1 kind, 1 command, 4 values (0 of them model ids), 0 references\n", shown)

    def test_shows_one_command(self):
        shown = self.log("DV_", "porosity").splitlines()
        self.assertEqual(
            ["m_ID_NAME_: porosity"], [line for line in shown if line.startswith("m_ID_NAME_")])
        self.assertEqual("1 kind, 1 command, 3 values (1 of them a model id), 1 reference", shown[-1])

    def test_can_be_shown_without_the_right_to_write(self):
        (self.folder / FILE_NAME).chmod(0o444)
        before = (self.folder / FILE_NAME).read_bytes()
        self.log()
        self.assertEqual(before, (self.folder / FILE_NAME).read_bytes())


class LogOfTheSmoothingJob(ShowTest):
    def test_is_cut_at_1023_characters(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        head, rest = self.log("--job", "smooth").split("\n", 1)
        text, counts = rest.split("\n\n")
        self.assertEqual("[%T|%n|%P|OrvelCommands|SMOOTH_] LocalGenerated\\win_b64\\smooth_commands:1371", head)
        self.assertEqual("1 kind, 1 command, 74 values (0 of them model ids), 0 references\n", counts)
        self.assertEqual(1023, len(text))
        self.assertTrue(text.startswith(
            "m_ID_NAME_: bent_duct_surface\nm_PATCH_ID_: default\nm_TASK_: ISO\n"), text)
        self.assertTrue(text.endswith("m_num_EXCLUDE_GROUP_: 1\nm_EXCLUDE_GROUP_: [\nbolt_bosses]\nm_num_IN"), text)


class LogOfFilesOfOtherPrograms(ShowTest):
    def test_a_model(self):
        write_parameter_file(self.folder, minimal_job())
        self.assertTrue(self.log().startswith(
            "[%T|%n|%P|OrvelCommands|MODEL_] LocalGenerated\\win_b64\\gyre_commands:104\n"
            "m_ID_NAME_: duct\nm_FILE_: duct.cgns\nm_has_SOLVER_: no\n\n"))

    def test_a_number_that_is_no_enumerator(self):
        job = minimal_job()
        job["DV_"]["porosity"]["TYPE_"] = integers(67)
        self.assert_logs(job, "m_FILTER_: [", "]", "m_TYPE_: INVALID", "m_num_DV_: 0")

    def test_numbers_as_the_shortest_text_that_reads_back(self):
        job = minimal_job()
        job["STOP_"]["converged"] = {
            "ITER_MAX_": integers(2147483647), "ITER_MIN_": integers(-2147483648),
            "RESIDUAL_OBJ_": doubles(0.1 + 0.2), "RESIDUAL_DV_": doubles(1e300)}
        self.assert_logs(
            job, "m_ID_NAME_: converged", "m_ITER_MAX_: 2147483647", "m_ITER_MIN_: -2147483648",
            "m_RESIDUAL_OBJ_: 0.30000000000000004", "m_RESIDUAL_DV_: 1e+300")

    def test_a_per_cent_sign_acts_as_a_conversion_of_the_print(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = texts("100%% of %d nodes")
        self.assert_logs(job, "m_FILE_: 100% of 0 nodes", "m_has_SOLVER_: no")

    def test_commands_in_the_byte_order_of_their_ids(self):
        group = {"MERGE_": texts("a")}
        job = {**minimal_job(), "FACE_GROUP_": {"b": group, "Z": group, "a10": group, "a9": group, "ä": group}}
        write_parameter_file(self.folder, job)
        ids = [block.splitlines()[1] for block in self.log().split("\n\n") if "|FACE_GROUP_]" in block]
        self.assertEqual([f"m_ID_NAME_: {name}" for name in ("Z", "a10", "a9", "b", "ä")], ids)

    def test_a_text_beyond_ascii(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["SOLVER_"] = texts("Löser")
        self.assert_logs(job, "m_has_SOLVER_: yes", "m_SOLVER_: Löser")


class FilesThatDoNotLoad(ShowTest):
    def test_show_nothing_but_the_fault(self):
        job = minimal_job()
        del job["ALGO_"]["topology"]["DEVELOPER_OUTPUT_"]
        write_parameter_file(self.folder, job)
        self.assertEqual(
            (FAULTS, "", "Failed to retrieve value from the optimization database.\n"), self.tool("show", "--log"))

    def test_a_smoothing_job_is_no_fluid_job(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        self.assertEqual(
            (FAULTS, "", "0 commands of type MODEL_ detected. Only one is expected.\n"), self.tool("show", "--log"))

    def test_a_job_description_is_not_shown(self):
        self.copy_example("bent_duct")
        self.assertEqual(
            (UNUSABLE, "", "job.toml: a parameter file must have the name parfile_storage.hdf5\n"),
            self.tool("show", "job.toml", "--log"))

    def test_control_characters_do_not_reach_the_terminal(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = texts("a\x1b[2Jb\u009b2Jc\u202ed\u00e4")
        write_parameter_file(self.folder, job)
        self.assertIn("m_FILE_: a\\u001b[2Jb\\u009b2Jc\\u202ed\u00e4\n", self.tool("show", "--log").out)


if __name__ == "__main__":
    unittest.main()
