"""Each rule of orvel-parfile check, provoked and passed: in parameter files that h5py wrote and in job descriptions."""

import json
import os
import re
import shlex
import subprocess
import tomllib
import unittest

import h5py
import numpy

from check_support import ALL_RULES, CheckTest, Finding, coordinate_system, operator, response, sound_job
from support import FAULTS, GOOD, ROOT, SANITIZERS, TOOL, doubles, integer_lists, integers, references, texts, \
    write_parameter_file

FACE_IDS = 'face_groups = ["inlet", "outlet"]\n'


class RulesTest(CheckTest):
    def setUp(self):
        super().setUp()
        self.job = sound_job()

    def open_file(self):
        """The parameter file of the job, to be changed."""
        return h5py.File(self.build(self.job), "r+")

    def assert_finds(self, *findings):
        """In the file of the job, whatever the library says of it; (rule, kind, id, key, value) each."""
        self.build(self.job)
        self.assertEqual([Finding(*finding) for finding in findings], self.findings())

    def assert_finds_in(self, text, rule, *places):
        """What one rule finds in a job description, by line and column."""
        self.write("job.toml", text)
        self.assertEqual(
            list(places),
            [(finding["line"], finding["column"]) for finding in self.report("job.toml")["findings"]
             if finding["rule"] == rule])


class SoundJobs(RulesTest):
    def test_have_no_finding(self):
        self.assert_finds()
        self.assertEqual(GOOD, self.tool("check").code)

    def test_the_clean_examples_have_no_error_and_no_warning(self):
        for name, arguments in (("bent_duct", ("--model-ids", "model_ids.toml")), ("smooth", ("--job", "smooth"))):
            with self.subTest(name):
                self.copy_example(name)
                report = self.report("job.toml", *arguments)
                self.assertEqual((0, 0), (report["counts"]["errors"], report["counts"]["warnings"]))


class Library(RulesTest):
    def test_what_it_says_comes_first(self):
        del self.job["STOP_"]["converged"]["ITER_MAX_"]
        self.job["MODEL_"]["duct"]["AUTHOR_"] = texts("me")
        self.build(self.job)
        found = self.report()["findings"]
        self.assertEqual(["library", "unknown-key", "missing-key"], [finding["rule"] for finding in found])
        self.assertEqual("Failed to retrieve value from the optimization database.", found[0]["text"])

    def test_says_nothing_of_a_sound_file(self):
        self.build(self.job)
        self.assertEqual([], self.texts(of="library"))


class UnknownKinds(RulesTest):
    def test_are_found_once_for_each_kind_with_the_nearest_and_all_known_ones(self):
        self.job["STOPS_"] = {"a": {"X_": doubles(1.0)}, "b": {}}
        self.job["REPORT_"] = {"r": {}}
        self.assert_finds(("unknown-kind", "REPORT_", "", "", ""), ("unknown-kind", "STOPS_", "", "", ""))
        self.assertIn("the nearest is STOP_; there are MODEL_, ELEMENT_GROUP_,", self.remedies(of="unknown-kind")[1])
        self.assertIn("orvel-parfile unset STOPS_ a; orvel-parfile unset STOPS_ b; orvel-parfile unset STOPS_",
                      self.remedies(of="unknown-kind")[1])

    def test_are_found_without_a_command(self):
        with self.open_file() as file:
            file.create_group("PARFILE/REPORT_")
        self.assertEqual([("unknown-kind", "REPORT_", "", "", "")], self.findings())

    def test_known_kinds_without_a_command_are_no_fault(self):
        with self.open_file() as file:
            file.create_group("PARFILE/MONITOR_")
        self.assertEqual([], self.findings())

    def test_of_a_description(self):
        self.assert_finds_in("[REPORT_.r]\nX_ = 1\n", "unknown-kind", (1, 1))
        self.assert_finds_in('extra_kinds = ["REPORT_"]\n[REPORT_.r]\n', "unknown-kind", (2, 1))
        self.assert_finds_in("[MONITOR_.r]\n", "unknown-kind")


class UnknownKeys(RulesTest):
    def test_are_found_with_the_nearest_and_all_known_ones(self):
        self.job["MODEL_"]["duct"]["SOLVR_"] = texts("rans")
        self.assert_finds(("unknown-key", "MODEL_", "duct", "SOLVR_", ""))
        self.assertEqual(
            ["the nearest is SOLVER_; there are FILE_, SOLVER_; "
             "or take it away with: orvel-parfile unset MODEL_ duct SOLVR_"], self.remedies(of="unknown-key"))

    def test_of_an_unknown_kind_are_not_told_beside_it(self):
        self.job["REPORT_"] = {"r": {"X_": doubles(1.0)}}
        self.assert_finds(("unknown-kind", "REPORT_", "", "", ""))

    def test_are_no_matter_of_their_type(self):
        with self.open_file() as file:
            file["PARFILE/MODEL_/duct/SOLVR_"] = numpy.zeros((2, 2))
        self.assertEqual([("unknown-key", "MODEL_", "duct", "SOLVR_", "")], self.findings())

    def test_of_a_description_stand_there_with_their_place_and_their_type_or_not(self):
        for value in ("1.0", '{ type = "number", values = [1.0] }'):
            with self.subTest(value):
                self.assert_finds_in(f"[STOP_.s]\nRESIDUAL_ = {value}\n", "unknown-key", (2, 13))


class ImpossibleNames(RulesTest):
    def test_of_a_description(self):
        self.assert_finds_in('[MONITOR_."a/b"]\n[MONITOR_.""]\n[MONITOR_."."]\n', "impossible-name",
                             (1, 1), (2, 1), (3, 1))
        self.assert_finds_in('[MONITOR_."a.b"]\n[MONITOR_.".."]\n', "impossible-name")

    def test_do_not_make_their_kind_missing(self):
        self.assert_finds_in('[MODEL_."a/b"]\nFILE_ = "f"\n[OBJ_FUNC_.o]\n[ALGO_.a]\n[FLOWPATHS_.f]\n', "command-count")


class MissingKeys(RulesTest):
    def test_are_found_in_every_command(self):
        del self.job["STOP_"]["converged"]["ITER_MAX_"]
        del self.job["ALGO_"]["topology"]["STRATEGY_"]
        self.assert_finds(("missing-key", "ALGO_", "topology", "STRATEGY_", ""),
                          ("missing-key", "STOP_", "converged", "ITER_MAX_", ""))
        self.assertEqual(
            ["orvel-parfile set ALGO_ topology STRATEGY_ ENUMERATOR, where ENUMERATOR is one of STRUCTURE_TOPO_SENS, "
             "TOPO_OC, SHAPE_SENS, TOPO_SENS (Strategy of the run: topology or shape optimization, by sensitivities or "
             "optimality criteria.)",
             "orvel-parfile set STOP_ converged ITER_MAX_ INTEGER, where INTEGER is a whole number "
             "(Most iterations of the optimization.)"], self.remedies(of="missing-key"))

    def test_optional_and_repeated_keys_may_be_absent(self):
        del self.job["FLOWPATHS_"]["bend"]["IN_"]
        self.assert_finds()

    def test_a_key_that_is_refused_is_not_missing_too(self):
        self.assert_finds_in('[MODEL_.m]\nFILE_ = 3\n', "missing-key")
        self.assert_finds_in('[MODEL_.m]\nFILE_ = "f"\n', "missing-key")

    def test_of_a_description_stand_at_their_command(self):
        self.assert_finds_in('[OPT_PARAM_.a]\nOPT_START_ = 1\n[OPT_PARAM_.b]\nSRC_SCALE_ = 1.0\n', "missing-key",
                             (3, 1))


