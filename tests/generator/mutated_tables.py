"""Changes the command tables in ways nobody would, and sees that the generator ends well or with its own error.

    mutated_tables.py <first case> <number of cases> [--seconds N]

Every case depends on its number alone. Most cases change what a table holds, the others its bytes. Reading must end in
tables or in a TableError of one printable line that names the file; where a single value of a row was changed, also the
command and the field. From tables that were read all outputs must come. Ends with 0 when all cases do so.
"""

import argparse
import ast
import copy
import datetime
import json
import random
import re
import signal
import sys
import tempfile
import time
import tomllib
import traceback
from pathlib import Path

sys.dont_write_bytecode = True

COMMANDS = Path(__file__).resolve().parents[2] / "src" / "OrvelCommands" / "commands"
sys.path.insert(0, str(COMMANDS / "generator"))

import outputs  # noqa: E402
import plain_outputs  # noqa: E402
import python_outputs  # noqa: E402
import table  # noqa: E402

NAMES = ("gyre_commands", "smooth_commands")
SHARED = "command tables: "  # how an error begins that is about both files
LONGEST_ERROR = 2000
PATIENCE = 60
STRING_OR_COMMENT = re.compile(r'"(?:\\.|[^"\\\n])*"|//[^\n]*')

TEXTS = ("", " ", "\n", "a\nb", "\x00", "\x1b[31m", "é", "漢字", "\u202e", "\U0001f600", "$", "$key", "${doc}", "$$", "{}",
         "%s", '"', '"""', "'''", "\\", "*/", "//", "??/", "#", "a" * 300, "A" * 5000 + "_", "ID_NAME_", "DV_", "TYPE_",
         "always", "optional", "repeated", "enum", "reference", "no_yes", "../../etc", "Ends so.", "Bell \x07.")
NUMBERS = (0, -1, 1, 2**31 - 1, 2**31, 2**63, 2**64, 16**5000, 0.5, -0.0, float("nan"), float("inf"), 1e308)
OTHERS = (True, False, [], {}, [[]], [{}], [1, "a"], {"class": "DV_"}, datetime.date(2024, 2, 29), datetime.time(1, 2),
          datetime.datetime(2024, 2, 29, 12, 0, tzinfo=datetime.timezone.utc))


class Fault(Exception):
    """What the generator must not do."""


# Writing TOML.

def toml_key(key):
    return json.dumps(key).replace("\x7f", "\\u007f")


def toml_value(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, str):
        return json.dumps(value, ensure_ascii=False).replace("\x7f", "\\u007f")
    if isinstance(value, int):
        return str(value) if abs(value) < 2**64 else hex(value)
    if isinstance(value, list):
        return "[" + ", ".join(map(toml_value, value)) + "]"
    if isinstance(value, dict):
        return "{" + ", ".join(f"{toml_key(key)} = {toml_value(one)}" for key, one in value.items()) + "}"
    return value.isoformat() if hasattr(value, "isoformat") else repr(value)


def toml_text(data):
    return "".join(f"{toml_key(key)} = {toml_value(value)}\n" for key, value in data.items())


# Changes of what a table holds.

def nested(numbers):
    """Something in something, now and then deeper than anyone can follow."""
    value = numbers.choice((1, "a", [], {}))
    for _ in range(numbers.choice((1, 2, 5, 20, 60))):
        value = [value] if numbers.random() < 0.5 else {"a": value}
    return value


def any_value(numbers):
    pick = numbers.random()
    if pick < 0.1:
        return nested(numbers)
    return copy.deepcopy(numbers.choice(TEXTS if pick < 0.5 else NUMBERS if pick < 0.7 else OTHERS))


def places(node, path=()):
    """The path of everything in a table."""
    children = node.items() if isinstance(node, dict) else enumerate(node) if isinstance(node, list) else ()
    for key, child in children:
        yield (*path, key)
        yield from places(child, (*path, key))


def at(data, path):
    for part in path:
        data = data[part]
    return data


def rename(parent, key, new):
    """Gives a member another name at its place in the order."""
    members = [(new if name == key else name, value) for name, value in parent.items()]
    parent.clear()
    parent.update(members)


