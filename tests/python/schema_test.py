"""The description of the commands as data. The expectations are typed by hand."""

import pytest
from orvelcommands import commands, schema
from orvelcommands.schema import Enumerator, VtmType


def field(kind, key):
    return schema.FindField(schema.FindCommand(kind), key)


def test_all_25_kinds_come_in_the_order_of_loading():
    kinds = [command.kind for command in schema.Commands()]
    assert len(kinds) == 25
    assert (kinds[:3], kinds[-1]) == (["MODEL_", "ELEMENT_GROUP_", "FACE_GROUP_"], "SMOOTH_")


def test_a_kind_tells_its_names_count_and_documentation():
    model = schema.FindCommand("MODEL_")
    assert (model.kind, model.text_name, model.count) == ("MODEL_", "MODEL_INPUT", "one")
    assert model.documentation == ("Model that the job works on: the file that holds it and the solver that it belongs "
                                   "to.")
    assert [one.key for one in model.fields] == ["FILE_", "SOLVER_"]
    assert schema.FindCommand("DV_").count == "any"


@pytest.mark.parametrize("kind, key, expected", [
    ("DV_", "INITIAL_", (VtmType.vtmDouble, "always", None, None)),
    ("DV_", "ELEMENT_GROUP_", (VtmType.vtmModelId, "optional", None, "element_groups")),
    ("DV_", "NODE_GROUP_", (VtmType.vtmModelId, "optional", None, "node_groups")),
    ("DV_", "FILTER_", (VtmType.vtmReference, "repeated", "FILTER_", None)),
    ("DV_", "TYPE_", (VtmType.vtmEnum, "always", None, None)),
    ("NODE_GROUP_", "LIST_", (VtmType.vtmIntegerList, "optional", None, None)),
    ("DRESP_", "FACE_GROUP_", (VtmType.vtmModelId, "optional", None, "face_groups")),
    ("STOP_", "ITER_MAX_", (VtmType.vtmInteger, "always", None, None)),
    ("MODEL_", "FILE_", (VtmType.vtmString, "always", None, None))])
def test_a_key_tells_type_presence_target_and_list_of_names(kind, key, expected):
    found = field(kind, key)
    assert (found.type, found.presence, found.target, found.model_ids) == expected


def test_an_enumeration_tells_its_enumerators():
    assert field("DV_", "TYPE_").enumerators == (
        Enumerator("AUTO", 65), Enumerator("DENSITY", 68), Enumerator("DETACHED", 69), Enumerator("NODAL", 78),
        Enumerator("NODAL_VECTOR", 86))
    assert field("DV_", "INITIAL_").enumerators == ()


def test_what_is_not_there_is_none():
    assert schema.FindCommand("DV") is None
    assert schema.FindField(schema.FindCommand("DV_"), "RADIUS_") is None


def test_every_kind_has_its_class_with_its_keys():
    for command in schema.Commands():
        made = getattr(commands, command.kind)
        assert made.__doc__ == command.documentation
        for one in command.fields:
            assert getattr(made, one.key).__doc__ == one.documentation
