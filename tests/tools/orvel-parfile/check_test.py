"""orvel-parfile check: what it prints and how it ends. check_rules_test.py has the rules one by one."""

import json
import unittest

import h5py
import numpy

from check_support import CheckTest, sound_job
from support import (FAULTS, FILE_NAME, GOOD, UNUSABLE, doubles, integer_lists, integers, minimal_job, names_in,
                     references, texts, write_parameter_file)

BENT_DUCT_COUNTS = "25 kinds, 55 commands, 477 values (50 of them model ids), 49 references"
SOUND_COUNTS = "12 kinds, 12 commands, 89 values (2 of them model ids), 9 references"
NOT_CHECKED = "model ids not checked: give the names that the model knows with --model-ids\n"
SOUND_IDS = 'face_groups = ["inlet", "outlet"]\n'
LINES_OF_FIVE_NOTES = """\
model_ids.toml:12:3: note: the job never uses sensor_pocket, one of the element_groups of the model [unused-model-group]
model_ids.toml:23:3: note: the job never uses inlet_rim, one of the node_groups of the model [unused-model-group]
model_ids.toml:34:3: note: the job never uses flange_gasket, one of the face_groups of the model [unused-model-group]
model_ids.toml:41:3: note: the job never uses global, one of the coordinate_systems of the model [unused-model-group]
model_ids.toml:43:3: note: the job never uses cs_flange, one of the coordinate_systems of the model [unused-model-group]
5 notes
"""


class PrintTest(CheckTest):
    def assert_prints(self, out, *arguments):
        """Findings are the data of check: they go to standard output."""
        self.assertEqual((FAULTS, out, ""), self.tool("check", *arguments))

    def assert_library_says(self, pattern, *arguments):
        """A failure of the library, whatever else there is."""
        found = self.report(*arguments)["findings"][0]
        self.assertEqual("library", found["rule"])
        self.assertRegex(found["text"], pattern)

    def assert_faults_of_input(self, err, *arguments):
        self.assertEqual((FAULTS, "", err + "\n"), self.tool(*arguments))

    def assert_unusable(self, err, *arguments):
        self.assertEqual((UNUSABLE, "", err + "\n"), self.tool(*arguments))


class Examples(PrintTest):
    def test_the_bent_duct_is_good_as_a_file(self):
        self.copy_example("bent_duct")
        self.tool("import", "job.toml")
        self.assertEqual(
            (GOOD, f"{LINES_OF_FIVE_NOTES}. is good: {BENT_DUCT_COUNTS}\n"
                   "model ids checked against 27 names of model_ids.toml\n", ""),
            self.tool("check", "--model-ids", "model_ids.toml"))

    def test_the_bent_duct_is_good_as_a_description_and_nothing_is_written(self):
        self.copy_example("bent_duct")
        self.assertEqual(
            (GOOD, f"{LINES_OF_FIVE_NOTES}job.toml is good: {BENT_DUCT_COUNTS}\n"
                   "model ids checked against 27 names of model_ids.toml\n", ""),
            self.tool("check", "job.toml", "--model-ids", "model_ids.toml"))
        self.assertEqual(["job.toml", "model_ids.toml"], names_in(self.folder))

    def test_without_model_ids_the_tool_says_that_they_were_not_checked(self):
        self.copy_example("bent_duct")
        self.assertEqual((GOOD, f"job.toml is good: {BENT_DUCT_COUNTS}\n{NOT_CHECKED}", ""),
                         self.tool("check", "job.toml"))

    def test_the_smoothing_job_is_good(self):
        self.copy_example("smooth")
        counts = "1 kind, 1 command, 74 values (0 of them model ids), 0 references"
        self.assertEqual((GOOD, f"job.toml is good: {counts}\n{NOT_CHECKED}", ""),
                         self.tool("check", "job.toml", "--job", "smooth"))
        self.tool("import", "job.toml")
        self.assertEqual((GOOD, f". is good: {counts}\n{NOT_CHECKED}", ""), self.tool("check", "--job", "smooth"))

    def test_the_smoothing_job_is_no_fluid_job(self):
        self.copy_example("smooth")
        kinds = ("MODEL_", "OBJ_FUNC_", "ALGO_", "FLOWPATHS_")
        self.assertEqual([("command-count", kind) for kind in kinds],
                         [(finding.rule, finding.kind) for finding in self.findings("job.toml")])
        self.assert_library_says(r"^0 commands of type MODEL_ detected. Only one is expected.$", "job.toml")

    def test_the_bent_duct_has_a_smoothing_part_of_its_own(self):
        self.copy_example("bent_duct")
        self.assertEqual(GOOD, self.tool("check", "job.toml", "--job", "smooth").code)


