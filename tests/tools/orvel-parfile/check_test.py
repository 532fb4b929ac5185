"""orvel-parfile check: sound files and jobs, every fault, and the names of the model."""

import unittest

import h5py
import numpy

from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, UNUSABLE, ToolTest, doubles, integer_lists,
                     integers, minimal_job, names_in, references, texts, write_parameter_file)

BENT_DUCT_COUNTS = "25 kinds, 55 commands, 477 values (50 of them model ids), 49 references"
MINIMAL_COUNTS = "11 kinds, 11 commands, 77 values (2 of them model ids), 8 references"
NOT_CHECKED = "model ids not checked: give the names that the model knows with --model-ids\n"
MINIMAL_IDS = 'face_groups = ["inlet", "outlet"]\n'


class CheckTest(ToolTest):
    """With what several groups of tests need."""

    def build(self, job):
        """Builds a parameter file with h5py in the folder of the test."""
        return write_parameter_file(self.folder, job)

    def assert_faults(self, err, *arguments):
        """Faults on standard error alone. Line feeds at its end, which some texts of the library have, do not count."""
        result = self.tool(*arguments)
        self.assertEqual(err, result.err.rstrip("\n"))
        self.assertEqual((FAULTS, ""), (result.code, result.out))

    def assert_unusable(self, err, *arguments):
        self.assertEqual((UNUSABLE, "", err + "\n"), self.tool(*arguments))


class Examples(CheckTest):
    def test_the_bent_duct_is_good_as_a_file(self):
        self.copy_example("bent_duct")
        self.tool("import", "job.toml")
        self.assertEqual(
            (GOOD, f". is good: {BENT_DUCT_COUNTS}\nmodel ids checked against 27 names of model_ids.toml\n", ""),
            self.tool("check", "--model-ids", "model_ids.toml"))

    def test_the_bent_duct_is_good_as_a_description_and_nothing_is_written(self):
        self.copy_example("bent_duct")
        self.assertEqual(
            (GOOD, f"job.toml is good: {BENT_DUCT_COUNTS}\nmodel ids checked against 27 names of model_ids.toml\n", ""),
            self.tool("check", "job.toml", "--model-ids", "model_ids.toml"))
        self.assertEqual(["job.toml", "model_ids.toml"], names_in(self.folder))

    def test_without_model_ids_the_tool_says_that_they_were_not_checked(self):
        self.copy_example("bent_duct")
        self.assertEqual((GOOD, f"job.toml is good: {BENT_DUCT_COUNTS}\n{NOT_CHECKED}", ""),
                         self.tool("check", "job.toml"))

    def test_the_smoothing_job_is_good(self):
        self.copy_example("smooth")
        counts = "1 kinds, 1 commands, 74 values (0 of them model ids), 0 references"
        self.assertEqual((GOOD, f"job.toml is good: {counts}\n{NOT_CHECKED}", ""),
                         self.tool("check", "job.toml", "--job", "smooth"))
        self.tool("import", "job.toml")
        self.assertEqual((GOOD, f". is good: {counts}\n{NOT_CHECKED}", ""), self.tool("check", "--job", "smooth"))

    def test_the_smoothing_job_is_no_fluid_job(self):
        self.assert_faults(
            "0 commands of type MODEL_ detected. Only one is expected.", "check", EXAMPLES / "smooth" / "job.toml")

    def test_the_bent_duct_has_a_smoothing_part_of_its_own(self):
        self.copy_example("bent_duct")
        self.assertEqual(GOOD, self.tool("check", "job.toml", "--job", "smooth").code)

    def test_both_faults_of_the_broken_bent_duct_come_in_one_run(self):
        self.copy_example("bent_duct_broken")
        self.assert_faults(
            "job.toml:103:10: A command of type DRESP_ with the ID_NAME uniformity_oulet referenced in the "
            "parameterfile is not found\n"
            "  The command is reference from the CONSTRAINT_ command with ID_NAME flat_profile\n"
            "1 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            '  Value "keep_out_colum" of parameter "SUBTRACT" is erroneous\n'
            '  In "ELEMENT_GROUP" command with ID_NAME "design_space"',
            "check", "job.toml", "--model-ids", "model_ids.toml")
        self.assertEqual(["job.toml", "model_ids.toml"], names_in(self.folder))

    def test_the_broken_bent_duct_without_model_ids_has_one_fault(self):
        self.copy_example("bent_duct_broken")
        self.assert_faults(
            "job.toml:103:10: A command of type DRESP_ with the ID_NAME uniformity_oulet referenced in the "
            "parameterfile is not found\n"
            "  The command is reference from the CONSTRAINT_ command with ID_NAME flat_profile",
            "check", "job.toml")

    def test_the_broken_bent_duct_is_good_once_both_faults_are_mended(self):
        self.copy_example("bent_duct_broken")
        text = (self.folder / "job.toml").read_text()
        self.write("job.toml", text.replace("uniformity_oulet", "uniformity_outlet").replace(
            '"keep_out_colum"', '"keep_out_column"'))
        self.assertEqual(
            (GOOD,
             "job.toml is good: 16 kinds, 20 commands, 159 values (17 of them model ids), 15 references\n"
             "model ids checked against 21 names of model_ids.toml\n", ""),
            self.tool("check", "job.toml", "--model-ids", "model_ids.toml"))


