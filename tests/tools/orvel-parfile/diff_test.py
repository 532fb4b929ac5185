"""orvel-parfile diff: what two files or job descriptions do not have in common."""

import json
import struct
import unittest

import h5py
import numpy

from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, UNUSABLE, ToolTest, doubles, integer_lists, integers,
                     references, texts, write_parameter_file)


class DiffTest(ToolTest):
    """Compares two files that h5py wrote, in the folders "a" and "b"."""

    def setUp(self):
        super().setUp()
        for name in ("a", "b"):
            (self.folder / name).mkdir()

    def write_both(self, before, after):
        """Writes the two files."""
        write_parameter_file(self.folder / "a", before)
        write_parameter_file(self.folder / "b", after)

    def assert_differs(self, before, after, *lines):
        """That these lines tell the differences of two jobs."""
        self.write_both(before, after)
        self.assertEqual((FAULTS, "".join(f"{line}\n" for line in lines), ""), self.tool("diff", "a", "b"))

    def assert_values_differ(self, before, after, text, key="MERGE_"):
        """That one key of two jobs differs so."""
        self.assert_differs(
            {"NODE_GROUP_": {"g": {key: before}}}, {"NODE_GROUP_": {"g": {key: after}}}, f"~ NODE_GROUP_ g {key}: {text}")

    def edit(self, name):
        """One of the two files, opened by h5py."""
        return h5py.File(self.folder / name / FILE_NAME, "a")


class SameJobs(DiffTest):
    def test_a_file_and_its_description_hold_the_same(self):
        job = EXAMPLES / "bent_duct" / "job.toml"
        self.tool("import", job, "a")
        expected = (f"a and {job} hold the same: 25 kinds, 55 commands, 477 values (50 of them model ids), "
                    "49 references\n")
        self.assertEqual((GOOD, expected, ""), self.tool("diff", "a", job))

    def test_the_order_of_commands_and_keys_does_not_matter(self):
        self.write("one.toml", '[CS_.a]\nX_ORIGIN_ = 1.0\nY_ORIGIN_ = 2.0\n[FLOWPATHS_.f]\nIN_ = ["x"]\n[CS_.b]\n')
        self.write("two.toml", '[CS_.b]\n[FLOWPATHS_.f]\nIN_ = ["x"]\n[CS_.a]\nY_ORIGIN_ = 2.0\nX_ORIGIN_ = 1.0\n')
        self.assertEqual(GOOD, self.tool("diff", "one.toml", "two.toml").code)

    def test_numbers_of_the_same_bits(self):
        job = {"DV_": {"d": {"INITIAL_": doubles(float("nan"), -0.0, float("inf"), 5e-324)}}}
        self.write_both(job, job)
        self.assertEqual(GOOD, self.tool("diff", "a", "b").code)

    def test_as_json(self):
        self.write_both({}, {})
        self.assertEqual({"differences": [], "not_compared": []}, json.loads(self.tool("diff", "a", "b", "--json").out))


class Commands(DiffTest):
    def test_added_and_removed_in_the_order_of_loading(self):
        self.assert_differs(
            {"MONITOR_": {"swirl": {}, "kept": {}}, "DV_": {"old": {"INITIAL_": doubles(1.0)}}},
            {"FILTER_": {"new": {}}, "MONITOR_": {"kept": {}}, "DV_": {"new": {}}},
            "+ DV_ new", "- DV_ old", "- MONITOR_ swirl", "+ FILTER_ new")

    def test_kinds_without_commands(self):
        self.write_both({"DV_": {"d": {}}}, {"DV_": {"d": {}}})
        with self.edit("b") as file:
            file.create_group("PARFILE/CS_")
            file.create_group("PARFILE/GADGET_")
        self.assertEqual(
            (FAULTS, "+ CS_ (no commands)\n+ GADGET_ (no commands)\n", ""), self.tool("diff", "a", "b"))
        self.assertEqual(
            (FAULTS, "- CS_ (no commands)\n- GADGET_ (no commands)\n", ""), self.tool("diff", "b", "a"))

    def test_a_kind_that_gets_its_first_command(self):
        self.write_both({}, {"CS_": {"c": {}}})
        with self.edit("a") as file:
            file.create_group("PARFILE/CS_")
        self.assertEqual((FAULTS, "+ CS_ c\n", ""), self.tool("diff", "a", "b"))


