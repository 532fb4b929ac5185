"""Tests of the generator of the command classes: wrong tables, stable output, --check and --write.

Run with: /usr/bin/python3 tests/generator/generator_test.py
"""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True

LIBRARY = Path(__file__).resolve().parents[2] / "src" / "OrvelCommands"
GENERATOR = LIBRARY / "commands" / "generator"
sys.path.insert(0, str(GENERATOR))

import fields  # noqa: E402
import outputs  # noqa: E402
import template_text  # noqa: E402
import table  # noqa: E402

MENDING = "Mend with: ./run generate"

GYRE = r"""
log_source = 'Local\gyre_commands'

[aggregate]
class = "Gyre_Parfile"
also = ["smooth_commands"]
doc = "The parameter file of a fluid job."

[enumerators.no_yes]
NO = 70
YES = 84

[enumerators.variable_type]
DENSITY = 68
NODAL = 78

[[command]]
class = "DV_"
text_name = "VARIABLE"
count = "any"
log_line = 1089
doc = "A design variable."
fields = [
  { key = "ELEMENT_GROUP_", type = "model_id", presence = "optional", ids = "element_group", doc = "Where it acts." },
  { key = "INITIAL_", type = "double", presence = "always", doc = "Start value." },
  { key = "TYPE_", type = "enum", presence = "always", enumerators = "variable_type", doc = "What it varies." },
  { key = "STEPS_", type = "int32_list", presence = "optional", doc = "Steps." },
  { key = "FILTER_", type = "reference", presence = "repeated", target = "FILTER_", doc = "Its filters." },
]

[[command]]
class = "FILTER_"
text_name = "FILTER"
count = "one"
log_line = 4353
doc = "A filter."
fields = [
  { key = "KEEP_", type = "enum", presence = "repeated", enumerators = "no_yes", doc = "Whether to keep." },
]
"""

SMOOTH = r"""
log_source = 'Local\smooth_commands'

[aggregate]
class = "Smooth_Parfile"
also = []
doc = "The parameter file of a smoothing job."

[[command]]
class = "SMOOTH_"
text_name = "SMOOTH"
count = "any"
log_line = 1371
doc = "A smoothing."
fields = [
  { key = "CYCLES_", type = "int32", presence = "always", doc = "How often." },
]
"""

# What follows from these tables, in the file of the plain structs.
PLAIN_COMMANDS = """\
namespace plain
{

struct Dv;
struct Filter;
struct Smooth;

struct Dv
{
  std::string id;
  std::optional<std::string> element_group;
  double initial = 0.0;
  int type = 0;
  std::optional<std::vector<int>> steps;
  std::vector<Link<Filter>> filter;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Always("INITIAL_", initial);
    keys.Always("TYPE_", type);
    keys.Optional("STEPS_", steps);
    keys.Repeated("FILTER_", filter);
  }
};

struct Filter
{
  std::string id;
  std::vector<int> keep;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Repeated("KEEP_", keep);
  }
};

struct Smooth
{
  std::string id;
  int cycles = 0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("CYCLES_", cycles);
  }
};

/// All commands of a job.
struct Job
{
  std::vector<Dv> dv;
  std::vector<Filter> filter;
  std::vector<Smooth> smooth;

  template <class Action>
  void ForEachKind(Action action)
  {
    action("DV_", dv);
    action("FILTER_", filter);
    action("SMOOTH_", smooth);
  }
};

/// One of something for each kind of command.
template <template <class> class OfKind>
using OneOfEachKind = std::tuple<
  OfKind<Dv>,
  OfKind<Filter>,
  OfKind<Smooth>>;

}  // namespace plain
"""

NEW_ROW = '  { key = "NEW_KEY_", type = "double", presence = "always", doc = "A new number." },'

NEW_COMMAND = """
[[command]]
class = "BRAND_NEW_"
text_name = "BRAND_NEW"
count = "any"
log_line = 6000
doc = "A new command."
fields = [
""" + NEW_ROW + "\n]\n"


def once(text, old, new):
    """The text with its one occurrence of `old` replaced."""
    if text.count(old) != 1:
        raise AssertionError(f"{old!r} stands {text.count(old)} times in the table of the test")
    return text.replace(old, new)


@contextlib.contextmanager
def folder():
    with tempfile.TemporaryDirectory(prefix="generator_test_") as name:
        yield Path(name)


def write_tables(library, gyre=GYRE, smooth=SMOOTH):
    (library / "commands").mkdir(parents=True, exist_ok=True)
    (library / "commands" / "gyre_commands.toml").write_text(gyre, encoding="utf-8")
    (library / "commands" / "smooth_commands.toml").write_text(smooth, encoding="utf-8")


def read(gyre=GYRE, smooth=SMOOTH):
    with folder() as library:
        write_tables(library, gyre, smooth)
        return table.read_tables([library / "commands" / "gyre_commands.toml",
                                  library / "commands" / "smooth_commands.toml"])


def run(*arguments, generator=GENERATOR, **environment):
    return subprocess.run([sys.executable, "-B", str(generator), *map(str, arguments)], capture_output=True, text=True,
                          env={**os.environ, **environment}, check=False)


def copy_library(target):
    """A copy of the real tables and of all that follows from them."""
    for part in ("commands", "parfile"):
        shutil.copytree(LIBRARY / part, target / part, ignore=shutil.ignore_patterns("generator", "__pycache__"))
    return target


def contents(library):
    return {str(path.relative_to(library)): path.read_bytes() for path in sorted(library.rglob("*")) if path.is_file()}


def changes(before, after):
    """What differs between two contents: a name, with + before a new file and - before a lost one."""
    return sorted([f"+{name}" for name in after.keys() - before.keys()] +
                  [f"-{name}" for name in before.keys() - after.keys()] +
                  [name for name in before.keys() & after.keys() if before[name] != after[name]])


def insert_first_row(text, class_name, row):
    """The text of a table with one more row ahead of the others of a command."""
    pattern = re.compile(rf'(class = "{class_name}".*?fields = \[\n)', re.DOTALL)
    return pattern.sub(lambda found: found.group(1) + row + "\n", text, count=1)


