"""An HDF5 storage that is filled and changed from Python, read back with h5py."""

import decimal
import fractions

import h5py
import numpy
import pytest
from orvelcommands import DV_, Gyre_Parfile, KLV_Failure, ParfileHdf5Storage
from support import FILE_NAME, minimal_job, write_parameter_file


@pytest.fixture
def storage(tmp_path):
    """A new file with the variable and filter that the tests add keys to."""
    with ParfileHdf5Storage(tmp_path, "x") as made:
        made.AddCommand("DV_", "porosity")
        made.AddCommand("FILTER_", "smooth")
        yield made


def read(storage, tmp_path, kind, name, key):
    storage.close()
    with h5py.File(tmp_path / FILE_NAME) as file:
        return file["PARFILE"][kind][name][key][()].tolist()


def test_a_whole_job_can_be_built(tmp_path):
    with ParfileHdf5Storage(tmp_path, "x") as storage:
        commands = minimal_job()
        for kind, of_kind in commands.items():
            for name in of_kind:
                storage.AddCommand(kind, name)
        for kind, of_kind in commands.items():
            for name, keys in of_kind.items():
                for key, (sort, values) in keys.items():
                    for value in values:
                        if sort == "reference":
                            storage.AddReference(kind, name, key, value.split("/")[1])
                        else:
                            storage.AddValue(kind, name, key, value)
        job = Gyre_Parfile(storage)
    assert job.ALGO_.DV_.INITIAL_ == 0.4
    assert job.FLOWPATHS_.IN_ == ("inlet",)


def test_the_key_settles_the_type(storage, tmp_path):
    storage.AddValue("DV_", "porosity", "INITIAL_", 1)
    storage.close()
    with h5py.File(tmp_path / FILE_NAME) as file:
        dataset = file["PARFILE/DV_/porosity/INITIAL_"]
        assert (dataset.dtype, dataset[()].tolist()) == (numpy.dtype("float64"), [1.0])


@pytest.mark.parametrize("given", [DV_.Enum_TYPE_.NODAL, 78, "NODAL", numpy.int64(78)])
def test_an_enumerator_is_given_as_itself_its_number_or_its_name(storage, tmp_path, given):
    storage.AddValue("DV_", "porosity", "TYPE_", given)
    assert read(storage, tmp_path, "DV_", "porosity", "TYPE_") == [78]


def test_texts_have_their_terminating_nul(storage, tmp_path):
    storage.AddValue("DV_", "porosity", "ELEMENT_GROUP_", "Düse")
    assert b"".join(read(storage, tmp_path, "DV_", "porosity", "ELEMENT_GROUP_")[0]) == "Düse".encode()
    with h5py.File(tmp_path / FILE_NAME) as file:
        assert len(file["PARFILE/DV_/porosity/ELEMENT_GROUP_"][0]) == 6


@pytest.mark.parametrize("given", [[3, 1, 2], (3, 1, 2), numpy.array([3, 1, 2])])
def test_a_list_is_one_value(storage, tmp_path, given):
    storage.AddCommand("NODE_GROUP_", "rim")
    storage.AddValue("NODE_GROUP_", "rim", "LIST_", given)
    assert storage.GetNumElements("NODE_GROUP_", "rim", "LIST_") == 1
    assert storage.GetValue("NODE_GROUP_", "rim", "LIST_", 1) == (3, 1, 2)
    (only,) = read(storage, tmp_path, "NODE_GROUP_", "rim", "LIST_")
    assert only.tolist() == [3, 1, 2]


def test_values_of_a_repeated_key_are_appended_and_overwritten(storage, tmp_path):
    storage.AddCommand("FLOWPATHS_", "bend")
    for inlet in ("main", "side"):
        storage.AddValue("FLOWPATHS_", "bend", "IN_", inlet)
    storage.SetValue("FLOWPATHS_", "bend", "IN_", 2, "upper")
    values = [storage.GetValue("FLOWPATHS_", "bend", "IN_", index) for index in (1, 2)]
    assert values == ["main", "upper"]
    found = read(storage, tmp_path, "FLOWPATHS_", "bend", "IN_")
    assert [b"".join(one) for one in found] == [b"main", b"upper"]


def test_a_reference_goes_to_the_kind_that_the_key_names(storage, tmp_path):
    storage.AddReference("DV_", "porosity", "FILTER_", "smooth")
    assert storage.GetReference("DV_", "porosity", "FILTER_", 1) == "smooth"
    storage.close()
    with h5py.File(tmp_path / FILE_NAME) as file:
        assert file[file["PARFILE/DV_/porosity/FILTER_"][0]].name == "/PARFILE/FILTER_/smooth"


