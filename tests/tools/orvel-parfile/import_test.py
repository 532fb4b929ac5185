"""orvel-parfile import: what it writes, what it refuses, and what it leaves behind."""

import os
import signal
import subprocess
import tomllib
import unittest

import h5py
import numpy

from support import EXAMPLES, FAULTS, FILE_NAME, GOOD, TOOL, TYPES, UNUSABLE, ToolTest, names_in

# Keys whose value is one list, where an array of any other key holds one value for each element.
LIST_KEYS = {("NODE_GROUP_", "LIST_"), ("OPT_PARAM_", "STORE_INT_"), ("OUTPUT_", "ITERATION_"),
             ("OUTPUT_", "CUTOFF_"), ("SMOOTH_", "ITERATION_")}

# Key -> kind of the target.
REFERENCE_KEYS = {
    "DV_": {"FILTER_": "FILTER_", "DV_": "DV_"},
    "DRESP_": {"DV_CONSTRAINT_": "DV_CONSTRAINT_"},
    "OPERATOR_": {"DRESP_": "DRESP_", "OPERATOR_": "OPERATOR_"},
    "OBJ_FUNC_": {"DRESP_": "DRESP_", "OPERATOR_": "OPERATOR_", "FILTER_": "FILTER_"},
    "CONSTRAINT_": {"DRESP_": "DRESP_", "OPERATOR_": "OPERATOR_", "FILTER_": "FILTER_"},
    "DV_CONSTRAINT_": {"CS_": "CS_", "SCALING_CURVE_": "SCALING_CURVE_"},
    "MONITOR_": {"DRESP_": "DRESP_"},
    "ALGO_": {
        "DV_": "DV_", "OBJ_FUNC_": "OBJ_FUNC_", "CONSTRAINT_": "CONSTRAINT_", "DV_CONSTRAINT_": "DV_CONSTRAINT_",
        "OPT_PARAM_": "OPT_PARAM_", "STOP_": "STOP_", "PRE_PARAM_": "PRE_PARAM_", "MESH_SMOOTH_": "MESH_SMOOTH_",
        "MONITOR_": "MONITOR_", "AS_TOPO_OC_": "AS_TOPO_OC_", "AS_TOPO_SENS_": "AS_TOPO_SENS_",
        "AS_SHAPE_SENS_": "AS_SHAPE_SENS_"},
    "MESH_SMOOTH_": {"FILTER_": "FILTER_", "DV_CONSTRAINT_": "DV_CONSTRAINT_"},
    "AS_SHAPE_SENS_": {"FILTER_": "FILTER_"},
}

# The numbers of the enumerators that the examples use. A text of any other key is a text in the file too.
SWITCH = {"NO": 70, "YES": 84}
ENUMERATORS = {
    "DV_": {"TYPE_": {"AUTO": 65, "DENSITY": 68, "NODAL": 78}},
    "DRESP_": {
        "TYPE_": {"VOLUME": 146, "CUSTOM": 1000, "PRESSURE_DROP": 1001, "UNIFORMITY": 1002, "SWIRL": 1003,
                  "BACKFLOW": 1005},
        "UPDATE_TYPE_": {"CALCULATED": 67, "RECEIVED": 82}},
    "OPERATOR_": {"TYPE_": {"WEIGHTED_SUM": 87}, "UPDATE_TYPE_": {"CALCULATED": 67}},
    "OBJ_FUNC_": {"TARGET_": {"MIN": 77}, "SENSSCALING_TYPE_": {"NORMED_TO_ONE": 79}},
    "CONSTRAINT_": {
        "TYPE_": {"GREATER_EQUAL": 71, "LESS_EQUAL": 76}, "MAGNITUDE_": {"ABS": 65, "REL": 82},
        "SENSSCALING_TYPE_": {"NONE": 78, "NORMED_TO_ONE": 79, "SCALED": 83}},
    "CS_": {"TYPE_": {"CYLINDRICAL": 67}},
    "DV_CONSTRAINT_": {
        "DVC_TYPE_": {"DEMOLD": 69, "SCALING_CURVE": 71, "MEMBERSIZE": 77, "OPT_DIR": 79},
        "FEASIBLE_START_": {"FEASIBLE": 70, "INFEASIBLE": 73}, "SAVE_": {"NO": 78, "YES": 89},
        "DUMPOPTVALUES_": {"NO": 78}, "FILTER_TYPE_": {"SIGMUND": 83}, "MEMBERSIZE_TYPE_": {"MIN": 73},
        "AGGREGATION_METHOD_": {"PN": 65, "NONE": 78}, "X_DOF_": {"FREE": 69}, "Y_DOF_": {"FIX": 88},
        "Z_DOF_": {"FIX": 88}, "CHECK_ELGR_BLOCKING_": {"BOTH": 66}, "MID_PLANE_": {"POINT": 80, "NONE": 95}},
    "MESH_SMOOTH_": {"METHOD_": {"CONSTRAINED_LAPLACIAN": 67, "CHECK_PENETRATION": 80}},
    "FILTER_": {"METHOD_": {"BD_TRANSITION": 67, "SIGMUND": 69, "SIGMUND_SURFACE": 70, "DA_PLANE_NORMAL": 80}},
    "ALGO_": {"STRATEGY_": {"TOPO_SENS": 84}, "DEVELOPER_OUTPUT_": SWITCH},
    "PRE_PARAM_": {
        "PTRACK_PRI_VRML_": SWITCH, "PTRACK_VAL_VRML_": SWITCH, "REF_VRML_": SWITCH,
        "PTRACK_KEEP_INVALID_": SWITCH, "PTRACK_VRML_ADD_BOUNDS_": SWITCH},
    "AS_TOPO_OC_": {"SCALING_CURVE_TYPE_": {"LINEAR": 73}},
    "AS_TOPO_SENS_": {
        "ALGORITHM_": {"MMA": 77}, "MATH_KERNEL_": {"INTERNAL": 73}, "SCALING_CURVE_TYPE_": {"CONVEX": 88},
        "ASYM_MOVE_": {"CUSTOM": 83}},
    "AS_SHAPE_SENS_": {
        "ALGORITHM_": {"MMA": 77}, "MATH_KERNEL_": {"INTERNAL": 73}, "SCALING_CURVE_TYPE_": {"LINEAR": 73},
        "ASYM_MOVE_": {"CONSERVATIVE": 67}, "NORMAL_UPDATE_": {"UPDATE": 85}, "DV_TYPE_": {"DEFAULT": 68}},
    "OUTPUT_": {
        "FORMAT_": {"CSV": 67, "VTK": 86, "WRL": 87},
        "TYPE_": {"OPT_FUNC_DATA": 79, "CELL_SET": 83, "TOPO_DATA": 84},
        "RESULT_": {"PTRACK": 80, "MATERIAL": 83}, "SPREAD_ALGO_": {"ALL_PTRACKS": 65, "FASTEST_PTRACK": 70},
        "INVERT_": SWITCH, "DESIGN_ONLY_": SWITCH, "KEEP_POST_DATA_": SWITCH},
    "SCALING_CURVE_": {"TYPE_": {"HEAVYSIDE": 72}},
    "SMOOTH_": {
        "TASK_": {"ISO": 73}, "ALL_ITERATIONS_": SWITCH, "VTM_RESULT_": SWITCH, "FORMAT_": {"STL": 83, "VTF": 86},
        "STL_GROUPS_": SWITCH, "OUTPUT_SURFACE_": {"BOTH": 66, "NEW": 78}, "VTF_ORGMODEL_": SWITCH,
        "IGES_UNIT_": {"M": 68}, "SLICES_": SWITCH, "SLICE_PRIMARY_": SWITCH, "SLICE_INTERSECTION_": SWITCH,
        "SLICE_REDUCTION_": SWITCH, "SLICE_OFFSET_": SWITCH, "SLICE_FILTER_CURVES_": SWITCH,
        "SLICE_FORMAT_": {"ASCII_POINTS": 65, "IGES_CURVES": 67}, "BORDER_": SWITCH,
        "BORDER_FORMAT_": {"ASCII_POINTS": 65, "IGES_CURVES": 67}, "NO_SORT_": SWITCH, "REDUCTION_": SWITCH,
        "SELF_INTERSECTION_": {"CHECK": 67, "ITERATIVE": 73}, "ORIGINAL_SURFACE_TOLERANCE_TYPE_": {"ABS": 65},
        "MIXED_MESH_": SWITCH, "EXCLUDE_LOADED_": SWITCH, "ISO_SEQUENCE_": {"CONST": 67},
        "O_SURF_SMOOTHING_": {"OFF": 79, "SHRINK": 83}, "RESULT_FILTERING_": {"MODERATE": 77},
        "IF_SMOOTHING_": SWITCH, "IF_SMOOTH_FROZEN_": SWITCH, "SHRINKAGE_CORRECTION_": SWITCH},
}