class Findings(PrintTest):
    def test_of_a_description_have_line_and_column(self):
        self.copy_example("bent_duct")
        text = (self.folder / "job.toml").read_text()
        self.write("job.toml", text.replace('DRESP_ = "backflow_outlet"', 'DRESP_ = "backflow_oulet"'))
        self.assert_prints(
            "job.toml:1:1: error: Failed to write reference in the optimization database. [library]\n"
            "    Database reported the following error:\n     H5Dopen2 failed\n"
            "    mend: see to what is found below, then check again\n"
            "job.toml:465:10: error: MONITOR_ backflow: DRESP_ refers to DRESP_ backflow_oulet, which is not there "
            "[unresolved-reference]\n"
            "    mend: the nearest is backflow_outlet; there are backflow_outlet, fluid_volume, noise_outlet, "
            "passage_width, pressure_drop_main, pressure_drop_side, swirl_outlet, uniformity_outlet; "
            'write DRESP_ = "backflow_outlet"\n'
            "2 errors\n", "job.toml")

    def test_of_a_file_have_its_path_as_it_was_given(self):
        (self.folder / "run").mkdir()
        job = sound_job()
        job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        write_parameter_file(self.folder / "run", job)
        for path in ("run", "run/", f"./run/{FILE_NAME}"):
            self.assert_prints(
                f"{path}: error: STOP_ converged: ITER_MIN_ is 81, above ITER_MAX_, which is 80 [limits]\n"
                "    mend: lower the one or raise the other: "
                f"orvel-parfile set {path} STOP_ converged ITER_MIN_ 80\n1 error\n", path)

    def test_are_counted_by_severity(self):
        job = sound_job()
        job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        job["STOP_"]["other"] = job["STOP_"]["converged"]
        self.build(job)
        self.write("ids.toml", SOUND_IDS + 'node_groups = ["rim"]\n')
        out = self.tool("check", "--model-ids", "ids.toml").out
        self.assertEqual("2 errors, 1 warning, 1 note", out.splitlines()[-1])

    def test_warnings_alone_are_faults_too(self):
        job = sound_job()
        job["STOP_"]["other"] = job["STOP_"]["converged"]
        self.build(job)
        self.assert_prints(
            ".: warning: STOP_ other is not reached from ALGO_ [unreachable-command]\n"
            "    mend: refer to it where it belongs, or take it away with: orvel-parfile unset STOP_ other\n"
            "1 warning\n")

    def test_of_a_file_come_in_the_order_of_the_schema(self):
        job = sound_job()
        for kind, name in (("ALGO_", "topology"), ("STOP_", "converged"), ("MODEL_", "duct"), ("DV_", "porosity")):
            job[kind][name]["Z_"] = texts()
            job[kind][name]["A_"] = texts()
        self.build(job)
        self.assertEqual([("MODEL_", "A_"), ("MODEL_", "Z_"), ("DV_", "A_"), ("DV_", "Z_"),
                          ("ALGO_", "A_"), ("ALGO_", "Z_"), ("STOP_", "A_"), ("STOP_", "Z_")],
                         [(finding.kind, finding.key) for finding in self.findings()])

    def test_of_a_description_come_in_the_order_of_the_text(self):
        self.write("job.toml", '[STOP_.b]\nITER_MIN_ = 2\nITER_MAX_ = 1\nX_ = 1\n[MONITOR_.a]\nDRESP_ = "c"\n')
        lines = [finding["line"] for finding in self.report("job.toml")["findings"] if finding["rule"] != "library"]
        self.assertEqual(sorted(lines), lines)

    def test_show_control_characters_of_names_as_escapes(self):
        job = sound_job()
        job["MODEL_"]["duct"]["A\x1b[31m\nB_"] = texts("x")
        job["STOP_"]["o\u202ether"] = job["STOP_"]["converged"]
        self.build(job)
        out = self.tool("check").out
        self.assertIn('MODEL_ duct: "A\\u001b[31m\\nB_" is no key', out)
        self.assertIn('STOP_ "o\\u202ether" is not reached', out)
        self.assertNotIn("\x1b", out)
        self.assertNotIn("\u202e", out)


