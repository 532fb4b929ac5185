"""orvel-parfile set: what it changes, what it leaves, what it refuses."""

import os
import struct
import tomllib
import unittest

import h5py
import numpy

from support import FAULTS, FILE_NAME, GOOD, TYPES, UNUSABLE, ToolTest, doubles, give_up_privileges, minimal_job, names_in, references, texts, \
    write_parameter_file
from tree import changes, tree_of

TEXT_TYPE = bytes(TYPES["text"].encode())


class SetTest(ToolTest):
    def setUp(self):
        super().setUp()
        job = minimal_job()
        job["FILTER_"] = {"smooth": {"PATCH_ID_": texts("default")}, "raw": {"PATCH_ID_": texts("other")}}
        self.file = write_parameter_file(self.folder, job)
        self.add_what_the_tool_never_writes()

    def add_what_the_tool_never_writes(self):
        with h5py.File(self.file, "a") as file:
            root = file["PARFILE"]
            root.attrs["made_by"] = "another program"
            root["DV_/porosity"].attrs["unit"] = 3.5
            root["DV_/porosity/TYPE_"].attrs["note"] = numpy.arange(3)
            root.create_dataset("EXTRA_/thing/TABLE_", data=numpy.arange(6.0).reshape(2, 3))
            root.create_dataset("EXTRA_/thing/NAME_", data="a string", dtype=h5py.string_dtype())
            root["SOFT_"] = h5py.SoftLink("/PARFILE/DV_")
            root["FAR_"] = h5py.ExternalLink("other.hdf5", "/x")
            file["beside"] = numpy.dtype("i2")
        self.file.chmod(0o640)

    def values(self, path):
        """The values of a key as Python has them."""
        with h5py.File(self.file, "r") as file:
            dataset = file["PARFILE/" + path]
            if dataset.id.get_type().equal(TYPES["reference"]):
                return [file[value].name.removeprefix("/PARFILE/") for value in dataset]
            if dataset.id.get_type().equal(TYPES["text"]):
                return [value.tobytes() for value in dataset]
            return [value.tolist() for value in dataset]

    def assert_sets(self, arguments, says, path, values):
        """Only this key changes, and to these values."""
        before = tree_of(self.file)
        self.assertEqual((GOOD, says + "\n", ""), self.tool("set", *arguments))
        self.assertEqual(values, self.values(path))
        self.assertEqual(["/PARFILE/" + path], list(changes(before, tree_of(self.file))))

    def assert_refused(self, arguments, says):
        before = self.file.read_bytes()
        names = names_in(self.folder)
        result = self.tool("set", *arguments)
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertIn(says, result.err)
        self.assertEqual(before, self.file.read_bytes())
        self.assertEqual(names, names_in(self.folder))


