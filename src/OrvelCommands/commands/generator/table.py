"""The command tables as checked, frozen records."""

import re
import reprlib
import tomllib
from dataclasses import dataclass
from pathlib import Path

VALUE_TYPES = ("int32", "double", "string", "model_id", "enum", "int32_list", "double_list", "reference")
PRESENCES = ("always", "optional", "repeated")
ID_TYPES = ("coordinate_system", "node_group", "face_group", "element_group")
COUNTS = ("one", "any")

# The one column that each of these types has beyond those of every row.
EXTRA_COLUMN = {"model_id": "ids", "enum": "enumerators", "reference": "target"}

CLASS_PATTERN = re.compile(r"[A-Z][A-Z0-9]*(_[A-Z0-9]+)*_")
NAME_PATTERN = re.compile(r"[A-Z][A-Z0-9]*(_[A-Z0-9]+)*")
SET_PATTERN = re.compile(r"[a-z][a-z0-9]*(_[a-z0-9]+)*")
AGGREGATE_PATTERN = re.compile(r"[A-Z][A-Za-z0-9]*(_[A-Za-z0-9]+)*")


LARGEST_NUMBER = 2**31 - 1


class TableError(Exception):
    """A wrong table. The text, one line, names the file, the command and the field."""


class _Shown(reprlib.Repr):
    """Values of a table as an error shows them: the beginning of what is long, nothing that Python cannot print."""

    def __init__(self):
        super().__init__()
        self.maxlevel = 2
        self.maxstring = self.maxother = 80

    def repr_int(self, number, _level):
        return repr(number) if number.bit_length() <= 64 else "a number of more than 64 bits"


_shown = _Shown().repr


def _name(value):
    """A name as an error shows it, of whatever type it is; quoted where it could not be printed or is long."""
    return value if isinstance(value, str) and value.isprintable() and len(value) <= 80 else _shown(value)


@dataclass(frozen=True)
class EnumeratorSet:
    name: str
    enumerators: tuple[tuple[str, int], ...]


@dataclass(frozen=True)
class Field:
    key: str
    type: str
    presence: str
    doc: str
    ids: str = ""
    target: str = ""
    enumerators: EnumeratorSet | None = None


@dataclass(frozen=True)
class Command:
    class_name: str
    text_name: str
    count: str
    log_line: int
    doc: str
    fields: tuple[Field, ...]
    source: str


@dataclass(frozen=True)
class Aggregate:
    class_name: str
    also: tuple[str, ...]
    doc: str


@dataclass(frozen=True)
class Table:
    name: str
    log_source: str
    aggregate: Aggregate
    enumerator_sets: tuple[EnumeratorSet, ...]
    commands: tuple[Command, ...]


class _Place:
    """Where the reader stands, for the text of an error."""

    def __init__(self, *parts):
        self.parts = parts

    def within(self, part):
        return _Place(*self.parts, part)

    def fail(self, reason):
        raise TableError(f"{': '.join(map(_name, self.parts))}: {reason}")

    def take(self, row, column, kind, what):
        if column not in row:
            self.fail(f"the column {column} is missing")
        value = row[column]
        if not isinstance(value, kind) or isinstance(value, bool) or value == "":
            self.fail(f"{column} must be {what}, not {_shown(value)}")
        return value

    def take_text(self, row, column):
        text = self.take(row, column, str, "a text that is not empty")
        if not text.isprintable() or not text.strip():
            self.fail(f"{column} must be one line that is not blank, not {_shown(text)}")
        return text

    def take_doc(self, row):
        doc = self.take_text(row, "doc")
        if '"' in doc or "\\" in doc or not doc.endswith("."):
            self.fail(f"doc must be a sentence without double quotes and backslashes, not {_shown(doc)}")
        return doc

    def take_choice(self, row, column, choices):
        value = self.take_text(row, column)
        if value not in choices:
            self.fail(f"{column} must be one of {', '.join(choices)}, not {_shown(value)}")
        return value

    def take_name(self, row, column, pattern):
        value = self.take_text(row, column)
        if not pattern.fullmatch(value):
            self.fail(f"{column} {_shown(value)} is not of the form {pattern.pattern}")
        return value

    def allow_only(self, row, columns):
        if not isinstance(row, dict):
            self.fail(f"here must stand a table with the columns {', '.join(columns)}, not {_shown(row)}")
        for column in row:
            if column not in columns:
                self.fail(f"there is no column {_name(column)}; the columns are {', '.join(columns)}")

    def require_unique(self, names, what):
        seen = set()
        for name in names:
            if name in seen:
                self.fail(f"{what} {_name(name)} stands twice")
            seen.add(name)


def read_tables(paths):
    """Gives the tables of these files, in this order, or raises TableError."""
    tables = tuple(_read_table(Path(path)) for path in paths)
    place = _Place("command tables")
    place.require_unique((c.class_name for t in tables for c in t.commands), "the class")
    place.require_unique((c.text_name for t in tables for c in t.commands), "the text name")
    place.require_unique((t.aggregate.class_name for t in tables), "the aggregate")
    for table in tables:
        _check_aggregate(table, tables)
    return tables