ALL_KINDS = (
    "MODEL_, ELEMENT_GROUP_, FACE_GROUP_, NODE_GROUP_, DV_, DRESP_, OPERATOR_, OBJ_FUNC_, CONSTRAINT_, CS_, "
    "DV_CONSTRAINT_, MONITOR_, ALGO_, OPT_PARAM_, STOP_, MESH_SMOOTH_, FILTER_, PRE_PARAM_, AS_TOPO_OC_, "
    "AS_TOPO_SENS_, AS_SHAPE_SENS_, FLOWPATHS_, OUTPUT_, SCALING_CURVE_, SMOOTH_")

MODEL = '[MODEL_.duct]\nFILE_ = "duct.cgns"\n'

CONSTRAINT = """
TYPE_ = "LESS_EQUAL"
MAGNITUDE_ = "REL"
VALUE_ = 0.35
COEFFICIENT_ = 1.0
A_MINMAX_COEFFICIENT_ = 0.0
SENSSCALING_TYPE_ = "NONE"
SENSSCALING_VALUE_ = 1.0
"""

FILTER = """[FILTER_.smooth_field]
PATCH_ID_ = "default"
METHOD_ = "SIGMUND"
RADIUS_ = 0.01
ALPHA_ = 1.0
BETA_ = 0.0
"""


def sort_of(dataset):
    """What the elements of a dataset are."""
    for sort, type_id in TYPES.items():
        if type_id.equal(dataset.id.get_type()):
            return sort
    return str(dataset.dtype)


def content_of(file, value):
    """An element of a dataset as Python has it: texts with their NUL, references as "KIND_/id"."""
    if isinstance(value, h5py.Reference):
        return file[value].name.removeprefix("/PARFILE/")
    if isinstance(value, numpy.ndarray):
        return value.tobytes() if value.dtype == numpy.dtype("S1") else value.tolist()
    return value.item()


def read_parameter_file(path):
    """Kind -> id -> key -> the sort of the values and the values."""
    with h5py.File(path, "r") as file:
        return {
            kind: {
                name: {
                    key: (sort_of(dataset), [content_of(file, value) for value in dataset])
                    for key, dataset in command.items()}
                for name, command in commands.items()}
            for kind, commands in file["PARFILE"].items()}


def expected_values(kind, key, described):
    """What the file must hold for a key of a job description."""
    if (kind, key) in LIST_KEYS:
        return ("list of double" if isinstance(described[0], float) else "list of integer"), [described]
    values = described if isinstance(described, list) else [described]
    target = REFERENCE_KEYS.get(kind, {}).get(key)
    if target:
        return "reference", [f"{target}/{value}" for value in values]
    enumerators = ENUMERATORS.get(kind, {}).get(key)
    if enumerators:
        return "integer", [enumerators[value] for value in values]
    if isinstance(values[0], str):
        return "text", [value.encode() + b"\0" for value in values]
    return ("double" if isinstance(values[0], float) else "integer"), values


def expected_contents(job_path):
    """What the file must hold for a job description."""
    job = tomllib.loads(job_path.read_text())
    return {
        kind: {
            name: {key: expected_values(kind, key, value) for key, value in keys.items()}
            for name, keys in commands.items()}
        for kind, commands in job.items()}


class ImportTest(ToolTest):
    """With what several groups of tests need."""

    def import_job(self, text):
        """Imports a job description into the folder of the test."""
        self.write("job.toml", text)
        return self.tool("import", "job.toml")

    def assert_imports(self, text):
        self.assertEqual((GOOD, ""), self.import_job(text)[::2])
        return read_parameter_file(self.folder / FILE_NAME)

    def assert_faults(self, text, *faults):
        """The whole standard error, and that nothing but the job is there afterwards."""
        result = self.import_job(text)
        self.assertEqual(list(faults), result.err.splitlines())
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertEqual(["job.toml"], names_in(self.folder))