class Values(SetTest):
    def test_a_number(self):
        self.assert_sets(("DV_", "porosity", "INITIAL_", "0.35"), "DV_ porosity: INITIAL_ 0.4 -> 0.35",
                         "DV_/porosity/INITIAL_", [0.35])

    def test_a_number_to_the_last_bit(self):
        self.tool("set", "DV_", "porosity", "INITIAL_", "0.30000000000000004")
        self.assertEqual([0.1 + 0.2], self.values("DV_/porosity/INITIAL_"))

    def test_negative_numbers(self):
        for written, value in (("-1.5", -1.5), ("-2", -2.0), ("-1e-3", -0.001), ("-0.0", -0.0)):
            with self.subTest(written):
                self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "INITIAL_", written).code)
                self.assertEqual([str(value)], [str(one) for one in self.values("DV_/porosity/INITIAL_")])
        self.assertEqual(GOOD, self.tool("set", "OPT_PARAM_", "run", "OPT_START_", "-3").code)
        self.assertEqual([-3], self.values("OPT_PARAM_/run/OPT_START_"))

    def test_behind_two_dashes_what_looks_like_an_option(self):
        self.assertEqual(GOOD, self.tool("set", "--", "DV_", "porosity", "INITIAL_", "-inf").code)
        self.assertEqual([-numpy.inf], self.values("DV_/porosity/INITIAL_"))
        self.assertEqual(GOOD, self.tool("set", "MODEL_", "duct", "FILE_", "--", "-x").code)
        self.assertEqual([b"-x\0"], self.values("MODEL_/duct/FILE_"))

    def test_an_enumerator_by_name_letter_and_number(self):
        for written in ("NODAL", "N", "78"):
            with self.subTest(written):
                self.tool("set", "DV_", "porosity", "TYPE_", "AUTO")
                self.assert_type_line(written)

    def assert_type_line(self, written):
        self.assertEqual((GOOD, "DV_ porosity: TYPE_ AUTO -> NODAL\n", ""),
                         self.tool("set", "DV_", "porosity", "TYPE_", written))
        self.assertEqual([78], self.values("DV_/porosity/TYPE_"))

    def test_a_text_with_all_that_a_text_may_hold(self):
        for text in ("a b.cgns", "3", "[1, 2]", "true", "\"x\" # y", "Kanal_\u00e4", "1979-05-27", "DV_", ""):
            with self.subTest(text):
                self.assertEqual(GOOD, self.tool("set", "MODEL_", "duct", "FILE_", text).code)
                self.assertEqual([text.encode() + b"\0"], self.values("MODEL_/duct/FILE_"))

    def test_a_list_as_several_values_or_as_one_word(self):
        job = minimal_job()
        job["OUTPUT_"] = {"out": {"ITERATION_": ("list of integer", [numpy.array([1], dtype=numpy.int32)])}}
        write_parameter_file(self.folder, job)
        for words, value in ((("3", "-1", "7"), [3, -1, 7]), (("[4, 5]",), [4, 5]), (("8",), [8]), (("[]",), [])):
            with self.subTest(words):
                self.assertEqual(GOOD, self.tool("set", "OUTPUT_", "out", "ITERATION_", *words).code)
                self.assertEqual([value], self.values("OUTPUT_/out/ITERATION_"))

    def test_all_values_of_a_repeated_key_are_replaced(self):
        job = minimal_job()
        job["FILTER_"] = {name: {"PATCH_ID_": texts(name)} for name in ("one", "two", "three")}
        job["DV_"]["porosity"]["FILTER_"] = references("FILTER_/one", "FILTER_/two")
        write_parameter_file(self.folder, job)
        self.assert_sets(
            ("DV_", "porosity", "FILTER_", "three", "one", "three"),
            "DV_ porosity: FILTER_ FILTER_ one, FILTER_ two -> FILTER_ three, FILTER_ one, FILTER_ three",
            "DV_/porosity/FILTER_", ["FILTER_/three", "FILTER_/one", "FILTER_/three"])

    def test_a_key_that_was_not_there(self):
        self.assert_sets(("DV_", "porosity", "ELEMENT_GROUP_", "box"), "DV_ porosity: ELEMENT_GROUP_ (none) -> box",
                         "DV_/porosity/ELEMENT_GROUP_", [b"box\0"])

    def test_the_value_that_is_there_already(self):
        before = tree_of(self.file)
        self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "INITIAL_", "0.4").code)
        self.assertEqual({}, changes(before, tree_of(self.file)))

    def test_the_file_may_stand_before_the_kind(self):
        place = self.folder / "run"
        place.mkdir()
        self.file.rename(place / FILE_NAME)
        for file in ("run", "run/", f"run/{FILE_NAME}", place):
            with self.subTest(file):
                self.assertEqual(GOOD, self.tool("set", file, "DV_", "porosity", "INITIAL_", "0.5").code)
        self.assertEqual([FILE_NAME], names_in(place))

    def test_ids_that_are_names_of_subcommands(self):
        for name in ("check", "set", "complete"):
            self.assertEqual(GOOD, self.tool("set", "DV_", name, "INITIAL_", "0.5", "--new").code)
            self.assertEqual([0.5], self.values(f"DV_/{name}/INITIAL_"))