class WrongTypes(RulesTest):
    def set_dataset(self, path, **options):
        with self.open_file() as file:
            del file[f"PARFILE/{path}"]
            file["PARFILE"].create_dataset(path, **options)

    def test_are_told_with_both_types_and_the_command_that_mends_them(self):
        for dtype, name in ((numpy.int64, "int64"), (numpy.uint32, "uint32"), (numpy.int16, "int16"),
                            (numpy.float64, "number"), (numpy.float32, "float32")):
            with self.subTest(name):
                self.set_dataset("STOP_/converged/ITER_MAX_", data=numpy.array([80], dtype=dtype))
                self.assertEqual([("wrong-type", "STOP_", "converged", "ITER_MAX_", "")], self.findings())
                self.assertEqual(
                    [f"STOP_ converged: ITER_MAX_ is of the type {name}; its command reads the type integer"],
                    self.texts(of="wrong-type"))
                self.assertEqual(["orvel-parfile set STOP_ converged ITER_MAX_ 80"], self.remedies(of="wrong-type"))

    def test_strings_of_hdf5_are_no_texts(self):
        self.set_dataset("MODEL_/duct/FILE_", data=["a duct.cgns"], dtype=h5py.string_dtype())
        self.assertEqual([("wrong-type", "MODEL_", "duct", "FILE_", "")], self.findings())
        self.assertEqual(["orvel-parfile set MODEL_ duct FILE_ 'a duct.cgns'"], self.remedies(of="wrong-type"))

    def test_a_whole_number_is_no_number(self):
        self.set_dataset("DV_/porosity/INITIAL_", data=numpy.array([1], dtype=numpy.int32))
        self.assertEqual(["orvel-parfile set DV_ porosity INITIAL_ 1"], self.remedies(of="wrong-type"))

    def test_an_enumerator_is_offered_by_its_name(self):
        self.set_dataset("DV_/porosity/TYPE_", data=numpy.array([68], dtype=numpy.int64))
        self.assertEqual(["orvel-parfile set DV_ porosity TYPE_ DENSITY"], self.remedies(of="wrong-type"))

    def test_what_cannot_be_the_other_type_is_left_to_the_user(self):
        self.set_dataset("STOP_/converged/ITER_MAX_", data=numpy.array([80.5]))
        self.assertEqual(["orvel-parfile set STOP_ converged ITER_MAX_ INTEGER, where INTEGER is a whole number"],
                         self.remedies(of="wrong-type"))

    def test_the_order_of_bytes_does_not_matter(self):
        self.set_dataset("STOP_/converged/ITER_MAX_", data=numpy.array([80], dtype=">i4"))
        self.assertEqual([], self.findings())
        self.set_dataset("DV_/porosity/INITIAL_", data=numpy.array([0.4], dtype=">f8"))
        self.assertEqual([], self.findings())

    def test_a_dataset_of_another_rank(self):
        for shape, rank in (((), 0), ((1, 1), 2)):
            with self.subTest(rank):
                self.set_dataset("STOP_/converged/ITER_MAX_", data=numpy.full(shape, 80, dtype=numpy.int32))
                self.assertEqual([("wrong-type", "STOP_", "converged", "ITER_MAX_", "")], self.findings())
                self.assertEqual([f"STOP_ converged: ITER_MAX_ is a dataset of rank {rank}, where a key has rank 1; "
                                  "its command reads the type integer"], self.texts(of="wrong-type"))

    def test_a_type_that_no_key_has(self):
        self.set_dataset("STOP_/converged/ITER_MAX_", data=numpy.zeros(1, dtype=[("a", "i4"), ("b", "f8")]))
        self.assertEqual(["STOP_ converged: ITER_MAX_ is a compound of 12 bytes; its command reads the type integer"],
                         self.texts(of="wrong-type"))

    def test_are_not_told_again_as_a_wrong_count_or_no_enumerator(self):
        self.set_dataset("DV_/porosity/TYPE_", data=numpy.array([3, 4], dtype=numpy.int64))
        self.assertEqual([("wrong-type", "DV_", "porosity", "TYPE_", "")], self.findings())

    def test_of_a_description(self):
        self.assert_finds_in('[OPT_PARAM_.run]\nOPT_START_ = "1"\n', "wrong-type", (2, 14))
        self.assert_finds_in('[OPT_PARAM_.run]\nOPT_START_ = { type = "int64", values = [1] }\n', "wrong-type", (2, 14))
        self.assert_finds_in('[OPT_PARAM_.run]\nOPT_START_ = { type = "integer", values = [1] }\n', "wrong-type")
        self.assert_finds_in("[OPT_PARAM_.run]\nOPT_START_ = 1\n", "wrong-type")


class WrongCounts(RulesTest):
    def test_several_values_where_one_is_read(self):
        self.job["DV_"]["porosity"]["INITIAL_"] = doubles(0.4, 0.5)
        self.assert_finds(("wrong-count", "DV_", "porosity", "INITIAL_", ""))
        self.assertEqual(["DV_ porosity: INITIAL_ has 2 values where one is read"], self.texts(of="wrong-count"))
        self.assertEqual(["orvel-parfile set DV_ porosity INITIAL_ 0.4"], self.remedies(of="wrong-count"))

    def test_no_value_where_one_is_read(self):
        self.job["MODEL_"]["duct"]["FILE_"] = texts()
        self.assert_finds(("wrong-count", "MODEL_", "duct", "FILE_", ""))

    def test_two_references_where_one_is_read(self):
        self.job["STOP_"]["other"] = self.job["STOP_"]["converged"]
        self.job["ALGO_"]["topology"]["STOP_"] = references("STOP_/converged", "STOP_/other")
        self.assert_finds(("wrong-count", "ALGO_", "topology", "STOP_", ""))

    def test_repeated_keys_may_have_any_number_and_none(self):
        self.job["FLOWPATHS_"]["bend"] = {"IN_": texts(), "OUT_": texts("a", "b", "c")}
        self.assert_finds()

    def test_of_a_description(self):
        for values, places in (("[1, 2]", [(2, 14)]), ("[]", [(2, 14)]), ("[1]", [])):
            with self.subTest(values):
                self.assert_finds_in(f'[OPT_PARAM_.run]\nOPT_START_ = {{ type = "integer", values = {values} }}\n',
                                     "wrong-count", *places)


class Enumerators(RulesTest):
    def test_that_are_none(self):
        self.job["DV_"]["porosity"]["TYPE_"] = integers(67)
        self.job["ALGO_"]["topology"]["STRATEGY_"] = integers(-1)
        self.assert_finds(("not-an-enumerator", "DV_", "porosity", "TYPE_", "67"),
                          ("not-an-enumerator", "ALGO_", "topology", "STRATEGY_", "-1"))
        self.assertEqual(
            "orvel-parfile set DV_ porosity TYPE_ ENUMERATOR, where ENUMERATOR is one of AUTO, DENSITY, DETACHED, "
            "NODAL, NODAL_VECTOR", self.remedies(of="not-an-enumerator")[0])

    def test_each_value_of_a_list_is_looked_at(self):
        self.build({"SMOOTH_": {"s": {"FORMAT_": integers(83, 1, 86, 2)}}})
        found = self.findings("--job", "smooth", of="not-an-enumerator")
        self.assertEqual(["1", "2"], [finding.value for finding in found])
        self.assertIn("orvel-parfile set SMOOTH_ s FORMAT_ STL ENUMERATOR VTF 2, where ENUMERATOR is one of ",
                      self.remedies("--job", "smooth", of="not-an-enumerator")[0])

    def test_of_a_list_that_no_remedy_repeats_are_told_what_they_may_be(self):
        self.build({"SMOOTH_": {"s": {"FORMAT_": integers(*([1] * 21))}}})
        remedies = self.remedies("--job", "smooth", of="not-an-enumerator")
        self.assertEqual(21, len(remedies))
        self.assertEqual({"orvel-parfile set SMOOTH_ s FORMAT_ ENUMERATOR, where ENUMERATOR is one of ASCII_VTF, BDF, CDB, "
                          "IGES1, IGES2, IGES3, ONF, INP, STL, OUT, UNCOMPRESSED_VTF, VTF, WRL, OBJ, BINARY_VTF"},
                         set(remedies))

    def test_of_very_many_values_are_told_as_fast_as_they_are_many(self):
        with h5py.File(self.build({"SMOOTH_": {"s": {}}}), "r+") as file:
            file["PARFILE/SMOOTH_/s"].create_dataset("FORMAT_", data=[1] * 30000, dtype="i4", maxshape=(None,))
        self.assertEqual(30000, len(self.findings("--job", "smooth", of="not-an-enumerator")))

    def test_of_a_description(self):
        self.assert_finds_in('[SCALING_CURVE_.c]\nTYPE_ = "HEAVISIDE"\n', "not-an-enumerator", (2, 9))
        self.assert_finds_in('[SCALING_CURVE_.c]\nTYPE_ = { type = "integer", values = [1] }\n',
                             "not-an-enumerator", (2, 39))
        for name in ('"HEAVYSIDE"', '"H"', "72"):
            self.assert_finds_in(f"[SCALING_CURVE_.c]\nTYPE_ = {name}\n", "not-an-enumerator")