class Ignored(PrintTest):
    def setUp(self):
        super().setUp()
        job = sound_job()
        job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        job["STOP_"]["other"] = job["STOP_"]["converged"]
        self.build(job)

    def test_rules_do_not_count(self):
        self.assertEqual(
            (GOOD, f"3 ignored\n. is good: 12 kinds, 13 commands, 93 values (2 of them model ids), 9 references\n"
                   f"{NOT_CHECKED}", ""),
            self.tool("check", "--ignore", "limits", "--ignore", "unreachable-command"))

    def test_rules_leave_the_others(self):
        result = self.tool("check", "--ignore", "limits")
        self.assertEqual((FAULTS, "1 warning, 2 ignored"), (result.code, result.out.splitlines()[-1]))
        self.assertEqual({"errors": 0, "warnings": 1, "notes": 0, "ignored": 2},
                         self.report("--ignore", "limits")["counts"])

    def test_what_the_library_says_can_be_ignored_too(self):
        with h5py.File(self.folder / FILE_NAME, "r+") as file:
            del file["PARFILE/MODEL_/duct/FILE_"]
        self.assertEqual("library", self.report()["findings"][0]["rule"])
        self.assertEqual([], self.texts("--ignore", "library", of="library"))

    def test_a_rule_that_is_none_is_wrong_use(self):
        result = self.tool("check", "--ignore", "limit")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertIn("there is no rule limit; the nearest is limits; there are library, impossible-name,", result.err)


class Json(PrintTest):
    def test_holds_all_that_is_printed(self):
        job = sound_job()
        job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        self.build(job)
        self.assertEqual(
            {"file": ".", "job": "gyre",
             "findings": [{
                 "rule": "limits", "severity": "error", "kind": "STOP_", "id": "converged", "key": "ITER_MIN_",
                 "value": "81", "file": ".", "line": None, "column": None,
                 "text": "STOP_ converged: ITER_MIN_ is 81, above ITER_MAX_, which is 80",
                 "remedy": "lower the one or raise the other: orvel-parfile set STOP_ converged ITER_MIN_ 80"}],
             "counts": {"errors": 1, "warnings": 0, "notes": 0, "ignored": 0},
             "inventory": {"kinds": 12, "commands": 12, "values": 89, "model_ids": 2, "references": 9}},
            self.report())

    def test_of_a_good_job_is_json_alone(self):
        self.build(sound_job())
        result = self.tool("check", "--json")
        self.assertEqual((GOOD, ""), (result.code, result.err))
        self.assertEqual([], json.loads(result.out)["findings"])

    def test_has_the_place_in_a_description(self):
        self.write("job.toml", "[STOP_.s]\nITER_MIN_ = 2\nITER_MAX_ = 1\n")
        places = [(finding["file"], finding["line"], finding["column"])
                  for finding in self.report("job.toml")["findings"] if finding["rule"] == "limits"]
        self.assertEqual([("job.toml", 2, 13)], places)

    def test_takes_names_that_are_no_utf8(self):
        path = self.build(sound_job())
        with h5py.File(path, "r+") as file:
            file["PARFILE/STOP_"].create_group(b"caf\xe9")
        self.assertIn("caf\ufffd", [finding.id for finding in self.findings()])