class Examples(ImportTest):
    def test_the_bent_duct_has_every_kind_and_is_counted(self):
        self.copy_example("bent_duct")
        self.assertEqual(
            (GOOD, "imported job.toml: 25 kinds, 55 commands, 477 values (50 of them model ids), 49 references\n", ""),
            self.tool("import", "job.toml"))
        self.assertEqual(["job.toml", "model_ids.toml", FILE_NAME], names_in(self.folder))

    def test_the_smoothing_job_is_counted(self):
        self.copy_example("smooth")
        self.assertEqual(
            (GOOD, "imported job.toml: 1 kind, 1 command, 74 values (0 of them model ids), 0 references\n", ""),
            self.tool("import", "job.toml"))

    def test_the_broken_bent_duct_is_refused_for_what_no_file_can_hold_and_leaves_nothing(self):
        self.copy_example("bent_duct_broken")
        result = self.tool("import", "job.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        for line, text in zip(result.err.splitlines(), (
                'the id "outlet/bolts" of a NODE_GROUP_ cannot stand in a parameter file',
                "DV_ porosity: TYPE_ must be an enumerator, not 'DENSTY'; the nearest is DENSITY",
                "OUTPUT_ density has no key COMPRESSION_", "there is no kind of command REPORT_"), strict=True):
            self.assertIn(text, line)
        self.assertEqual(["job.toml", "model_ids.toml"], names_in(self.folder))

    def test_an_absent_target_of_a_reference_is_refused(self):
        self.write("job.toml", '[MONITOR_.m]\nDRESP_ = "gone"\n')
        self.assertEqual(
            (FAULTS, "",
             "job.toml:2:10: A command of type DRESP_ with the ID_NAME gone referenced in the parameterfile is not found\n"
             "  The command is reference from the MONITOR_ command with ID_NAME m\n"),
            self.tool("import", "job.toml"))
        self.assertEqual(["job.toml"], names_in(self.folder))