class WrongTable(unittest.TestCase):
    """A wrong table stops, and the text tells the file, the command and the field."""

    def expect(self, place, reason, gyre=GYRE, smooth=SMOOTH):
        with self.assertRaises(table.TableError) as caught:
            read(gyre, smooth)
        text = str(caught.exception)
        self.assertEqual(text[:len(place)], place)
        self.assertIn(reason, text[len(place):])
        self.assertNotIn("\n", text)

    def expect_row(self, old, new, place, reason):
        self.expect(f"gyre_commands.toml: {place}: ", reason, gyre=once(GYRE, old, new))

    def test_the_tables_of_these_tests_are_right(self):
        gyre, smooth = read()
        self.assertEqual([command.class_name for command in gyre.commands], ["DV_", "FILTER_"])
        self.assertEqual([command.class_name for command in smooth.commands], ["SMOOTH_"])

    def test_unknown_column_of_a_field(self):
        self.expect_row('doc = "Start value."', 'unit = "m", doc = "Start value."', "DV_: INITIAL_",
                        "there is no column unit")

    def test_column_that_belongs_to_another_type(self):
        self.expect_row('doc = "Start value."', 'ids = "node_group", doc = "Start value."', "DV_: INITIAL_",
                        "there is no column ids")

    def test_unknown_column_of_a_command(self):
        self.expect_row("log_line = 1089", "log_line = 1089\nbase = 3", "DV_", "there is no column base")

    def test_unknown_column_of_the_aggregate(self):
        self.expect_row('also = ["smooth_commands"]', 'also = ["smooth_commands"]\nname = "x"', "aggregate",
                        "there is no column name")

    def test_unknown_column_of_the_table(self):
        self.expect("gyre_commands.toml: ", "there is no column version", gyre="version = 1\n" + GYRE)

    def test_missing_documentation_of_a_field(self):
        self.expect_row(', doc = "Start value."', "", "DV_: INITIAL_", "the column doc is missing")

    def test_missing_documentation_of_a_command(self):
        self.expect_row('doc = "A filter."\n', "", "FILTER_", "the column doc is missing")

    def test_missing_documentation_of_the_aggregate(self):
        self.expect_row('doc = "The parameter file of a fluid job."\n', "", "aggregate", "the column doc is missing")

    def test_empty_documentation_of_a_field(self):
        self.expect_row('"Start value."', '""', "DV_: INITIAL_", "doc must be a text that is not empty")

    def test_empty_documentation_of_a_command(self):
        self.expect_row('"A filter."', '""', "FILTER_", "doc must be a text that is not empty")

    def test_blank_documentation_of_a_field(self):
        self.expect_row('"Start value."', '"  "', "DV_: INITIAL_", "doc")

    def test_documentation_with_a_backslash_is_refused(self):
        self.expect_row('"Start value."', r"'Read from C:\new.'", "DV_: INITIAL_",
                        "doc must be a sentence without double quotes and backslashes")

    def test_documentation_of_two_lines(self):
        self.expect_row('"Start value."', r'"Start\nvalue."', "DV_: INITIAL_", "doc must be one line")

    def test_documentation_with_double_quotes(self):
        self.expect_row('"Start value."', "'Start \"value\".'", "DV_: INITIAL_", "without double quotes")

    def test_unknown_type(self):
        self.expect_row('"double"', '"float"', "DV_: INITIAL_", "type must be one of int32, double,")

    def test_missing_type(self):
        self.expect_row('type = "double", ', "", "DV_: INITIAL_", "the column type is missing")

    def test_unknown_presence(self):
        self.expect_row('type = "double", presence = "always"', 'type = "double", presence = "sometimes"',
                        "DV_: INITIAL_", "presence must be one of always, optional, repeated, not 'sometimes'")

    def test_unknown_target(self):
        self.expect_row('target = "FILTER_"', 'target = "SIEVE_"', "DV_: FILTER_",
                        "target names the unknown class SIEVE_")

    def test_target_that_no_aggregate_of_the_command_has(self):
        row = '  { key = "DV_", type = "reference", presence = "always", target = "DV_", doc = "A variable." },'
        self.expect("smooth_commands.toml: SMOOTH_: DV_: ", "target",
                    smooth=insert_first_row(SMOOTH, "SMOOTH_", row))

    def test_missing_target(self):
        self.expect_row('target = "FILTER_", ', "", "DV_: FILTER_", "the column target is missing")

    def test_unknown_id_type(self):
        self.expect_row('ids = "element_group"', 'ids = "edge_group"', "DV_: ELEMENT_GROUP_",
                        "ids must be one of coordinate_system, node_group, face_group, element_group")

    def test_missing_id_type(self):
        self.expect_row('ids = "element_group", ', "", "DV_: ELEMENT_GROUP_", "the column ids is missing")

    def test_unknown_enumerator_set(self):
        self.expect_row('enumerators = "no_yes"', 'enumerators = "yes_no"', "FILTER_: KEEP_",
                        "enumerators must be one of no_yes, variable_type, not 'yes_no'")

    def test_missing_enumerator_set(self):
        self.expect_row('enumerators = "no_yes", ', "", "FILTER_: KEEP_", "the column enumerators is missing")

    def test_unused_enumerator_set(self):
        self.expect_row("[enumerators.no_yes]", "[enumerators.on_off]\nON = 1\n\n[enumerators.no_yes]",
                        "enumerators.on_off", "no field uses this set")

    def test_empty_enumerator_set(self):
        self.expect_row("NO = 70\nYES = 84", "", "enumerators.no_yes", "at least one enumerator")

    def test_bad_name_of_an_enumerator_set(self):
        self.expect("gyre_commands.toml: enumerators.NoYes: ", "is not of the form",
                    gyre=GYRE.replace("no_yes", "NoYes"))

    def test_bad_name_of_an_enumerator(self):
        self.expect_row("YES = 84", "yes = 84", "enumerators.no_yes", "'yes' is not of the form")

    def test_duplicate_enumerator_number(self):
        self.expect_row("YES = 84", "YES = 70", "enumerators.no_yes", "the number 70 stands twice")

    def test_enumerator_number_zero(self):
        self.expect_row("YES = 84", "YES = 0", "enumerators.no_yes", "YES must have a number from 1 to 2147483647")

    def test_enumerator_number_beyond_32_bits(self):
        self.expect_row("YES = 84", "YES = 2147483648", "enumerators.no_yes", "YES must have a number from 1")

    def test_bool_where_an_enumerator_needs_a_number(self):
        self.expect_row("YES = 84", "YES = true", "enumerators.no_yes", "not True")

    def test_text_where_an_enumerator_needs_a_number(self):
        self.expect_row("YES = 84", 'YES = "T"', "enumerators.no_yes", "not 'T'")

    def test_bool_where_a_log_line_needs_a_number(self):
        self.expect_row("log_line = 1089", "log_line = true", "DV_", "log_line must be a line number, not True")

    def test_text_where_a_log_line_needs_a_number(self):
        self.expect_row("log_line = 1089", 'log_line = "1089"', "DV_", "log_line must be a line number, not '1089'")

    def test_duplicate_key(self):
        self.expect_row('key = "INITIAL_"', 'key = "TYPE_"', "DV_", "the key TYPE_ stands twice")

    def test_two_keys_whose_enumerators_have_one_name(self):
        row = '  { key = "KEEP_", type = "enum", presence = "repeated", enumerators = "no_yes", doc = "Whether to keep." },\n'
        gyre = once(GYRE, row, row + row.replace("KEEP_", "KEEP_DEEP_"))
        self.expect("gyre_commands.toml: FILTER_: ", "the enumerator of the class KEEP_DEEP_NO stands twice",
                    gyre=once(gyre, "NO = 70", "NO = 70\nDEEP_NO = 71"))

    def test_bad_key_forms(self):
        for bad in ("INITIAL", "initial_", "INI__TIAL_", "_INITIAL_", "1ST_", "INI-TIAL_", "INITIAL_ "):
            with self.subTest(key=bad):
                self.expect_row('key = "INITIAL_"', f'key = "{bad}"', f"DV_: {bad}", "is not of the form")

    def test_missing_key(self):
        self.expect_row('key = "INITIAL_", ', "", "DV_: a row without key", "the column key is missing")

    def test_number_where_a_key_needs_a_text(self):
        self.expect_row('key = "INITIAL_"', "key = 7", "DV_: 7", "key must be a text that is not empty, not 7")

    def test_key_that_every_command_has_anyway(self):
        self.expect_row('key = "INITIAL_"', 'key = "ID_NAME_"', "DV_: ID_NAME_", "without a row")

    def test_repeated_whole_lists(self):
        for whole_list in ("int32_list", "double_list"):
            with self.subTest(type=whole_list):
                self.expect_row('type = "int32_list", presence = "optional"',
                                f'type = "{whole_list}", presence = "repeated"', "DV_: STEPS_",
                                "a list that is one value cannot be repeated")

    def test_duplicate_class_within_a_table(self):
        self.expect("", "the class DV_ stands twice",
                    gyre=GYRE.replace('class = "FILTER_"', 'class = "DV_"').replace('target = "FILTER_"',
                                                                                    'target = "DV_"'))

    def test_duplicate_class_in_two_tables(self):
        self.expect("", "the class DV_ stands twice", smooth=once(SMOOTH, 'class = "SMOOTH_"', 'class = "DV_"'))

    def test_duplicate_aggregate(self):
        self.expect("", "the aggregate Gyre_Parfile stands twice",
                    smooth=once(SMOOTH, 'class = "Smooth_Parfile"', 'class = "Gyre_Parfile"'))

    def test_bad_class_form(self):
        self.expect_row('class = "DV_"', 'class = "Dv"', "Dv", "is not of the form")

    def test_missing_class(self):
        self.expect_row('class = "DV_"\n', "", "a command without class", "the column class is missing")

    def test_bad_text_name(self):
        self.expect_row('text_name = "VARIABLE"', 'text_name = "VARIABLE_"', "DV_", "is not of the form")

    def test_unknown_count(self):
        self.expect_row('count = "one"', 'count = "two"', "FILTER_", "count must be one of one, any, not 'two'")

    def test_fields_that_are_no_list(self):
        self.expect("smooth_commands.toml: SMOOTH_: ", "fields must be a list of rows",
                    smooth=re.sub(r"fields = \[.*\]", "fields = 3", SMOOTH, flags=re.DOTALL))

    def test_row_that_is_no_table(self):
        self.expect("smooth_commands.toml: SMOOTH_: ", "", smooth=once(SMOOTH, "fields = [", 'fields = [ "CYCLES_",'))

    def test_command_that_is_no_table(self):
        self.expect("smooth_commands.toml: ", "",
                    smooth="command = [3]\n" + SMOOTH[:SMOOTH.index("[[command]]")])

    def test_enumerators_that_are_no_table(self):
        self.expect("smooth_commands.toml: ", "enumerators", smooth="enumerators = 3\n" + SMOOTH)

    def test_missing_commands(self):
        self.expect("smooth_commands.toml: ", "the column command is missing",
                    smooth=SMOOTH[:SMOOTH.index("[[command]]")])

    def test_bad_class_form_of_the_aggregate(self):
        self.expect_row('class = "Gyre_Parfile"', 'class = "Gyre Parfile"', "aggregate", "class")

    def test_missing_aggregate(self):
        self.expect("smooth_commands.toml: ", "the column aggregate is missing",
                    smooth="log_source = 'x'\n" + SMOOTH[SMOOTH.index("[[command]]"):])

    def test_missing_log_source(self):
        self.expect("smooth_commands.toml: ", "the column log_source is missing",
                    smooth=once(SMOOTH, r"log_source = 'Local\smooth_commands'", ""))

    def test_unknown_also(self):
        self.expect_row('also = ["smooth_commands"]', 'also = ["rough_commands"]', "aggregate",
                        "also names the unknown table rough_commands")

    def test_also_that_names_a_table_twice_or_its_own(self):
        for bad in ('["smooth_commands", "smooth_commands"]', '["gyre_commands"]'):
            with self.subTest(also=bad):
                self.expect_row('["smooth_commands"]', bad, "aggregate", "also")

    def test_also_that_is_no_list(self):
        self.expect_row('also = ["smooth_commands"]', 'also = "smooth_commands"', "aggregate",
                        "also must be a list of tables")

    def test_also_with_something_else_than_names(self):
        for bad in ('[{ name = "smooth_commands" }]', '[["smooth_commands"]]', "[3]"):
            with self.subTest(also=bad):
                self.expect_row('["smooth_commands"]', bad, "aggregate", "also must be a list of names of tables, not [")

    def test_log_source_with_double_quotes(self):
        self.expect("smooth_commands.toml: ", "log_source must be a path without double quotes",
                    smooth=once(SMOOTH, r"'Local\smooth_commands'", "'Local\"commands'"))

    def test_log_line_beyond_32_bits(self):
        self.expect_row("log_line = 1089", "log_line = 2147483648", "DV_", "log_line must be a line number")

    def test_number_that_python_does_not_print(self):
        digits = "f" * 4000
        for old, place in (("log_line = 1089", "DV_"), ("log_line = 4353", "FILTER_")):
            with self.subTest(place=place):
                self.expect_row(old, f"log_line = 0x{digits}", place, "not a number of more than 64 bits")
        self.expect_row("YES = 84", f"YES = 0x{digits}", "enumerators.no_yes", "not a number of more than 64 bits")

    def test_number_that_python_does_not_read(self):
        self.expect("gyre_commands.toml: ", "digits", gyre=once(GYRE, "YES = 84", "YES = " + "9" * 5000))

    def test_lists_in_lists_without_end(self):
        for opening in ("[", "{ a = "):
            with self.subTest(opening=opening):
                self.expect("gyre_commands.toml: ", "lists or tables stand in each other too deeply",
                            gyre=once(GYRE, "YES = 84", "YES = " + opening * 5000))

    def test_names_with_control_characters_are_shown_on_one_line(self):
        self.expect_row('key = "INITIAL_"', r'key = "INI\nTIAL_"', r"DV_: 'INI\nTIAL_'", "key must be one line")
        self.expect_row('class = "DV_"', r'class = "D\u001bV_"', r"'D\x1bV_'", "class must be one line")
        self.expect_row("YES = 84", r'"Y\nES" = 84', "enumerators.no_yes", r"'Y\nES' is not of the form")
        self.expect_row("log_line = 1089", 'log_line = 1089\n"ba\\nse" = 3', "DV_", r"there is no column 'ba\nse'")

    def test_what_is_long_is_shown_shortened(self):
        for old, new, place in (('key = "INITIAL_"', f'key = "{"i" * 3000}"', "DV_: 'iii"),
                                ('"Start value."', f'"{"Start " * 3000}"', "DV_: INITIAL_: "),
                                ("YES = 84", f"YES = [{'84, ' * 3000}]", "enumerators.no_yes: ")):
            with self.subTest(place=place), self.assertRaises(table.TableError) as caught:
                read(once(GYRE, old, new))
            text = str(caught.exception)
            self.assertTrue(text.startswith(f"gyre_commands.toml: {place}"), text)
            self.assertLess(len(text), 400)

    def test_toml_syntax_error(self):
        self.expect("gyre_commands.toml: ", "at line 20", gyre=once(GYRE, 'count = "any"\n', 'count = "any\n'))

    def test_a_column_given_twice(self):
        self.expect("gyre_commands.toml: ", "Cannot overwrite a value",
                    gyre=once(GYRE, "log_line = 1089", "log_line = 1089\nlog_line = 1090"))

    def test_fault_of_the_second_table_names_the_second_file(self):
        self.expect("smooth_commands.toml: SMOOTH_: CYCLES_: ", "type must be one of",
                    smooth=once(SMOOTH, '"int32"', '"int64"'))