class FilesOfOtherPrograms(PrintTest):
    """Complete parameter files that h5py wrote."""

    def test_the_least_job_is_good(self):
        self.build(sound_job())
        self.write("ids.toml", SOUND_IDS)
        self.assertEqual(
            (GOOD, f". is good: {SOUND_COUNTS}\nmodel ids checked against 2 names of ids.toml\n", ""),
            self.tool("check", "--model-ids", "ids.toml"))

    def test_a_file_may_be_named_by_its_folder_or_itself(self):
        (self.folder / "run").mkdir()
        write_parameter_file(self.folder / "run", sound_job())
        for argument in ("run", "run/", f"run/{FILE_NAME}", self.folder / "run"):
            with self.subTest(argument):
                self.assertEqual((GOOD, f"{argument} is good: {SOUND_COUNTS}\n{NOT_CHECKED}", ""),
                                 self.tool("check", argument))

    def test_a_file_stays_as_it_was(self):
        path = self.build(sound_job())
        before = path.read_bytes()
        path.chmod(0o444)
        self.assertEqual(GOOD, self.tool("check").code)
        self.assertEqual(before, path.read_bytes())
        self.assertEqual([FILE_NAME], names_in(self.folder))

    def test_a_smoothing_job_without_any_command_is_good(self):
        self.build({})
        self.assertEqual(
            (GOOD, f". is good: 0 kinds, 0 commands, 0 values (0 of them model ids), 0 references\n{NOT_CHECKED}", ""),
            self.tool("check", "--job", "smooth"))


class TheLibrary(PrintTest):
    """What it says of files that do not load."""

    def setUp(self):
        super().setUp()
        self.job = sound_job()

    def assert_says(self, pattern, *arguments):
        self.build(self.job)
        self.assert_library_says(pattern, *arguments)

    def test_of_two_algorithms(self):
        self.job["ALGO_"]["shape"] = dict(self.job["ALGO_"]["topology"])
        self.assert_says(r"^2 commands of type ALGO_ detected. Only one is expected.$")

    def test_of_no_model(self):
        del self.job["MODEL_"]
        self.assert_says(r"^0 commands of type MODEL_ detected. Only one is expected.$")

    def test_of_an_absent_key(self):
        del self.job["STOP_"]["converged"]["ITER_MAX_"]
        self.assert_says(r"^Failed to retrieve value from the optimization database.$")

    def test_of_an_absent_reference(self):
        del self.job["ALGO_"]["topology"]["STOP_"]
        self.assert_says(r"^Failed to write reference in the optimization database\.\n"
                         r"Database reported the following error:\n .+$")

    def test_of_a_reference_to_a_command_of_another_kind(self):
        self.job["ALGO_"]["topology"]["STOP_"] = references("OPT_PARAM_/run")
        self.assert_says(r"^Invalid ID run of the parameter file command STOP_$")

    def test_of_a_value_of_another_class(self):
        self.job["MODEL_"]["duct"]["FILE_"] = integers(3)
        self.assert_says(r"^Failed to read value from the optimization database\.\n"
                         r"Database reported the following error:\n .+$")

    def test_of_a_dataset_in_place_of_a_command_or_a_kind(self):
        for place in ("MODEL_/duct", "MODEL_"):
            with self.subTest(place):
                path = self.build(self.job)
                with h5py.File(path, "r+") as file:
                    del file[f"PARFILE/{place}"]
                    file[f"PARFILE/{place}"] = numpy.array([1], dtype=numpy.int32)
                self.assert_library_says(r"^Failed to .+\.\nDatabase reported the following error:\n .+$")

    def test_stands_in_lines_below_each_other(self):
        self.job["DV_"]["porosity"]["ELEMENT_GROUP_"] = texts("walls")
        self.build(self.job)
        self.write("ids.toml", SOUND_IDS)
        self.assert_prints(
            ".: error: 1 model IDs referenced in the parameter file cannot be found. [library]\n"
            "    Please check your parameterfile for errors.\n"
            "    Referenced ID is not found\n"
            '      Value "walls" of parameter "ELEMENT_GROUP" is erroneous\n'
            '      In "DV" command with ID_NAME "porosity"\n'
            "    mend: see to what is found below, then check again\n"
            ".: error: DV_ porosity: ELEMENT_GROUP_ names walls, which is none of the element_groups of the model "
            "[unknown-model-id]\n"
            "    mend: the model has no element_groups\n"
            "2 errors\n", "--model-ids", "ids.toml")


