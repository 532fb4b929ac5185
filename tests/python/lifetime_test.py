"""What the library leaves to its caller cannot go wrong in Python."""

import copy
import gc
import pickle
import subprocess
import sys
import weakref

import h5py
import pytest
from orvelcommands import (ALGO_, DV_, Gyre_Parfile, KLV_Failure, OrvelCommand, ParfileHdf5Storage, Smooth_Parfile,
                           commands)
from support import FILE_NAME, minimal_job, write_parameter_file


@pytest.fixture
def folder(tmp_path):
    write_parameter_file(tmp_path, minimal_job())
    return tmp_path


def load(folder):
    return Gyre_Parfile(ParfileHdf5Storage(folder))


def test_a_command_keeps_all_commands_alive(folder):
    variable = load(folder).ALGO_.DV_
    gc.collect()
    assert (variable.ID_NAME_, variable.INITIAL_) == ("porosity", 0.4)


def test_every_command_keeps_the_others_that_it_refers_to_alive(folder):
    algorithm = next(command for command in load(folder) if isinstance(command, ALGO_))
    gc.collect()
    assert [algorithm.OBJ_FUNC_.ID_NAME_, algorithm.STOP_.ID_NAME_] == ["loss", "converged"]


def test_a_job_outlives_its_storage(folder):
    job = load(folder)
    gc.collect()
    assert job.ALGO_.STOP_.ITER_MAX_ == 80
    assert job.FindModelIdProblems({})


def test_the_file_is_free_once_the_storage_is_closed(folder):
    storage = ParfileHdf5Storage(folder, "r+")
    job = Gyre_Parfile(storage)
    storage.close()
    with h5py.File(folder / FILE_NAME, "r+") as file:
        del file["PARFILE"]
    assert job.DV_[0].INITIAL_ == 0.4


def test_the_file_is_free_once_nothing_of_it_is_left(folder):
    job = load(folder)
    del job
    gc.collect()
    h5py.File(folder / FILE_NAME, "w").close()


def test_the_file_is_free_after_a_storage_that_could_not_be_opened(tmp_path):
    h5py.File(tmp_path / FILE_NAME, "w").close()
    for mode in ("r", "r+"):
        with pytest.raises(KLV_Failure):
            ParfileHdf5Storage(tmp_path, mode)
    with h5py.File(tmp_path / FILE_NAME, "r+") as file:
        file.create_group("PARFILE")
    with ParfileHdf5Storage(tmp_path, "r+") as storage:
        storage.AddCommand("DV_", "area")


def test_files_of_others_stay_open_when_a_storage_cannot_be_opened(tmp_path):
    h5py.File(tmp_path / FILE_NAME, "w").close()
    with h5py.File(tmp_path / "other.hdf5", "w") as other:
        with pytest.raises(KLV_Failure):
            ParfileHdf5Storage(tmp_path)
        other["after"] = 1
        assert other["after"][()] == 1


@pytest.mark.parametrize("use", [
    lambda storage: storage.GetNumCommand("DV_"),
    lambda storage: storage.AddValue("DV_", "porosity", "INITIAL_", 1.0),
    Gyre_Parfile,
    Smooth_Parfile])
def test_a_closed_storage_is_a_value_error(folder, use):
    storage = ParfileHdf5Storage(folder)
    storage.close()
    storage.close()
    assert storage.closed
    with pytest.raises(ValueError, match="^the storage is closed$"):
        use(storage)


def test_an_exception_in_a_with_block_passes_and_closes_the_file(folder):
    with pytest.raises(ZeroDivisionError):
        with ParfileHdf5Storage(folder) as storage:
            1 / 0
    assert storage.closed


@pytest.mark.parametrize("copied", [copy.copy, copy.deepcopy, pickle.dumps])
def test_nothing_of_the_library_can_be_copied(folder, copied):
    with ParfileHdf5Storage(folder) as storage:
        job = Gyre_Parfile(storage)
        for one in (storage, job, job.ALGO_):
            with pytest.raises(TypeError):
                copied(one)


def test_commands_are_made_by_a_job_alone():
    for name in dir(commands):
        made = getattr(commands, name)
        if isinstance(made, type) and issubclass(made, OrvelCommand):
            with pytest.raises(TypeError):
                made()


def test_an_object_that_was_never_made_cannot_be_used(folder):
    for hollow, use in ((DV_.__new__(DV_), lambda one: one.INITIAL_),
                        (DV_.__new__(DV_), lambda one: one.ID_NAME_),
                        (ParfileHdf5Storage.__new__(ParfileHdf5Storage), lambda one: one.GetNumCommand("DV_")),
                        (ParfileHdf5Storage.__new__(ParfileHdf5Storage), Gyre_Parfile),
                        (Gyre_Parfile.__new__(Gyre_Parfile), lambda one: one.ALGO_),
                        (Gyre_Parfile.__new__(Gyre_Parfile), list)):
        with pytest.raises((TypeError, RuntimeError)):
            use(hollow)


def test_a_second_construction_changes_nothing(folder):
    job = load(folder)
    job.__init__(ParfileHdf5Storage(folder))
    assert len(job.DV_) == 1


def test_a_key_of_one_class_does_not_read_a_command_of_another(folder):
    with pytest.raises(TypeError):
        DV_.INITIAL_.fget(load(folder).ALGO_)


def test_no_job_comes_from_none():
    with pytest.raises(TypeError):
        Gyre_Parfile(None)


def test_a_job_can_be_dropped_while_its_commands_are_walked(folder):
    walk = iter(load(folder))
    gc.collect()
    assert len(list(walk)) == 11


def test_nothing_is_left_once_the_last_object_is_gone(folder):
    class Kept(ParfileHdf5Storage):
        """Can be watched, which the class itself cannot."""

    storage = Kept(folder)
    watched = weakref.ref(storage)
    variable = Gyre_Parfile(storage).ALGO_.DV_
    del storage, variable
    gc.collect()
    assert watched() is None


def test_python_ends_well_with_everything_still_open(folder):
    program = ("import sys; from orvelcommands import *; storage = ParfileHdf5Storage(sys.argv[1], 'r+'); "
               "job = Gyre_Parfile(storage); command = job.ALGO_; commands = list(job)")
    ended = subprocess.run([sys.executable, "-B", "-c", program, folder], capture_output=True, text=True, check=False)
    assert (ended.stdout, ended.stderr, ended.returncode) == ("", "", 0)