class WrongThings(SetTest):
    def break_key(self, write):
        with h5py.File(self.file, "a") as file:
            command = file["PARFILE/DV_/porosity"]
            del command["INITIAL_"]
            write(command)

    NOTES = {
        "group": "/PARFILE/DV_/porosity/INITIAL_: a group where a key stands was in its place with what it held before\n",
        "soft link": "/PARFILE/DV_/porosity/INITIAL_: a soft link was in its place with what it held before\n"}

    def test_go_with_their_attributes_which_are_told(self):
        result = self.tool("set", "DV_", "porosity", "TYPE_", "AUTO")
        self.assertEqual((GOOD, "DV_ porosity: TYPE_ DENSITY -> AUTO\n",
                          "/PARFILE/DV_/porosity/TYPE_: 1 attribute went with what it held before\n"), result)

    def test_are_replaced_by_the_right_type_and_rank(self):
        cases = {
            "float32": (lambda command: command.create_dataset("INITIAL_", data=numpy.float32([0.5])), "0.5"),
            "rank 2": (lambda command: command.create_dataset("INITIAL_", data=numpy.zeros((2, 2))),
                       "(a dataset of rank 2, where a key has rank 1)"),
            "scalar": (lambda command: command.create_dataset("INITIAL_", data=1.5),
                       "(a dataset of rank 0, where a key has rank 1)"),
            "compound": (lambda command: command.create_dataset("INITIAL_", data=numpy.zeros(1, "i4,f8")),
                         "(a compound of 12 bytes)"),
            "no values": (lambda command: command.create_dataset("INITIAL_", shape=(0,), dtype="f8"), "(no values)"),
            "group": (lambda command: command.create_group("INITIAL_/x"), "(none)"),
            "soft link": (lambda command: command.__setitem__("INITIAL_", h5py.SoftLink("/nothing")), "(none)"),
        }
        expected = tree_of(self.file)["/PARFILE/DV_/porosity/INITIAL_"]
        for name, (write, text) in cases.items():
            with self.subTest(name):
                self.break_key(write)
                before = tree_of(self.file)
                self.assertEqual((GOOD, f"DV_ porosity: INITIAL_ {text} -> 0.4\n", self.NOTES.get(name, "")),
                                 self.tool("set", "DV_", "porosity", "INITIAL_", "0.4"))
                after = tree_of(self.file)
                self.assertEqual(expected, after["/PARFILE/DV_/porosity/INITIAL_"])
                self.assertEqual([], [path for path in changes(before, after)
                                      if not path.startswith("/PARFILE/DV_/porosity/INITIAL_")])


class NewCommands(SetTest):
    def test_are_made_with_new(self):
        before = tree_of(self.file)
        self.assertEqual((GOOD, "FILTER_ fine: RADIUS_ (none) -> 0.02, in a new command\n", ""),
                         self.tool("set", "FILTER_", "fine", "RADIUS_", "0.02", "--new"))
        self.assertEqual([0.02], self.values("FILTER_/fine/RADIUS_"))
        self.assertEqual(["/PARFILE/FILTER_/fine", "/PARFILE/FILTER_/fine/RADIUS_"],
                         list(changes(before, tree_of(self.file))))

    def test_and_their_kind_with_them(self):
        write_parameter_file(self.folder, minimal_job())
        self.assertEqual(GOOD, self.tool("set", "--new", "CS_", "main", "TYPE_", "CYLINDRICAL").code)
        self.assertEqual([67], self.values("CS_/main/TYPE_"))

    def test_are_refused_without(self):
        self.assert_refused(("DV_", "porosty", "INITIAL_", "0.3"),
                            "there is no DV_ porosty; the nearest is porosity; there are ")
        self.assert_refused(("DV_", "porosty", "INITIAL_", "0.3"), "; --new makes it")

    def test_with_an_impossible_id_are_refused(self):
        for name in ("a/b", "", "."):
            self.assert_refused(("DV_", name, "INITIAL_", "0.3", "--new"), "cannot stand in a parameter file")

    def test_where_something_else_stands_are_refused(self):
        with h5py.File(self.file, "a") as file:
            file["PARFILE/DV_/blocked"] = 3
        self.assert_refused(("DV_", "blocked", "INITIAL_", "0.3", "--new"),
                            "/PARFILE/DV_/blocked is a dataset where a group stands; unset removes it")
        self.assert_refused(("SOFT_", "x", "K_", "0.3", "--new", "--type", "number"),
                            "/PARFILE/SOFT_ is a soft link; unset removes it")


