"""orvel-parfile export: a file as a job description that makes the same file again."""

import json
import pathlib
import tomllib
import unittest

import h5py
import numpy
from h5py import h5o, h5r, h5t

from generated_jobs import Generator, bits_to_double
from support import (EXAMPLES, FAULTS, FILE_NAME, GOOD, TYPES, UNUSABLE, ToolTest, doubles, integer_lists, integers,
                     minimal_job, references, texts, write_parameter_file)

GOLDEN = pathlib.Path(__file__).resolve().parent / "golden"


def name_of_type(dataset):
    """The type of the elements, told apart more finely than by numpy."""
    stored = dataset.id.get_type()
    for sort, type_id in TYPES.items():
        if type_id.equal(stored):
            return sort
    text = f"{dataset.dtype.str}, class {stored.get_class()}"
    return f"{text}, characters {stored.get_cset()}" if stored.get_class() == h5t.STRING else text


def elements_of(file, names, dataset):
    """The elements by their bits, texts up to their first NUL, references by their targets."""
    values = dataset[()]
    if h5py.check_ref_dtype(dataset.dtype):
        return [names[h5o.get_info(h5r.dereference(value, file.id)).addr] if value else None for value in values]
    if values.dtype != object:
        return values.tobytes()
    return [value.tobytes().split(b"\0")[0] if value.dtype == numpy.dtype("S1") else value.tobytes()
            for value in map(numpy.asarray, values)]


def tree_of(path):
    """Every group, and every dataset with its type and elements."""
    tree = {}
    names = {}  # by address: asked for the name of what a reference leads to, HDF5 searches the whole file

    with h5py.File(path, "r") as file:
        file.visititems(lambda name, node: names.update({h5o.get_info(node.id).addr: name}))

        def note(name, node):
            tree[name] = "group" if isinstance(node, h5py.Group) else (
                name_of_type(node), node.maxshape, elements_of(file, names, node))

        file.visititems(note)
    return tree


class ExportTest(ToolTest):
    """With what several groups of tests need."""

    def setUp(self):
        super().setUp()
        self.again = self.folder / "again"
        self.again.mkdir()

    def export(self, *arguments):
        """The standard output of a run that must be good."""
        result = self.tool("export", *arguments)
        self.assertEqual((GOOD, ""), (result.code, result.err))
        return result.out

    def assert_round_trip(self):
        """An export of the file of the test makes the same file, whose export is the same."""
        exported = self.export()
        tomllib.loads(exported)
        self.write("exported.toml", exported)
        self.assertEqual(GOOD, self.tool("import", "exported.toml", "again", "--force").code)
        self.assertEqual(tree_of(self.folder / FILE_NAME), tree_of(self.again / FILE_NAME))
        self.assertEqual(exported, self.export("again"))
        return exported