class UnknownModelIds(PrintTest):
    def test_are_reported_in_the_order_of_the_kinds_and_looked_up_in_their_own_list(self):
        job = minimal_job()
        job["OUTPUT_"] = {"density": {
            "FILENAME_": texts("density"), "FORMAT_": integers(86),
            "ITERATION_": integer_lists([1]),
            "TYPE_": integers(84), "RESULT_": integers(83), "SPREAD_ALGO_": integers(65),
            "BACKFLOW_ANGLE_": integers(90), "SPREAD_PERCENTAGE_": doubles(0.0), "INVERT_": integers(70),
            "DESIGN_ONLY_": integers(70), "KEEP_POST_DATA_": integers(70), "ELEMENT_GROUP_": texts("")}}
        job["DV_"]["porosity"]["ELEMENT_GROUP_"] = texts("walls")
        job["NODE_GROUP_"] = {"holes": {"SUBTRACT_": texts("box"), "MERGE_": texts("rim", "rmi")}}
        self.build(job)
        self.write("ids.toml", 'element_groups = ["box"]\nnode_groups = ["rim"]\nface_groups = ["walls", "inlet"]\n')
        self.assertEqual(
            "5 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            '  Value "rmi" of parameter "MERGE" is erroneous\n'
            '  In "NODE_GROUP" command with ID_NAME "holes"\n'
            "Referenced ID is not found\n"
            '  Value "box" of parameter "SUBTRACT" is erroneous\n'
            '  In "NODE_GROUP" command with ID_NAME "holes"\n'
            "Referenced ID is not found\n"
            '  Value "walls" of parameter "ELEMENT_GROUP" is erroneous\n'
            '  In "DV" command with ID_NAME "porosity"\n'
            "Referenced ID is not found\n"
            '  Value "outlet" of parameter "OUT" is erroneous\n'
            '  In "FLOWPATHS" command with ID_NAME "bend"\n'
            "Referenced ID is not found\n"
            '  Value "" of parameter "ELEMENT_GROUP" is erroneous\n'
            '  In "OUTPUT" command with ID_NAME "density"',
            self.texts("--model-ids", "ids.toml", of="library")[0])

    def test_beyond_the_bound_of_the_text_keep_their_true_number(self):
        self.copy_example("bent_duct")
        self.write("none.toml", "# a model that knows nothing\n")
        text = self.texts("job.toml", "--model-ids", "none.toml", of="library")[0]
        self.assertTrue(text.startswith(
            "50 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            '  Value "design_space" of parameter "MERGE" is erroneous\n'
            '  In "ELEMENT_GROUP" command with ID_NAME "bend_core"\n'), text)
        self.assertEqual(1023, len(text))
        self.assertEqual(50, len(self.findings("job.toml", "--model-ids", "none.toml", of="unknown-model-id")))

    def test_of_a_file_are_passed_over_without_a_list_of_names(self):
        self.build(sound_job())
        self.assertEqual((GOOD, f". is good: {SOUND_COUNTS}\n{NOT_CHECKED}", ""), self.tool("check"))

    def test_are_no_matter_of_a_smoothing_job(self):
        self.copy_example("smooth")
        self.write("none.toml", "# a model that knows nothing\n")
        self.assertEqual(
            (GOOD,
             "job.toml is good: 1 kind, 1 command, 74 values (0 of them model ids), 0 references\n"
             "model ids checked against 0 names of none.toml\n", ""),
            self.tool("check", "job.toml", "--job", "smooth", "--model-ids", "none.toml"))