class ForeignObjects(RulesTest):
    def test_of_all_sorts(self):
        with self.open_file() as file:
            file["PARFILE"].attrs["author"] = "me"
            command = file["PARFILE/DV_/porosity"]
            command["INITIAL_"].attrs["unit"] = "1"
            command["LINK_"] = h5py.SoftLink("INITIAL_")
            command["AWAY_"] = h5py.ExternalLink("other.hdf5", "/x")
            command.create_group("DEEPER_")
            file["PARFILE/DV_/flat"] = 1
        self.assertEqual(
            [("foreign-object", "", "", "", "1 attribute"),
             ("foreign-object", "DV_", "flat", "", "a dataset where a group stands"),
             ("foreign-object", "DV_", "porosity", "INITIAL_", "1 attribute"),
             ("foreign-object", "DV_", "porosity", "AWAY_", "a link to another file"),
             ("foreign-object", "DV_", "porosity", "DEEPER_", "a group where a key stands"),
             ("foreign-object", "DV_", "porosity", "LINK_", "a soft link")],
            [finding for finding in self.findings() if finding.rule == "foreign-object"])

    def test_are_warnings_and_can_be_ignored(self):
        with self.open_file() as file:
            file["PARFILE/DV_/porosity"].attrs["author"] = "me"
        result = self.tool("check")
        self.assertEqual((FAULTS, ".: warning: /PARFILE/DV_/porosity: 1 attribute, which no command reads "
                          "[foreign-object]\n    mend: take it away with: orvel-parfile unset DV_ porosity "
                          "--attributes\n1 warning\n", ""),
                         result)
        self.assertEqual(GOOD, self.tool("check", "--ignore", "foreign-object").code)


class CommandCounts(RulesTest):
    def test_every_kind_that_lacks_its_command_is_told(self):
        del self.job["MODEL_"], self.job["FLOWPATHS_"]
        self.assert_finds(("command-count", "MODEL_", "", "", "0"), ("command-count", "FLOWPATHS_", "", "", "0"))

    def test_an_empty_kind_lacks_its_command(self):
        self.job["MODEL_"] = {}
        with self.open_file() as file:
            file.create_group("PARFILE/MODEL_")
        self.assertEqual([("command-count", "MODEL_", "", "", "0")], self.findings())

    def test_every_kind_with_several_is_told(self):
        self.job["MODEL_"]["pipe"] = self.job["MODEL_"]["duct"]
        self.job["ALGO_"]["shape"] = self.job["ALGO_"]["topology"]
        self.assert_finds(("command-count", "MODEL_", "", "", "2"), ("command-count", "ALGO_", "", "", "2"))
        self.assertEqual("there are 2 ALGO_, where a job has one: shape, topology", self.texts(of="command-count")[1])

    def test_of_too_many_one_goes_that_nothing_refers_to(self):
        self.job["OBJ_FUNC_"]["aaa"] = self.job["OBJ_FUNC_"]["loss"]
        self.build(self.job)
        self.assertEqual(["leave one; of another, take it away with: orvel-parfile unset OBJ_FUNC_ aaa"],
                         self.remedies(of="command-count"))

    def test_a_smoothing_job_has_no_such_kinds(self):
        self.build({})
        self.assertEqual([], self.findings("--job", "smooth"))

    def test_of_a_description_stand_at_the_second_one_or_at_the_beginning(self):
        text = "[MODEL_.a]\n[MODEL_.b]\n[OBJ_FUNC_.o]\n[ALGO_.a]\n"
        self.assert_finds_in(text + "[FLOWPATHS_.f]\n", "command-count", (2, 1))
        self.assert_finds_in(text, "command-count", (1, 1), (2, 1))


class RemediesOfOddNames(RulesTest):
    """They are followed by a shell as they stand."""

    def follow(self, remedy):
        programs = self.folder.parent / "bin"
        programs.mkdir(exist_ok=True)
        if not (programs / "orvel-parfile").exists():
            (programs / "orvel-parfile").symlink_to(TOOL)
        return subprocess.run(
            ["bash", "-c", remedy.split("take it away with: ")[1]], cwd=self.folder, capture_output=True, text=True,
            check=False, env={**os.environ, **SANITIZERS, "TMPDIR": str(self.scratch),
                              "PATH": f"{programs}:{os.environ['PATH']}"})

    def test_take_a_key_away_that_looks_like_an_option(self):
        for name in ("--force", "--attributes", "-x", "-.x", "-.5", "-", "--", "++", "-inf", "\x01x", "[1]"):
            with self.subTest(name):
                self.job["DV_"]["porosity"] = {**sound_job()["DV_"]["porosity"], name: texts("x")}
                path = self.build(self.job)
                ended = self.follow(self.remedies(of="unknown-key")[0])
                self.assertEqual((GOOD, ""), (ended.returncode, ended.stderr))
                with h5py.File(path, "r") as file:
                    self.assertEqual(["INITIAL_", "TYPE_"], list(file["PARFILE/DV_/porosity"]))

    def test_take_the_attributes_of_a_command_away_that_looks_like_an_option(self):
        self.job["STOP_"]["--force"] = self.job["STOP_"]["converged"]
        with self.open_file() as file:
            file["PARFILE/STOP_/--force"].attrs["note"] = 1
        ended = self.follow(self.remedies(of="foreign-object")[0])
        self.assertEqual((GOOD, ""), (ended.returncode, ended.stderr))
        self.assertEqual([], self.findings(of="foreign-object"))
        self.assertIn("--force", self.tool("show").out)

    def test_give_a_command_another_value_that_looks_like_an_option(self):
        self.job["FILTER_"] = {"-a": {"PATCH_ID_": texts("default")}, "-b": {"PATCH_ID_": texts("default")}}
        self.job["DV_"]["porosity"]["FILTER_"] = references("FILTER_/-a", "DV_/porosity")
        self.build(self.job)
        remedy = self.remedies(of="wrong-target")[0]
        self.assertIn("orvel-parfile set -- DV_ porosity FILTER_ -a", remedy)

    def test_take_a_kind_away_in_a_folder_that_looks_like_an_option(self):
        run = self.folder / "-run"
        run.mkdir()
        write_parameter_file(run, {**sound_job(), "X_": {"x": {}}})
        report = json.loads(self.tool("check", "--json", "--", "-run").out)
        remedies = [finding["remedy"] for finding in report["findings"] if finding["rule"] == "unknown-kind"]
        ended = self.follow(remedies[0])
        self.assertEqual((GOOD, ""), (ended.returncode, ended.stderr), remedies)