class TypedKeys(SetTest):
    def test_are_set_with_their_type(self):
        cases = {
            "number": (("0.5", "-2"), "<f8", [0.5, -2.0]), "integer": (("7",), "<i4", [7]),
            "int64": (("-9223372036854775808",), "<i8", [-2**63]), "uint8": (("255", "0"), "u1", [255, 0]),
            "float32be": (("1.5",), ">f4", [1.5]),
        }
        for name, (words, dtype, values) in cases.items():
            with self.subTest(name):
                self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "MINE_", *words, "--type", name).code)
                with h5py.File(self.file, "r") as file:
                    dataset = file["PARFILE/DV_/porosity/MINE_"]
                    self.assertEqual((numpy.dtype(dtype), values), (dataset.dtype, dataset[()].tolist()))

    def test_of_texts_references_and_lists(self):
        self.tool("set", "EXTRA_", "thing", "T_", "a b", "3", "--type", "text")
        self.assertEqual([b"a b\0", b"3\0"], self.values("EXTRA_/thing/T_"))
        self.tool("set", "EXTRA_", "thing", "R_", "DV_/porosity", "--type", "reference")
        self.assertEqual(["DV_/porosity"], self.values("EXTRA_/thing/R_"))
        self.tool("set", "EXTRA_", "thing", "L_", "[1, 2]", "[3]", "--type", "integers")
        self.assertEqual([[1, 2], [3]], self.values("EXTRA_/thing/L_"))
        self.tool("set", "EXTRA_", "thing", "L_", "1", "2", "--type", "numbers")
        self.assertEqual([[1.0, 2.0]], self.values("EXTRA_/thing/L_"))
        self.tool("set", "OWN_", "new", "S_", "\u00e4", "--type", "utf8_string", "--new")
        with h5py.File(self.file, "r") as file:
            self.assertEqual(["\u00e4".encode()], list(file["PARFILE/OWN_/new/S_"]))

    def test_are_refused_where_the_type_does_not_fit(self):
        self.assert_refused(("DV_", "porosity", "MINE_", "256", "--type", "uint8"),
                            "DV_ porosity: MINE_ must be a whole number that its type holds, not 256")
        self.assert_refused(("DV_", "porosity", "MINE_", "1", "--type", "nummber"),
                            "there is no type nummber; the nearest is number; there are integer, ")
        self.assert_refused(("DV_", "porosity", "INITIAL_", "1", "--type", "number"),
                            "DV_ porosity: INITIAL_ has its type from the command")
        self.assert_refused(("DV_", "porosity", "a/b", "1", "--type", "number"), "cannot stand in a parameter file")
        self.assert_refused(("EXTRA_", "thing", "R_", "DV_/gone", "--type", "reference"), "there is no DV_ gone")