class WrongTableAtTheCommandLine(unittest.TestCase):
    def test_stops_with_one_line_on_standard_error_and_writes_nothing(self):
        for mode in ("--check", "--write"):
            with self.subTest(mode=mode), folder() as library:
                write_tables(library, gyre=once(GYRE, '"double"', '"float"'))
                before = contents(library)
                ended = run("--library", library, mode)
                self.assertEqual(ended.returncode, 2)
                self.assertEqual(ended.stdout, "")
                self.assertRegex(ended.stderr, r"\Agyre_commands\.toml: DV_: INITIAL_: type must be one of [^\n]*\n\Z")
                self.assertEqual(changes(before, contents(library)), [])

    def test_stops_where_a_table_is_missing(self):
        with folder() as library:
            write_tables(library)
            (library / "commands" / "smooth_commands.toml").unlink()
            ended = run("--library", library, "--check")
            self.assertEqual(ended.returncode, 2)
            self.assertIn("smooth_commands.toml", ended.stderr)
            self.assertNotIn("Traceback", ended.stderr)

    def test_stops_where_a_file_cannot_be_written(self):
        with folder() as library:
            write_tables(library, smooth=once(SMOOTH, 'class = "SMOOTH_"', f'class = "{"S" * 300}_"'))
            ended = run("--library", library, "--write")
            self.assertEqual(ended.returncode, 2)
            self.assertIn("File name too long", ended.stderr)
            self.assertNotIn("Traceback", ended.stderr)

    def test_stops_where_a_table_is_no_text(self):
        with folder() as library:
            write_tables(library)
            (library / "commands" / "gyre_commands.toml").write_bytes(b"log_source = '\xff'\n")
            ended = run("--library", library, "--check")
            self.assertEqual(ended.returncode, 2)
            self.assertIn("gyre_commands.toml", ended.stderr)
            self.assertNotIn("Traceback", ended.stderr)

    def test_wants_to_know_whether_to_write_or_to_check(self):
        for arguments in ((), ("--write", "--check")):
            with self.subTest(arguments=arguments):
                ended = run(*arguments)
                self.assertEqual(ended.returncode, 2)
                self.assertIn("usage: generator", ended.stderr)