def test_deleted_values_are_gone(storage, tmp_path):
    storage.AddValue("DV_", "porosity", "INITIAL_", 0.5)
    storage.DeleteValues("DV_", "porosity", "INITIAL_")
    storage.DeleteValues("DV_", "porosity", "INITIAL_")
    assert not storage.HasElement("DV_", "porosity", "INITIAL_")
    storage.close()
    with h5py.File(tmp_path / FILE_NAME) as file:
        assert list(file["PARFILE/DV_/porosity"]) == []


def test_commands_are_found_by_kind_id_and_position(storage):
    storage.AddCommand("DV_", "area")
    assert (storage.GetNumCommand("DV_"), storage.GetNumCommand("CS_")) == (2, 0)
    assert [storage.GetCommandName("DV_", position) for position in (0, 1)] == ["area", "porosity"]
    assert (storage.HasCommand("DV_", "area"), storage.HasCommand("DV_", "volume")) == (True, False)
    with pytest.raises(KLV_Failure) as caught:
        storage.GetCommandName("DV_", 2)
    assert caught.value.code == "185548060612"


@pytest.mark.parametrize("key, value, text", [
    ("INITIAL_", "much", "INITIAL_ takes a number, not 'much'"),
    ("TYPE_", 1.5, "TYPE_ takes an enumerator, its number or its name, not 1.5"),
    ("ELEMENT_GROUP_", 7, "ELEMENT_GROUP_ takes a text, not 7"),
    ("ELEMENT_GROUP_", b"pipes", "ELEMENT_GROUP_ takes a text, not b'pipes'"),
    ("FILTER_", "smooth", "FILTER_ holds references, which AddReference adds")])
def test_a_value_of_another_type_is_a_type_error(storage, key, value, text):
    with pytest.raises(TypeError) as caught:
        storage.AddValue("DV_", "porosity", key, value)
    assert str(caught.value) == text
    assert not storage.HasElement("DV_", "porosity", key)


@pytest.mark.parametrize("number", [2**31, -2**31 - 1, 2**100, 1.0])
def test_a_whole_number_beyond_32_bits_is_a_type_error(storage, number):
    storage.AddCommand("OPT_PARAM_", "run")
    with pytest.raises(TypeError, match="OPT_START_ takes a whole number of 32 bits"):
        storage.AddValue("OPT_PARAM_", "run", "OPT_START_", number)


@pytest.mark.parametrize("number", [decimal.Decimal("3.7"), fractions.Fraction(7, 2), numpy.float32(3.0),
                                    numpy.array([3.0]), "3", None])
def test_a_number_that_may_have_a_fraction_is_no_whole_number(storage, number):
    storage.AddCommand("OPT_PARAM_", "run")
    for key, value in (("OPT_START_", number), ("STORE_INT_", [1, number]), ("STORE_INT_", (number,))):
        with pytest.raises(TypeError, match=f"{key} takes a (list of )?whole numbers? of 32 bits"):
            storage.AddValue("OPT_PARAM_", "run", key, value)
        assert not storage.HasElement("OPT_PARAM_", "run", key)
    if not isinstance(number, str):
        with pytest.raises(TypeError, match="TYPE_ takes an enumerator, its number or its name"):
            storage.AddValue("DV_", "porosity", "TYPE_", number)


@pytest.mark.parametrize("number", [3, True, numpy.int8(3), numpy.uint64(3)])
def test_a_whole_number_of_any_class_is_taken(storage, number):
    storage.AddCommand("OPT_PARAM_", "run")
    storage.AddValue("OPT_PARAM_", "run", "OPT_START_", number)
    storage.AddValue("OPT_PARAM_", "run", "STORE_INT_", [number, 4])
    assert storage.GetValue("OPT_PARAM_", "run", "OPT_START_", 1) == number
    assert storage.GetValue("OPT_PARAM_", "run", "STORE_INT_", 1) == (number, 4)


@pytest.mark.parametrize("given", [99, "NODE", ""])
def test_what_is_no_enumerator_is_a_value_error(storage, given):
    with pytest.raises(ValueError) as caught:
        storage.AddValue("DV_", "porosity", "TYPE_", given)
    assert str(caught.value) == f"TYPE_ is one of AUTO, DENSITY, DETACHED, NODAL, NODAL_VECTOR, not {given!r}"


