"""The failures of the library as exceptions.

`str()` of each is its text, `code` the twelve digits by which programs know the place that raised it, or None where it
has none, and `prefix` what a log line of that place begins with.
"""

from __future__ import annotations


class KLV_Exception(Exception):
    """The root of all failures of the library."""

    def __init__(self, text: str, code: str | None = None, prefix: str = "") -> None:
        super().__init__(text, code, prefix)
        self.code = code
        self.prefix = prefix

    def __str__(self) -> str:
        return str(self.args[0])


class KLV_Failure(KLV_Exception):
    """What ends an operation of the library."""


class KLV_ParfileException(KLV_Exception):
    """One collected problem: a value of a command that the model does not know."""

    def __init__(self, text: str, code: str | None = None, prefix: str = "", value: str = "", parameter: str = "",
                 id_name: str = "", command: str = "") -> None:
        super().__init__(text, code, prefix)
        self.args = (text, code, prefix, value, parameter, id_name, command)
        self.value = value
        self.parameter = parameter
        self.id_name = id_name
        self.command = command


class Hdf5Exception(Exception):
    """A failure of HDF5 that no operation of the storage turns into one of its own."""