class Refusals(SetTest):
    def test_an_unknown_kind(self):
        self.assert_refused(("DW_", "porosity", "INITIAL_", "1"),
                            "there is no kind of command DW_; the nearest is DV_; there are MODEL_, ")

    def test_an_unknown_key(self):
        self.assert_refused(("DV_", "porosity", "INITAL_", "1"), "DV_ has no key INITAL_; the nearest is INITIAL_; ")

    def test_a_value_of_another_type(self):
        for word in ("abc", "", "true", "[1]", "1 2", "1 # x", ".5", "0,4", "1\n[x]", "'0.4'"):
            with self.subTest(word):
                self.assert_refused(("DV_", "porosity", "INITIAL_", word), "DV_ porosity: INITIAL_ must be a number, not")
        for word in ("1.0", "2147483648", "-2147483649", "x", "0.4"):
            with self.subTest(word):
                self.assert_refused(("OPT_PARAM_", "run", "OPT_START_", word), "must be a whole number of 32 bits, not")

    def test_what_is_no_enumerator(self):
        self.assert_refused(("DV_", "porosity", "TYPE_", "DENSTY"),
                            "DV_ porosity: TYPE_ must be an enumerator, not DENSTY; the nearest is DENSITY; there are ")
        self.assert_refused(("DV_", "porosity", "TYPE_", "9"), "must be an enumerator, not 9")

    def test_a_reference_to_nothing(self):
        self.assert_refused(("DV_", "porosity", "FILTER_", "smoth"),
                            "DV_ porosity: FILTER_: there is no FILTER_ smoth; the nearest is smooth; "
                            "there are raw, smooth")

    def test_several_values_of_a_single_key(self):
        self.assert_refused(("DV_", "porosity", "INITIAL_", "1", "2"), "DV_ porosity: INITIAL_ holds one value, not 2")

    def test_too_few_words(self):
        self.assert_refused((), "words is required")
        for words in (("DV_",), ("DV_", "porosity"), ("DV_", "porosity", "INITIAL_"), (".", "DV_", "porosity", "x")):
            self.assert_refused(words, "set needs a kind, an id, a key and at least one value")

    def test_files_that_are_none(self):
        (self.folder / "none").mkdir()
        self.assert_refused(("none", "DV_", "porosity", "INITIAL_", "1"), "there is no such file")
        self.write("job.toml", "")
        self.assert_refused(("job.toml", "DV_", "porosity", "INITIAL_", "1"),
                            "job.toml: a parameter file must have the name")
        self.write(f"none/{FILE_NAME}", b"no HDF5")
        self.assert_refused(("none", "DV_", "porosity", "INITIAL_", "1"),
                            f"none/{FILE_NAME}: Failed to create the HDF5 optimization database.\n"
                            "  HDF5 reported the following error:\n  H5Fopen failed\n")


    def test_a_number_that_its_type_does_not_hold(self):
        self.assert_refused(("DV_", "porosity", "MINE_", "1e300", "--type", "float32"),
                            "DV_ porosity: MINE_ must be a number that its type holds, not 1e300")
        self.assert_sets(("DV_", "porosity", "MINE_", "inf", "--type", "float32"),
                         "DV_ porosity: MINE_ (none) -> inf", "DV_/porosity/MINE_", [float("inf")])
        self.write("job.toml", '[DV_.d]\nMINE_ = { type = "float32", values = [-1e39] }\n')
        result = self.tool("import", "job.toml", "--force")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertIn("must be a number that its type holds", result.err)


class OddWords(SetTest):
    def test_reach_the_key_as_they_stand(self):
        for words in (("++",), ("a", "++", "b"), ("\x01", "\x01a"), ("[1", "]"), ("-inf",)):
            with self.subTest(words):
                self.assertEqual(GOOD, self.tool("set", "FLOWPATHS_", "bend", "OUT_", *words).code)
                self.assertEqual([word.encode() + b"\0" for word in words], self.values("FLOWPATHS_/bend/OUT_"))

    def test_do_not_lose_a_mark_of_their_own(self):
        job = minimal_job()
        job["STOP_"].update({name: job["STOP_"]["converged"] for name in ("abc", "\x01abc")})
        write_parameter_file(self.folder, job)
        self.assertEqual(GOOD, self.tool("unset", "STOP_", "\x01abc").code)
        with h5py.File(self.file, "r") as file:
            self.assertEqual(["abc", "converged"], list(file["PARFILE/STOP_"]))


