"""The enumerations of the command classes."""

from __future__ import annotations

import enum
from typing import Any


class CommandEnumeration(enum.IntEnum):
    """Enumerators with the numbers that a parameter file holds.

    A file may hold a number that has no enumerator. It is read as a value of the enumeration all the same, with its
    number and the name INVALID; only the enumeration called with such a number raises ValueError.
    """

    @classmethod
    def _of_number(cls, number: int) -> CommandEnumeration:
        try:
            return cls(number)
        except ValueError:
            value = int.__new__(cls, number)
            value._name_ = "INVALID"
            value._value_ = number
            return value

    def __copy__(self) -> CommandEnumeration:
        return self

    def __deepcopy__(self, memory: dict[int, Any]) -> CommandEnumeration:
        return self

    def __reduce_ex__(self, protocol: Any) -> tuple[Any, ...]:
        return type(self)._of_number, (int(self),)


def make_enumeration(command_class: type, key: str, enumerators: dict[str, int],
                     documentation: str) -> type[CommandEnumeration]:
    """Makes the enumeration of a key an attribute of its command's class, with the name that it has in C++."""
    name = f"Enum_{key}"
    make: Any = CommandEnumeration  # called with a name it makes a class, which its type does not tell
    enumeration: type[CommandEnumeration] = make(name, enumerators, module=command_class.__module__,
                                                 qualname=f"{command_class.__name__}.{name}")
    enumeration.__doc__ = documentation
    setattr(command_class, name, enumeration)
    return enumeration