def replace(parent, key, _data, numbers):
    parent[key] = any_value(numbers)


def drop(parent, key, _data, _numbers):
    del parent[key]


def double(parent, key, _data, numbers):
    if isinstance(parent, list):
        parent.insert(key, copy.deepcopy(parent[key]))
    else:
        parent[numbers.choice((key + "2", key + "_", key.upper(), key.lower()))] = copy.deepcopy(parent[key])


def swap(parent, key, data, numbers):
    other = numbers.choice(list(places(data)))
    value = copy.deepcopy(at(data, other))
    at(data, other[:-1])[other[-1]] = copy.deepcopy(parent[key])  # which may hold the other
    parent[key] = value


def swap_neighbours(parent, key, _data, numbers):
    other = numbers.choice(list(parent) if isinstance(parent, dict) else range(len(parent)))
    parent[key], parent[other] = parent[other], parent[key]


def rename_member(parent, key, _data, numbers):
    if isinstance(parent, dict):
        rename(parent, key, numbers.choice((*TEXTS, *parent, key + "_")))
    else:
        parent[key] = any_value(numbers)


def wrap(parent, key, _data, numbers):
    value = parent[key]
    parent[key] = numbers.choice(([value], {"a": value}, [value, copy.deepcopy(value)], type(value).__name__))


def empty(parent, key, _data, _numbers):
    parent[key] = type(parent[key])() if isinstance(parent[key], (str, list, dict, int)) else ""


def repeat(parent, key, _data, numbers):
    value = parent[key]
    if not isinstance(value, (str, list)):
        parent[key] = any_value(numbers)
        return
    many = value * (numbers.choice((2, 50)) if len(value) < 20 else 2)
    parent[key] = many if isinstance(many, str) else [copy.deepcopy(one) for one in many]


CHANGES = (replace, replace, replace, drop, double, swap, swap_neighbours, rename_member, wrap, empty, repeat)


def change_structure(data, numbers):
    """Makes one change. Gives its path when it is one value that stands for itself alone, else None."""
    # A level first: most places are fields, and the others must have their turn.
    all_places = list(places(data))
    depth = numbers.choice(sorted({len(path) for path in all_places}))
    path = numbers.choice([one for one in all_places if len(one) == depth])
    change = numbers.choice(CHANGES)
    change(at(data, path[:-1]), path[-1], data, numbers)
    return path if change in (replace, wrap, empty, repeat) else None


# Changes of bytes.

TOKENS = (b'"', b"'", b'"""', b"[", b"]", b"[[", b"]]", b"{", b"}", b"=", b",", b".", b"#", b"\n", b"\r\n", b"\r", b"\t", b"\x00",
          b"\xff", b"\xc3", b"\xef\xbb\xbf", b"\xed\xa0\x80", b"\\", b"\\u", b"\\ud800", b"\\U00110000", b"inf", b"nan", b"1e999",
          b"9" * 5000, b"0x" + b"f" * 5000, b"-", b"_", b"[" * 2000, b"{a=" * 2000, b"a." * 5000, b"[[command]]\n",
          b"[enumerators.no_yes]\n", b'doc = "Twice."\n', b"2024-02-30", b"1979-05-27T00:32:00.999999-07:00")


def change_bytes(data, numbers):
    begin = numbers.randrange(len(data) + 1)
    end = min(len(data), begin + numbers.choice((0, 1, 2, 8, 64, 1000)))
    kind = numbers.randrange(6)
    if kind == 0:
        return data[:begin] + numbers.choice(TOKENS) + data[begin:]
    if kind == 1:
        return data[:begin] + numbers.choice(TOKENS) + data[end:]
    if kind == 2:
        return data[:begin] + data[end:]
    if kind == 3:
        return data[:end] + data[begin:end] * numbers.choice((1, 2, 20)) + data[end:]
    if kind == 4:
        return data[:begin] + numbers.randbytes(numbers.choice((1, 1, 1, 4, 30))) + data[end:]
    return data[:begin]


# What must hold.