class Records(unittest.TestCase):
    """What is read is what stands in the table, and it does not change any more."""

    def test_keep_the_order_and_the_values_of_the_table(self):
        gyre, smooth = read()
        self.assertEqual((gyre.name, gyre.log_source), ("gyre_commands", r"Local\gyre_commands"))
        self.assertEqual((gyre.aggregate.class_name, gyre.aggregate.also), ("Gyre_Parfile", ("smooth_commands",)))
        self.assertEqual(smooth.aggregate.also, ())
        variable = gyre.commands[0]
        self.assertEqual((variable.text_name, variable.count, variable.log_line, variable.doc, variable.source),
                         ("VARIABLE", "any", 1089, "A design variable.", "gyre_commands"))
        self.assertEqual([(f.key, f.type, f.presence, f.ids, f.target) for f in variable.fields],
                         [("ELEMENT_GROUP_", "model_id", "optional", "element_group", ""),
                          ("INITIAL_", "double", "always", "", ""),
                          ("TYPE_", "enum", "always", "", ""),
                          ("STEPS_", "int32_list", "optional", "", ""),
                          ("FILTER_", "reference", "repeated", "", "FILTER_")])
        self.assertEqual(variable.fields[2].enumerators.enumerators, (("DENSITY", 68), ("NODAL", 78)))

    def test_are_frozen(self):
        gyre, _ = read()
        with self.assertRaises(AttributeError):
            gyre.commands[0].class_name = "OTHER_"
        with self.assertRaises(AttributeError):
            gyre.commands[0].fields[0].key = "OTHER_"

    def test_let_two_fields_share_a_set_and_a_reference_point_to_its_own_class(self):
        gyre = once(GYRE, '  { key = "KEEP_"',
                    '  { key = "DROP_", type = "enum", presence = "always", enumerators = "no_yes", doc = "Drop." },\n'
                    '  { key = "FILTER_", type = "reference", presence = "always", target = "FILTER_", doc = "Me." },\n'
                    '  { key = "KEEP_"')
        read(gyre)