class FilesOfOtherPrograms(CheckTest):
    """Complete parameter files that h5py wrote."""

    def test_the_least_job_is_good(self):
        self.build(minimal_job())
        self.write("ids.toml", MINIMAL_IDS)
        self.assertEqual(
            (GOOD, f". is good: {MINIMAL_COUNTS}\nmodel ids checked against 2 names of ids.toml\n", ""),
            self.tool("check", "--model-ids", "ids.toml"))

    def test_a_file_may_be_named_by_its_folder_or_itself(self):
        (self.folder / "run").mkdir()
        write_parameter_file(self.folder / "run", minimal_job())
        for argument in ("run", "run/", f"run/{FILE_NAME}", self.folder / "run"):
            with self.subTest(argument):
                self.assertEqual((GOOD, f"{argument} is good: {MINIMAL_COUNTS}\n{NOT_CHECKED}", ""),
                                 self.tool("check", argument))

    def test_a_file_stays_as_it_was(self):
        path = self.build(minimal_job())
        before = path.read_bytes()
        path.chmod(0o444)
        self.assertEqual(GOOD, self.tool("check").code)
        self.assertEqual(before, path.read_bytes())
        self.assertEqual([FILE_NAME], names_in(self.folder))

    def test_two_algorithms_are_a_fault(self):
        job = minimal_job()
        job["ALGO_"]["shape"] = dict(job["ALGO_"]["topology"])
        self.build(job)
        self.assert_faults("2 commands of type ALGO_ detected. Only one is expected.", "check")

    def test_no_model_is_a_fault(self):
        job = minimal_job()
        del job["MODEL_"]
        self.build(job)
        self.assert_faults("0 commands of type MODEL_ detected. Only one is expected.", "check")

    def test_a_group_of_models_without_a_model_is_a_fault(self):
        self.build({**minimal_job(), "MODEL_": {}})
        with h5py.File(self.folder / FILE_NAME, "r+") as file:
            file.create_group("PARFILE/MODEL_")
        self.assert_faults("0 commands of type MODEL_ detected. Only one is expected.", "check")

    def test_an_absent_key_that_must_always_be_there_is_a_fault(self):
        job = minimal_job()
        del job["STOP_"]["converged"]["ITER_MAX_"]
        self.build(job)
        self.assert_faults(
            "Failed to retrieve value from the optimization database.\n"
            "STOP_ converged lacks the key ITER_MAX_, which must always be there", "check")

    def test_an_absent_reference_that_must_always_be_there_is_a_fault(self):
        job = minimal_job()
        del job["ALGO_"]["topology"]["STOP_"]
        self.build(job)
        result = self.tool("check")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(
            result.err, r"^Failed to write reference in the optimization database\.\n"
            r"Database reported the following error:\n .+ \nALGO_ topology lacks the key STOP_, which must always be "
            r"there\n$")

    def test_a_reference_that_was_never_set_is_a_fault(self):
        path = self.build(minimal_job())
        with h5py.File(path, "r+") as file:
            algorithm = file["PARFILE/ALGO_/topology"]
            del algorithm["STOP_"]
            algorithm.create_dataset("STOP_", (1,), maxshape=(None,), chunks=(1,), dtype=h5py.ref_dtype)
        result = self.tool("check")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(result.err, r"^Failed to write reference in the optimization database\.\n")

    def test_a_reference_to_a_command_of_another_kind_is_a_fault(self):
        job = minimal_job()
        job["ALGO_"]["topology"]["STOP_"] = references("OPT_PARAM_/run")
        self.build(job)
        self.assert_faults("Invalid ID run of the parameter file command STOP_", "check")

    def test_an_enumerator_that_is_none_loads(self):
        job = minimal_job()
        job["DV_"]["porosity"]["TYPE_"] = integers(67)
        job["ALGO_"]["topology"]["STRATEGY_"] = integers(-1)
        self.build(job)
        self.assertEqual((GOOD, f". is good: {MINIMAL_COUNTS}\n{NOT_CHECKED}", ""), self.tool("check"))

    def test_a_value_of_another_class_is_a_fault(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = integers(3)
        self.build(job)
        result = self.tool("check")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(
            result.err, r"^Failed to read value from the optimization database\.\n"
            r"Database reported the following error:\n .+ \n$")

    def test_a_key_without_values_is_a_fault(self):
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = texts()
        self.build(job)
        result = self.tool("check")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(result.err, r"^Failed to read value from the optimization database\.\n")

    def test_a_dataset_in_place_of_a_command_or_a_kind_is_a_fault(self):
        for place in ("MODEL_/duct", "MODEL_"):
            with self.subTest(place):
                path = self.build(minimal_job())
                with h5py.File(path, "r+") as file:
                    del file[f"PARFILE/{place}"]
                    file[f"PARFILE/{place}"] = numpy.array([1], dtype=numpy.int32)
                result = self.tool("check")
                self.assertEqual((FAULTS, ""), (result.code, result.out))
                self.assertRegex(result.err, r"^Failed to .+\.\nDatabase reported the following error:\n .+ \n$")

    def test_kinds_and_keys_that_the_library_does_not_know_are_passed_over(self):
        job = minimal_job()
        job["REPORT_"] = {"r": {"FILE_": texts("report.txt")}}
        job["MODEL_"]["duct"]["SCALE_"] = doubles(1.0)
        self.build(job)
        counts = "12 kinds, 12 commands, 79 values (2 of them model ids), 8 references"
        self.assertEqual((GOOD, f". is good: {counts}\n{NOT_CHECKED}", ""), self.tool("check"))

    def test_a_smoothing_job_without_any_command_is_good(self):
        self.build({})
        self.assertEqual(
            (GOOD, f". is good: 0 kinds, 0 commands, 0 values (0 of them model ids), 0 references\n{NOT_CHECKED}", ""),
            self.tool("check", "--job", "smooth"))


class UnknownModelIds(CheckTest):
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
        self.assert_faults(
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
            "check", "--model-ids", "ids.toml")

    def test_beyond_the_bound_of_the_text_keep_their_true_number(self):
        self.copy_example("bent_duct")
        self.write("none.toml", "# a model that knows nothing\n")
        result = self.tool("check", "job.toml", "--model-ids", "none.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertTrue(result.err.startswith(
            "50 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            '  Value "design_space" of parameter "MERGE" is erroneous\n'
            '  In "ELEMENT_GROUP" command with ID_NAME "bend_core"\n'), result.err)
        self.assertEqual(1023, len(result.err.rstrip("\n")))

    def test_of_a_file_are_passed_over_without_a_list_of_names(self):
        self.build(minimal_job())
        self.assertEqual((GOOD, f". is good: {MINIMAL_COUNTS}\n{NOT_CHECKED}", ""), self.tool("check"))

    def test_are_no_matter_of_a_smoothing_job(self):
        self.copy_example("smooth")
        self.write("none.toml", "# a model that knows nothing\n")
        self.assertEqual(
            (GOOD,
             "job.toml is good: 1 kinds, 1 commands, 74 values (0 of them model ids), 0 references\n"
             "model ids checked against 0 names of none.toml\n", ""),
            self.tool("check", "job.toml", "--job", "smooth", "--model-ids", "none.toml"))