class Places(SetTest):
    def test_behind_a_link_to_a_folder_are_those_of_the_system(self):
        ours, theirs = self.folder / "run", self.folder / "other" / "run"
        for place in (ours, theirs, self.folder / "other" / "sub"):
            place.mkdir(parents=True)
        for place in (ours, theirs):
            write_parameter_file(place, minimal_job())
        (self.folder / "link").symlink_to("other/sub")
        before = (ours / FILE_NAME).read_bytes()
        self.assertEqual(GOOD, self.tool("set", "link/../run", "DV_", "porosity", "INITIAL_", "0.9").code)
        self.assertEqual(before, (ours / FILE_NAME).read_bytes())
        with h5py.File(theirs / FILE_NAME, "r") as file:
            self.assertEqual([0.9], list(file["PARFILE/DV_/porosity/INITIAL_"]))

    def test_are_told_apart_where_folders_or_files_have_two_names(self):
        deeper = self.folder / "deeper"
        deeper.mkdir()
        (deeper / "link").symlink_to(".")
        write_parameter_file(deeper, minimal_job())
        before = (deeper / FILE_NAME).read_bytes()
        self.assertEqual(GOOD, self.tool("set", "link/..", "DV_", "porosity", "INITIAL_", "0.9", cwd=deeper).code)
        self.assertEqual(before, (deeper / FILE_NAME).read_bytes())
        self.assertEqual([0.9], self.values("DV_/porosity/INITIAL_"))

        (self.folder / "other" / "sub").mkdir(parents=True)
        (self.folder / "away").symlink_to("other/sub")
        os.link(self.file, self.folder / "other" / FILE_NAME)
        self.assertEqual(GOOD, self.tool("set", f"away/../{FILE_NAME}", "DV_", "porosity", "INITIAL_", "0.2").code)
        self.assertEqual([0.9], self.values("DV_/porosity/INITIAL_"))

    def test_in_other_files_are_not_changed(self):
        victim = self.folder / "victim.h5"
        self.file.rename(victim)
        before = victim.read_bytes()
        with h5py.File(self.file, "w") as file:
            file["PARFILE"] = h5py.ExternalLink(str(victim), "/PARFILE")
        for arguments in (("set", "DV_", "porosity", "INITIAL_", "0.7"), ("unset", "DV_", "porosity", "INITIAL_"),
                          ("unset", "DV_", "porosity", "--attributes")):
            with self.subTest(arguments):
                self.assertEqual(
                    (UNUSABLE, "", f"{self.file}: /PARFILE is a link, and what it leads to is not changed\n"),
                    self.tool(*arguments))
                self.assertEqual(before, victim.read_bytes())