class Output(unittest.TestCase):
    def test_names_all_files_in_the_order_of_the_tables(self):
        self.assertEqual(list(outputs.make_outputs(read())),
                         ["commands/LocalGenerated/DV_.h",
                          "commands/LocalGenerated/FILTER_.h",
                          "commands/LocalGenerated/gyre_commands.cpp",
                          "commands/gyre_commands.h",
                          "commands/LocalGenerated/SMOOTH_.h",
                          "commands/LocalGenerated/smooth_commands.cpp",
                          "commands/smooth_commands.h",
                          "commands/LocalGenerated/command_schema_data.h",
                          "parfile/Gyre_Parfile.h",
                          "parfile/Gyre_Parfile.cpp",
                          "parfile/Smooth_Parfile.h",
                          "parfile/Smooth_Parfile.cpp",
                          "parfile/ResolveReferences.h",
                          "parfile/ResolveReferences.cpp",
                          "parfile/for_each_command.h"])

    def test_tells_in_each_file_the_table_the_generator_and_the_command_that_mends_it(self):
        for name, text in outputs.make_outputs(read()).items():
            with self.subTest(file=name):
                head = text[:text.index("#")]
                self.assertIn("smooth_commands.toml" if "mooth" in name or "SMOOTH" in name else "gyre_commands.toml",
                              head)
                self.assertIn("src/OrvelCommands/commands/generator", head)
                self.assertIn("./run generate", head)

    def test_leaves_no_placeholder_behind(self):
        for name, text in outputs.make_outputs(read()).items():
            with self.subTest(file=name):
                self.assertNotIn("$", text)

    def test_takes_a_dollar_sign_of_the_table_as_text(self):
        gyre = once(GYRE, '"Start value."', '"Start value in $key."')
        self.assertIn("  /// Start value in $key.\n",
                      outputs.make_outputs(read(gyre))["commands/LocalGenerated/DV_.h"])

    def test_follows_the_order_of_the_rows(self):
        header = outputs.make_outputs(read())["commands/LocalGenerated/DV_.h"]
        members = re.findall(r"^  [\w:<>*, ]+ (m_\w+)(?: = [^;]+)?;$", header, re.MULTILINE)
        self.assertEqual(members, ["m_ID_NAME_", "m_has_ELEMENT_GROUP_", "m_ELEMENT_GROUP_", "m_INITIAL_", "m_TYPE_",
                                   "m_has_STEPS_", "m_STEPS_", "m_num_FILTER_", "m_FILTER_"])

    def test_gives_each_presence_its_accessors(self):
        header = outputs.make_outputs(read())["commands/LocalGenerated/DV_.h"]
        for line in ("  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }\n",
                     "  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }\n",
                     "  const double& GetINITIAL_() const { return m_INITIAL_; }\n",
                     "  std::uint64_t NumFILTER_() const { return m_num_FILTER_; }\n",
                     "  const FILTER_& GetFILTER_(std::uint64_t index) const;\n"):
            self.assertIn(line, header)
        self.assertNotIn("HasINITIAL_", header)
        self.assertNotIn("NumINITIAL_", header)

    def test_is_the_same_in_two_runs(self):
        self.assertEqual(list(outputs.make_outputs(read()).items()), list(outputs.make_outputs(read()).items()))

    def test_does_not_depend_on_the_hash_seed(self):
        written = []
        for hash_seed in ("0", "1", "20", "4711"):
            with folder() as library:
                for name in ("gyre_commands.toml", "smooth_commands.toml"):
                    (library / "commands").mkdir(exist_ok=True)
                    shutil.copy(LIBRARY / "commands" / name, library / "commands" / name)
                ended = run("--library", library, "--write", PYTHONHASHSEED=hash_seed)
                self.assertEqual((ended.returncode, ended.stderr), (0, ""))
                written.append((ended.stdout, contents(library)))
        for later in written[1:]:
            self.assertEqual(later[0], written[0][0])
            self.assertEqual(changes(written[0][1], later[1]), [])


class Placeholder(unittest.TestCase):
    """A placeholder that nothing fills ends the run: nothing is left blank and nothing is written."""

    def run_with_template(self, text):
        with folder() as place:
            shutil.copytree(GENERATOR, place / "generator", ignore=shutil.ignore_patterns("__pycache__"))
            template = place / "generator" / "templates" / "umbrella.h.tmpl"
            template.write_text(template.read_text(encoding="utf-8") + text, encoding="utf-8")
            write_tables(place / "library")
            before = contents(place / "library")
            ended = run("--library", place / "library", "--write", generator=place / "generator")
            self.assertEqual(changes(before, contents(place / "library")), [])
            return ended

    def test_unknown_in_a_template_file_is_an_error_that_names_it(self):
        ended = self.run_with_template("// $colour\n")
        self.assertEqual(ended.returncode, 2)
        self.assertIn("colour", ended.stderr)

    def test_broken_in_a_template_file_is_an_error(self):
        ended = self.run_with_template("// costs 5$\n")
        self.assertEqual(ended.returncode, 2)
        self.assertIn("Invalid placeholder", ended.stderr)

    def test_unknown_in_the_text_of_a_field_is_an_error(self):
        class Odd(fields.Value):
            PRINT = "$colour"

        command = read()[0].commands[0]
        with self.assertRaisesRegex(template_text.TemplateError, "Odd.PRINT: .*'colour'"):
            Odd(command, command.fields[1]).render("PRINT")

    def test_value_that_is_not_given_is_an_error(self):
        with self.assertRaisesRegex(template_text.TemplateError, "templates/umbrella.h.tmpl: .*'includes'"):
            template_text.fill("umbrella.h.tmpl", banner="", table="x")