class ModelIdFiles(CheckTest):
    def setUp(self):
        super().setUp()
        self.build(minimal_job())

    def assert_faults_of_ids(self, text, *faults):
        self.write("ids.toml", text)
        self.assert_faults("\n".join(faults), "check", "--model-ids", "ids.toml")

    def test_an_unknown_list(self):
        self.assert_faults_of_ids(
            MINIMAL_IDS + 'element_group = ["box"]\n',
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


class JobDescriptions(CheckTest):
    def test_have_the_same_faults_as_for_import(self):
        self.write(
            "job.toml",
            '[MODEL_.duct]\nFILE_ = 1\n[STOP_.s]\nITER_MAX_ = "x"\nITER_MIN_ = 1\n'
            "RESIDUAL_OBJ_ = 1.0\nRESIDUAL_DV_ = 1.0\n[DVV_.d]\n")
        imported = self.tool("import", "job.toml")
        self.assertEqual(FAULTS, imported.code)
        self.assertEqual(3, len(imported.err.splitlines()))
        checked = self.tool("check", "job.toml")
        self.assertEqual("Failed to retrieve value from the optimization database.\n" + imported.err, checked.err)

    def test_a_wrong_reference_hides_no_other_and_no_fault_of_loading(self):
        self.write("job.toml", '[MONITOR_.b]\nDRESP_ = "y"\n[MONITOR_.a]\nDRESP_ = "x"\n')
        self.assert_faults(
            "job.toml:2:10: A command of type DRESP_ with the ID_NAME y referenced in the parameterfile is not found\n"
            "  The command is reference from the MONITOR_ command with ID_NAME b\n"
            "job.toml:4:10: A command of type DRESP_ with the ID_NAME x referenced in the parameterfile is not found\n"
            "  The command is reference from the MONITOR_ command with ID_NAME a\n"
            "0 commands of type MODEL_ detected. Only one is expected.",
            "check", "job.toml")

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


class UnusableFiles(CheckTest):
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