class Examples(ExportTest):
    def test_the_bent_duct_exports_as_reviewed(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        self.assertEqual((GOLDEN / "bent_duct_export.toml").read_text(), self.assert_round_trip())

    def test_the_bent_duct_exports_to_what_it_was_imported_from(self):
        job = EXAMPLES / "bent_duct" / "job.toml"
        self.tool("import", job)
        self.assertEqual(tomllib.loads(job.read_text()), tomllib.loads(self.export()))

    def test_the_bent_duct_in_json_is_the_same_job(self):
        job = EXAMPLES / "bent_duct" / "job.toml"
        self.tool("import", job)
        self.assertEqual(tomllib.loads(job.read_text()), json.loads(self.export("--json")))

    def test_the_smoothing_job_survives(self):
        self.tool("import", EXAMPLES / "smooth" / "job.toml")
        self.assert_round_trip()

    def test_a_file_without_commands_is_an_empty_description(self):
        self.tool("init")
        self.assertEqual("", self.assert_round_trip())


class Order(ExportTest):
    def test_kinds_and_keys_come_as_in_the_schema_and_ids_by_bytes(self):
        write_parameter_file(self.folder, {
            "STOP_": {"s": {"ITER_MIN_": integers(1), "ITER_MAX_": integers(2)}},
            "ALPHA_": {"x": {}},
            "MODEL_": {"b": {"SOLVER_": texts("s"), "FILE_": texts("f"), "AGE_": integers(1)}, "a": {}, "Z": {}}})
        self.assertEqual(
            'extra_kinds = ["ALPHA_"]\n'
            "\n[MODEL_.Z]\n"
            "\n[MODEL_.a]\n"
            '\n[MODEL_.b]\nFILE_ = "f"\nSOLVER_ = "s"\nAGE_ = { type = "integer", values = [1] }\n'
            "\n[STOP_.s]\nITER_MAX_ = 2\nITER_MIN_ = 1\n"
            "\n[ALPHA_.x]\n", self.assert_round_trip())


class Values(ExportTest):
    def assert_exports(self, command, *lines):
        """That a command of the kind OUTPUT_ exports to these lines."""
        write_parameter_file(self.folder, {"OUTPUT_": {"o": command}, "FILTER_": {"f": {}}})
        self.assertEqual(["[OUTPUT_.o]", *lines], self.assert_round_trip().splitlines()[2:])

    def test_an_enumerator_stands_by_its_name(self):
        self.assert_exports({"FORMAT_": integers(86)}, 'FORMAT_ = "VTK"')

    def test_a_number_that_is_no_enumerator_stands_with_its_type(self):
        self.assert_exports({"FORMAT_": integers(85)}, 'FORMAT_ = { type = "integer", values = [85] }')

    def test_numbers_are_the_shortest_text_of_a_number_of_toml(self):
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(10.0)}, "SPREAD_PERCENTAGE_ = 10.0")
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(1e300)}, "SPREAD_PERCENTAGE_ = 1e+300")
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(0.1 + 0.2)}, "SPREAD_PERCENTAGE_ = 0.30000000000000004")
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(float("nan"))}, "SPREAD_PERCENTAGE_ = nan")
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(float("-inf"))}, "SPREAD_PERCENTAGE_ = -inf")
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(-0.0)}, "SPREAD_PERCENTAGE_ = -0.0")

    def test_a_nan_with_a_payload_stands_by_its_bits(self):
        self.assert_exports({"SPREAD_PERCENTAGE_": doubles(bits_to_double(0xFFF8000000000123))},
                            'SPREAD_PERCENTAGE_ = { type = "number", hex = ["fff8000000000123"] }')

    def test_several_values_of_a_key_that_has_one_stand_with_their_type(self):
        self.assert_exports({"BACKFLOW_ANGLE_": integers(90, 91)},
                            'BACKFLOW_ANGLE_ = { type = "integer", values = [90, 91] }')

    def test_a_key_without_values_stands_with_its_type(self):
        self.assert_exports({"FILENAME_": texts()}, 'FILENAME_ = { type = "text", values = [] }')

    def test_values_of_another_type_stand_with_it(self):
        self.assert_exports({"BACKFLOW_ANGLE_": doubles(90.0)}, 'BACKFLOW_ANGLE_ = { type = "number", values = [90.0] }')
        self.assert_exports({"FORMAT_": texts("VTK")}, 'FORMAT_ = { type = "text", values = ["VTK"] }')

    def test_a_list_stays_one_value_and_a_long_one_is_wrapped(self):
        self.assert_exports({"ITERATION_": integer_lists([1, 20, 80])}, "ITERATION_ = [1, 20, 80]")
        self.assert_exports(
            {"ITERATION_": integer_lists(list(range(1000, 1020)))}, "ITERATION_ = [",
            "  1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1014, 1015,",
            "  1016, 1017, 1018, 1019", "]")

    def test_a_text_is_quoted(self):
        self.assert_exports({"FILENAME_": texts('a "b" \\ c\td\x01\x7f')}, r'FILENAME_ = "a \"b\" \\ c\td\u0001\u007f"')

    def test_a_text_that_is_no_utf8_stands_by_its_bytes(self):
        write_parameter_file(self.folder, {"MODEL_": {"m": {"FILE_": texts("Gr\udcf6\udcdfe")}}})
        self.assertEqual(
            '[MODEL_.m]\nFILE_ = { type = "text", hex = ["4772f6df65"] }\n', self.assert_round_trip())

    def test_a_reference_stands_by_its_id(self):
        write_parameter_file(self.folder, {
            "MONITOR_": {"m": {"DRESP_": references("DRESP_/loss")}}, "DRESP_": {"loss": {}}})
        self.assertIn('[MONITOR_.m]\nDRESP_ = "loss"\n', self.assert_round_trip())

    def test_a_reference_to_another_kind_or_to_nothing_stands_with_its_type(self):
        write_parameter_file(self.folder, {
            "MONITOR_": {"m": {"DRESP_": references("STOP_/loss")}, "n": {}}, "STOP_": {"loss": {}}})
        with h5py.File(self.folder / FILE_NAME, "r+") as file:
            file["PARFILE/MONITOR_/n"].create_dataset(
                "DRESP_", (1,), maxshape=(None,), chunks=(1,), dtype=h5py.ref_dtype)
        self.assertIn(
            '[MONITOR_.m]\nDRESP_ = { type = "reference", values = ["STOP_/loss"] }\n\n'
            '[MONITOR_.n]\nDRESP_ = { type = "reference", values = [""] }\n', self.assert_round_trip())


