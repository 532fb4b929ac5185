"""Failures of the library as exceptions. Texts and codes are typed from the documentation of the library."""

import copy
import pickle

import h5py
import pytest
from orvelcommands import (Gyre_Parfile, Hdf5Exception, KLV_Exception, KLV_Failure, KLV_ParfileException,
                           ParfileHdf5Storage)
from support import FILE_NAME, minimal_job, references, write_parameter_file


def test_the_classes_form_the_tree_of_the_library():
    assert KLV_Failure.__mro__[1:3] == (KLV_Exception, Exception)
    assert KLV_ParfileException.__mro__[1:3] == (KLV_Exception, Exception)
    assert not issubclass(Hdf5Exception, KLV_Exception)


def test_a_failure_has_text_code_and_prefix(tmp_path):
    h5py.File(tmp_path / FILE_NAME, "w").close()
    with pytest.raises(KLV_Failure) as caught:
        ParfileHdf5Storage(tmp_path)
    assert str(caught.value).startswith("Failed to retrieve the parfile from the optimization database.\n")
    assert caught.value.code == "192435310512"
    assert caught.value.prefix == "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] "


def test_a_failure_without_a_code_has_none(tmp_path):
    with pytest.raises(KLV_Failure, match="^Failed to create the HDF5 optimization database.\n") as caught:
        ParfileHdf5Storage(tmp_path)
    assert caught.value.code is None


def test_a_reference_to_an_unknown_command_ends_loading(tmp_path):
    commands = minimal_job()
    commands["ALGO_"]["topology"]["STOP_"] = references("DV_/porosity")
    write_parameter_file(tmp_path, commands)
    with ParfileHdf5Storage(tmp_path) as storage, pytest.raises(KLV_Failure) as caught:
        Gyre_Parfile(storage)
    assert str(caught.value) == "Invalid ID porosity of the parameter file command STOP_"
    assert caught.value.code == "161700240908"
    assert "Gyre_Parfile" in caught.value.prefix


def test_a_key_that_is_not_there_ends_loading(tmp_path):
    commands = minimal_job()
    del commands["DV_"]["porosity"]["INITIAL_"]
    write_parameter_file(tmp_path, commands)
    with ParfileHdf5Storage(tmp_path) as storage, pytest.raises(KLV_Failure) as caught:
        Gyre_Parfile(storage)
    assert (str(caught.value), caught.value.code) == (
        "Failed to retrieve value from the optimization database.", "160045060612")


def test_a_job_with_two_of_what_it_has_one_is_not_loaded(tmp_path):
    commands = minimal_job()
    commands["MODEL_"]["second"] = commands["MODEL_"]["duct"]
    write_parameter_file(tmp_path, commands)
    with ParfileHdf5Storage(tmp_path) as storage, pytest.raises(KLV_Failure) as caught:
        Gyre_Parfile(storage)
    assert str(caught.value) == "2 commands of type MODEL_ detected. Only one is expected."
    assert caught.value.code == "204046270608"


def test_a_folder_that_is_not_there_is_a_file_not_found_error(tmp_path):
    with pytest.raises(FileNotFoundError) as caught:
        ParfileHdf5Storage(tmp_path / "nowhere")
    assert caught.value.filename == str(tmp_path / "nowhere")


def test_hdf5_prints_no_report_of_its_own(tmp_path, capfd):
    with pytest.raises(KLV_Failure):
        ParfileHdf5Storage(tmp_path)
    assert capfd.readouterr().err == ""


@pytest.mark.parametrize("copied", [copy.copy, lambda failure: pickle.loads(pickle.dumps(failure))])
def test_exceptions_can_be_copied_and_sent_to_other_processes(copied):
    problem = copied(KLV_ParfileException("text", None, "", "value", "parameter", "id", "command"))
    assert (str(problem), problem.code, problem.prefix) == ("text", None, "")
    assert (problem.value, problem.parameter, problem.id_name, problem.command) == (
        "value", "parameter", "id", "command")
