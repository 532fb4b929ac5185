"""The names of the model that a job uses, checked against names given from Python."""

import collections
import types

import pytest
from orvelcommands import Gyre_Parfile, KLV_Failure, KLV_ParfileException, ParfileHdf5Storage


@pytest.fixture
def job(bent_duct):
    with ParfileHdf5Storage(bent_duct) as storage:
        yield Gyre_Parfile(storage)


def test_a_job_whose_names_are_all_known_is_good(job, model_ids):
    job.ValidateModelIds(model_ids)
    assert job.FindModelIdProblems(model_ids) == []


def test_unknown_names_are_one_failure(job, model_ids):
    model_ids["coordinate_systems"].remove("cs_outlet")
    with pytest.raises(KLV_Failure) as caught:
        job.ValidateModelIds(model_ids)
    assert "model IDs referenced in the parameter file cannot be found." in str(caught.value)
    assert '"cs_outlet"' in str(caught.value)
    assert caught.value.code is None


def test_each_problem_tells_where_it_is(job, model_ids):
    model_ids["node_groups"].remove("outlet_rim")
    problems = job.FindModelIdProblems(model_ids)
    assert problems and all(type(problem) is KLV_ParfileException for problem in problems)
    assert {problem.value for problem in problems} == {"outlet_rim"}
    (group,) = [problem for problem in problems if problem.command == "NODE_GROUP"]
    assert (group.parameter, group.id_name, group.code, group.prefix) == ("SUBTRACT", "moving_nodes", None, "")
    assert str(group).startswith("Referenced ID is not found\n")


def test_without_any_names_all_50_are_unknown(job):
    assert len(job.FindModelIdProblems({})) == 50
    with pytest.raises(KLV_Failure, match="^50 model IDs"):
        job.ValidateModelIds({})


def test_names_of_one_check_are_forgotten_by_the_next(job, model_ids):
    job.ValidateModelIds(model_ids)
    assert len(job.FindModelIdProblems({})) == 50


@pytest.mark.parametrize("mapping", [types.MappingProxyType, collections.OrderedDict])
def test_any_mapping_of_any_iterables_serves(job, model_ids, mapping):
    job.ValidateModelIds(mapping({name: iter(names) for name, names in model_ids.items()}))


def test_an_unknown_list_is_refused(job):
    with pytest.raises(ValueError) as caught:
        job.ValidateModelIds({"edge_groups": []})
    assert str(caught.value) == ("there is no list edge_groups of model ids; the lists are element_groups, "
                                 "node_groups, face_groups, coordinate_systems")


@pytest.mark.parametrize("wrong, text", [
    ({"node_groups": "outlet_rim"}, "node_groups is a list of names, not one name"),
    ({"node_groups": [7]}, "node_groups holds names, not 7"),
    ({7: []}, "a mapping of model ids holds names, not 7")])
def test_what_is_no_name_is_refused(job, wrong, text):
    with pytest.raises(TypeError) as caught:
        job.ValidateModelIds(wrong)
    assert str(caught.value) == text


def test_the_storage_must_be_open(bent_duct, model_ids):
    with ParfileHdf5Storage(bent_duct) as storage:
        job = Gyre_Parfile(storage)
    with pytest.raises(ValueError, match="the storage is closed"):
        job.ValidateModelIds(model_ids)
    with pytest.raises(ValueError, match="the storage is closed"):
        job.FindModelIdProblems(model_ids)