class FilesOfOtherPrograms(ExportTest):
    def test_types_that_the_library_never_writes_survive(self):
        write_parameter_file(self.folder, minimal_job())
        with h5py.File(self.folder / FILE_NAME, "r+") as file:
            command = file["PARFILE"].create_group("REPORT_/r")
            for name, values in (
                    ("i1", [-128, 127]), ("i2", [-32768]), ("i8", [-2**63, 2**63 - 1]), ("u1", [255]), ("u2", [65535]),
                    ("u4", [2**32 - 1]), ("u8", [2**63 - 1]), (">i4", [-2**31]), (">u2", [1]), (">f8", [0.1]),
                    ("f4", [0.1, -numpy.inf, 1e-45])):
                command.create_dataset(name, data=numpy.array(values, dtype=name), maxshape=(None,), chunks=(1,))
            command.create_dataset("utf8", data=["Größe", ""], maxshape=(None,), chunks=(1,), dtype=h5py.string_dtype())
            command.create_dataset(
                "ascii", data=["a", "b"], maxshape=(None,), chunks=(1,), dtype=h5py.string_dtype("ascii"))
        self.assert_round_trip()

    def test_kinds_without_commands_survive(self):
        with h5py.File(self.folder / FILE_NAME, "w") as file:
            file.create_group("PARFILE/DV_")
            file.create_group("PARFILE/REPORT_")
        self.assertEqual('extra_kinds = ["REPORT_"]\n\n[DV_]\n\n[REPORT_]\n', self.assert_round_trip())

    def test_what_a_description_cannot_hold_is_told_and_nothing_is_printed(self):
        write_parameter_file(self.folder, minimal_job())
        with h5py.File(self.folder / FILE_NAME, "r+") as file:
            model = file["PARFILE/MODEL_/duct"]
            model["RANK0"] = 5
            model["RANK2"] = [[1, 2]]
            model["PAIR"] = numpy.zeros(1, dtype=[("a", "i4"), ("b", "f8")])
            model["TOO_LARGE"] = numpy.array([2**63], dtype="u8")
            model["GROUP"] = h5py.SoftLink("/PARFILE")
            model.create_group("SUB")
            model.attrs["author"] = "x"
            file["PARFILE/NOTE"] = [1]
            file["PARFILE"].create_group(b"K\xff")
            file["PARFILE"].create_group(b"L\xc3/\xa9x")  # which is UTF-8 without the slash
        self.assertEqual(
            (FAULTS, "",
             "/PARFILE/MODEL_/duct is 1 attribute\n"
             "/PARFILE/MODEL_/duct/GROUP is a soft link\n"
             "/PARFILE/MODEL_/duct/SUB is a group where a key stands\n"
             "/PARFILE/NOTE is a dataset where a group stands\n"
             "the kind K\\xff has a name that is no UTF-8\n"
             "L\\xc3 \\xa9x has a name that is no UTF-8\n"
             "MODEL_ duct: PAIR is a compound of 12 bytes\n"
             "MODEL_ duct: RANK0 is a dataset of rank 0, where a key has rank 1\n"
             "MODEL_ duct: RANK2 is a dataset of rank 2, where a key has rank 1\n"
             "MODEL_ duct: TOO_LARGE is values that HDF5 cannot read\n"
             "a job description cannot hold this; mend it with set or unset, then export again\n"), self.tool("export"))

    def test_a_job_description_is_no_file_to_export(self):
        self.write("job.toml", "")
        self.assertEqual(
            (UNUSABLE, "", "job.toml: a parameter file must have the name parfile_storage.hdf5\n"),
            self.tool("export", "job.toml"))


class GeneratedJobs(ExportTest):
    def assert_survives(self, commands, number, keys_of_each=3):
        """Writes a job with h5py; the numbers make it the same each time."""
        with self.subTest(commands=commands, number=number):
            generator = Generator(self.tool("schema", "--json-schema").out, number)
            write_parameter_file(self.folder, generator.job(commands, keys_of_each))
            self.assert_round_trip()

    def test_small_jobs_survive(self):
        for number in range(15):
            self.assert_survives(12, number)

    def test_a_job_of_a_thousand_commands_survives(self):
        self.assert_survives(1000, 100)

    def test_a_job_of_ten_thousand_commands_survives(self):
        self.assert_survives(10000, 101, keys_of_each=1)


if __name__ == "__main__":
    unittest.main()
