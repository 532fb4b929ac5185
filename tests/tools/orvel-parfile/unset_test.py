"""orvel-parfile unset: what it removes, what it leaves, what it refuses."""

import unittest

import h5py
import numpy

from support import FILE_NAME, GOOD, UNUSABLE, ToolTest, minimal_job, names_in, references, texts, \
    write_parameter_file
from tree import changes, tree_of


class UnsetTest(ToolTest):
    def setUp(self):
        super().setUp()
        job = minimal_job()
        job["FILTER_"] = {"smooth": {"PATCH_ID_": texts("default")}, "spare": {"PATCH_ID_": texts("other")}}
        job["DV_"]["porosity"]["FILTER_"] = references("FILTER_/smooth")
        self.file = write_parameter_file(self.folder, job)
        with h5py.File(self.file, "a") as file:
            root = file["PARFILE"]
            root.create_group("CS_")
            root.attrs["made_by"] = "another program"
            root["DV_/porosity"].attrs["unit"] = 3.5
            root["DV_/porosity/TYPE_"].attrs["note"] = numpy.arange(3)
            root["EXTRA_/thing/TABLE_"] = numpy.arange(6.0).reshape(2, 3)
            root["EXTRA_/lump"] = 7
            root["DV_/porosity/NEST_/x"] = 3
            root["SOFT_"] = h5py.SoftLink("/PARFILE/DV_")
            root["FAR_"] = h5py.ExternalLink("other.hdf5", "/x")
            root["LUMP_"] = 5
        self.file.chmod(0o604)

    def assert_removes(self, arguments, says, *paths, notes=""):
        """Only what stands under these paths goes."""
        before = tree_of(self.file)
        self.assertEqual((GOOD, says + "\n", notes), self.tool("unset", *arguments))
        after = tree_of(self.file)
        self.assertEqual([f"/PARFILE/{path}" for path in paths], list(changes(before, after)))
        self.assertEqual([], [path for path in paths if f"/PARFILE/{path}" in after])
        self.assertEqual(0o604, self.file.stat().st_mode & 0o7777)
        self.assertEqual([FILE_NAME], names_in(self.folder))

    def assert_refused(self, arguments, says):
        before = self.file.read_bytes()
        result = self.tool("unset", *arguments)
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertIn(says, result.err)
        self.assertEqual(before, self.file.read_bytes())
        self.assertEqual([FILE_NAME], names_in(self.folder))


class Keys(UnsetTest):
    def test_are_removed(self):
        self.assert_removes(("DV_", "porosity", "FILTER_"), "DV_ porosity: FILTER_ removed, was FILTER_ smooth",
                            "DV_/porosity/FILTER_")

    def test_that_must_be_there_are_removed_with_a_note(self):
        self.assert_removes((".", "DV_", "porosity", "TYPE_"), "DV_ porosity: TYPE_ removed, was DENSITY",
                            "DV_/porosity/TYPE_",
                            notes="DV_ porosity: TYPE_ must always be there; check will miss it\n")
        self.assertIn("DV_ porosity lacks the key TYPE_", self.tool("check").out)

    def test_that_no_command_reads_are_removed(self):
        self.assert_removes(("EXTRA_", "thing", "TABLE_"),
                            "EXTRA_ thing: TABLE_ removed, was (a dataset of rank 2, where a key has rank 1)",
                            "EXTRA_/thing/TABLE_")

    def test_that_are_groups_are_removed(self):
        self.assert_removes(("DV_", "porosity", "NEST_"), "DV_ porosity: NEST_ removed", "DV_/porosity/NEST_",
                            "DV_/porosity/NEST_/x")

    def test_that_are_not_there_are_refused(self):
        self.assert_refused(("DV_", "porosity", "INITAL_"),
                            "DV_ porosity has no key INITAL_; the nearest is INITIAL_; "
                            "there are FILTER_, INITIAL_, NEST_, TYPE_")


class Commands(UnsetTest):
    def test_to_which_nothing_refers_are_removed(self):
        self.assert_removes(("FILTER_", "spare"), "FILTER_ spare removed", "FILTER_/spare", "FILTER_/spare/PATCH_ID_")

    def test_that_are_needed_are_refused_with_all_that_refers_to_them(self):
        self.assert_refused(("FILTER_", "smooth"),
                            "DV_ porosity: FILTER_ refers to FILTER_ smooth\n"
                            "FILTER_ smooth is still needed; --force removes it all the same\n")

    def test_that_go_with_force_take_nothing_else_away(self):
        with h5py.File(self.file, "a") as file:
            key = file["PARFILE/DV_/porosity/FILTER_"]
            key.attrs["note"] = 1
            key.resize((3,))
            key[1] = file["PARFILE/FILTER_/spare"].ref
            key[2] = file["PARFILE/LUMP_"].ref  # no command
        self.assertEqual(GOOD, self.tool("unset", "FILTER_", "smooth", "--force").code)
        with h5py.File(self.file, "r") as file:
            key = file["PARFILE/DV_/porosity/FILTER_"]
            self.assertEqual({"note": 1}, dict(key.attrs))
            self.assertEqual(["", "/PARFILE/FILTER_/spare", "/PARFILE/LUMP_"],
                             [file[reference].name if reference else "" for reference in key])

    def test_that_are_needed_go_with_force(self):
        result = self.tool("unset", "FILTER_", "smooth", "--force")
        self.assertEqual(
            (GOOD, "FILTER_ smooth removed\n",
             "DV_ porosity: FILTER_ refers to FILTER_ smooth and now leads nowhere\n"), result)
        with h5py.File(self.file, "r") as file:
            self.assertEqual(["spare"], list(file["PARFILE/FILTER_"]))
            self.assertEqual([False], [bool(reference) for reference in file["PARFILE/DV_/porosity/FILTER_"]])

    def test_that_only_refer_to_themselves_are_removed(self):
        with h5py.File(self.file, "a") as file:
            command = file.create_group("PARFILE/OPERATOR_/loop")
            command["OPERATOR_"] = numpy.array([command.ref], dtype=h5py.ref_dtype)
        self.assert_removes(("OPERATOR_", "loop"), "OPERATOR_ loop removed", "OPERATOR_/loop",
                            "OPERATOR_/loop/OPERATOR_")

    def test_that_are_datasets_are_removed(self):
        self.assert_removes(("EXTRA_", "lump"), "EXTRA_ lump removed", "EXTRA_/lump")

    def test_that_are_not_there_are_refused(self):
        self.assert_refused(("FILTER_", "smoth"), "there is no FILTER_ smoth; the nearest is smooth; "
                                                  "there are smooth, spare")
        self.assert_refused(("DV_", "porosity/TYPE_"), "there is no DV_ porosity/TYPE_")