class Check(unittest.TestCase):
    def test_of_the_real_tree_finds_nothing(self):
        ended = run("--check")
        self.assertEqual((ended.stdout, ended.stderr, ended.returncode), ("", "", 0))

    def test_finds_nothing_in_a_copy_and_writes_nothing(self):
        with folder() as place:
            library = copy_library(place)
            before = contents(library)
            ended = run("--library", library, "--check")
            self.assertEqual((ended.stdout, ended.stderr, ended.returncode), ("", "", 0))
            self.assertEqual(changes(before, contents(library)), [])

    def test_shows_how_a_changed_file_differs_and_what_mends_it(self):
        with folder() as place:
            library = copy_library(place)
            header = library / "commands" / "LocalGenerated" / "DV_.h"
            text = header.read_text(encoding="utf-8")
            header.write_text(once(text, "  std::string m_ID_NAME_;\n", "  std::string m_NAME_;\n"), encoding="utf-8")
            before = contents(library)
            ended = run("--library", library, "--check")
            self.assertEqual((ended.stderr, ended.returncode), ("", 1))
            lines = ended.stdout.splitlines()
            self.assertEqual(lines[:2], ["--- commands/LocalGenerated/DV_.h", "+++ from the tables"])
            self.assertIn("-  std::string m_NAME_;", lines)
            self.assertIn("+  std::string m_ID_NAME_;", lines)
            self.assertEqual([line for line in lines if line.startswith("---")], lines[:1])
            self.assertIn(MENDING, lines[-1])
            self.assertEqual(changes(before, contents(library)), [])

    def test_finds_a_lost_file(self):
        with folder() as place:
            library = copy_library(place)
            (library / "parfile" / "for_each_command.h").unlink()
            ended = run("--library", library, "--check")
            self.assertEqual(ended.returncode, 1)
            self.assertTrue(ended.stdout.startswith("--- parfile/for_each_command.h\n"))
            self.assertIn(MENDING, ended.stdout)

    def test_finds_a_stale_file(self):
        with folder() as place:
            library = copy_library(place)
            for name in ("OLD_.h", "old_commands.cpp"):
                (library / "commands" / "LocalGenerated" / name).write_text("// left over\n", encoding="utf-8")
            ended = run("--library", library, "--check")
            self.assertEqual((ended.stderr, ended.returncode), ("", 1))
            lines = ended.stdout.splitlines()
            self.assertEqual(lines[:2], ["commands/LocalGenerated/OLD_.h follows from no table",
                                         "commands/LocalGenerated/old_commands.cpp follows from no table"])
            self.assertIn(MENDING, lines[2])

    def test_finds_a_changed_table(self):
        with folder() as place:
            library = copy_library(place)
            path = library / "commands" / "smooth_commands.toml"
            path.write_text(insert_first_row(path.read_text(encoding="utf-8"), "SMOOTH_", NEW_ROW), encoding="utf-8")
            ended = run("--library", library, "--check")
            self.assertEqual(ended.returncode, 1)
            self.assertIn("\n+  double m_NEW_KEY_ = 0.0;\n", ended.stdout)
            self.assertIn(MENDING, ended.stdout)