def place_of(changed_file, path, tables):
    """How an error about one value must begin: the file, in a command its class, in a field its key."""
    begin = f"{changed_file}.toml: "
    if len(path) < 3 or path[0] != "command" or path[2] == "class":
        return begin
    command = tables[changed_file]["command"][path[1]]
    begin += f"{command['class']}: "
    if len(path) >= 5 and path[4] != "key":
        begin += f"{command['fields'][path[3]]['key']}: "
    return begin


def require_clear(error, begin):
    """The error begins as it must, or tells of both tables, or of a set of enumerators that the change left unused."""
    text = str(error)
    if not text.isprintable() or len(text) > LONGEST_ERROR:
        raise Fault(f"no line that a person reads: {text[:300]!r}")
    if not text.startswith((*begin, SHARED, *(f"{name}.toml: enumerators." for name in NAMES))):
        raise Fault(f"an error that does not begin with {' or '.join(map(repr, begin))}: {text}")


def require_sound(texts):
    """Stubs are Python, and no text from a table ends a string of C++."""
    for name, text in texts.items():
        if name.endswith(".pyi"):
            ast.parse(text)
        elif '"' in STRING_OR_COMMENT.sub("", text):
            raise Fault(f"{name} has a string that does not end")


# One case, and many.

def mutate(tables, numbers):
    """Gives the bytes of all tables with one of them changed, and how an error about them may begin."""
    file = numbers.choice(NAMES)
    texts = {name: text for name, (text, _) in tables.items()}
    begin = tuple(f"{name}.toml: " for name in NAMES)
    if numbers.random() < 0.7:
        data = copy.deepcopy(tables[file][1])
        paths = [change_structure(data, numbers) for _ in range(numbers.choice((1, 1, 1, 2, 4)))]
        texts[file] = toml_text(data).encode("utf-8")
        if len(paths) == 1 and paths[0] is not None:
            begin = (place_of(file, paths[0], {name: one for name, (_, one) in tables.items()}),)
    else:
        for _ in range(numbers.choice((1, 1, 2, 5))):
            texts[file] = change_bytes(texts[file], numbers)
    return texts, begin


def run_case(number, tables, folder):
    """Gives whether the generator takes the tables of a case. Raises Fault, or whatever the generator must not."""
    texts, begin = mutate(tables, random.Random(number))
    paths = [folder / f"{name}.toml" for name in NAMES]
    for path in paths:
        path.write_bytes(texts[path.stem])
    try:
        read = table.read_tables(paths)
    except table.TableError as error:
        require_clear(error, begin)
        return False
    require_sound(outputs.make_outputs(read))
    require_sound(plain_outputs.make_plain_outputs(read))
    require_sound(python_outputs.make_python_outputs(read))
    return True


def sound_tables():
    """The bytes of each table, and what they hold."""
    texts = {name: (COMMANDS / f"{name}.toml").read_bytes() for name in NAMES}
    return {name: (text, tomllib.loads(text.decode("utf-8"))) for name, text in texts.items()}


def too_slow(*_):
    raise Fault(f"more than {PATIENCE} seconds")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("first", type=int)
    parser.add_argument("count", type=int)
    parser.add_argument("--seconds", type=float, default=float("inf"), help="stop after so many, whatever the number")
    options = parser.parse_args()
    end = time.monotonic() + options.seconds
    tables = sound_tables()
    signal.signal(signal.SIGALRM, too_slow)
    cases = accepted = faults = 0
    with tempfile.TemporaryDirectory(prefix="mutated_tables_") as folder:
        for number in range(options.first, options.first + options.count):
            if time.monotonic() > end:
                break
            cases += 1
            signal.alarm(PATIENCE)
            try:
                accepted += run_case(number, tables, Path(folder))
            except Exception as error:  # whatever it is
                faults += 1
                report = traceback.format_exc(limit=-3) if not isinstance(error, Fault) else f"{error}\n"
                print(f"case {number}: {report}", end="", flush=True)
            signal.alarm(0)
    print(f"{cases} cases from {options.first}: {accepted} tables accepted, {cases - accepted - faults} refused, "
          f"{faults} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