class Keys(DiffTest):
    def test_added_removed_and_changed_in_the_order_of_the_schema(self):
        self.assert_differs(
            {"DV_": {"porosity": {"INITIAL_": doubles(0.35), "TYPE_": integers(68), "ELEMENT_GROUP_": texts("box")}}},
            {"DV_": {"porosity": {"INITIAL_": doubles(0.4), "TYPE_": integers(78), "NODE_GROUP_": texts("rim")}}},
            "- DV_ porosity ELEMENT_GROUP_: box", "+ DV_ porosity NODE_GROUP_: rim",
            "~ DV_ porosity INITIAL_: 0.35 -> 0.4", "~ DV_ porosity TYPE_: DENSITY -> NODAL")

    def test_keys_that_no_command_reads_stand_with_their_type(self):
        self.assert_differs(
            {"DV_": {"d": {"OLD_": integers(1)}}}, {"DV_": {"d": {"NEW_": texts("x")}}},
            "+ DV_ d NEW_: x (text)", "- DV_ d OLD_: 1 (integer)")

    def test_a_number_that_is_no_enumerator(self):
        self.assert_differs(
            {"DV_": {"d": {"TYPE_": integers(68)}}}, {"DV_": {"d": {"TYPE_": integers(67)}}},
            "~ DV_ d TYPE_: DENSITY -> 67")

    def test_references_with_kind_and_id(self):
        targets = {"FILTER_": {"f": {}, "g": {}}}
        self.assert_differs(
            {**targets, "DV_": {"d": {"FILTER_": references("FILTER_/f")}}},
            {**targets, "DV_": {"d": {"FILTER_": references("FILTER_/g", "DV_/d")}}},
            "~ DV_ d FILTER_: FILTER_ f -> FILTER_ g, DV_ d")

    def test_a_reference_to_nothing(self):
        job = {"DV_": {"d": {"FILTER_": references("DV_/d")}}}
        self.write_both(job, job)
        with self.edit("b") as file:
            file["PARFILE/DV_/d/FILTER_"][0] = h5py.Reference()
        self.assertEqual((FAULTS, "~ DV_ d FILTER_: DV_ d -> nothing\n", ""), self.tool("diff", "a", "b"))

    def test_another_type(self):
        self.assert_values_differ(integers(1), doubles(1.0), "1 (integer) -> 1 (number)", "INITIAL_")

    def test_another_type_of_the_same_values(self):
        self.write_both({"DV_": {"d": {"TYPE_": integers(68)}}}, {"DV_": {"d": {}}})
        with self.edit("b") as file:
            file["PARFILE/DV_/d"].create_dataset("TYPE_", data=[68], dtype="i8")
        self.assertEqual(
            (FAULTS, "~ DV_ d TYPE_: DENSITY (integer) -> DENSITY (int64)\n", ""), self.tool("diff", "a", "b"))
        self.assert_values_differ(texts(), integers(), "(no values) (text) -> (no values) (integer)")

    def test_a_key_without_values_is_not_an_absent_one(self):
        self.assert_values_differ(texts("a"), texts(), "a -> (no values)")
        self.assert_differs({"CS_": {"c": {}}}, {"CS_": {"c": {"TYPE_": integers()}}}, "+ CS_ c TYPE_: (no values)")

    def test_control_characters_are_escaped(self):
        self.assert_values_differ(texts("a\x1b[2J"), texts("a,b"), '"a\\u001b[2J" -> "a,b"')


class Numbers(DiffTest):
    def test_zeros_of_both_signs(self):
        self.assert_values_differ(doubles(0.0), doubles(-0.0), "0 -> -0", "INITIAL_")

    def test_neighbours(self):
        self.assert_values_differ(doubles(0.3), doubles(0.1 + 0.2), "0.3 -> 0.30000000000000004", "INITIAL_")

    def test_no_numbers_of_other_bits(self):
        quiet, marked = (struct.unpack("<d", struct.pack("<Q", 0x7ff8000000000000 + mark))[0] for mark in (0, 1))
        self.assert_values_differ(
            doubles(quiet), doubles(marked), "nan (0x7ff8000000000000) -> nan (0x7ff8000000000001)", "INITIAL_")


class Lists(DiffTest):
    def test_short_ones_as_a_whole(self):
        self.assert_values_differ(texts("a", "b"), texts("b", "a"), "a, b -> b, a")
        self.assert_values_differ(integer_lists([1, 2]), integer_lists([1, 2, 3]), "1, 2 -> 1, 2, 3", "LIST_")

    def test_items_of_long_ones(self):
        numbers = list(range(1, 17))
        changed = [*numbers]
        changed[2] = 99
        changed[15] = -1
        self.assert_values_differ(
            integer_lists(numbers), integer_lists(changed), "item 3 of 16: 3 -> 99, item 16 of 16: 16 -> -1", "LIST_")

    def test_items_that_come_and_go(self):
        numbers = list(range(1, 17))
        self.assert_values_differ(
            integer_lists(numbers), integer_lists(numbers[:4] + numbers[5:]),
            "16 -> 15 items, from item 5: 5 -> nothing", "LIST_")
        self.assert_values_differ(
            integer_lists(numbers), integer_lists([*numbers, *range(17, 30)]),
            "16 -> 29 items, from item 17: nothing -> 17, 18, 19, 20, 21, 22, 23, 24, ... (5 more)", "LIST_")

    def test_several_lists(self):
        self.assert_values_differ(
            integer_lists([1], [2, 3]), integer_lists([1], [3, 2]), "[1], [2, 3] -> [1], [3, 2]", "LIST_")

    def test_one_list_is_not_two(self):
        self.assert_values_differ(integer_lists([1, 2]), integer_lists([1], [2]), "1, 2 -> [1], [2]", "LIST_")


