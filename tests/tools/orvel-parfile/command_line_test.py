"""orvel-parfile as a command: help, version, wrong use, and what goes to which stream."""

import re
import unittest

from support import EXAMPLES, FAULTS, FILE_NAME, GOOD, ROOT, UNUSABLE, ToolTest, names_in


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
        for arguments in (("show",), ("check",)):
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                self.assertNotEqual(GOOD, self.tool(*arguments, stdout=full).code)

    def test_the_place_of_a_run_does_not_matter(self):
        place = self.folder / "run"
        place.mkdir()
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml", place)
        expected = self.tool("show", place).out
        self.assertEqual(expected, self.tool("show", cwd=place).out)
        self.assertEqual(expected, self.tool("show", f"../folder/run/{FILE_NAME}").out)
        self.assertEqual(expected, self.tool("show", place, cwd="/").out)


if __name__ == "__main__":
    unittest.main()