def _check_aggregate(table, tables):
    """An aggregate holds the commands of known tables, and with each command all that it refers to."""
    place = _Place(f"{table.name}.toml", "aggregate")
    place.require_unique((table.name, *table.aggregate.also), "also: the table")
    by_name = {one.name: one for one in tables}
    for also in table.aggregate.also:
        if also not in by_name:
            place.fail(f"also names the unknown table {_name(also)}")
    members = [by_name[name] for name in (table.name, *table.aggregate.also)]
    classes = {command.class_name for member in members for command in member.commands}
    for member in members:
        for command in member.commands:
            for field in command.fields:
                if field.target and field.target not in classes:
                    known = any(c.class_name == field.target for one in tables for c in one.commands)
                    target = _name(field.target)
                    _Place(f"{member.name}.toml", command.class_name, field.key).fail(
                        f"target names the class {target}, which {table.aggregate.class_name} does not hold"
                        if known else f"target names the unknown class {target}")


def _read_table(path):
    place = _Place(path.name)
    try:
        data = tomllib.loads(path.read_text(encoding="utf-8"))
    except ValueError as error:  # no TOML, no UTF-8, or a number of thousands of digits
        place.fail(error)
    except RecursionError:
        place.fail("lists or tables stand in each other too deeply")
    place.allow_only(data, ("log_source", "aggregate", "enumerators", "command"))
    log_source = place.take_text(data, "log_source")
    if '"' in log_source:
        place.fail(f"log_source must be a path without double quotes, not {_shown(log_source)}")
    aggregate = _read_aggregate(place.within("aggregate"), place.take(data, "aggregate", dict, "a table"))
    rows_of_sets = data.get("enumerators", {})
    if not isinstance(rows_of_sets, dict):
        place.fail(f"enumerators must be a table of sets, not {_shown(rows_of_sets)}")
    sets = {name: _read_set(place.within(f"enumerators.{name}"), name, rows) for name, rows in rows_of_sets.items()}
    commands = tuple(_read_command(place, path.stem, row, sets)
                     for row in place.take(data, "command", list, "a list of commands"))
    used = {field.enumerators.name for c in commands for field in c.fields if field.enumerators}
    for name in sets:
        if name not in used:
            place.within(f"enumerators.{name}").fail("no field uses this set")
    return Table(path.stem, log_source, aggregate, tuple(sets.values()), commands)


def _read_aggregate(place, row):
    place.allow_only(row, ("class", "also", "doc"))
    also = place.take(row, "also", list, "a list of tables")
    for name in also:
        if not isinstance(name, str):
            place.fail(f"also must be a list of names of tables, not {_shown(also)}")
    return Aggregate(place.take_name(row, "class", AGGREGATE_PATTERN), tuple(also), place.take_doc(row))


def _read_set(place, name, rows):
    if not SET_PATTERN.fullmatch(name):
        place.fail(f"the name is not of the form {SET_PATTERN.pattern}")
    if not isinstance(rows, dict) or not rows:
        place.fail("a set holds at least one enumerator")
    for enumerator, number in rows.items():
        if not NAME_PATTERN.fullmatch(enumerator):
            place.fail(f"{_shown(enumerator)} is not of the form {NAME_PATTERN.pattern}")
        if type(number) is not int or not 0 < number <= LARGEST_NUMBER:
            place.fail(f"{_name(enumerator)} must have a number from 1 to {LARGEST_NUMBER}, not {_shown(number)}")
    place.require_unique(rows.values(), "the number")
    return EnumeratorSet(name, tuple(rows.items()))


def _read_command(place, source, row, sets):
    name = row.get("class", "a command without class") if isinstance(row, dict) else "a command"
    place = place.within(name)
    place.allow_only(row, ("class", "text_name", "count", "log_line", "doc", "fields"))
    fields = tuple(_read_field(place, field, sets)
                   for field in place.take(row, "fields", list, "a list of rows"))
    if not fields:
        place.fail("a command has at least one field")
    place.require_unique((field.key for field in fields), "the key")
    place.require_unique((f"{field.key}{name}" for field in fields if field.enumerators
                          for name, _ in field.enumerators.enumerators), "the enumerator of the class")
    log_line = place.take(row, "log_line", int, "a line number")
    if not 0 < log_line <= LARGEST_NUMBER:
        place.fail(f"log_line must be a line number, not {_shown(log_line)}")
    return Command(
        class_name=place.take_name(row, "class", CLASS_PATTERN),
        text_name=place.take_name(row, "text_name", NAME_PATTERN),
        count=place.take_choice(row, "count", COUNTS),
        log_line=log_line,
        doc=place.take_doc(row),
        fields=fields,
        source=source)


def _read_field(place, row, sets):
    if not isinstance(row, dict):
        place.fail(f"a row of fields must be a table, not {_shown(row)}")
    place = place.within(row.get("key", "a row without key"))
    key = place.take_name(row, "key", CLASS_PATTERN)
    if key == "ID_NAME_":
        place.fail("every command has its ID_NAME_ without a row")
    value_type = place.take_choice(row, "type", VALUE_TYPES)
    presence = place.take_choice(row, "presence", PRESENCES)
    if value_type.endswith("_list") and presence == "repeated":
        place.fail("a list that is one value cannot be repeated")
    extra = EXTRA_COLUMN.get(value_type)
    place.allow_only(row, ("key", "type", "presence", "doc") + ((extra,) if extra else ()))
    doc = place.take_doc(row)
    if extra == "ids":
        return Field(key, value_type, presence, doc, ids=place.take_choice(row, extra, ID_TYPES))
    if extra == "target":
        return Field(key, value_type, presence, doc, target=place.take_name(row, extra, CLASS_PATTERN))
    if extra == "enumerators":
        return Field(key, value_type, presence, doc, enumerators=sets[place.take_choice(row, extra, tuple(sets))])
    return Field(key, value_type, presence, doc)