class UnresolvedReferences(RulesTest):
    def set_references(self, path, count):
        with self.open_file() as file:
            del file[f"PARFILE/{path}"]
            file["PARFILE"].create_dataset(path, (count,), maxshape=(None,), chunks=(1,), dtype=h5py.ref_dtype)

    def test_a_reference_that_was_never_set(self):
        self.set_references("ALGO_/topology/STOP_", 1)
        self.assertEqual([("unresolved-reference", "ALGO_", "topology", "STOP_", "")], self.findings())
        self.assertEqual(["there are converged; orvel-parfile set ALGO_ topology STOP_ ID"],
                         self.remedies(of="unresolved-reference"))

    def test_several_that_were_never_set_stand_beside_each_other(self):
        self.job["FILTER_"] = {"fine": {"PATCH_ID_": texts("default")}}
        self.job["DV_"]["porosity"]["FILTER_"] = references("FILTER_/fine", "FILTER_/gone", "FILTER_/gone")
        self.job["FILTER_"]["gone"] = {"PATCH_ID_": texts("default")}
        with self.open_file() as file:
            del file["PARFILE/FILTER_/gone"]
        self.assertEqual(["there are fine; orvel-parfile set DV_ porosity FILTER_ fine ID ID"] * 2,
                         self.remedies(of="unresolved-reference"))

    def test_a_reference_whose_target_was_removed(self):
        with self.open_file() as file:
            del file["PARFILE/STOP_/converged"]
        self.assertEqual(["unresolved-reference"], [finding.rule for finding in self.findings()])
        self.assertEqual(["ALGO_ topology: STOP_ refers to nothing"], self.texts(of="unresolved-reference"))

    def test_every_one_is_told(self):
        self.job["MONITOR_"] = {name: {"DRESP_": references("DRESP_/gone")} for name in ("a", "b")}
        self.job["DRESP_"]["gone"] = response()
        self.job["ALGO_"]["topology"]["MONITOR_"] = references("MONITOR_/a", "MONITOR_/b")
        with self.open_file() as file:
            del file["PARFILE/DRESP_/gone"]
        self.assertEqual(["a", "b"], [finding.id for finding in self.findings(of="unresolved-reference")])

    def test_of_a_description_are_told_with_the_nearest_and_the_known_ids(self):
        text = ('[MONITOR_.m]\nDRESP_ = "oulet"\n[DRESP_.outlet]\n[DRESP_.inlet]\n[OBJ_FUNC_.o]\nDRESP_ = "inlet"\n'
                'FILTER_ = ["a", "b"]\n')
        self.assert_finds_in(text, "unresolved-reference", (2, 10), (7, 12), (7, 17))
        self.assertEqual(['the nearest is outlet; there are inlet, outlet; write DRESP_ = "outlet"',
                          "there is no FILTER_ at all", "there is no FILTER_ at all"],
                         self.remedies("job.toml", of="unresolved-reference"))

    def test_so_many_that_looking_for_the_nearest_would_take_long_are_told_without_it(self):
        self.write("job.toml", "".join(f"[DRESP_.response_{number}]\n" for number in range(1000)) +
                   f"[OPERATOR_.o]\nDRESP_ = {[f'answer_{number}' for number in range(600)]}\n")
        remedies = self.remedies("job.toml", of="unresolved-reference")
        self.assertEqual(600, len(remedies))
        self.assertTrue(remedies[0].startswith("the nearest is response_0; there are response_0, "), remedies[0])
        self.assertTrue(remedies[-1].startswith("there are response_0, "), remedies[-1])
        self.assertTrue(remedies[-1].endswith(" and 900 more"), remedies[-1])

    def test_are_not_told_of_a_command_that_was_refused(self):
        self.assert_finds_in('[MONITOR_.m]\nDRESP_ = "x"\n[DRESP_]\nx = 3\n', "unresolved-reference")

    def test_a_reference_to_nothing_of_a_description(self):
        self.assert_finds_in('[MONITOR_.m]\nDRESP_ = { type = "reference", values = [""] }\n',
                             "unresolved-reference", (2, 42))


class WrongTargets(RulesTest):
    def test_of_another_kind_without_the_id_in_the_right_one(self):
        self.job["ALGO_"]["topology"]["STOP_"] = references("OPT_PARAM_/run")
        self.assert_finds(("wrong-target", "ALGO_", "topology", "STOP_", "OPT_PARAM_/run"))
        self.assertEqual(["ALGO_ topology: STOP_ refers to OPT_PARAM_ run, where it must be a STOP_; "
                          "the library takes the id alone and finds no STOP_ run"], self.texts(of="wrong-target"))
        self.assertEqual(["the nearest is converged; there are converged; "
                          "orvel-parfile set ALGO_ topology STOP_ converged"], self.remedies(of="wrong-target"))

    def test_of_another_kind_with_the_id_in_the_right_one_is_linked_and_found(self):
        self.job["STOP_"]["run"] = self.job["STOP_"].pop("converged")
        self.job["ALGO_"]["topology"]["STOP_"] = references("OPT_PARAM_/run")
        self.assert_finds(("wrong-target", "ALGO_", "topology", "STOP_", "OPT_PARAM_/run"))
        self.assertTrue(self.texts(of="wrong-target")[0].endswith("the library takes the id alone and links STOP_ run"))
        self.assertEqual([], self.texts(of="library"))

    def test_a_command_with_two_names_counts_under_the_right_one(self):
        with self.open_file() as file:
            file["PARFILE/AAA_/alias"] = file["PARFILE/STOP_/converged"]
        self.assertEqual([("unknown-kind", "AAA_", "", "", "")], self.findings())

    def test_of_a_description(self):
        self.assert_finds_in('[MONITOR_.m]\nDRESP_ = { type = "reference", values = ["MODEL_/a"] }\n[MODEL_.a]\n',
                             "wrong-target", (2, 42))
        self.assert_finds_in('[MONITOR_.m]\nDRESP_ = { type = "reference", values = ["DRESP_/a"] }\n[DRESP_.a]\n',
                             "wrong-target")


class UnreachableCommands(RulesTest):
    def test_are_found_in_every_kind_that_keys_refer_to(self):
        self.job["STOP_"]["first_try"] = self.job["STOP_"]["converged"]
        self.job["DRESP_"]["watched"] = response()
        self.job["MONITOR_"] = {"m": {"DRESP_": references("DRESP_/watched")}}
        self.assert_finds(("unreachable-command", "DRESP_", "watched", "", ""),
                          ("unreachable-command", "MONITOR_", "m", "", ""),
                          ("unreachable-command", "STOP_", "first_try", "", ""))

    def test_are_reached_over_several_commands(self):
        self.job["DRESP_"]["watched"] = response()
        self.job["MONITOR_"] = {"m": {"DRESP_": references("DRESP_/watched")}}
        self.job["ALGO_"]["topology"]["MONITOR_"] = references("MONITOR_/m")
        self.assert_finds()

    def test_kinds_that_no_key_refers_to_are_never_unreachable(self):
        self.job["NODE_GROUP_"] = {"n": {}}
        self.assert_finds(("unused-group", "NODE_GROUP_", "n", "", ""))

    def test_the_second_of_two_names_of_one_command_is_unreachable(self):
        with self.open_file() as file:
            file["PARFILE/STOP_/second"] = file["PARFILE/STOP_/converged"]
        self.assertEqual([("unreachable-command", "STOP_", "second", "", "")], self.findings())

    def test_a_reference_to_nothing_may_have_meant_any_command_of_its_kind(self):
        self.job["STOP_"]["second"] = self.job["STOP_"]["converged"]
        self.job["OPT_PARAM_"]["second"] = self.job["OPT_PARAM_"]["run"]
        with self.open_file() as file:
            del file["PARFILE/STOP_/converged"]
        self.assertEqual([("unresolved-reference", "ALGO_"), ("unreachable-command", "OPT_PARAM_")],
                         [(finding.rule, finding.kind) for finding in self.findings()])

    def test_without_an_algorithm_that_alone_is_told(self):
        del self.job["ALGO_"]
        self.assert_finds(("command-count", "ALGO_", "", "", "0"))

    def test_of_a_description(self):
        text = '[ALGO_.a]\nSTOP_ = "b"\n[STOP_.b]\n[STOP_.c]\n[OPT_PARAM_.d]\n[MODEL_.e]\n'
        self.assert_finds_in(text, "unreachable-command", (4, 1), (5, 1))

    def test_a_refused_reference_may_have_meant_any_command_of_its_kind(self):
        self.assert_finds_in("[ALGO_.a]\nSTOP_ = 3\n[STOP_.b]\n", "unreachable-command")