class Kinds(UnsetTest):
    def test_that_are_empty_are_removed(self):
        self.assert_removes(("CS_",), "CS_ removed", "CS_")

    def test_that_hold_commands_are_refused(self):
        self.assert_refused(("FILTER_",), "FILTER_ is not empty; remove first smooth, spare")
        self.assert_refused(("EXTRA_", "--force"), "EXTRA_ is not empty; remove first lump, thing")

    def test_that_are_datasets_or_links_are_removed(self):
        self.assert_removes(("LUMP_",), "LUMP_ removed", "LUMP_")
        self.assert_removes(("SOFT_",), "SOFT_ removed", "SOFT_")
        self.assert_removes(("FAR_",), "FAR_ removed", "FAR_")

    def test_that_are_not_there_are_refused(self):
        self.assert_refused(("FILTR_",), "the file has no kind FILTR_; the nearest is FILTER_; there are ALGO_, ")


class Attributes(UnsetTest):
    def test_are_removed_and_nothing_else(self):
        for words, path in ((("--attributes",), "/PARFILE"),
                            (("DV_", "porosity", "--attributes"), "/PARFILE/DV_/porosity"),
                            (("DV_", "porosity", "TYPE_", "--attributes"), "/PARFILE/DV_/porosity/TYPE_")):
            with self.subTest(path):
                before = tree_of(self.file)
                self.assertEqual((GOOD, f"{path}: attributes removed\n", ""), self.tool("unset", *words))
                difference = changes(before, tree_of(self.file))
                self.assertEqual([path], list(difference))
                (old_content, old), (new_content, new) = difference[path]
                self.assertEqual((old_content, {}), (new_content, new))
                self.assertEqual(1, len(old))

    def test_behind_a_link_stay(self):
        with h5py.File(self.folder / "victim.h5", "w") as file:
            file.create_group("x").attrs["mine"] = 1
        with h5py.File(self.file, "a") as file:
            file["PARFILE/EXT_"] = h5py.ExternalLink(str(self.folder / "victim.h5"), "/x")
        before = (self.folder / "victim.h5").read_bytes()
        for kind in ("EXT_", "SOFT_", "FAR_"):
            result = self.tool("unset", kind, "--attributes")
            self.assertEqual((UNUSABLE, "", f"/PARFILE/{kind} has no attributes\n"), result)
        self.assertEqual(before, (self.folder / "victim.h5").read_bytes())

    def test_where_there_are_none(self):
        self.assert_refused(("FILTER_", "--attributes"), "/PARFILE/FILTER_ has no attributes")


class Everything(UnsetTest):
    def test_that_an_export_cannot_carry_can_be_removed(self):
        self.assertNotEqual(GOOD, self.tool("export").code)
        for words in (("--attributes",), ("DV_", "porosity", "--attributes"), ("SOFT_",), ("FAR_",), ("LUMP_",),
                      ("DV_", "porosity", "TYPE_", "--attributes"), ("EXTRA_", "lump"), ("EXTRA_", "thing", "TABLE_"),
                      ("DV_", "porosity", "NEST_")):
            self.assertEqual(GOOD, self.tool("unset", *words).code, words)
        self.assertEqual(GOOD, self.tool("export").code)


class WrongUse(UnsetTest):
    def test_no_words_empty_words_and_too_many(self):
        for words in ((), (".",), ("",), ("DV_", ""), ("DV_", "porosity", "TYPE_", "x")):
            with self.subTest(words):
                self.assert_refused(words, "unset needs a kind, or a kind and an id, or a kind, an id and a key\n")

    def test_options_that_exclude_each_other(self):
        self.assert_refused(("DV_", "porosity", "--force", "--attributes"), "--attributes excludes --force\n")

    def test_a_kind_of_the_schema_that_the_file_lacks(self):
        self.assert_refused(("MONITOR_", "x"), "the file has no kind MONITOR_; ")


if __name__ == "__main__":
    unittest.main()