class Write(unittest.TestCase):
    def changes_after(self, table_name, change):
        """The generated files that a change of one real table changes."""
        with folder() as place:
            library = copy_library(place)
            path = library / "commands" / table_name
            path.write_text(change(path.read_text(encoding="utf-8")), encoding="utf-8")
            before = contents(library)
            ended = run("--library", library, "--write")
            self.assertEqual((ended.stderr, ended.returncode), ("", 0))
            after = contents(library)
            found = changes(before, after)
            told = [f"written: {name.lstrip('+')}" for name in found]
            self.assertEqual(sorted(ended.stdout.splitlines()), sorted(told))
            again = run("--library", library, "--write")
            self.assertEqual((again.stdout, again.stderr, again.returncode), ("", "", 0))
            self.assertEqual(changes(after, contents(library)), [])
            self.assertEqual(run("--library", library, "--check").returncode, 0)
            return found

    def test_mends_a_changed_a_lost_and_a_stale_file_and_touches_no_other(self):
        with folder() as place:
            library = copy_library(place)
            good = contents(library)
            changed = library / "parfile" / "Gyre_Parfile.cpp"
            changed.write_text(changed.read_text(encoding="utf-8") + "// by hand\n", encoding="utf-8")
            (library / "commands" / "LocalGenerated" / "FILTER_.h").unlink()
            (library / "commands" / "LocalGenerated" / "OLD_.h").write_text("// left over\n", encoding="utf-8")
            untouched = library / "commands" / "LocalGenerated" / "CS_.h"
            os.utime(untouched, (1, 1))
            ended = run("--library", library, "--write")
            self.assertEqual((ended.stderr, ended.returncode), ("", 0))
            self.assertEqual(ended.stdout.splitlines(), ["written: commands/LocalGenerated/FILTER_.h",
                                                         "written: parfile/Gyre_Parfile.cpp",
                                                         "removed: commands/LocalGenerated/OLD_.h"])
            self.assertEqual(changes(good, contents(library)), [])
            self.assertEqual(untouched.stat().st_mtime, 1)
            self.assertEqual(run("--library", library, "--check").returncode, 0)

    def test_leaves_files_alone_that_are_written_by_hand(self):
        with folder() as place:
            library = copy_library(place)
            kept = library / "commands" / "LocalGenerated" / "README.md"
            kept.write_text("Not for the compiler.\n", encoding="utf-8")
            self.assertEqual(run("--library", library, "--write").stdout, "")
            self.assertTrue(kept.exists())

    def test_makes_all_files_where_there_are_none(self):
        with folder() as library:
            write_tables(library)
            self.assertEqual(run("--library", library, "--write").returncode, 0)
            written = [name for name in contents(library) if not name.endswith(".toml")]
            self.assertEqual(len(written), 15)

    def test_of_one_more_number_changes_its_class_its_source_and_the_schema(self):
        self.assertEqual(self.changes_after("gyre_commands.toml", lambda text: insert_first_row(text, "DV_", NEW_ROW)),
                         ["commands/LocalGenerated/DV_.h", "commands/LocalGenerated/command_schema_data.h",
                          "commands/LocalGenerated/gyre_commands.cpp"])

    def test_of_one_more_number_of_the_other_table_changes_that_ones_files(self):
        self.assertEqual(
            self.changes_after("smooth_commands.toml", lambda text: insert_first_row(text, "SMOOTH_", NEW_ROW)),
            ["commands/LocalGenerated/SMOOTH_.h", "commands/LocalGenerated/command_schema_data.h",
             "commands/LocalGenerated/smooth_commands.cpp"])

    def test_of_one_more_reference_changes_the_linking_too(self):
        row = '  { key = "CS_", type = "reference", presence = "optional", target = "CS_", doc = "Its axes." },'
        self.assertEqual(self.changes_after("gyre_commands.toml", lambda text: insert_first_row(text, "DV_", row)),
                         ["commands/LocalGenerated/DV_.h", "commands/LocalGenerated/command_schema_data.h",
                          "commands/LocalGenerated/gyre_commands.cpp", "parfile/ResolveReferences.cpp"])

    def test_of_the_first_reference_of_a_class_makes_the_aggregate_link_it(self):
        row = '  { key = "CS_", type = "reference", presence = "optional", target = "CS_", doc = "Its axes." },'
        self.assertEqual(self.changes_after("gyre_commands.toml", lambda text: insert_first_row(text, "FILTER_", row)),
                         ["commands/LocalGenerated/FILTER_.h", "commands/LocalGenerated/command_schema_data.h",
                          "commands/LocalGenerated/gyre_commands.cpp", "parfile/Gyre_Parfile.cpp",
                          "parfile/ResolveReferences.cpp", "parfile/ResolveReferences.h"])

    def test_of_one_more_command_changes_the_umbrella_and_the_aggregate_too(self):
        self.assertEqual(self.changes_after("gyre_commands.toml", lambda text: text + NEW_COMMAND),
                         ["+commands/LocalGenerated/BRAND_NEW_.h", "commands/LocalGenerated/command_schema_data.h",
                          "commands/LocalGenerated/gyre_commands.cpp", "commands/gyre_commands.h",
                          "parfile/Gyre_Parfile.cpp", "parfile/Gyre_Parfile.h", "parfile/for_each_command.h"])

    def test_of_another_documentation_changes_no_source(self):
        def change(text):
            return re.sub(r'(class = "STOP_".*?key = "ITER_MAX_".*?doc = ")[^"]*"', r'\1Another sentence."', text,
                          count=1, flags=re.DOTALL)

        self.assertEqual(self.changes_after("gyre_commands.toml", change),
                         ["commands/LocalGenerated/STOP_.h", "commands/LocalGenerated/command_schema_data.h"])

    def test_of_another_log_line_changes_the_source_alone(self):
        self.assertEqual(
            self.changes_after("smooth_commands.toml", lambda text: once(text, "log_line = 1371", "log_line = 1372")),
            ["commands/LocalGenerated/smooth_commands.cpp"])


class PythonModule(unittest.TestCase):
    """The bindings and stubs of the Python module beside the sources of the library."""

    @contextlib.contextmanager
    def tree(self):
        with folder() as place:
            library = copy_library(place / "src" / "OrvelCommands")
            shutil.copytree(LIBRARY.parents[1] / "python", place / "python")
            yield library, place / "python"

    def test_is_fresh(self):
        with self.tree() as (library, _):
            ended = run("--library", library, "--check")
            self.assertEqual((ended.stdout, ended.returncode), ("", 0))

    def test_follows_one_more_number(self):
        with self.tree() as (library, python):
            path = library / "commands" / "smooth_commands.toml"
            path.write_text(insert_first_row(path.read_text(encoding="utf-8"), "SMOOTH_", NEW_ROW), encoding="utf-8")
            self.assertEqual(run("--library", library, "--check").returncode, 1)
            before = contents(python)
            self.assertEqual(run("--library", library, "--write").returncode, 0)
            self.assertEqual(changes(before, contents(python)),
                             ["bindings/LocalGenerated/smooth_commands.cpp", "orvelcommands/commands.pyi"])
            self.assertIn('    .Always("NEW_KEY_", &SMOOTH_::GetNEW_KEY_)\n',
                          (python / "bindings" / "LocalGenerated" / "smooth_commands.cpp").read_text(encoding="utf-8"))
            self.assertIn('    def NEW_KEY_(self) -> float:\n        """A new number."""\n',
                          (python / "orvelcommands" / "commands.pyi").read_text(encoding="utf-8"))

    def test_follows_one_more_command(self):
        with self.tree() as (library, python):
            path = library / "commands" / "gyre_commands.toml"
            path.write_text(path.read_text(encoding="utf-8") + NEW_COMMAND, encoding="utf-8")
            before = contents(python)
            self.assertEqual(run("--library", library, "--write").returncode, 0)
            self.assertEqual(changes(before, contents(python)),
                             ["bindings/LocalGenerated/gyre_commands.cpp", "bindings/LocalGenerated/jobs.cpp",
                              "orvelcommands/commands.pyi", "orvelcommands/parfile.pyi"])

    def test_stale_stubs_and_bindings_are_found(self):
        with self.tree() as (library, python):
            for name in ("bindings/LocalGenerated/jobs.cpp", "orvelcommands/parfile.pyi"):
                old = python / name
                shutil.copy(old, old.with_stem("old"))
            ended = run("--library", library, "--check")
            self.assertEqual(ended.stdout.splitlines()[:2],
                             ["bindings/LocalGenerated/old.cpp follows from no table",
                              "orvelcommands/old.pyi follows from no table"])

    def test_is_left_alone_where_there_is_none(self):
        with folder() as place:
            library = copy_library(place / "src" / "OrvelCommands")
            self.assertEqual(run("--library", library, "--check").returncode, 0)
            self.assertEqual([path.name for path in place.iterdir()], ["src"])

    def test_types_tell_the_presence_of_a_key(self):
        with folder() as library:
            write_tables(library)
            (library / "python").mkdir()
            run("--library", library, "--python", library / "python", "--write")
            stubs = (library / "python" / "orvelcommands" / "commands.pyi").read_text(encoding="utf-8")
        for line in ("def ELEMENT_GROUP_(self) -> str | None:", "def INITIAL_(self) -> float:",
                     "def TYPE_(self) -> Enum_TYPE_:", "def STEPS_(self) -> tuple[int, ...] | None:",
                     "def FILTER_(self) -> tuple[_commands.FILTER_, ...]:",
                     "def KEEP_(self) -> tuple[Enum_KEEP_, ...]:"):
            with self.subTest(line=line):
                self.assertIn(f"    @property\n    {line}\n", stubs)


