"""Loaded jobs as Python objects. The expectations are typed from the job descriptions of the examples."""

import copy
import os
import pickle

import pytest
from orvelcommands import (ALGO_, DV_, FILTER_, Gyre_Parfile, KLV_Failure, OrvelCommand, ParfileHdf5Storage,
                           Smooth_Parfile)
from support import integers, minimal_job, references, texts, write_parameter_file


@pytest.fixture
def job(bent_duct):
    with ParfileHdf5Storage(bent_duct) as storage:
        return Gyre_Parfile(storage)


def load(folder, commands):
    write_parameter_file(folder, commands)
    with ParfileHdf5Storage(folder) as storage:
        return Gyre_Parfile(storage)


def test_references_lead_from_command_to_command(job):
    porosity = job.ALGO_.DV_.DV_[0]
    assert porosity.ID_NAME_ == "porosity"
    assert porosity.FILTER_[0].ID_NAME_ == "pipe_transition"
    assert porosity.FILTER_[0].RADIUS_ == 0.016


def test_values_have_the_types_of_python(job):
    assert job.MODEL_.FILE_ == "mesh/bent_duct.cgns"
    assert type(job.DV_[1].INITIAL_) is float and job.DV_[1].INITIAL_ == 0.35
    bolt_holes = job.NODE_GROUP_[0]
    assert bolt_holes.ID_NAME_ == "bolt_holes"
    assert bolt_holes.LIST_[:3] == (20411, 20412, 20413) and len(bolt_holes.LIST_) == 16
    assert job.FACE_GROUP_[0].MERGE_ == ("inlet_main", "inlet_side", "outlet")


def test_optional_keys_that_are_absent_are_none(job):
    everything, porosity, offset = job.DV_
    assert (everything.ELEMENT_GROUP_, porosity.ELEMENT_GROUP_) == (None, "design_space")
    assert (porosity.INITIAL_DV_FIELD_, offset.INITIAL_DV_FIELD_) == (None, "as_imported")


def test_an_optional_reference_that_is_absent_is_none(job):
    targets = [(monitored.DRESP_, monitored.OPERATOR_) for monitored in job.CONSTRAINT_]
    assert targets and all((response is None) != (operator is None) for response, operator in targets)


def test_repeated_keys_are_tuples_also_without_a_value(job):
    everything, porosity, offset = job.DV_
    assert everything.FILTER_ == ()
    assert [filter.ID_NAME_ for filter in offset.FILTER_] == ["wall_smoothing", "flange_plane"]


def test_enumerators_are_members_of_the_enumeration_of_the_key(job):
    kind = job.DV_[1].TYPE_
    assert kind is DV_.Enum_TYPE_.DENSITY
    assert (kind.name, kind.value, int(kind), kind == 68) == ("DENSITY", 68, 68, True)
    assert str(DV_.Enum_TYPE_) == "<enum 'Enum_TYPE_'>"


def test_a_number_without_an_enumerator_keeps_its_number_and_is_called_invalid(tmp_path):
    commands = minimal_job()
    commands["DV_"]["porosity"]["TYPE_"] = integers(-7)
    kind = load(tmp_path, commands).ALGO_.DV_.TYPE_
    assert isinstance(kind, DV_.Enum_TYPE_)
    assert (kind.name, kind.value, kind == -7, kind in list(DV_.Enum_TYPE_)) == ("INVALID", -7, True, False)
    assert repr(kind) == "<Enum_TYPE_.INVALID: -7>"
    with pytest.raises(ValueError, match="-7 is not a valid"):
        DV_.Enum_TYPE_(-7)


def test_enumerators_can_be_copied_and_pickled(job, tmp_path):
    commands = minimal_job()
    commands["DV_"]["porosity"]["TYPE_"] = integers(-7)
    for kind in (job.DV_[1].TYPE_, load(tmp_path, commands).ALGO_.DV_.TYPE_):
        for other in (copy.copy(kind), copy.deepcopy([kind])[0], pickle.loads(pickle.dumps(kind))):
            assert (type(other), other.name, other.value) == (type(kind), kind.name, kind.value)


