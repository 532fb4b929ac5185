"""What the commands are, as data: kinds, keys, types, enumerators and their documentation."""

from __future__ import annotations

import enum
from dataclasses import dataclass
from typing import Any, Literal

from ._native import schema_rows


class VtmType(enum.IntEnum):
    """What a key holds, as storages call it."""

    vtmInteger = 0
    vtmDouble = 1
    vtmEnum = 2
    vtmString = 3
    vtmIdName = 4
    vtmReference = 5
    vtmIntegerList = 6
    vtmDoubleList = 7
    vtmSelect = 8
    vtmComplexType = 9
    vtmModelId = 10
    vtmUnknown = 11


@dataclass(frozen=True)
class Enumerator:
    """One enumerator: its name and the number that a storage holds."""

    name: str
    value: int


@dataclass(frozen=True)
class Field:
    """One key of a command."""

    key: str
    type: VtmType
    presence: Literal["always", "optional", "repeated"]
    target: str | None
    """The kind of command that a reference names."""
    model_ids: str | None
    """The list of names of the model against which a model id is checked."""
    enumerators: tuple[Enumerator, ...]
    documentation: str


@dataclass(frozen=True)
class Command:
    """One kind of command."""

    kind: str
    """The name of the class and of the kind in a storage."""
    text_name: str
    """The name in the text of a parameter file."""
    count: Literal["one", "any"]
    """How many commands of the kind a job has."""
    fields: tuple[Field, ...]
    documentation: str


def _field(key: str, number: int, presence: Any, target: str | None, model_ids: str | None,
           enumerators: tuple[tuple[str, int], ...], documentation: str) -> Field:
    return Field(key, VtmType(number), presence, target, model_ids, tuple(Enumerator(*row) for row in enumerators),
                 documentation)


_COMMANDS = tuple(Command(kind, text_name, count, tuple(_field(*row) for row in fields), documentation)
                  for kind, text_name, count, fields, documentation in schema_rows)


def Commands() -> tuple[Command, ...]:
    """All kinds of command, in the order in which a job loads them."""
    return _COMMANDS


def FindCommand(kind: str) -> Command | None:
    """The kind with this name, None when there is none."""
    return next((command for command in _COMMANDS if command.kind == kind), None)


def FindField(command: Command, key: str) -> Field | None:
    """The key of a kind, None when it has none of this name."""
    return next((field for field in command.fields if field.key == key), None)