def test_a_text_with_a_nul_is_a_value_error(storage):
    with pytest.raises(ValueError, match="cannot hold a NUL"):
        storage.AddValue("DV_", "porosity", "ELEMENT_GROUP_", "pi\0pe")


@pytest.mark.parametrize("name", ["", ".", "a/b", "a\0b"])
def test_an_id_that_would_be_another_place_in_the_file_is_a_value_error(storage, name):
    with pytest.raises(ValueError):
        storage.AddCommand("DV_", name)
    with pytest.raises(ValueError):
        storage.AddReference("DV_", "porosity", "FILTER_", name)


def test_unknown_kinds_and_keys_are_value_errors(storage):
    with pytest.raises(ValueError, match="^there is no kind of command DV$"):
        storage.AddCommand("DV", "area")
    with pytest.raises(ValueError, match="^a DV_ has no key RADIUS_$"):
        storage.AddValue("DV_", "porosity", "RADIUS_", 1.0)
    with pytest.raises(TypeError, match="^INITIAL_ holds no references; AddValue adds its values$"):
        storage.AddReference("DV_", "porosity", "INITIAL_", "smooth")


@pytest.mark.parametrize("index", [0, -1, 3, 2**31, -2**31])
def test_an_index_outside_the_values_is_an_index_error_and_changes_nothing(storage, index):
    storage.AddCommand("FLOWPATHS_", "bend")
    for inlet in ("main", "side"):
        storage.AddValue("FLOWPATHS_", "bend", "IN_", inlet)
    for attempt in (lambda: storage.SetValue("FLOWPATHS_", "bend", "IN_", index, "other"),
                    lambda: storage.GetValue("FLOWPATHS_", "bend", "IN_", index),
                    lambda: storage.GetReference("FLOWPATHS_", "bend", "IN_", index)):
        with pytest.raises(IndexError) as caught:
            attempt()
        assert str(caught.value) == f"IN_ has 2 values, counted from 1; there is no value {index}"
    assert [storage.GetValue("FLOWPATHS_", "bend", "IN_", place) for place in (1, 2)] == ["main", "side"]


def test_a_taken_id_is_the_failure_of_the_library(storage):
    with pytest.raises(KLV_Failure, match="^The ID_NAME porosity is already used. Please check your parameterfile$"):
        storage.AddCommand("DV_", "porosity")


def test_a_value_for_an_absent_command_is_the_failure_of_the_library(storage):
    with pytest.raises(KLV_Failure) as caught:
        storage.AddValue("DV_", "area", "INITIAL_", 0.5)
    assert caught.value.code == "172758040612"


def test_a_reference_to_an_absent_command_is_the_failure_of_the_library(storage):
    with pytest.raises(KLV_Failure, match="^A command of type FILTER_ with the ID_NAME sharp referenced"):
        storage.AddReference("DV_", "porosity", "FILTER_", "sharp")


def test_nothing_can_be_written_to_a_storage_opened_to_read(tmp_path):
    path = write_parameter_file(tmp_path, minimal_job())
    before = path.read_bytes()
    with ParfileHdf5Storage(tmp_path) as storage:
        for code, attempt in (("185548010612", lambda: storage.AddCommand("DV_", "area")),
                              ("172758040612", lambda: storage.AddValue("DV_", "porosity", "ELEMENT_GROUP_", "pipes")),
                              ("172740040612", lambda: storage.SetValue("DV_", "porosity", "INITIAL_", 1, 0.9)),
                              ("172740050612", lambda: storage.AddReference("DV_", "porosity", "DV_", "porosity")),
                              ("202404140612", lambda: storage.DeleteValues("DV_", "porosity", "INITIAL_"))):
            with pytest.raises(KLV_Failure) as caught:
                attempt()
            assert caught.value.code == code
    assert path.read_bytes() == before


def test_a_new_file_takes_no_place_that_is_taken(tmp_path):
    path = write_parameter_file(tmp_path, minimal_job())
    before = path.read_bytes()
    with pytest.raises(FileExistsError) as caught:
        ParfileHdf5Storage(tmp_path, "x")
    assert caught.value.filename == str(path)
    assert path.read_bytes() == before


def test_another_mode_is_a_value_error(tmp_path):
    with pytest.raises(ValueError, match="^the mode of a storage is 'r', 'r\\+' or 'x', not 'w'$"):
        ParfileHdf5Storage(tmp_path, "w")