class Cycles(RulesTest):
    def chain(self, *ids):
        """Operators of which each refers to the next one, the objective to the first."""
        for one, other in zip(ids, ids[1:]):
            self.job["OPERATOR_"][one] = operator(
                OPERATOR_=references(f"OPERATOR_/{other}"), OPERATOR_WEIGHT_=doubles(1.0))
        del self.job["OBJ_FUNC_"]["loss"]["DRESP_"], self.job["DRESP_"]
        self.job["OBJ_FUNC_"]["loss"]["OPERATOR_"] = references(f"OPERATOR_/{ids[0]}")

    def test_of_operators_are_told_once_with_their_path(self):
        self.job["OPERATOR_"] = {}
        self.chain("a", "b", "c", "b")
        self.assert_finds(("reference-cycle", "OPERATOR_", "c", "OPERATOR_", "OPERATOR_ b"))
        self.assertEqual(["OPERATOR_ c: OPERATOR_ closes a circle: OPERATOR_ b -> OPERATOR_ c -> OPERATOR_ b"],
                         self.texts(of="reference-cycle"))

    def test_beside_a_reference_to_nothing(self):
        self.job["OPERATOR_"] = {"gone": operator()}
        self.chain("a", "a")
        self.job["OPERATOR_"]["a"]["OPERATOR_"] = references("OPERATOR_/a", "OPERATOR_/gone")
        with self.open_file() as file:
            del file["PARFILE/OPERATOR_/gone"]
        self.assertEqual(["one of these references is too much; for this one: orvel-parfile set OPERATOR_ a OPERATOR_ ID"],
                         self.remedies(of="reference-cycle"))

    def test_that_are_many_and_long_are_told_by_their_ends(self):
        chain = "".join(f'[OPERATOR_.o{number:04}]\nOPERATOR_ = ["o0000", "o{number + 1:04}"]\n' for number in range(1500))
        self.write("job.toml", chain + "[OPERATOR_.o1500]\n")
        circles = self.texts("job.toml", of="reference-cycle")
        self.assertEqual(1500, len(circles))
        self.assertIn("OPERATOR_ o0099 -> OPERATOR_ o0100 -> OPERATOR_ o0000", circles[100])
        self.assertIn("OPERATOR_ o0008 -> OPERATOR_ o0009 -> 1480 more -> OPERATOR_ o1490 -> ", circles[-1])
        self.assertTrue(circles[-1].endswith("OPERATOR_ o1499 -> OPERATOR_ o0000"), circles[-1])
        self.assertLess(sum(map(len, circles)), 1_000_000)

    def test_of_one_operator(self):
        self.job["OPERATOR_"] = {}
        self.chain("a", "a")
        self.assert_finds(("reference-cycle", "OPERATOR_", "a", "OPERATOR_", "OPERATOR_ a"))
        self.assertEqual(["one of these references is too much; for this one: take it away with: "
                          "orvel-parfile unset OPERATOR_ a OPERATOR_"], self.remedies(of="reference-cycle"))

    def test_of_design_variables(self):
        variable = self.job["DV_"]["porosity"]
        variable["DV_"] = references("DV_/other")
        self.job["DV_"]["other"] = {**variable, "DV_": references("DV_/porosity", "DV_/porosity")}
        self.assert_finds(("reference-cycle", "DV_", "porosity", "DV_", "DV_ other"))

    def test_two_circles_through_one_command_are_two(self):
        self.assert_finds_in('[OPERATOR_.a]\nOPERATOR_ = ["b", "c"]\nOPERATOR_WEIGHT_ = [1.0, 1.0]\n'
                             '[OPERATOR_.b]\nOPERATOR_ = ["a"]\n[OPERATOR_.c]\nOPERATOR_ = ["a"]\n',
                             "reference-cycle", (5, 14), (7, 14))

    def test_two_ways_to_one_command_are_none(self):
        self.assert_finds_in('[OPERATOR_.a]\nOPERATOR_ = ["b", "c"]\n[OPERATOR_.b]\nOPERATOR_ = ["d"]\n'
                             '[OPERATOR_.c]\nOPERATOR_ = ["d"]\n[OPERATOR_.d]\n', "reference-cycle")

    def test_a_long_one_is_told_with_its_whole_path(self):
        count = 500
        chain = "".join(f'[OPERATOR_.o{place}]\nOPERATOR_ = ["o{place + 1}"]\n' for place in range(count))
        self.assert_finds_in(f'{chain}[OPERATOR_.o{count}]\nOPERATOR_ = ["o0"]\n', "reference-cycle",
                             (2 * count + 2, 14))
        self.assertEqual(count + 1, self.texts("job.toml", of="reference-cycle")[0].count(" -> "))


class ListLengths(RulesTest):
    def use(self, **keys):
        self.job["OPERATOR_"] = {"sum": operator(**keys)}
        del self.job["OBJ_FUNC_"]["loss"]["DRESP_"]
        self.job["OBJ_FUNC_"]["loss"]["OPERATOR_"] = references("OPERATOR_/sum")

    def test_of_responses_and_their_weights(self):
        self.use(DRESP_=references("DRESP_/pressure"), DRESP_WEIGHT_=doubles(0.5, 0.5))
        self.assert_finds(("list-lengths", "OPERATOR_", "sum", "DRESP_WEIGHT_", "1 and 2"))

    def test_of_operators_and_their_weights(self):
        self.use(DRESP_=references("DRESP_/pressure"), DRESP_WEIGHT_=doubles(1.0),
                 OPERATOR_=references("OPERATOR_/part"))
        self.job["OPERATOR_"]["part"] = operator()
        self.assert_finds(("list-lengths", "OPERATOR_", "sum", "OPERATOR_", "1 and 0"))

    def test_that_are_equal(self):
        self.use(DRESP_=references("DRESP_/pressure", "DRESP_/pressure"), DRESP_WEIGHT_=doubles(0.5, 0.5))
        self.assert_finds()

    def test_of_groups_and_their_values_in_a_smoothing_job(self):
        for names, values, found in (
                (texts("a", "b"), doubles(1.0), ["1"]), (texts("a"), doubles(1.0), []), (texts(), doubles(), [])):
            for stem in ("ISO_GROUP", "VOL_GROUP"):
                with self.subTest(stem, found=found):
                    self.build({"SMOOTH_": {"s": {f"{stem}_NAME_": names, f"{stem}_VALUE_": values}}})
                    self.assertEqual([f"{stem}_VALUE_" for _ in found], [
                        finding.key for finding in self.findings("--job", "smooth", of="list-lengths")])

    def test_lists_that_are_no_pair_may_differ(self):
        self.build({"SMOOTH_": {"s": {"SLICE_X_": doubles(1.0), "SLICE_Y_": doubles(1.0, 2.0)}}})
        self.assertEqual([], self.findings("--job", "smooth", of="list-lengths"))

    def test_of_a_description(self):
        text = '[OPERATOR_.s]\nDRESP_ = ["a"]\nDRESP_WEIGHT_ = [0.5, 0.5]\n[DRESP_.a]\n'
        self.assert_finds_in(text, "list-lengths", (3, 17))
        self.assert_finds_in(text.replace("0.5, 0.5", "0.5"), "list-lengths")
        self.assert_finds_in(text.replace("0.5, 0.5", '0.5, "x"'), "list-lengths")


class ResponseOrOperator(RulesTest):
    def test_neither_in_an_objective_and_a_constraint(self):
        del self.job["OBJ_FUNC_"]["loss"]["DRESP_"], self.job["DRESP_"]
        self.job["CONSTRAINT_"] = {"c": {
            "TYPE_": integers(71), "MAGNITUDE_": integers(65), "VALUE_": doubles(1.0), "COEFFICIENT_": doubles(1.0),
            "A_MINMAX_COEFFICIENT_": doubles(0.0), "SENSSCALING_TYPE_": integers(78),
            "SENSSCALING_VALUE_": doubles(1.0)}}
        self.job["ALGO_"]["topology"]["CONSTRAINT_"] = references("CONSTRAINT_/c")
        self.assert_finds(("response-or-operator", "OBJ_FUNC_", "loss", "", ""),
                          ("response-or-operator", "CONSTRAINT_", "c", "", ""))

    def test_both(self):
        self.job["OPERATOR_"] = {"sum": operator()}
        self.job["OBJ_FUNC_"]["loss"]["OPERATOR_"] = references("OPERATOR_/sum")
        self.assert_finds(("response-or-operator", "OBJ_FUNC_", "loss", "OPERATOR_", ""))

    def test_an_operator_alone(self):
        self.job["OPERATOR_"] = {"sum": operator()}
        self.job["OBJ_FUNC_"]["loss"] = {
            **self.job["OBJ_FUNC_"]["loss"], "OPERATOR_": references("OPERATOR_/sum")}
        del self.job["OBJ_FUNC_"]["loss"]["DRESP_"], self.job["DRESP_"]
        self.assert_finds()

    def test_of_a_description(self):
        self.assert_finds_in("[CONSTRAINT_.c]\n", "response-or-operator", (1, 1))
        self.assert_finds_in('[CONSTRAINT_.c]\nDRESP_ = "a"\nOPERATOR_ = "b"\n', "response-or-operator", (3, 13))
        self.assert_finds_in('[CONSTRAINT_.c]\nDRESP_ = "a"\n', "response-or-operator")
        self.assert_finds_in("[CONSTRAINT_.c]\nDRESP_ = 3\n", "response-or-operator")