class WhatIsNoPartOfTheLayout(DiffTest):
    def setUp(self):
        super().setUp()
        self.write_both({"DV_": {"d": {}}}, {"DV_": {"d": {}}})

    def test_an_attribute_and_a_link(self):
        with self.edit("a") as file:
            file["PARFILE"].attrs["author"] = 1
        with self.edit("b") as file:
            file["PARFILE"].attrs["author"] = 1
            file["PARFILE"].attrs["year"] = 2
            file["PARFILE/DV_/soft"] = h5py.SoftLink("/PARFILE/DV_/d")
        self.assertEqual(
            (FAULTS, "~ /PARFILE: 1 attribute -> 2 attributes\n+ /PARFILE/DV_/soft: a soft link\n", ""),
            self.tool("diff", "a", "b"))

    def test_what_cannot_be_read_is_not_compared(self):
        for name, value in (("a", 1), ("b", 2)):
            with self.edit(name) as file:
                file["PARFILE/DV_"].attrs["author"] = value
                file["PARFILE/DV_/d"].create_dataset("INITIAL_", data=numpy.zeros((2, value)))
        notes = ("DV_ d INITIAL_ is a dataset of rank 2, where a key has rank 1 in both; its values are not compared\n"
                 "/PARFILE/DV_ is 1 attribute in both, and not compared\n")
        result = self.tool("diff", "a", "b")
        self.assertEqual((GOOD, notes), (result.code, result.err))
        self.assertEqual(
            {"differences": [], "not_compared": notes.splitlines()},
            json.loads(self.tool("diff", "a", "b", "--json").out))


class AsJson(DiffTest):
    def test_every_sort_of_difference(self):
        self.write_both(
            {"DV_": {"d": {"INITIAL_": doubles(0.5, float("inf")), "TYPE_": integers(68)}}, "CS_": {"old": {}}},
            {"DV_": {"d": {"INITIAL_": integers(1), "FILTER_": references("DV_/d")}}, "NODE_GROUP_": {
                "new": {"LIST_": integer_lists([1])}}})
        with self.edit("b") as file:
            file["PARFILE"].attrs["author"] = 1
        result = self.tool("diff", "a", "b", "--json")
        self.assertEqual((FAULTS, ""), (result.code, result.err))
        self.assertEqual(
            {"differences": [
                {"change": "added", "kind": "NODE_GROUP_", "id": "new"},
                {"change": "changed", "kind": "DV_", "id": "d", "key": "INITIAL_",
                 "before": {"type": "number", "values": [0.5, "inf (0x7ff0000000000000)"]},
                 "after": {"type": "integer", "values": [1]}},
                {"change": "added", "kind": "DV_", "id": "d", "key": "FILTER_",
                 "after": {"type": "reference", "values": ["DV_/d"]}},
                {"change": "removed", "kind": "DV_", "id": "d", "key": "TYPE_",
                 "before": {"type": "integer", "values": ["DENSITY"]}},
                {"change": "removed", "kind": "CS_", "id": "old"},
                {"change": "added", "path": "/PARFILE", "after": "1 attribute"}],
             "not_compared": []}, json.loads(result.out))


class InputsThatCannotBeRead(DiffTest):
    def test_are_no_difference(self):
        self.write_both({}, {})
        self.write("faulty.toml", '[DV_.d]\nTYPE_ = "DENSTY"\n')
        self.write("torn.toml", "[DV_")
        for arguments in (("a", "nowhere"), ("nowhere", "a"), ("a", "faulty.toml"), ("torn.toml", "a"), ("a",),
                          ("a", "b", "a"), ("a", "b", "--color", "blue")):
            with self.subTest(arguments):
                result = self.tool("diff", *arguments)
                self.assertEqual((UNUSABLE, ""), (result.code, result.out))
                self.assertNotEqual("", result.err)


class Colors(DiffTest):
    def test_can_be_asked_for(self):
        self.write_both({"DV_": {"d": {}}}, {"CS_": {"c": {}}})
        self.assertNotIn("\x1b", self.tool("diff", "a", "b").out)
        self.assertIn("\x1b[32m+\x1b[0m ", self.tool("diff", "a", "b", "--color", "always").out)
        self.assertIn("\x1b[31m-\x1b[0m ", self.tool("diff", "a", "b", "--color", "always").out)


if __name__ == "__main__":
    unittest.main()
