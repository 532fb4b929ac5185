"""The wrong forms of the command tables and the container tables, each wrong in one row alone."""

import re
from dataclasses import dataclass
from pathlib import Path

COMMANDS = "src/OrvelCommands/commands"
CONTAINER_TABLES = "src/OrvelCommands/storage/OrvelParfileStorageCmdContainer_tables.cpp"
TABLES = (f"{COMMANDS}/gyre_commands.toml", f"{COMMANDS}/smooth_commands.toml", CONTAINER_TABLES)

# What stands in a column instead of what should. Each is a value that the generator takes.
OTHER_VALUE = {
    "presence": {"always": "optional", "optional": "always", "repeated": "optional"},
    "type": {"string": "int32", "int32": "double", "double": "int32", "int32_list": "double_list",
             "double_list": "int32_list", "model_id": "string", "enum": "int32", "reference": "string"},
    "ids": {"element_group": "node_group", "node_group": "face_group", "face_group": "element_group",
            "coordinate_system": "node_group"},
    "count": {"one": "any", "any": "one"},
}

# Names of the engine that are no plain kinds or items, or what the others are changed to.
OTHER_NAME = {
    "GROUP_TYPE_ELEMENT": "GROUP_TYPE_NODE", "GROUP_TYPE_NODE": "GROUP_TYPE_ELEMENT",
    "GROUP_FORMAT_MERGE": "GROUP_FORMAT_XOR", "GROUP_FORMAT_SUBTRACT": "GROUP_FORMAT_MERGE",
    "GROUP_FORMAT_INTERSECT": "GROUP_FORMAT_SUBTRACT", "GROUP_FORMAT_XOR": "GROUP_FORMAT_INTERSECT",
    "GROUP": "FILE", "SMOOTH": "STOP",
}

OTHER_FUNCTION = {"DvCount": "PlainCount", "DvName": "PlainName", "MergedDvMembers": "OptimizeDvReferences",
                  "OptimizeDvReferences": "MergedDvMembers"}

# Columns that a type needs and other types must not have.
COLUMNS_OF_TYPE = ("ids", "enumerators", "target")

FIELD = re.compile(r'\s*\{ key = "')
ENUMERATOR = re.compile(r"(\w+)(\s*=\s*)(\d+)\s*(#.*)?$")
TEXT_NAME = re.compile(r'text_name = "(\w+)"')
COUNT = re.compile(r'count = "(\w+)"')
CONTAINER_ROW = re.compile(r'\s+\{"\w+_",')
CONTAINER_TABLE = re.compile(r"(\s+m_key_mappings\[Defs::)\w+")
SET_OF_KINDS = re.compile(r"\s+m_(singleton_commands|list_items) = ")


@dataclass(frozen=True)
class Change:
    path: str
    line: int
    what: str
    text: str  # of the whole file

    @property
    def name(self):
        return f"{Path(self.path).name}:{self.line}: {self.what}"


def field_forms(line, enumerator_sets):
    """The wrong forms of the row of a key, each with the name of the column that is wrong."""
    key = re.search(r'key = "(\w+)"', line)
    yield "label", line.replace(key[0], f'key = "{key[1][:-1]}X_"', 1)
    for column in ("type", "presence", "ids"):
        found = re.search(rf'\b{column} = "(\w+)"', line)
        if found:
            wrong = line.replace(found[0], f'{column} = "{OTHER_VALUE[column][found[1]]}"', 1)
            yield column, without_columns_of_type(wrong) if column == "type" else wrong
    target = re.search(r'target = "(\w+)"', line)
    if target:
        yield "target", line.replace(target[0], f'target = "{"FILTER_" if target[1] != "FILTER_" else "CS_"}"', 1)
    enumerators = re.search(r'enumerators = "(\w+)"', line)
    if enumerators:
        position = enumerator_sets.index(enumerators[1])
        other = enumerator_sets[position - 1 if position else 1]
        yield "enumerators", line.replace(enumerators[0], f'enumerators = "{other}"', 1)
    yield "absence", ""