class Limits(RulesTest):
    # Every pair that the commands have.
    PAIRS = [
        ("DRESP_", "ITER_MIN_", "ITER_MAX_"), ("STOP_", "ITER_MIN_", "ITER_MAX_"),
        ("AS_TOPO_OC_", "TA_MIN_", "TA_MAX_"), ("AS_TOPO_OC_", "SCALING_CURVE_MIN_", "SCALING_CURVE_MAX_"),
        ("AS_TOPO_SENS_", "MIN_", "MAX_"), ("AS_TOPO_SENS_", "SCALING_CURVE_MIN_", "SCALING_CURVE_MAX_"),
        ("AS_TOPO_SENS_", "ASYM_MOVE_LOW_", "ASYM_MOVE_UP_"),
        ("AS_TOPO_SENS_", "PRIMAL_ITER_MIN_", "PRIMAL_ITER_MAX_"),
        ("AS_TOPO_SENS_", "ADJOINT_ITER_MIN_", "ADJOINT_ITER_MAX_"),
        ("AS_SHAPE_SENS_", "MIN_", "MAX_"), ("AS_SHAPE_SENS_", "SCALING_CURVE_MIN_", "SCALING_CURVE_MAX_"),
        ("AS_SHAPE_SENS_", "ASYM_MOVE_LOW_", "ASYM_MOVE_UP_"), ("SCALING_CURVE_", "MIN_", "MAX_")]

    def description(self, lower, upper):
        tables = {}
        for kind, lower_key, upper_key in self.PAIRS:
            tables.setdefault(kind, []).append(f"{lower_key} = {lower}\n{upper_key} = {upper}\n")
        return "".join(f"[{kind}.x]\n{''.join(keys)}" for kind, keys in tables.items())

    def test_of_large_whole_numbers_are_told_as_they_may_be_written(self):
        stop = self.job["STOP_"]["converged"]
        stop["ITER_MIN_"], stop["ITER_MAX_"] = integers(200000), integers(100000)
        self.build(self.job)
        self.assertEqual(["STOP_ converged: ITER_MIN_ is 200000, above ITER_MAX_, which is 100000"], self.texts(of="limits"))
        remedy = "lower the one or raise the other: orvel-parfile set STOP_ converged ITER_MIN_ 100000"
        self.assertEqual([remedy], self.remedies(of="limits"))

    def test_every_pair_the_wrong_way_round(self):
        self.write("job.toml", self.description(2, 1))
        self.assertEqual([(kind, key, "2") for kind, key, _ in self.PAIRS],
                         [(finding.kind, finding.key, finding.value)
                          for finding in self.findings("job.toml", of="limits")])

    def test_equal_limits_and_such_the_right_way_round(self):
        for lower, upper in ((1, 1), (1, 2), (-2, -1)):
            self.write("job.toml", self.description(lower, upper))
            self.assertEqual([], self.findings("job.toml", of="limits"))

    def test_one_limit_alone(self):
        self.assert_finds_in("[AS_TOPO_SENS_.x]\nMIN_ = 2.0\n[PRE_PARAM_.p]\nITER_MAX_ = -1\n", "limits")

    def test_of_a_file(self):
        self.job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        self.assert_finds(("limits", "STOP_", "converged", "ITER_MIN_", "81"))
        self.assertEqual(["STOP_ converged: ITER_MIN_ is 81, above ITER_MAX_, which is 80"], self.texts(of="limits"))
        self.assertEqual(["lower the one or raise the other: orvel-parfile set STOP_ converged ITER_MIN_ 80"],
                         self.remedies(of="limits"))

    def test_what_is_no_number_is_above_nothing(self):
        self.job["AS_TOPO_SENS_"]["sens"]["MIN_"] = doubles(float("nan"))
        self.job["AS_TOPO_SENS_"]["sens"]["MAX_"] = doubles(float("-inf"))
        self.assert_finds()


class Bases(RulesTest):
    def assert_basis(self, *vectors, fault=None):
        self.build({"CS_": {"c": coordinate_system(*vectors)}})
        self.assertEqual([f"CS_ c is no basis: {fault}"] if fault else [], self.texts(of="no-basis"))

    def test_vectors_that_are_one(self):
        self.assert_basis((1, 0, 0), (0, 1, 0), (0, 0, 1))
        self.assert_basis((1, 0, 0), (0, 0, 1), (0, 1, 0))
        self.assert_basis((1, 0, 0), (1, 1, 0), (1, 1, 1))

    def test_a_zero_vector(self):
        for place in range(3):
            vectors = [(1, 0, 0), (0, 1, 0), (0, 0, 1)]
            vectors[place] = (0, 0, 0)
            self.assert_basis(*vectors, fault=f"vector {place + 1} is zero")

    def test_vectors_in_one_plane(self):
        plane = "the three vectors lie in one plane"
        self.assert_basis((1, 0, 0), (0, 1, 0), (1, 1, 0), fault=plane)
        self.assert_basis((1, 2, 3), (2, 4, 6), (0, 0, 1), fault=plane)
        self.assert_basis((0.1, 0.2, 0.3), (0.4, 0.5, 0.6), (0.7, 0.8, 0.9), fault=plane)

    def test_the_tolerance_is_a_millionth_of_a_cube_of_unit_vectors(self):
        self.assert_basis((1, 0, 0), (0, 1, 0), (1, 0, 1.1e-6))
        self.assert_basis((1, 0, 0), (0, 1, 0), (1, 0, 0.9e-6), fault="the three vectors lie in one plane")

    def test_lengths_do_not_matter(self):
        self.assert_basis((1e300, 0, 0), (0, 1e-300, 0), (0, 0, 5e-324))
        self.assert_basis((1e308, 1e308, 1e308), (0, 1, 0), (0, 0, 1))
        self.assert_basis((1e300, 0, 0), (0, 1e300, 0), (1e300, 1e300, 0), fault="the three vectors lie in one plane")

    def test_components_that_are_no_finite_number(self):
        for component in (float("nan"), float("inf")):
            self.assert_basis((1, 0, 0), (0, component, 0), (0, 0, 1),
                              fault="vector 2 has a component that is no finite number")

    def test_without_all_components_that_alone_is_told(self):
        system = coordinate_system((0, 0, 0), (0, 0, 0), (0, 0, 0))
        del system["Z_VEC3_"]
        self.build({"CS_": {"c": system}})
        self.assertEqual([], self.texts(of="no-basis"))

    def test_of_a_description(self):
        vectors = "".join(f"{axis}_VEC{number}_ = 1.0\n" for number in (1, 2, 3) for axis in "XYZ")
        self.assert_finds_in(f"[CS_.c]\n{vectors}", "no-basis", (1, 1))
        self.assert_finds_in(f"[CS_.c]\n{vectors}".replace("X_VEC1_ = 1.0", "X_VEC1_ = 2.0").replace(
            "Y_VEC2_ = 1.0", "Y_VEC2_ = 2.0"), "no-basis")


