"""orvel-parfile as a command: help, version, wrong use, and what goes to which stream."""

import json
import re
import unittest

import h5py

from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, ROOT, UNUSABLE, ToolTest, minimal_job, names_in, references, texts,
                     write_parameter_file)


class HelpAndVersion(ToolTest):
    def assert_helps(self, arguments, *words):
        """Help goes to standard output and is no failure."""
        for option in ("--help", "-h"):
            with self.subTest(arguments, option=option):
                result = self.tool(*arguments, option)
                self.assertEqual((GOOD, ""), (result.code, result.err))
                for word in words:
                    self.assertIn(word, result.out)

    def test_the_help_of_the_tool_names_its_subcommands(self):
        self.assert_helps((), "Usage: orvel-parfile ", "import", "check", "show", "--version")

    def test_the_help_of_import_names_its_arguments(self):
        self.assert_helps(("import",), "Usage: orvel-parfile import ", "job", "file", "--force")

    def test_the_help_of_check_names_its_arguments(self):
        self.assert_helps(("check",), "Usage: orvel-parfile check ", "file", "--model-ids", "--job", "gyre", "smooth",
                          "--ignore", "--json", "--rules", "--markdown", "Example: orvel-parfile check")

    def test_the_help_of_show_names_its_arguments(self):
        self.assert_helps(("show",), "Usage: orvel-parfile show ", "file", "kind", "id", "--log", "--json", "--job", "gyre",
                          "smooth", "--color", "Example: ")

    def test_the_help_of_diff_names_its_arguments(self):
        self.assert_helps(("diff",), "Usage: orvel-parfile diff ", "before", "after", "--json", "--color", "Example: ")

    def test_the_help_of_graph_names_its_arguments(self):
        self.assert_helps(("graph",), "Usage: orvel-parfile graph ", "file", "--output", "--no-groups", "Example: ")

    def test_the_help_of_set_and_unset_names_their_arguments(self):
        self.assert_helps(("set",), "Usage: orvel-parfile set ", "[FILE] KIND ID KEY VALUE...", "--new", "--type")
        self.assert_helps(("unset",), "Usage: orvel-parfile unset ", "[FILE] KIND [ID [KEY]]", "--force", "--attributes")

    def test_help_does_nothing_else(self):
        self.copy_example("bent_duct")
        self.assertEqual(GOOD, self.tool("import", "job.toml", "--help").code)
        self.assertEqual(["job.toml", "model_ids.toml"], names_in(self.folder))

    def test_the_version_is_that_of_the_project(self):
        version = re.search(r"project\(OrvelCommands VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]
        self.assertEqual((GOOD, f"{version}\n", ""), self.tool("--version"))


class WrongUse(ToolTest):
    def assert_wrong_use(self, *arguments, says=""):
        """Nothing on standard output, the reason on standard error."""
        before = names_in(self.folder)
        result = self.tool(*arguments)
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertNotEqual("", result.err)
        self.assertIn(says, result.err)
        self.assertEqual(before, names_in(self.folder))

    def test_no_subcommand(self):
        self.assert_wrong_use(says="subcommand")

    def test_an_unknown_subcommand(self):
        self.assert_wrong_use("convert", "job.toml")

    def test_an_unknown_option(self):
        self.assert_wrong_use("--frobnicate")
        self.assert_wrong_use("check", "--frobnicate", says="--frobnicate")
        self.assert_wrong_use("import", "job.toml", "--replace", says="--replace")

    def test_an_option_of_another_subcommand(self):
        self.assert_wrong_use("show", "--model-ids", "model_ids.toml", says="--model-ids")
        self.assert_wrong_use("check", "--force", says="--force")

    def test_too_many_arguments(self):
        self.copy_example("bent_duct")
        self.assert_wrong_use("import", "job.toml", ".", "again", says="again")
        self.assert_wrong_use("check", ".", "again", says="again")
        self.assert_wrong_use("show", ".", "DV_", "porosity", "again", says="again")

    def test_set_and_unset_without_what_to_change(self):
        self.assert_wrong_use("set", says="words")
        self.assert_wrong_use("set", "DV_", "porosity", says="set needs")
        self.assert_wrong_use("unset", says="unset needs")

    def test_two_subcommands(self):
        self.copy_example("bent_duct")
        self.assert_wrong_use("import", "job.toml", ".", "check")

    def test_import_without_a_job(self):
        self.assert_wrong_use("import", says="job")

    def test_diff_of_one_thing(self):
        self.assert_wrong_use("diff", ".", says="after")

    def test_an_option_without_its_value(self):
        self.assert_wrong_use("graph", "-o", says="--output")
        self.assert_wrong_use("check", "--model-ids", says="--model-ids")
        self.assert_wrong_use("check", "--job", says="--job")
        self.assert_wrong_use("check", "--ignore", says="--ignore")

    def test_an_unknown_rule(self):
        self.assert_wrong_use("check", "--ignore", "limit", says="there is no rule limit; the nearest is limits")

    def test_a_page_of_nothing(self):
        self.assert_wrong_use("check", "--markdown", says="--rules")

    def test_an_unknown_job(self):
        for command in ("check", "show"):
            self.assert_wrong_use(command, "--job", "thermal", says="thermal")
            self.assert_wrong_use(command, "--job", "", says="--job")
            self.assert_wrong_use(command, "--job", "Gyre", says="Gyre")


class Streams(ToolTest):
    def test_data_goes_to_standard_output_and_nothing_to_standard_error(self):
        self.copy_example("bent_duct")
        for arguments in (("import", "job.toml"), ("check", "--model-ids", "model_ids.toml"), ("check", "job.toml"),
                          ("show",)):
            with self.subTest(arguments):
                result = self.tool(*arguments)
                self.assertEqual((GOOD, ""), (result.code, result.err))
                self.assertNotEqual("", result.out)

    def test_faults_go_to_standard_error_and_nothing_to_standard_output(self):
        self.copy_example("bent_duct_broken")
        result = self.tool("import", "job.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertNotEqual("", result.err)

    def test_the_findings_of_a_check_are_its_data(self):
        self.copy_example("bent_duct_broken")
        result = self.tool("check", "job.toml", "--model-ids", "model_ids.toml")
        self.assertEqual((FAULTS, ""), (result.code, result.err))
        self.assertNotEqual("", result.out)

    def test_messages_carry_no_prefix_of_the_log(self):
        self.copy_example("bent_duct_broken")
        for arguments in (("check", "job.toml", "--model-ids", "model_ids.toml"), ("check",), ("import", "job.toml")):
            result = self.tool(*arguments)
            self.assertNotIn("[%T|", result.out + result.err)

    def test_data_that_cannot_be_written_is_no_success(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        faulty = EXAMPLES / "bent_duct_broken" / "job.toml"
        for arguments in (("show",), ("check",), ("check", faulty)):
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                self.assertEqual((UNUSABLE, "", "the output cannot be written\n"), self.tool(*arguments, stdout=full))

    def test_the_place_of_a_run_does_not_matter(self):
        place = self.folder / "run"
        place.mkdir()
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml", place)
        expected = self.tool("show", place).out
        self.assertEqual(expected, self.tool("show", cwd=place).out)
        self.assertEqual(expected, self.tool("show", f"../folder/run/{FILE_NAME}").out)
        self.assertEqual(expected, self.tool("show", place, cwd="/").out)


def texts_of(value):
    """All names and texts of a value of JSON."""
    if isinstance(value, str):
        yield value
    elif isinstance(value, (dict, list)):
        for part in [*value, *(value.values() if isinstance(value, dict) else ())]:
            yield from texts_of(part)


class SteeringCharacters(ToolTest):
    """Characters that clear a terminal, turn the direction of writing or end a line."""

    NAME = "a\x1b[2J\u009b2J\u202eb\u2028\u2066\x7fc\u00e4"
    ESCAPED = "a\\u001b[2J\\u009b2J\\u202eb\\u2028\\u2066\\u007fc\u00e4"

    def setUp(self):
        super().setUp()
        job = minimal_job()
        job["MODEL_"]["duct"]["FILE_"] = texts(self.NAME)
        job["FILTER_"] = {self.NAME: {"PATCH_ID_": texts(self.NAME), self.NAME: texts(self.NAME)}}
        job["DV_"]["porosity"].update({"FILTER_": references(f"FILTER_/{self.NAME}"), "ELEMENT_GROUP_": texts(self.NAME)})
        job[self.NAME] = {self.NAME: {}}
        write_parameter_file(self.folder, job)
        (self.folder / "bare").mkdir()
        write_parameter_file(self.folder / "bare", minimal_job())
        self.write("model_ids.toml", 'element_groups = ["box"]\n')

    def assert_harmless(self, *arguments):
        result = self.tool(*arguments)
        for character in set(self.NAME) - set("abc[2J\u00e4"):
            self.assertNotIn(character, result.out + result.err, arguments)
        return result

    def test_reach_no_line_of_output(self):
        for arguments in (("show",), ("show", "FILTER_", self.NAME), ("export",),
                          ("check", "--model-ids", "model_ids.toml"), ("diff", ".", "bare"), ("diff", "bare", "."), ("graph",),
                          ("set", "FILTER_", self.NAME, "PATCH_ID_", self.NAME), ("unset", "FILTER_", self.NAME, "PATCH_ID_")):
            with self.subTest(arguments):
                self.assertIn(self.ESCAPED, self.assert_harmless(*arguments).out)

    def test_of_paths_reach_no_line_of_output(self):
        run = self.folder / self.NAME
        run.mkdir()
        write_parameter_file(run, minimal_job())
        with h5py.File(run / FILE_NAME, "a") as file:
            file["PARFILE/DV_/porosity"].create_dataset(self.NAME, data=[1.0]).attrs["unit"] = 1
        ids, job, picture = (f"{self.NAME}{ending}" for ending in (".toml", ".job.toml", ".dot"))
        self.write(ids, 'element_groups = ["box"]\n')
        self.write(job, "[CS_.c]\nTYPE_ = 1\n[X_.x]\n")
        for arguments in (("check", self.NAME), ("check", self.NAME, "--model-ids", ids), ("check", job),
                          ("diff", self.NAME, self.NAME), ("diff", self.NAME, "bare"), ("graph", self.NAME, "-o", picture),
                          ("unset", self.NAME, "DV_", "porosity", self.NAME, "--attributes"),
                          ("unset", self.NAME, "DV_", "porosity", self.NAME), ("init", self.NAME, "--force"),
                          ("import", ids, self.NAME, "--force"), ("import", job, self.NAME, "--force")):
            with self.subTest(arguments):
                result = self.assert_harmless(*arguments)
                self.assertIn(self.ESCAPED, result.out + result.err)

    def test_of_a_key_whose_attributes_go_reach_no_note(self):
        with h5py.File(self.folder / FILE_NAME, "a") as file:
            file[f"PARFILE/FILTER_/{self.NAME}/PATCH_ID_"].attrs["unit"] = 1
        result = self.assert_harmless("set", "FILTER_", self.NAME, "PATCH_ID_", "x")
        self.assertEqual(f"/PARFILE/FILTER_/{self.ESCAPED}/PATCH_ID_: 1 attribute went with what it held before\n", result.err)

    def test_reach_no_fault(self):
        for arguments in (("show", "STOP_", self.NAME), ("show", f"{self.NAME}/", "DV_"), ("export", self.NAME),
                          ("set", "DV_", self.NAME, "INITIAL_", "1"), ("set", "DV_", "porosity", self.NAME, "1"),
                          ("set", "DV_", "porosity", "INITIAL_", self.NAME), ("unset", "DV_", self.NAME),
                          ("import", self.NAME, "--force"), ("diff", ".", self.NAME), ("show", "--color", self.NAME)):
            with self.subTest(arguments):
                result = self.assert_harmless(*arguments)
                self.assertEqual(UNUSABLE, result.code)
                self.assertIn(self.ESCAPED, result.err)

    def test_are_told_to_programs_as_escapes(self):
        for arguments in (("show", "--json"), ("export", "--json"), ("check", "--json", "--model-ids", "model_ids.toml"),
                          ("diff", "bare", ".", "--json")):
            with self.subTest(arguments):
                out = self.assert_harmless(*arguments).out
                self.assertIn(self.ESCAPED, out)
                self.assertIn(self.NAME, list(texts_of(json.loads(out))))

    def test_survive_an_export(self):
        self.write("job.toml", self.tool("export").out)
        self.assertEqual(GOOD, self.tool("import", "job.toml", "bare", "--force").code)
        self.assertEqual(GOOD, self.tool("diff", ".", "bare").code)

    def test_are_offered_to_no_shell(self):
        self.assertEqual((GOOD, "", ""), self.tool("complete", "--", "set", "FILTER_", ""))


if __name__ == "__main__":
    unittest.main()