def test_the_same_command_is_the_same_object(job):
    assert job.ALGO_ is job.ALGO_
    assert job.ALGO_.DV_.DV_[0] is job.DV_[1]
    assert job.DV_[0] != job.DV_[1]


def test_all_commands_come_in_the_order_of_loading(job):
    kinds = [type(command).__name__ for command in job]
    assert (len(job), len(kinds)) == (55, 55)
    assert (kinds[0], kinds[-1], len(set(kinds))) == ("MODEL_", "SMOOTH_", 25)
    assert all(isinstance(command, OrvelCommand) for command in job)


def test_a_command_tells_its_kind_and_id(job):
    assert repr(job.ALGO_) == "<ALGO_ 'bend_optimization'>"
    assert (type(job.ALGO_), type(job.ALGO_).__module__) == (ALGO_, "orvelcommands.commands")


def test_classes_and_keys_carry_the_documentation_of_the_table():
    assert FILTER_.__doc__ == "Filter that design variables or sensitivities pass through, on a group of the model."
    assert DV_.INITIAL_.__doc__ == "Start value of every variable."
    assert DV_.Enum_TYPE_.__doc__ == "What one variable stands for."
    assert Gyre_Parfile.FILTER_.__doc__ == FILTER_.__doc__
    assert Gyre_Parfile.__doc__ == "The parameter file of a fluid optimization job."


def test_a_smoothing_job_holds_the_smoothing_commands(smoothing, bent_duct):
    with ParfileHdf5Storage(smoothing) as storage:
        assert [type(command).__name__ for command in Smooth_Parfile(storage)] == ["SMOOTH_"] * len(
            Smooth_Parfile(storage).SMOOTH_)
    with ParfileHdf5Storage(bent_duct) as storage:
        assert len(Smooth_Parfile(storage)) == len(Gyre_Parfile(storage).SMOOTH_)


def test_the_working_directory_is_the_folder_unless_one_is_named(bent_duct, monkeypatch):
    monkeypatch.chdir(bent_duct)
    with ParfileHdf5Storage() as storage:
        assert Gyre_Parfile(storage).ALGO_.ID_NAME_ == "bend_optimization"


def test_opening_leaves_the_working_directory_as_it_was(bent_duct, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    with ParfileHdf5Storage(str(bent_duct)):
        assert os.getcwd() == str(tmp_path)
    with pytest.raises(KLV_Failure):
        ParfileHdf5Storage(bent_duct.parent)
    assert os.getcwd() == str(tmp_path)


def test_a_reference_to_a_command_that_the_job_does_not_hold_is_a_lookup_error(tmp_path):
    commands = minimal_job()
    commands["ALGO_"]["topology"]["OBJ_FUNC_"] = references("DV_/porosity")  # no objective has this id
    algorithm = load(tmp_path, commands).ALGO_
    with pytest.raises(LookupError) as caught:
        algorithm.OBJ_FUNC_
    assert str(caught.value) == "OBJ_FUNC_ of the ALGO_ command topology leads to no command of the job"
    assert algorithm.DV_.ID_NAME_ == "porosity"


def test_bytes_that_are_no_utf8_are_read_and_find_their_way_back(tmp_path):
    write_parameter_file(tmp_path, minimal_job())
    odd = b"gr\xfcn".decode("utf-8", "surrogateescape")
    with ParfileHdf5Storage(tmp_path, "r+") as storage:
        storage.SetValue("MODEL_", "duct", "FILE_", 1, odd)
    with ParfileHdf5Storage(tmp_path) as storage:
        assert Gyre_Parfile(storage).MODEL_.FILE_ == odd


def test_a_command_has_no_other_keys_and_takes_no_values(job):
    with pytest.raises(AttributeError):
        job.DV_[0].RADIUS_
    with pytest.raises(AttributeError):
        job.DV_[0].INITIAL_ = 0.5
    with pytest.raises(AttributeError):
        job.DV_[0].NOTE_ = "mine"


def test_an_optional_text_that_is_empty_is_not_none(tmp_path):
    commands = minimal_job()
    commands["MODEL_"]["duct"]["SOLVER_"] = texts("")
    assert load(tmp_path, commands).MODEL_.SOLVER_ == ""