class ModelIds(RulesTest):
    def found(self, rule, ids):
        self.write("ids.toml", ids)
        return [(finding.kind, finding.id, finding.key, finding.value)
                for finding in self.findings("--model-ids", "ids.toml", of=rule)]

    def test_that_the_model_does_not_know(self):
        self.job["DV_"]["porosity"]["ELEMENT_GROUP_"] = texts("walls")
        self.build(self.job)
        self.assertEqual(
            [("DV_", "porosity", "ELEMENT_GROUP_", "walls"), ("FLOWPATHS_", "bend", "OUT_", "outlet")],
            self.found("unknown-model-id", 'face_groups = ["walls", "inlet"]\n'))
        self.assertEqual(
            ["the model has no element_groups",
             "the nearest is inlet; there are inlet, walls; orvel-parfile set FLOWPATHS_ bend OUT_ inlet"],
            self.remedies("--model-ids", "ids.toml", of="unknown-model-id"))

    def test_are_told_also_where_loading_fails(self):
        del self.job["STOP_"]["converged"]["ITER_MAX_"]
        self.build(self.job)
        self.assertEqual([("FLOWPATHS_", "bend", "OUT_", "outlet")],
                         self.found("unknown-model-id", 'face_groups = ["inlet"]\n'))

    def test_that_the_model_knows_and_jobs_without_a_list(self):
        self.build(self.job)
        self.assertEqual([], self.found("unknown-model-id", FACE_IDS))
        self.assertEqual([], self.findings())

    def test_so_many_that_looking_for_the_nearest_would_take_long_are_told_without_it(self):
        self.job["FLOWPATHS_"]["bend"]["IN_"] = texts(*(f"face{number}" for number in range(600)))
        self.build(self.job)
        self.write("ids.toml", f"face_groups = {[f'faces_of_part_{number}' for number in range(1000)]}\n")
        remedies = self.remedies("--model-ids", "ids.toml", of="unknown-model-id")
        self.assertEqual(601, len(remedies))
        self.assertTrue(remedies[0].startswith("the nearest is faces_of_part_0; there are faces_of_part_0, "))
        self.assertTrue(remedies[-1].startswith("there are faces_of_part_0, "))
        self.assertTrue(remedies[-1].endswith(" and 900 more"))

    def test_groups_are_in_doubt_beside_a_key_that_may_name_them(self):
        self.job["NODE_GROUP_"] = {"rim": {"MERGE_": texts("rim")}}
        self.job["DV_"]["porosity"]["NODE_GROUP_"] = integers(3)
        self.build(self.job)
        self.assertEqual([], self.findings(of="unused-group"))
        del self.job["DV_"]["porosity"]["NODE_GROUP_"]
        self.build(self.job)
        self.assertEqual(1, len(self.findings(of="unused-group")))
        self.job["SMOOTH_"] = {"s": {"INCLUDE_GROUP_": integers(3)}}
        self.build(self.job)
        self.assertEqual([], self.findings(of="unused-group"))
        self.assert_finds_in('[SMOOTH_.s]\nEXCLUDE_GROUP_ = "rim"\n[NODE_GROUP_.rim]\n', "unused-group")

    def test_groups_that_no_other_command_names(self):
        self.job["NODE_GROUP_"] = {"rim": {"MERGE_": texts("rim")}, "holes": {"MERGE_": texts("rim")}}
        self.job["FACE_GROUP_"] = {"inlet": {}, "holes": {}}
        self.assert_finds(("unused-group", "FACE_GROUP_", "holes", "", ""),
                          ("unused-group", "NODE_GROUP_", "holes", "", ""))
        self.job["NODE_GROUP_"]["holes"]["MERGE_"] = texts("other")
        self.assert_finds(("unused-group", "FACE_GROUP_", "holes", "", ""),
                          ("unused-group", "NODE_GROUP_", "holes", "", ""),
                          ("unused-group", "NODE_GROUP_", "rim", "", ""))

    def test_a_smoothing_command_uses_groups_by_plain_names(self):
        self.job["NODE_GROUP_"] = {"rim": {}}
        self.job["SMOOTH_"] = {"s": {"INCLUDE_GROUP_": texts("rim")}}
        self.build(self.job)
        self.assertEqual([], self.findings(of="unused-group"))
        self.assertEqual([], self.found("unused-model-group", FACE_IDS + 'node_groups = ["rim"]\n'))

    def test_names_that_the_job_never_uses_are_notes_with_their_place(self):
        self.build(self.job)
        self.write("ids.toml", FACE_IDS + 'node_groups = ["a",\n  "b"]\ncoordinate_systems = ["global"]\n')
        report = self.report("--model-ids", "ids.toml")
        self.assertEqual(
            [("unused-model-group", "note", "node_groups", "a", "ids.toml", 2, 16),
             ("unused-model-group", "note", "node_groups", "b", "ids.toml", 3, 3),
             ("unused-model-group", "note", "coordinate_systems", "global", "ids.toml", 4, 23)],
            [tuple(finding[name] for name in ("rule", "severity", "key", "value", "file", "line", "column"))
             for finding in report["findings"]])
        self.assertEqual(GOOD, self.tool("check", "--model-ids", "ids.toml").code)

    def test_names_of_groups_that_the_job_builds_are_no_such_notes(self):
        self.job["NODE_GROUP_"] = {"rim": {}}
        self.build(self.job)
        self.assertEqual([], self.found("unused-model-group", FACE_IDS + 'node_groups = ["rim"]\n'))

    def test_an_unknown_name_may_have_meant_any_of_its_list(self):
        self.build(self.job)
        self.assertEqual([("", "", "node_groups", "rim")], self.found(
            "unused-model-group", 'face_groups = ["inlet", "outlett"]\nnode_groups = ["rim"]\n'))

    def test_a_refused_name_may_have_meant_any_group(self):
        self.assert_finds_in('[DV_.d]\nNODE_GROUP_ = 3\n[NODE_GROUP_.a]\n[FACE_GROUP_.b]\n', "unused-group", (4, 1))

    def test_are_no_matter_of_a_smoothing_job(self):
        self.job["SMOOTH_"] = {}
        self.job["NODE_GROUP_"] = {"rim": {"MERGE_": texts("x")}}
        self.build(self.job)
        self.write("ids.toml", 'face_groups = ["a"]\n')
        self.assertEqual([], self.findings("--job", "smooth", "--model-ids", "ids.toml"))


class SmoothingJobs(RulesTest):
    def test_are_checked_in_their_own_commands_and_in_unknown_kinds_alone(self):
        self.job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        self.job["STOP_"]["converged"]["X_"] = integers(1)
        self.job["REPORT_"] = {"r": {}}
        self.job["SMOOTH_"] = {"s": {"PATCH_ID_": integers(1)}}
        self.build(self.job)
        found = self.findings("--job", "smooth")
        self.assertEqual({"SMOOTH_", "REPORT_"}, {finding.kind for finding in found})
        self.assertEqual({"missing-key", "wrong-type", "unknown-kind"}, {finding.rule for finding in found})


class RemediesForFiles(RulesTest):
    """The commands that remedies name do what they say."""

    def follow(self, remedy):
        """Runs every command of the tool that a remedy names, as a shell would."""
        commands = re.findall(r"orvel-parfile ((?:set|unset) [^;]+)", remedy)
        self.assertNotEqual([], commands, remedy)
        for command in commands:
            words = shlex.split(re.split(", (?:where|or) ", command)[0])
            result = self.tool(*["1" if word == "INTEGER" else word for word in words])
            self.assertEqual(GOOD, result.code, (command, result.err))

    def test_mend_a_file_with_many_faults(self):
        self.job["STOP_"]["converged"]["ITER_MIN_"] = integers(81)
        self.job["STOP_"]["first try"] = self.job["STOP_"]["converged"]
        self.job["REPORT_"] = {"a": {}, "b": {}}
        self.job["MODEL_"]["duct"]["SOLVR_"] = texts("rans")
        self.job["MODEL_"]["duct"]["SOLVER_"] = integers(3)
        self.job["OPT_PARAM_"]["run"] = {"SRC_SCALE_": integers(2)}
        self.job["DV_"]["porosity"]["INITIAL_"] = doubles(-0.4, 0.5)
        self.job["ALGO_"]["topology"]["PRE_PARAM_"] = references("OPT_PARAM_/run")
        self.job["OPERATOR_"] = {"sum": operator(OPERATOR_=references("OPERATOR_/sum"), OPERATOR_WEIGHT_=doubles(1.0))}
        self.job["OBJ_FUNC_"]["loss"]["OPERATOR_"] = references("OPERATOR_/sum")
        self.job["NODE_GROUP_"] = {"rim": {"LIST_": integer_lists([1, 2])}}
        with self.open_file() as file:
            file["PARFILE"].attrs["author"] = "me"
            file["PARFILE/DV_/porosity/LINK_"] = h5py.SoftLink("INITIAL_")
            del file["PARFILE/MODEL_/duct/SOLVER_"]
            file["PARFILE/MODEL_/duct"].create_dataset("SOLVER_", data=["rans"], dtype=h5py.string_dtype())
        found = set()
        for _ in range(40):
            left = [finding for finding in self.report()["findings"] if finding["rule"] != "library"]
            if not left:
                break
            found.add(left[0]["rule"])
            self.follow(left[0]["remedy"])
        self.assertEqual(GOOD, self.tool("check").code, self.tool("check").out)
        self.assertEqual({"foreign-object", "unknown-kind", "unknown-key", "missing-key", "wrong-type", "wrong-count",
                          "wrong-target", "unreachable-command", "reference-cycle", "list-lengths",
                          "response-or-operator", "limits", "unused-group"}, found)