def without_columns_of_type(line):
    for column in COLUMNS_OF_TYPE:
        line = re.sub(rf'\b{column} = "\w+",\s*', "", line)
    return line


def enumerator_forms(line):
    name, sign, number = ENUMERATOR.match(line).groups()[:3]
    yield "number", line.replace(f"{sign}{number}", f"{sign}{int(number) + 500}", 1)
    yield "label", line.replace(name, f"{name}X", 1)
    yield "absence", ""


def command_forms(line):
    text_name, count = TEXT_NAME.match(line), COUNT.match(line)
    if text_name:
        yield "text name", f'text_name = "{text_name[1]}X"\n'
    if count:
        yield "count", f'count = "{OTHER_VALUE["count"][count[1]]}"\n'


def container_forms(line):
    for number, label in enumerate(re.finditer(r'"(\w+_)"', line), 1):
        yield f"label {number}", line[:label.start()] + f'"{label[1][:-1]}X_"' + line[label.end():]
    for number, name in enumerate(re.finditer(r"\b(Items|Defs)::(\w+)", line), 1):
        wrong = OTHER_NAME.get(name[2]) or {"Items": "GROUP", "Defs": "SMOOTH"}[name[1]]
        yield f"target {number}", line[:name.start(2)] + wrong + line[name.end(2):]
    for function, other in (("WhereReferenceIs", "Direct"), ("OfDvUpdate", "Direct"), ("groups_of_type", "plain")):
        found = re.search(rf"{function}\(([^,()]+)[^()]*\)", line)
        if found:
            argument = "Defs::GROUP_DEF" if other == "plain" else found[1]
            yield "type", line.replace(found[0], f"{other}({argument})", 1)
    for function, other in (("Direct", "OfDvUpdate(Items::{})"), ("OperandsOfFormat", "Direct(Items::LIST_BEGIN)")):
        found = re.search(rf"(?<!::){function}\(Items::(\w+)\)", line)
        if found:
            yield "type", line.replace(found[0], other.format(found[1]), 1)
    for function in re.finditer(r"&(\w+)", line):
        yield f"function {function[1]}", line.replace(function[0], f"&{OTHER_FUNCTION[function[1]]}", 1)
    yield "absence", "" if CONTAINER_ROW.match(line) else re.sub(r"\{.*\}", "{}", line)


def forms(path, lines, number, enumerator_sets):
    line = lines[number]
    if path == CONTAINER_TABLES and CONTAINER_TABLE.match(line):
        return [("kind", CONTAINER_TABLE.sub(r"\1SMOOTH", line))]
    if path == CONTAINER_TABLES:
        return container_forms(line) if CONTAINER_ROW.match(line) or SET_OF_KINDS.match(line) else ()
    if FIELD.match(line):
        return field_forms(line, enumerator_sets)
    if ENUMERATOR.match(line) and "log_line" not in line:
        return enumerator_forms(line)
    return command_forms(line)


def are_rows_of_one_table(line, next_line):
    is_enumerator = ENUMERATOR.match(line) and "log_line" not in line
    return (FIELD.match(line) and FIELD.match(next_line)) or (is_enumerator and ENUMERATOR.match(next_line))


def changes_of_file(root, path):
    lines = (root / path).read_text(encoding="utf-8").splitlines(True)
    enumerator_sets = [line[len("[enumerators."):-2] for line in lines if line.startswith("[enumerators.")]
    for number, line in enumerate(lines):
        for what, form in forms(path, lines, number, enumerator_sets):
            yield Change(path, number + 1, what, "".join(lines[:number] + [form] + lines[number + 1:]))
        if path != CONTAINER_TABLES and number + 1 < len(lines) and are_rows_of_one_table(line, lines[number + 1]):
            swapped = lines[:number] + [lines[number + 1], line] + lines[number + 2:]
            yield Change(path, number + 1, "order", "".join(swapped))


def all_changes(root):
    return [change for path in TABLES for change in changes_of_file(root, path)]