class ModelIdFiles(PrintTest):
    def setUp(self):
        super().setUp()
        self.build(sound_job())

    def assert_faults_of_ids(self, text, *faults):
        self.write("ids.toml", text)
        self.assert_faults_of_input("\n".join(faults), "check", "--model-ids", "ids.toml")

    def test_an_unknown_list(self):
        self.assert_faults_of_ids(
            SOUND_IDS + 'element_group = ["box"]\n',
            "ids.toml:2:17: there is no list element_group; the nearest is element_groups; "
            "there are coordinate_systems, element_groups, face_groups, node_groups")

    def test_names_that_are_no_texts(self):
        self.assert_faults_of_ids(
            'face_groups = ["inlet", 3, true,\n  ["outlet"], 2.5]\n',
            "ids.toml:1:25: face_groups holds names, not 3",
            "ids.toml:1:28: face_groups holds names, not true",
            "ids.toml:2:3: face_groups holds names, not [ 'outlet' ]",
            "ids.toml:2:15: face_groups holds names, not 2.5")

    def test_lists_that_are_no_arrays(self):
        self.assert_faults_of_ids('face_groups = "inlet"\n', "ids.toml:1:15: face_groups must be an array of names")
        self.assert_faults_of_ids("[node_groups]\n", "ids.toml:1:1: node_groups must be an array of names")

    def test_all_faults_come_in_one_run_and_in_the_order_of_the_text(self):
        self.assert_faults_of_ids(
            'node_groups = [1]\nelement_groups = 2\nsets = []\nface_groups = [4]\n',
            "ids.toml:1:16: node_groups holds names, not 1",
            "ids.toml:2:18: element_groups must be an array of names",
            "ids.toml:3:8: there is no list sets; the nearest is face_groups; "
            "there are coordinate_systems, element_groups, face_groups, node_groups",
            "ids.toml:4:16: face_groups holds names, not 4")

    def test_a_syntax_error(self):
        self.write("ids.toml", 'face_groups = ["inlet"\n')
        self.assert_unusable(
            "ids.toml:1:24: Error while parsing array: encountered end-of-file", "check", "--model-ids", "ids.toml")

    def test_a_file_that_cannot_be_read(self):
        (self.folder / "folder.toml").mkdir()
        for name in ("gone.toml", "folder.toml", "."):
            with self.subTest(name):
                self.assert_unusable(f"{name}: the file cannot be read", "check", "--model-ids", name)

    def test_an_empty_name_of_the_file_is_wrong_use_and_not_a_check_without_names(self):
        result = self.tool("check", "--model-ids", "")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertNotEqual("", result.err)

    def test_a_name_may_stand_twice(self):
        self.write("ids.toml", 'face_groups = ["inlet", "outlet", "inlet"]\n')
        self.assertEqual(GOOD, self.tool("check", "--model-ids", "ids.toml").code)


class JobDescriptions(PrintTest):
    def test_have_the_same_faults_as_for_import(self):
        self.write(
            "job.toml",
            '[MODEL_.duct]\nFILE_ = 1\n[STOP_.s]\nITER_MAX_ = "x"\nITER_MIN_ = 1\n'
            "RESIDUAL_OBJ_ = 1.0\nRESIDUAL_DV_ = 1.0\n[DVV_.d]\n")
        imported = self.tool("import", "job.toml")
        self.assertEqual(FAULTS, imported.code)
        self.assertEqual(3, len(imported.err.splitlines()))
        found = self.report("job.toml")["findings"]
        self.assertEqual(["library", "command-count", "command-count", "command-count", "wrong-type", "wrong-type",
                          "unknown-kind"], [finding["rule"] for finding in found])
        for finding, line in zip(found[4:], imported.err.splitlines()):
            self.assertTrue(line.startswith(f"job.toml:{finding['line']}:{finding['column']}: {finding['text']}"), line)

    def test_a_wrong_reference_hides_no_other_and_no_fault_of_loading(self):
        self.write("job.toml", '[MONITOR_.b]\nDRESP_ = "y"\n[MONITOR_.a]\nDRESP_ = "x"\n')
        self.assertEqual(["job.toml: 0 commands of type MODEL_ detected. Only one is expected."],
                         ["job.toml: " + text for text in self.texts("job.toml", of="library")])
        self.assertEqual(["DRESP_/y", "DRESP_/x"],
                         [finding.value for finding in self.findings("job.toml", of="unresolved-reference")])

    def test_do_not_touch_a_parameter_file_beside_them(self):
        self.copy_example("bent_duct")
        (self.folder / FILE_NAME).write_bytes(b"what was there")
        self.assertEqual(GOOD, self.tool("check", "job.toml").code)
        self.assertEqual(b"what was there", (self.folder / FILE_NAME).read_bytes())

    def test_that_do_not_parse(self):
        self.write("job.toml", "[MODEL_.duct\n")
        self.assert_unusable(
            "job.toml:1:13: Error while parsing table header: expected ']', saw '\\n'", "check", "job.toml")

    def test_that_cannot_be_read(self):
        (self.folder / "folder.toml").mkdir()
        for name in ("gone.toml", "folder.toml"):
            with self.subTest(name):
                self.assert_unusable(f"{name}: the file cannot be read", "check", name)