class TheFile(SetTest):
    @unittest.skipUnless(os.geteuid() == 0, "only root may have files of others")
    def test_gives_another_group_nothing(self):
        self.folder.chmod(0o777)
        self.folder.parent.chmod(0o777)
        self.scratch.chmod(0o777)

        def be_nobody():
            os.setgroups([])
            os.setgid(100)
            os.setuid(65534)

        for arguments in (("set", "DV_", "porosity", "INITIAL_", "0.1"), ("init", "--force")):
            with self.subTest(arguments):
                os.chown(self.file, 65534, 0)
                self.file.chmod(0o660)
                self.assertEqual(GOOD, self.tool(*arguments, preexec_fn=be_nobody).code)
                status = self.file.stat()
                self.assertEqual((65534, 100, 0o600), (status.st_uid, status.st_gid, status.st_mode & 0o7777))

    def test_may_be_one_that_its_user_cannot_read(self):
        self.file.chmod(0o200)
        self.assertEqual((GOOD, ""), self.tool("init", "--force", preexec_fn=give_up_privileges)[::2])
        self.assertEqual(0o200, self.file.stat().st_mode & 0o7777)

    def test_keeps_its_access_control_list(self):
        entries = ((0x01, 6, -1), (0x02, 6, 1000), (0x04, 0, -1), (0x10, 6, -1), (0x20, 0, -1))  # tag, rights, user
        rights = struct.pack("<I", 2) + b"".join(struct.pack("<HHi", *entry) for entry in entries)
        try:
            os.setxattr(self.file, "system.posix_acl_access", rights)
        except OSError as error:
            self.skipTest(f"the file system has no such lists: {error}")
        for arguments in (("set", "DV_", "porosity", "INITIAL_", "0.1"), ("init", "--force")):
            with self.subTest(arguments):
                self.assertEqual(GOOD, self.tool(*arguments).code)
                self.assertEqual(rights, os.getxattr(self.file, "system.posix_acl_access"))

    def test_keeps_its_rights(self):
        for rights in (0o640, 0o600, 0o664, 0o666):
            self.file.chmod(rights)
            self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "INITIAL_", "0.1", umask=0o077).code)
            self.assertEqual(rights, self.file.stat().st_mode & 0o7777)

    def test_keeps_its_owner_where_the_user_may_give_it(self):
        if os.geteuid() != 0:
            self.skipTest("only root may give files away")
        os.chown(self.file, 65534, 65534)
        self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "INITIAL_", "0.1").code)
        self.assertEqual((65534, 65534, 0o640),
                         (self.file.stat().st_uid, self.file.stat().st_gid, self.file.stat().st_mode & 0o7777))

    def test_behind_a_link_is_replaced_and_the_link_stays(self):
        place = self.folder / "store"
        place.mkdir()
        target = place / "job_7.hdf5"
        self.file.rename(target)
        self.file.symlink_to("store/job_7.hdf5")
        self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", "INITIAL_", "0.1").code)
        self.assertEqual("store/job_7.hdf5", os.readlink(self.file))
        self.assertEqual([0.1], self.values("DV_/porosity/INITIAL_"))
        self.assertEqual(["job_7.hdf5"], names_in(place))
        self.write("job.toml", '[DV_.porosity]\nINITIAL_ = 0.4\nTYPE_ = "AUTO"\n')
        self.assertEqual(GOOD, self.tool("import", "job.toml", "--force").code)
        self.assertTrue(self.file.is_symlink())
        self.assertEqual([0.4], self.values("DV_/porosity/INITIAL_"))

    def test_exports_as_before_but_for_the_change(self):
        write_parameter_file(self.folder, minimal_job())
        before = tomllib.loads(self.tool("export").out)
        self.tool("set", "DV_", "porosity", "INITIAL_", "0.7")
        after = tomllib.loads(self.tool("export").out)
        self.assertEqual(0.7, after["DV_"]["porosity"].pop("INITIAL_"))
        self.assertEqual(0.4, before["DV_"]["porosity"].pop("INITIAL_"))
        self.assertEqual(before, after)

    def test_holds_what_the_library_reads(self):
        write_parameter_file(self.folder, minimal_job())
        for key, values in (("INITIAL_", ("0.9",)), ("TYPE_", ("A",)), ("ELEMENT_GROUP_", ("x",))):
            self.assertEqual(GOOD, self.tool("set", "DV_", "porosity", key, *values).code)
        expected = minimal_job()
        expected["DV_"]["porosity"] = {"INITIAL_": doubles(0.9), "TYPE_": ("integer", (65,)),
                                       "ELEMENT_GROUP_": texts("x")}
        written = tree_of(self.file)
        self.assertEqual({}, changes(tree_of(write_parameter_file(self.folder, expected)), written))


if __name__ == "__main__":
    unittest.main()