class WrittenFile(ImportTest):
    def test_the_bent_duct_holds_every_value_of_its_description(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        expected = expected_contents(EXAMPLES / "bent_duct" / "job.toml")
        self.assertEqual(501, sum(len(keys) for commands in expected.values() for keys in commands.values()))
        self.assertEqual(expected, read_parameter_file(self.folder / FILE_NAME))

    def test_the_smoothing_job_holds_every_value_of_its_description(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        expected = expected_contents(EXAMPLES / "smooth" / "job.toml")
        self.assertEqual(66, sum(len(keys) for commands in expected.values() for keys in commands.values()))
        self.assertEqual(expected, read_parameter_file(self.folder / FILE_NAME))

    def test_some_values_of_the_bent_duct_as_a_person_reads_them(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        with h5py.File(self.folder / FILE_NAME, "r") as file:
            porosity = file["PARFILE/DV_/porosity"]
            self.assertEqual(0.35, porosity["INITIAL_"][0])
            self.assertEqual(68, porosity["TYPE_"][0])
            self.assertEqual(b"design_space\0", porosity["ELEMENT_GROUP_"][0].tobytes())
            self.assertEqual(
                ["/PARFILE/FILTER_/wall_smoothing", "/PARFILE/FILTER_/flange_plane"],
                [file[target].name for target in file["PARFILE/DV_/wall_offset/FILTER_"]])
            self.assertEqual([1, 5, 10, 20, 40, 60, 80], file["PARFILE/OPT_PARAM_/run/STORE_INT_"][0].tolist())
            self.assertEqual([0.1, 0.9], file["PARFILE/OUTPUT_/tracks/CUTOFF_"][0].tolist())
            self.assertEqual([1.0, -1.0], file["PARFILE/OPERATOR_/branch_imbalance/DRESP_WEIGHT_"][:].tolist())
            self.assertEqual(b"\0", file["PARFILE/SMOOTH_/first_look/GROUP_FILE_"][0].tobytes())

    def test_every_dataset_of_the_bent_duct_is_extendable_in_steps_of_one_and_has_no_attributes(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        shapes = set()
        datasets = []

        def visit(name, node):
            self.assertEqual(0, len(node.attrs), name)
            if isinstance(node, h5py.Dataset):
                datasets.append(name)
                shapes.add((len(node.shape), node.maxshape, node.chunks))

        with h5py.File(self.folder / FILE_NAME, "r") as file:
            file.visititems(visit)
        self.assertEqual(501, len(datasets))
        self.assertEqual({(1, (None,), (1,))}, shapes)

    def test_the_limits_of_the_types_arrive_unchanged(self):
        written = self.assert_imports(
            "[STOP_.s]\nITER_MAX_ = 2147483647\nITER_MIN_ = -2147483648\n"
            "RESIDUAL_OBJ_ = 1.7976931348623157e308\nRESIDUAL_DV_ = -0.1\n")
        self.assertEqual(
            {"STOP_": {"s": {
                "ITER_MAX_": ("integer", [2147483647]), "ITER_MIN_": ("integer", [-2147483648]),
                "RESIDUAL_OBJ_": ("double", [1.7976931348623157e308]), "RESIDUAL_DV_": ("double", [-0.1])}}},
            written)

    def test_a_whole_number_serves_as_a_number(self):
        written = self.assert_imports(
            "[STOP_.s]\nITER_MAX_ = 1\nITER_MIN_ = 1\nRESIDUAL_OBJ_ = 3\nRESIDUAL_DV_ = 0\n")
        self.assertEqual(("double", [3.0]), written["STOP_"]["s"]["RESIDUAL_OBJ_"])

    def test_texts_and_ids_beyond_ascii_arrive_as_they_stand(self):
        written = self.assert_imports('[MODEL_."Krümmer 90°"]\nFILE_ = "netz/größe 100%.cgns"\n')
        self.assertEqual(
            {"MODEL_": {"Krümmer 90°": {"FILE_": ("text", ["netz/größe 100%.cgns".encode() + b"\0"])}}}, written)

    def test_two_dots_are_an_id_like_any_other(self):
        self.assertEqual(["..", "..."], sorted(self.assert_imports(
            '[FACE_GROUP_.".."]\n[FACE_GROUP_."..."]\n')["FACE_GROUP_"]))

    def test_an_empty_list_is_one_value_and_an_empty_array_is_none(self):
        self.write("job.toml", "[OPT_PARAM_.run]\nOPT_START_ = 1\nSTORE_INT_ = []\n[FACE_GROUP_.none]\nMERGE_ = []\n")
        self.assertEqual(
            "imported job.toml: 2 kinds, 2 commands, 2 values (0 of them model ids), 0 references\n",
            self.tool("import", "job.toml").out)
        written = read_parameter_file(self.folder / FILE_NAME)
        self.assertEqual(("list of integer", [[]]), written["OPT_PARAM_"]["run"]["STORE_INT_"])
        self.assertEqual({}, written["FACE_GROUP_"]["none"])

    def test_a_reference_may_stand_before_its_target_and_name_its_own_command(self):
        written = self.assert_imports(
            '[DV_.all]\nINITIAL_ = 0.0\nTYPE_ = "AUTO"\nFILTER_ = ["smooth_field"]\nDV_ = ["all", "all"]\n' + FILTER)
        self.assertEqual(("reference", ["FILTER_/smooth_field"]), written["DV_"]["all"]["FILTER_"])
        self.assertEqual(("reference", ["DV_/all", "DV_/all"]), written["DV_"]["all"]["DV_"])


class Enumerators(ImportTest):
    def type_of_a_design_variable(self, described):
        return self.assert_imports(f"[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = {described}\n")["DV_"]["d"]["TYPE_"]

    def test_stand_by_name(self):
        self.assertEqual(("integer", [86]), self.type_of_a_design_variable('"NODAL_VECTOR"'))

    def test_stand_by_letter(self):
        self.assertEqual(("integer", [86]), self.type_of_a_design_variable('"V"'))

    def test_stand_by_number(self):
        self.assertEqual(("integer", [86]), self.type_of_a_design_variable("86"))

    def test_small_letters_are_letters_of_their_own(self):
        written = self.assert_imports(
            FILTER.replace("SIGMUND", "D") + FILTER.replace("smooth_field", "border").replace("SIGMUND", "d"))
        self.assertEqual(("integer", [68]), written["FILTER_"]["smooth_field"]["METHOD_"])
        self.assertEqual(("integer", [100]), written["FILTER_"]["border"]["METHOD_"])

    def test_a_name_of_one_letter_is_a_name_first(self):
        # "I" is the name of the number 72 (inch), while the letter I is the code of "FT".
        self.write("job.toml", (EXAMPLES / "smooth" / "job.toml").read_text().replace(
            'IGES_UNIT_ = "M"', 'IGES_UNIT_ = "I"'))
        self.assertEqual(GOOD, self.tool("import", "job.toml").code)
        written = read_parameter_file(self.folder / FILE_NAME)
        self.assertEqual(("integer", [72]), written["SMOOTH_"]["bent_duct_surface"]["IGES_UNIT_"])

    def test_of_a_repeated_key_stand_in_any_form(self):
        self.write("job.toml", (EXAMPLES / "smooth" / "job.toml").read_text().replace(
            'FORMAT_ = ["STL", "VTF"]', 'FORMAT_ = ["STL", "Q", 84]'))
        self.assertEqual(GOOD, self.tool("import", "job.toml").code)
        written = read_parameter_file(self.folder / FILE_NAME)
        self.assertEqual(("integer", [83, 81, 84]), written["SMOOTH_"]["bent_duct_surface"]["FORMAT_"])

    def test_the_types_of_responses_have_numbers_and_no_letters(self):
        # The number 68 is "INTERNAL_MOMENT_ABS", and that it is the code of the letter D is chance.
        self.write("job.toml", (EXAMPLES / "bent_duct" / "job.toml").read_text().replace(
            'TYPE_ = "UNIFORMITY"', 'TYPE_ = "D"'))
        result = self.tool("import", "job.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertIn(": DRESP_ uniformity_outlet: TYPE_ must be an enumerator, not 'D'; ", result.err)

    def test_a_response_type_stands_by_its_number(self):
        self.write("job.toml", (EXAMPLES / "bent_duct" / "job.toml").read_text().replace(
            'TYPE_ = "UNIFORMITY"', "TYPE_ = 1004"))
        self.assertEqual(GOOD, self.tool("import", "job.toml").code)
        written = read_parameter_file(self.folder / FILE_NAME)
        self.assertEqual(("integer", [1004]), written["DRESP_"]["uniformity_outlet"]["TYPE_"])

    def test_an_unknown_name_gets_the_nearest_and_all_others(self):
        self.assert_faults(
            '[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = "DENSTY"\n',
            "job.toml:3:9: DV_ d: TYPE_ must be an enumerator, not 'DENSTY'; the nearest is DENSITY; "
            "there are AUTO, DENSITY, DETACHED, NODAL, NODAL_VECTOR")

    def test_an_unknown_letter_number_or_type_is_refused(self):
        for described, found in (('"d"', "'d'"), ("67", "67"), ("68.0", "68.0"), ("true", "true"), ('""', "''"),
                                 ('["AUTO"]', "[ 'AUTO' ]"), ("4294967364", "4294967364")):
            with self.subTest(described):
                result = self.import_job(f"[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = {described}\n")
                self.assertEqual((FAULTS, ""), (result.code, result.out))
                self.assertRegex(
                    result.err, r"^job\.toml:3:9: DV_ d: TYPE_ must be an enumerator, not ")
                self.assertIn(f" not {found}; ", result.err)
                self.assertTrue(
                    result.err.endswith("; there are AUTO, DENSITY, DETACHED, NODAL, NODAL_VECTOR\n"), result.err)


class FaultsOfAJobDescription(ImportTest):
    def test_an_unknown_kind(self):
        self.assert_faults(
            MODEL + '[MODLE_.m]\nFILE_ = "x"\n',
            f"job.toml:3:1: there is no kind of command MODLE_; the nearest is MODEL_; there are {ALL_KINDS}")

    def test_a_kind_without_its_underscore(self):
        self.assert_faults(
            "[DV.d]\n[SMOTH.s]\n",
            f"job.toml:1:1: there is no kind of command DV; the nearest is DV_; there are {ALL_KINDS}",
            f"job.toml:2:1: there is no kind of command SMOTH; the nearest is SMOOTH_; there are {ALL_KINDS}")

    def test_an_unknown_key(self):
        self.assert_faults(
            MODEL + '  SOLVERR_ = "x"\n',
            "job.toml:3:14: MODEL_ duct has no key SOLVERR_; the nearest is SOLVER_; there are FILE_, SOLVER_")

    def test_a_key_of_another_kind(self):
        self.assert_faults(
            '[STOP_.s]\nITER_MAX_ = 1\nITER_MIN_ = 1\nRESIDUAL_OBJ_ = 1.0\nRESIDUAL_DV_ = 1.0\nFILE_ = "x"\n',
            "job.toml:6:9: STOP_ s has no key FILE_; the nearest is ITER_MAX_; "
            "there are ITER_MAX_, ITER_MIN_, RESIDUAL_OBJ_, RESIDUAL_DV_")

    def test_a_whole_number_of_another_type_or_size(self):
        for described, found in (("1.0", "1.0"), ('"1"', "'1'"), ("true", "true"), ("[1]", "[ 1 ]"),
                                 ("2147483648", "2147483648"), ("-2147483649", "-2147483649"),
                                 ("4294967297", "4294967297"), ("9223372036854775807", "9223372036854775807"),
                                 ("2024-05-01", "2024-05-01"), ("{ a = 1 }", "{ a = 1 }")):
            with self.subTest(described):
                self.assert_faults(
                    f"[OPT_PARAM_.o]\nOPT_START_ = {described}\n",
                    f"job.toml:2:14: OPT_PARAM_ o: OPT_START_ must be a whole number of 32 bits, not {found}")

    def test_a_number_of_another_type(self):
        for described, found in (('"1.0"', "'1.0'"), ("true", "true"), ("[1.0]", "[ 1.0 ]"),
                                 ("07:30:00", "07:30:00"), ("{}", "{}")):
            with self.subTest(described):
                self.assert_faults(
                    f"[OPT_PARAM_.o]\nOPT_START_ = 1\nSRC_SCALE_ = {described}\n",
                    f"job.toml:3:14: OPT_PARAM_ o: SRC_SCALE_ must be a number, not {found}")

    def test_a_text_of_another_type(self):
        for described, found in (("1", "1"), ("1.5", "1.5"), ("true", "true"), ('["a"]', "[ 'a' ]")):
            with self.subTest(described):
                self.assert_faults(
                    f"[MODEL_.m]\nFILE_ = {described}\n",
                    f"job.toml:2:9: MODEL_ m: FILE_ must be a text without NUL, not {found}")

    def test_a_text_with_a_nul(self):
        self.assert_faults(
            '[MODEL_.m]\nFILE_ = "a\\u0000b"\n',
            'job.toml:2:9: MODEL_ m: FILE_ must be a text without NUL, not "a\\u0000b"')

    def test_a_model_id_of_another_type(self):
        for described, found in (("1", "1"), ("true", "true"), ('["a"]', "[ 'a' ]")):
            with self.subTest(described):
                self.assert_faults(
                    f'[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = "AUTO"\nNODE_GROUP_ = {described}\n',
                    f"job.toml:4:15: DV_ d: NODE_GROUP_ must be a text without NUL, not {found}")

    def test_a_list_of_whole_numbers_of_another_type(self):
        for described, found in (("1", "1"), ('"1"', "'1'"), ("[1, 2.5]", "[ 1, 2.5 ]"), ('[1, "2"]', "[ 1, '2' ]"),
                                 ("[1, 2147483648]", "[ 1, 2147483648 ]"), ("[[1]]", "[ [ 1 ] ]")):
            with self.subTest(described):
                self.assert_faults(
                    f"[OPT_PARAM_.o]\nOPT_START_ = 1\nSTORE_INT_ = {described}\n",
                    "job.toml:3:14: OPT_PARAM_ o: STORE_INT_ must be a list of whole numbers of 32 bits, "
                    f"not {found}")

    def test_a_list_of_numbers_of_another_type(self):
        example = (EXAMPLES / "bent_duct" / "job.toml").read_text()
        line = example[:example.index("CUTOFF_ = ")].count("\n") + 1
        for described, found in (("0.5", "0.5"), ('"0.5"', "'0.5'"), ("[0.25, true]", "[ 0.25, true ]"),
                                 ("[[0.25]]", "[ [ 0.25 ] ]")):
            with self.subTest(described):
                self.assert_faults(
                    example.replace("CUTOFF_ = [0.1, 0.9]", f"CUTOFF_ = {described}"),
                    f"job.toml:{line}:11: OUTPUT_ tracks: CUTOFF_ must be a list of numbers, not {found}")

    def test_a_reference_of_another_type(self):
        for described, found in (("1", "1"), ("true", "true"), ('["a"]', "[ 'a' ]"), ('"a\\u0000"', '"a\\u0000"')):
            with self.subTest(described):
                self.assert_faults(
                    f"[MONITOR_.m]\nDRESP_ = {described}\n",
                    f"job.toml:2:10: MONITOR_ m: DRESP_ must be the id of a command, not {found}")

    def test_each_wrong_element_of_a_repeated_key(self):
        self.assert_faults(
            '[FACE_GROUP_.f]\nMERGE_ = [\n  "a",\n  3, [1],\n  "b\\u0000",\n]\n'
            '[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = "AUTO"\nFILTER_ = [1.5]\n'
            '[OPERATOR_.o]\nTYPE_ = "MAX"\nUPDATE_TYPE_ = "C"\nUPDATE_ID_ = ""\nUPDATE_INDEX_ = 1\nFACTOR_ = 1.0\n'
            'DRESP_WEIGHT_ = [1.0, "heavy"]\n',
            "job.toml:4:3: FACE_GROUP_ f: MERGE_ must be a text without NUL, not 3",
            "job.toml:4:6: FACE_GROUP_ f: MERGE_ must be a text without NUL, not [ 1 ]",
            'job.toml:5:3: FACE_GROUP_ f: MERGE_ must be a text without NUL, not "b\\u0000"',
            "job.toml:10:12: DV_ d: FILTER_ must be the id of a command, not 1.5",
            "job.toml:17:23: OPERATOR_ o: DRESP_WEIGHT_ must be a number, not 'heavy'")

    def test_a_repeated_key_that_is_no_array(self):
        self.assert_faults(
            '[FACE_GROUP_.f]\nMERGE_ = "a"\nXOR_ = 3\n'
            '[DV_.d]\nINITIAL_ = 0.5\nTYPE_ = "AUTO"\nFILTER_ = "smooth_field"\n',
            "job.toml:2:10: FACE_GROUP_ f: MERGE_ holds any number of values and must be an array",
            "job.toml:3:8: FACE_GROUP_ f: XOR_ holds any number of values and must be an array",
            "job.toml:7:11: DV_ d: FILTER_ holds any number of values and must be an array")

    def test_a_kind_that_is_no_table(self):
        self.assert_faults(
            'MODEL_ = "duct"\nDV_ = ["porosity"]\n[[STOP_]]\n',
            "job.toml:1:10: MODEL_ must be a table of commands, [MODEL_.an_id]",
            "job.toml:2:7: DV_ must be a table of commands, [DV_.an_id]",
            "job.toml:3:1: STOP_ must be a table of commands, [STOP_.an_id]")

    def test_a_command_that_is_no_table(self):
        self.assert_faults(
            '[MODEL_]\nFILE_ = "duct.cgns"\n',
            "job.toml:2:9: MODEL_ FILE_ must be a table of keys, [MODEL_.FILE_]")

    def test_ids_that_would_name_another_group_of_the_file(self):
        for written in ("", ".", "a/b", "/", "/PARFILE", "a/"):
            with self.subTest(written):
                self.assert_faults(
                    f'{MODEL}[FACE_GROUP_."{written}"]\nMERGE_ = ["a"]\n',
                    f'job.toml:3:1: the id "{written}" of a FACE_GROUP_ cannot stand in a parameter file: '
                    'an id is not empty, not "." and has no "/"')

    def test_a_nul_in_an_id_hides_no_other_fault(self):
        result = self.import_job('[FACE_GROUP_."a\\u0000b"]\n[STOP_.s]\nITER_MAX_ = "many"\n')
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(
            result.err, r'^job\.toml:1:1: the id "a.*b" of a FACE_GROUP_ cannot stand in a parameter file: ')
        self.assertIn(
            "\njob.toml:3:13: STOP_ s: ITER_MAX_ must be a whole number of 32 bits, not 'many'\n", result.err)

    def test_a_nul_in_a_kind_or_key_hides_no_other_fault(self):
        result = self.import_job(MODEL + '"SO\\u0000" = 3\n["DV\\u0000".d]\n[STOP_.s]\nITER_MAX_ = "many"\n')
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertRegex(result.err, r"^job\.toml:3:14: MODEL_ duct has no key SO")
        self.assertIn("\njob.toml:4:1: there is no kind of command DV", result.err)
        self.assertIn(
            "\njob.toml:6:13: STOP_ s: ITER_MAX_ must be a whole number of 32 bits, not 'many'\n", result.err)

    def test_all_come_in_one_run_and_in_the_order_of_the_text(self):
        self.assert_faults(
            "# faults of every sort\n"
            "STOP_ = 3\n"
            "[OUTPTU_.o]\n"
            "[OPT_PARAM_.run]\n"
            "STORE_INT_ = 5\n"
            "OPT_START_ = 3000000000\n"
            "SRC_SCALLE_ = 1.0\n"
            "[DV_.porosity]\n"
            'TYPE_ = "DENSTY"\n'
            'FILTER_ = "f"\n'
            '[CS_."a/b"]\n'
            "[AS_TOPO_OC_]\n"
            "oc = 1\n"
            "[MODEL_.duct]\n"
            "FILE_ = 1\n",
            "job.toml:2:9: STOP_ must be a table of commands, [STOP_.an_id]",
            f"job.toml:3:1: there is no kind of command OUTPTU_; the nearest is OUTPUT_; there are {ALL_KINDS}",
            "job.toml:5:14: OPT_PARAM_ run: STORE_INT_ must be a list of whole numbers of 32 bits, not 5",
            "job.toml:6:14: OPT_PARAM_ run: OPT_START_ must be a whole number of 32 bits, not 3000000000",
            "job.toml:7:15: OPT_PARAM_ run has no key SRC_SCALLE_; the nearest is SRC_SCALE_; "
            "there are STORE_INT_, OPT_START_, SRC_SCALE_",
            "job.toml:9:9: DV_ porosity: TYPE_ must be an enumerator, not 'DENSTY'; the nearest is DENSITY; "
            "there are AUTO, DENSITY, DETACHED, NODAL, NODAL_VECTOR",
            "job.toml:10:11: DV_ porosity: FILTER_ holds any number of values and must be an array",
            'job.toml:11:1: the id "a/b" of a CS_ cannot stand in a parameter file: an id is not empty, not "." '
            'and has no "/"',
            "job.toml:13:6: AS_TOPO_OC_ oc must be a table of keys, [AS_TOPO_OC_.oc]",
            "job.toml:15:9: MODEL_ duct: FILE_ must be a text without NUL, not 1")

    def test_per_cent_signs_in_a_fault_stay_as_they_stand(self):
        self.assert_faults(
            '[OPT_PARAM_."100%s"]\nOPT_START_ = "%n%s%d"\n',
            "job.toml:2:14: OPT_PARAM_ 100%s: OPT_START_ must be a whole number of 32 bits, not '%n%s%d'")


class IncompleteJobs(ImportTest):
    """They are written, so that an export of any file can be imported; what they lack is told."""

    def test_a_key_that_must_always_be_there_is_missed_and_the_rest_is_written(self):
        self.assertEqual(
            (GOOD,
             "imported job.toml: 1 kind, 1 command, 2 values (0 of them model ids), 0 references\n",
             "job.toml:2:1: STOP_ s lacks the key ITER_MIN_, which must always be there\n"
             "job.toml:2:1: STOP_ s lacks the key RESIDUAL_OBJ_, which must always be there\n"),
            self.import_job("\n[STOP_.s]\nITER_MAX_ = 1\nRESIDUAL_DV_ = 1.0\n"))
        self.assertEqual({"STOP_": {"s": {"ITER_MAX_": ("integer", [1]), "RESIDUAL_DV_": ("double", [1.0])}}},
                         read_parameter_file(self.folder / FILE_NAME))

    def test_a_reference_that_must_always_be_there_is_missed(self):
        result = self.import_job("[MONITOR_.swirl]\n")
        self.assertEqual(
            (GOOD, "job.toml:1:1: MONITOR_ swirl lacks the key DRESP_, which must always be there\n"),
            (result.code, result.err))

    def test_a_job_without_commands_is_an_empty_file(self):
        self.assertEqual({}, self.assert_imports(""))


class FaultsOfReferences(ImportTest):
    def test_a_reference_to_nothing_has_the_library_s_text_and_its_place(self):
        self.assert_faults(
            '[MONITOR_.swirl]\nDRESP_ = "swirl_outlet"\n',
            "job.toml:2:10: A command of type DRESP_ with the ID_NAME swirl_outlet referenced in the parameterfile is "
            "not found",
            "  The command is reference from the MONITOR_ command with ID_NAME swirl")

    def test_a_command_of_the_same_id_but_another_kind_is_no_target(self):
        self.assert_faults(
            '[FACE_GROUP_.swirl]\n[MONITOR_.swirl]\nDRESP_ = "swirl"\n',
            "job.toml:3:10: A command of type DRESP_ with the ID_NAME swirl referenced in the parameterfile is not "
            "found",
            "  The command is reference from the MONITOR_ command with ID_NAME swirl")

    def test_all_come_in_one_run(self):
        self.assert_faults(
            '[MONITOR_.b]\nDRESP_ = "y"\n[MONITOR_.a]\nDRESP_ = "x"\n',
            "job.toml:2:10: A command of type DRESP_ with the ID_NAME y referenced in the parameterfile is not found",
            "  The command is reference from the MONITOR_ command with ID_NAME b",
            "job.toml:4:10: A command of type DRESP_ with the ID_NAME x referenced in the parameterfile is not found",
            "  The command is reference from the MONITOR_ command with ID_NAME a")

    def test_one_in_an_array_is_reported_at_its_own_place(self):
        self.assert_faults(
            f'{FILTER}[CONSTRAINT_.share]{CONSTRAINT}FILTER_ = [\n  "smooth_field",\n  "smoth_field",\n]\n',
            "job.toml:17:3: A command of type FILTER_ with the ID_NAME smoth_field referenced in the parameterfile is "
            "not found",
            "  The command is reference from the CONSTRAINT_ command with ID_NAME share")

    def test_a_text_that_can_be_no_id_is_no_reference_although_the_file_has_such_a_path(self):
        for written in ("", ".", "./smooth_field", "smooth_field/PATCH_ID_", "smooth_field/.", "/smooth_field"):
            with self.subTest(written):
                (self.folder / FILE_NAME).unlink(missing_ok=True)
                result = self.import_job(f'{FILTER}[CONSTRAINT_.share]{CONSTRAINT}FILTER_ = ["{written}"]\n')
                self.assertEqual((FAULTS, ""), (result.code, result.out))
                self.assertRegex(result.err, r"^job\.toml:15:12: ")
                self.assertEqual(["job.toml"], names_in(self.folder))


    def test_one_beside_a_reference_to_nothing_is_reported_too(self):
        self.assert_faults(
            '[MONITOR_.swirl]\nDRESP_ = { type = "reference", values = ["DRESP_/gone", ""] }\n',
            "job.toml:2:42: MONITOR_ swirl: DRESP_: there is no DRESP_ gone")


class UnusableInputs(ImportTest):
    def assert_unusable(self, err, *arguments):
        before = names_in(self.folder)
        self.assertEqual((UNUSABLE, "", err), self.tool(*arguments))
        self.assertEqual(before, names_in(self.folder))

    def test_toml_that_does_not_parse(self):
        self.write("job.toml", MODEL + '[DV_.porosity\nTYPE_ = "DENSITY"\n')
        self.assert_unusable(
            "job.toml:3:14: Error while parsing table header: expected ']', saw '\\n'\n", "import", "job.toml")

    def test_a_table_or_key_that_stands_twice(self):
        self.write("job.toml", MODEL + MODEL)
        self.assert_unusable(
            "job.toml:3:1: Error while parsing table header: cannot redefine existing table 'MODEL_.duct'\n",
            "import", "job.toml")
        self.write("job.toml", MODEL + 'FILE_ = "x"\n')
        self.assert_unusable(
            "job.toml:3:9: Error while parsing key-value pair: cannot redefine existing string 'FILE_'\n",
            "import", "job.toml")

    def test_bytes_that_are_no_text(self):
        self.write("job.toml", b"\x89HDF\r\n\x1a\n\xff\xfe")
        result = self.tool("import", "job.toml")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertRegex(result.err, r"^job\.toml:\d+:\d+: ")

    def test_keys_of_more_parts_than_the_stack_has_room_for(self):
        for text in ("[" + "a." * 200000 + "a]\n", "[[" + "a." * 200000 + "a]]\n",
                     "[DV_.porosity]\nINITIAL_" + " . a" * 200000 + " = 1\n",
                     '[DV_.porosity]\nINITIAL_ = { a = """b"""", b' + ".a" * 200000 + " = 1 }\n",
                     "[DV_.porosity]\nINITIAL_ = { a" + ".\"b\".'c'" * 200000 + " = 1 }\n"):
            with self.subTest(text[:40]):
                self.write("job.toml", text)
                self.assert_unusable("job.toml: a key has more than 16 parts\n", "import", "job.toml")

    def test_a_key_of_many_parts_is_a_fault_like_others(self):
        self.write("job.toml", MODEL + "[DV_.porosity.a.b.c.d.e.f.g.h.i.j.k.l.m.n]\n")
        self.assertEqual(FAULTS, self.tool("import", "job.toml").code)

    def test_points_in_texts_and_comments_are_no_parts_of_a_key(self):
        points = ".a" * 50
        for pattern in ('"*"', "'*'", r'"\"*"', r"'\' # *", r'"""a"*"\"*"""', r'"""\"""*"""', "'''\n'*'\n*'''", '"" # *'):
            with self.subTest(pattern):
                text = pattern.replace("*", points)
                self.write("job.toml", f"# {points}\n[MODEL_.duct]\nFILE_ = {text}\n")
                self.assertEqual(GOOD, self.tool("import", "job.toml", "--force").code)

    def test_a_job_that_is_not_there(self):
        self.assert_unusable("job.toml: the file cannot be read\n", "import", "job.toml")

    def test_a_folder_as_job(self):
        (self.folder / "job.toml").mkdir()
        self.assert_unusable("job.toml: the file cannot be read\n", "import", "job.toml")

    def test_an_empty_argument(self):
        self.write("job.toml", MODEL)
        for arguments in (("import", ""), ("import", "job.toml", ""), ("import", "", "")):
            with self.subTest(arguments):
                result = self.tool(*arguments)
                self.assertEqual((UNUSABLE, ""), (result.code, result.out))
                self.assertNotEqual("", result.err)
                self.assertEqual(["job.toml"], names_in(self.folder))


class Places(ImportTest):
    def setUp(self):
        super().setUp()
        self.write("job.toml", MODEL)
        self.place = self.folder / "run" / FILE_NAME
        self.place.parent.mkdir()

    def test_a_folder_stands_for_the_file_in_it(self):
        self.assertEqual(GOOD, self.tool("import", "job.toml", "run").code)
        self.assertEqual([FILE_NAME], names_in(self.place.parent))

    def test_the_file_itself_may_be_named(self):
        self.assertEqual(GOOD, self.tool("import", "job.toml", f"run/{FILE_NAME}").code)
        self.assertEqual([FILE_NAME], names_in(self.place.parent))

    def test_without_one_the_working_directory_takes_the_file(self):
        self.assertEqual(GOOD, self.tool("import", "../job.toml", cwd=self.place.parent).code)
        self.assertEqual([FILE_NAME], names_in(self.place.parent))

    def test_a_file_of_another_name_is_refused(self):
        self.assertEqual(
            (UNUSABLE, "", "run/other.hdf5: a parameter file must have the name parfile_storage.hdf5\n"),
            self.tool("import", "job.toml", "run/other.hdf5"))
        self.assertEqual([], names_in(self.place.parent))

    def test_a_folder_that_is_not_there_is_refused(self):
        self.assertEqual(
            (UNUSABLE, "", f"nothing can be written in {self.folder}/gone: No such file or directory\n"),
            self.tool("import", "job.toml", f"gone/{FILE_NAME}"))
        self.assertEqual(["job.toml", "run"], names_in(self.folder))

    def test_a_file_in_place_of_the_folder_is_refused(self):
        self.assertEqual(
            (UNUSABLE, "", f"nothing can be written in {self.folder}/job.toml: Not a directory\n"),
            self.tool("import", "job.toml", f"job.toml/{FILE_NAME}"))

    def test_a_folder_of_the_file_s_name_is_not_replaced(self):
        self.place.mkdir()
        for force in ((), ("--force",)):
            with self.subTest(force):
                result = self.tool("import", "job.toml", "run", *force)
                self.assertEqual((UNUSABLE, ""), (result.code, result.out))
                self.assertNotEqual("", result.err)
                self.assertEqual([FILE_NAME], names_in(self.place.parent))
                self.assertTrue(self.place.is_dir())

    def test_the_file_has_the_rights_of_any_new_file(self):
        self.assertEqual(GOOD, self.tool("import", "job.toml", "run", umask=0o027).code)
        self.assertEqual(0o640, self.place.stat().st_mode & 0o777)


class ExistingFile(ImportTest):
    def setUp(self):
        super().setUp()
        self.place = self.folder / FILE_NAME
        self.place.write_bytes(b"what was there")

    def test_is_not_replaced_without_force(self):
        self.write("job.toml", MODEL)
        self.assertEqual(
            (UNUSABLE, "", f"{self.place} exists already; --force replaces it\n"),
            self.tool("import", "job.toml", self.folder))
        self.assertEqual(b"what was there", self.place.read_bytes())
        self.assertEqual(["job.toml", FILE_NAME], names_in(self.folder))

    def test_is_replaced_as_a_whole_with_force(self):
        self.write("job.toml", MODEL)
        with open(self.place, "rb") as reader:
            self.assertEqual(
                (GOOD, "imported job.toml: 1 kind, 1 command, 1 value (0 of them model ids), 0 references\n", ""),
                self.tool("import", "job.toml", "--force"))
            self.assertEqual(b"what was there", reader.read())
        self.assertEqual({"MODEL_": {"duct": {"FILE_": ("text", [b"duct.cgns\0"])}}},
                         read_parameter_file(self.place))
        self.assertEqual(["job.toml", FILE_NAME], names_in(self.folder))

    def test_keeps_its_rights_when_it_is_replaced(self):
        self.write("job.toml", MODEL)
        for arguments in (("import", "job.toml", "--force"), ("init", "--force")):
            for rights in (0o600, 0o640, 0o664):
                with self.subTest(arguments, rights=oct(rights)):
                    self.place.chmod(rights)
                    self.assertEqual(GOOD, self.tool(*arguments, umask=0o022).code)
                    self.assertEqual(rights, self.place.stat().st_mode & 0o7777)

    def test_stays_when_it_comes_while_the_new_one_is_made(self):
        for arguments in (("import", "job.toml"), ("init",)):
            with self.subTest(arguments):
                self.place.unlink()
                run = self.stopped_in_the_midst(arguments)
                self.place.write_bytes(b"came meanwhile")
                run.send_signal(signal.SIGCONT)
                _, err = run.communicate(timeout=120)
                self.assertEqual((UNUSABLE, f"{self.place} exists already; --force replaces it\n"),
                                 (run.returncode, err.decode()))
                self.assertEqual(b"came meanwhile", self.place.read_bytes())
                self.assertEqual(["job.toml", FILE_NAME], names_in(self.folder))

    def stopped_in_the_midst(self, arguments):
        """A run that is stopped while it has a folder for its file and nothing in the place."""
        self.write("job.toml", "".join(f"[FILTER_.f{number}]\nRADIUS_ = 1.0\n" for number in range(300)))
        while True:
            run = subprocess.Popen([TOOL, *arguments], cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
            while run.poll() is None and names_in(self.folder) == ["job.toml"]:
                pass
            run.send_signal(signal.SIGSTOP)
            if run.returncode is None:
                _, status = os.waitpid(run.pid, os.WUNTRACED)
                if os.WIFSTOPPED(status) and len(names_in(self.folder)) == 2 and not self.place.exists():
                    return run
                run.send_signal(signal.SIGCONT)
            run.communicate()
            self.place.unlink(missing_ok=True)

    def test_a_second_import_adds_nothing_to_the_first(self):
        self.copy_example("bent_duct")
        for _ in range(2):
            self.assertEqual(
                "imported job.toml: 25 kinds, 55 commands, 477 values (50 of them model ids), 49 references\n",
                self.tool("import", "job.toml", "--force").out)

    def test_stays_when_the_new_job_is_broken(self):
        self.copy_example("bent_duct_broken")
        self.assertEqual(FAULTS, self.tool("import", "job.toml", "--force").code)
        self.assertEqual(b"what was there", self.place.read_bytes())
        self.assertEqual(["job.toml", "model_ids.toml", FILE_NAME], names_in(self.folder))

    def test_stays_when_the_new_job_cannot_be_read(self):
        for text in ("[MODEL_.m", "[MODEL_.m]\nFILE_ = 3\n"):
            with self.subTest(text):
                self.write("job.toml", text)
                self.assertNotEqual(GOOD, self.tool("import", "job.toml", "--force").code)
                self.assertEqual(b"what was there", self.place.read_bytes())
                self.assertEqual(["job.toml", FILE_NAME], names_in(self.folder))


if __name__ == "__main__":
    unittest.main()