class UnusableFiles(PrintTest):
    def setUp(self):
        super().setUp()
        self.place = self.folder / "run" / FILE_NAME
        self.place.parent.mkdir()

    def assert_unusable_file(self, err):
        """The same for check and show, and the file is not touched."""
        before = self.place.read_bytes()
        for command in ("check", "show"):
            self.assert_unusable(f"{self.place}: {err}", command, "run")
        self.assertEqual(before, self.place.read_bytes())

    def assert_no_hdf5_file(self):
        self.assert_unusable_file(
            "Failed to create the HDF5 optimization database.\n  HDF5 reported the following error:\n  H5Fopen failed")

    def assert_no_parfile_group(self):
        self.assert_unusable_file(
            "Failed to retrieve the parfile from the optimization database.\n"
            "Database reported the following error:\n H5Gopen2 failed ")

    def test_a_missing_file(self):
        for command in ("check", "show"):
            self.assert_unusable(f"{self.place}: there is no such file", command, f"run/{FILE_NAME}")

    def test_a_folder_without_the_file(self):
        for command in ("check", "show"):
            self.assert_unusable(f"{self.place}: there is no such file", command, "run")

    def test_a_working_directory_without_the_file(self):
        for command in ("check", "show"):
            result = self.tool(command, cwd=self.place.parent)
            self.assertEqual((UNUSABLE, ""), (result.code, result.out))
            self.assertTrue(result.err.endswith(f"/{FILE_NAME}: there is no such file\n"), result.err)

    def test_a_missing_folder(self):
        for command in ("check", "show"):
            result = self.tool(command, f"gone/{FILE_NAME}")
            self.assertEqual(
                (UNUSABLE, "", f"{self.folder}/gone/{FILE_NAME}: there is no such file\n"), result)

    def test_a_file_of_another_name(self):
        write_parameter_file(self.place.parent, minimal_job()).rename(self.folder / "other.hdf5")
        for command in ("check", "show"):
            self.assert_unusable(
                "other.hdf5: a parameter file must have the name parfile_storage.hdf5", command, "other.hdf5")

    def test_zero_bytes_stay_zero_bytes(self):
        self.place.write_bytes(b"")
        self.assert_no_hdf5_file()

    def test_a_text_file(self):
        self.place.write_text("MODEL_INPUT\n  ID_NAME = duct\nEND_\n" * 100)
        self.assert_no_hdf5_file()

    def test_a_file_that_lost_its_tail(self):
        whole = write_parameter_file(self.place.parent, minimal_job()).read_bytes()
        self.place.write_bytes(whole[:len(whole) // 2])
        self.assert_no_hdf5_file()

    def test_an_hdf5_file_without_the_group_of_parameter_files(self):
        with h5py.File(self.place, "w") as file:
            file.create_group("MODEL_")
        self.assert_no_parfile_group()

    def test_an_hdf5_file_with_a_dataset_in_place_of_that_group(self):
        with h5py.File(self.place, "w") as file:
            file["PARFILE"] = 1
        self.assert_no_parfile_group()

    def test_a_folder_of_the_file_s_name(self):
        self.place.mkdir()
        for command in ("check", "show"):
            result = self.tool(command, "run")
            self.assertEqual((UNUSABLE, ""), (result.code, result.out))

    def test_an_empty_argument(self):
        for command in ("check", "show"):
            result = self.tool(command, "")
            self.assertEqual((UNUSABLE, ""), (result.code, result.out))
            self.assertNotEqual("", result.err)


if __name__ == "__main__":
    unittest.main()