class PlainCommands(unittest.TestCase):
    """The plain structs of the benchmarks beside the sources of the library."""

    FILE = "peers/LocalGenerated/plain_commands.h"

    @contextlib.contextmanager
    def tree(self):
        with folder() as place:
            library = copy_library(place / "src" / "OrvelCommands")
            shutil.copytree(LIBRARY.parents[1] / "benchmarks" / "peers", place / "benchmarks" / "peers")
            yield library, place / "benchmarks"

    def written(self, gyre=GYRE, smooth=SMOOTH):
        """The file as it follows from small tables."""
        with folder() as library:
            write_tables(library, gyre, smooth)
            ended = run("--library", library, "--benchmarks", library / "benchmarks", "--write")
            self.assertEqual((ended.stderr, ended.returncode), ("", 0))
            self.assertEqual(list(contents(library / "benchmarks")), [self.FILE])
            return (library / "benchmarks" / self.FILE).read_text(encoding="utf-8")

    def test_hold_each_command_of_a_small_table(self):
        text = self.written()
        self.assertEqual(text[text.index("namespace plain"):].splitlines(), PLAIN_COMMANDS.splitlines())
        head = text[:text.index("#")]
        for origin in ("gyre_commands.toml and smooth_commands.toml", "src/OrvelCommands/commands/generator",
                       "Do not edit: change the table and run `./run generate`."):
            self.assertIn(origin, head)

    def test_give_each_type_and_presence_its_member(self):
        for columns, member in (
                ('type = "int32", presence = "optional"', "std::optional<int> new_key;"),
                ('type = "double", presence = "repeated"', "std::vector<double> new_key;"),
                ('type = "string", presence = "always"', "std::string new_key;"),
                ('type = "model_id", presence = "repeated", ids = "node_group"', "std::vector<std::string> new_key;"),
                ('type = "int32_list", presence = "always"', "std::vector<int> new_key;"),
                ('type = "double_list", presence = "optional"', "std::optional<std::vector<double>> new_key;"),
                ('type = "enum", presence = "optional", enumerators = "no_yes"', "std::optional<int> new_key;"),
                ('type = "reference", presence = "always", target = "DV_"', "Link<Dv> new_key;"),
                ('type = "reference", presence = "optional", target = "DV_"', "std::optional<Link<Dv>> new_key;")):
            with self.subTest(columns=columns):
                row = f'  {{ key = "NEW_KEY_", {columns}, doc = "A new key." }},'
                self.assertIn(f"\n  {member}\n", self.written(insert_first_row(GYRE, "FILTER_", row)))

    def test_keep_away_from_the_words_of_the_language_and_from_their_own(self):
        for key, member in (("CLASS_", "class_"), ("ID_", "id_"), ("KEYS_", "keys_"), ("NOT_EQ_", "not_eq_"),
                            ("XOR_", "exclusive_or"), ("OPERATOR_", "operators"), ("NOT_", "not_"), ("NOTE_", "note")):
            with self.subTest(key=key):
                text = self.written(smooth=SMOOTH.replace("CYCLES_", key))
                self.assertIn(f"\n  int {member} = 0;\n", text)
                self.assertIn(f'\n    keys.Always("{key}", {member});\n', text)
        for class_name, struct, member in (("JOB_", "Job_", "job"), ("LINK_", "Link_", "link"),
                                           ("OPERATOR_", "Operator", "operators"), ("ACTION_", "Action", "action_"),
                                           ("AS_TOPO_OC_", "AsTopoOc", "as_topo_oc"), ("RUN_2_", "Run2", "run_2")):
            with self.subTest(class_name=class_name):
                text = self.written(smooth=once(SMOOTH, '"SMOOTH_"', f'"{class_name}"'))
                self.assertIn(f"\nstruct {struct}\n{{\n", text)
                self.assertIn(f"\n  std::vector<{struct}> {member};\n", text)
                self.assertIn(f'\n    action("{class_name}", {member});\n', text)

    def test_are_fresh(self):
        with self.tree() as (library, _):
            ended = run("--library", library, "--check")
            self.assertEqual((ended.stdout, ended.returncode), ("", 0))

    def test_follow_one_more_number(self):
        with self.tree() as (library, benchmarks):
            path = library / "commands" / "smooth_commands.toml"
            path.write_text(insert_first_row(path.read_text(encoding="utf-8"), "SMOOTH_", NEW_ROW), encoding="utf-8")
            ended = run("--library", library, "--check")
            self.assertEqual(ended.returncode, 1)
            self.assertIn(f"--- {self.FILE}\n", ended.stdout)
            before = contents(benchmarks)
            self.assertEqual(run("--library", library, "--write").returncode, 0)
            self.assertEqual(changes(before, contents(benchmarks)), [self.FILE])
            self.assertIn("\n+  double new_key = 0.0;\n", ended.stdout)

    def test_are_found_where_they_are_stale_and_leave_the_others_alone(self):
        with self.tree() as (library, benchmarks):
            current = benchmarks / self.FILE
            shutil.copy(current, current.with_stem("old_commands"))
            before = contents(benchmarks)
            ended = run("--library", library, "--check")
            self.assertEqual(ended.stdout.splitlines()[0],
                             "peers/LocalGenerated/old_commands.h follows from no table")
            self.assertEqual(run("--library", library, "--write").returncode, 0)
            self.assertEqual(changes(before, contents(benchmarks)), ["-peers/LocalGenerated/old_commands.h"])


if __name__ == "__main__":
    unittest.main()