class BrokenBentDuct(CheckTest):
    # Rule -> what mends it, by text and text; what library tells goes with the missing key.
    MENDINGS = {
        "unknown-model-id": [('"keep_out_colum"', '"keep_out_column"')],
        "impossible-name": [('[NODE_GROUP_."outlet/bolts"]', "[NODE_GROUP_.outlet_rim]"),
                            ('ANGLE_ = 90.0\n', 'NODE_GROUP_ = "outlet_rim"\nANGLE_ = 90.0\n')],
        "unused-group": [('[FACE_GROUP_.openings]\nMERGE_ = ["inlet_main", "inlet_side", "outlet"]\n', "")],
        "wrong-count": [('INITIAL_ = { type = "number", values = [0.35, 0.4] }', "INITIAL_ = 0.35")],
        "not-an-enumerator": [('"DENSTY"', '"DENSITY"')],
        "list-lengths": [("DRESP_WEIGHT_ = [0.8]", "DRESP_WEIGHT_ = [0.8, 0.1]")],
        "reference-cycle": [('OPERATOR_ = ["loss"]\nOPERATOR_WEIGHT_ = [1.0]\n', "")],
        "response-or-operator": [('DRESP_ = "pressure_drop_main"\nOPERATOR_ = "loss"', 'OPERATOR_ = "loss"')],
        "missing-key": [("VALUE_ = 0.35\n", "VALUE_ = 0.35\nCOEFFICIENT_ = 1000.0\n")],
        "unresolved-reference": [("uniformity_oulet", "uniformity_outlet")],
        "no-basis": [("Y_VEC3_ = 1.0\nZ_VEC3_ = 0.0", "Y_VEC3_ = 0.0\nZ_VEC3_ = 1.0")],
        "limits": [("ITER_MAX_ = 20\nITER_MIN_ = 80", "ITER_MAX_ = 80\nITER_MIN_ = 20")],
        "unreachable-command": [("[OPT_PARAM_.first_try]\nOPT_START_ = 5\n", "")],
        "wrong-type": [('BACKFLOW_ANGLE_ = { type = "number", values = [90.0] }', "BACKFLOW_ANGLE_ = 90")],
        "wrong-target": [('STOP_ = { type = "reference", values = ["OPT_PARAM_/run"] }', 'STOP_ = "converged"')],
        "command-count": [('[FLOWPATHS_.without_side_inlet]\nIN_ = ["inlet_main"]\nOUT_ = ["outlet"]\n', "")],
        "unknown-key": [('COMPRESSION_ = "NO"\n', "")],
        "unknown-kind": [('[REPORT_.summary]\nFILENAME_ = "bent_duct_summary"\n', "")],
    }

    def rules_found(self):
        return [finding["rule"] for finding in
                self.report("job.toml", "--model-ids", "model_ids.toml")["findings"]]

    def setUp(self):
        super().setUp()
        self.copy_example("bent_duct_broken")

    def test_has_one_fault_of_every_rule_that_a_description_can_break(self):
        self.assertEqual(sorted(set(ALL_RULES) - {"foreign-object"}), sorted(self.rules_found()))

    def test_each_fault_stands_below_its_comment(self):
        for name in ("job.toml", "model_ids.toml"):
            lines = (self.folder / name).read_text().splitlines()
            marks = {match[1]: number for number, line in enumerate(lines, start=1)
                     if (match := re.match(r"# FAULT ([a-z-]+):", line))}
            found = {finding["rule"]: finding["line"]
                     for finding in self.report("job.toml", "--model-ids", "model_ids.toml")["findings"]
                     if finding["file"] == name and finding["rule"] != "library"}
            self.assertEqual(marks.keys(), found.keys())
            for rule, line in found.items():
                self.assertTrue(marks[rule] < line <= marks[rule] + 9, (rule, marks[rule], line))

    def test_is_good_when_all_have_been_mended_one_by_one(self):
        self.write("model_ids.toml", (self.folder / "model_ids.toml").read_text() + 'node_groups = ["outlet_rim"]\n')
        left = set(ALL_RULES) - {"foreign-object"}
        for rule, changes in self.MENDINGS.items():
            text = (self.folder / "job.toml").read_text()
            for former, latter in changes:
                self.assertEqual(1, text.count(former), former)
                text = text.replace(former, latter)
            self.write("job.toml", text)
            left -= {rule}
            found = set(self.rules_found())
            self.assertNotIn(rule, found)
            self.assertLessEqual(found, left | {"unused-model-group"})
        result = self.tool("check", "job.toml", "--model-ids", "model_ids.toml")
        self.assertEqual(GOOD, result.code, result.out)
        self.assertIn("\njob.toml is good: ", result.out)
        self.assertEqual(GOOD, self.tool("import", "job.toml").code)
        self.assertEqual(GOOD, self.tool("check", "--model-ids", "model_ids.toml").code)


class Page(CheckTest):
    PAGE = ROOT / "docs" / "rules.md"

    def test_is_what_the_tool_makes(self):
        self.assertEqual(self.PAGE.read_text(encoding="utf-8"), self.tool("check", "--rules", "--markdown").out,
                         "mend with: orvel-parfile check --rules --markdown > docs/rules.md")

    def test_has_every_rule(self):
        self.assertEqual(ALL_RULES, re.findall(r"^## (.+)$", self.PAGE.read_text(encoding="utf-8"), re.MULTILINE))

    def test_the_plain_form_has_every_rule_with_its_examples(self):
        text = self.tool("check", "--rules").out
        self.assertEqual(ALL_RULES, re.findall(r"^([a-z-]+) \((?:error|warning|note), for ", text, re.MULTILINE))
        self.assertEqual((len(ALL_RULES), len(ALL_RULES)), (text.count("  fails:\n"), text.count("  passes:\n")))

    def test_each_example_fails_and_passes_as_it_says(self):
        self.write("ids.toml", 'element_groups = ["package_space"]\n')
        tried = []
        sections = re.split(r"^## ", self.PAGE.read_text(encoding="utf-8"), flags=re.MULTILINE)[1:]
        for section in sections:
            rule = section.split("\n")[0]
            for word, example in re.findall(r"(Fails|Passes):\n\n```toml\n(.+?)\n```", section, re.DOTALL):
                tried.append((rule, word))
                with self.subTest(rule, example=word):
                    tomllib.loads(example)
                    self.write("job.toml", example)
                    found = [finding.rule for finding in self.findings("job.toml", "--model-ids", "ids.toml")]
                    self.assertEqual(1 if word == "Fails" else 0, found.count(rule), found)
        in_files_alone = ("library", "foreign-object")
        self.assertEqual([(rule, word) for rule in ALL_RULES if rule not in in_files_alone for word in ("Fails", "Passes")],
                         tried)


if __name__ == "__main__":
    unittest.main()
