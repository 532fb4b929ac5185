"""Changes the command tables and the container tables row by row and looks whether a test fails.

Each change is made in a copy of the sources, from which the generated files are written anew and the tests are built; a change
that the generator or the compiler refuses counts as found. What is done is kept in build/mutation/results.json, and a run
that is started again goes on from there.
"""

import argparse
import json
import random
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "tree"
BUILD = WORK / "build"
RESULTS = WORK / "results.json"

COMMANDS = "src/OrvelCommands/commands"
TABLES = (f"{COMMANDS}/gyre_commands.toml", f"{COMMANDS}/smooth_commands.toml")
CONTAINER_TABLES = "src/OrvelCommands/storage/OrvelParfileStorageCmdContainer_tables.cpp"

# The tests that know the tables, those that are quickest to build first.
TEST_PROGRAMS = ("command_schema_test", "command_classes_test", "storage_test", "parfile_test")

OTHER_PRESENCE = {"always": "optional", "optional": "always", "repeated": "optional"}
OTHER_TYPE = {"string": "int32", "int32": "double", "double": "int32", "int32_list": "double_list",
              "double_list": "int32_list", "model_id": "string", "enum": "int32", "reference": "string"}


def field_changes(line):
    """The wrong forms of one row of a key, each with the name of what is wrong."""
    key = re.search(r'key = "(\w+)"', line)
    yield "label", line.replace(key[0], f'key = "{key[1][:-1]}X_"', 1)
    for name, table in (("type", OTHER_TYPE), ("presence", OTHER_PRESENCE)):
        found = re.search(rf'{name} = "(\w+)"', line)
        if found and found[1] in table:
            yield name, line.replace(found[0], f'{name} = "{table[found[1]]}"', 1)
    target = re.search(r'target = "(\w+)"', line)
    if target:
        other = "FILTER_" if target[1] != "FILTER_" else "CS_"
        yield "target", line.replace(target[0], f'target = "{other}"', 1)
    yield "absence", ""


def enumerator_changes(line):
    name, number = re.match(r"(\w+)\s*=\s*(\d+)", line).groups()
    yield "number", line.replace(number, str(int(number) + 500), 1)
    yield "label", line.replace(name, name + "X", 1)
    yield "absence", ""


def container_changes(line):
    label = re.search(r'"(\w+_)"', line)
    yield "label", line.replace(label[0], f'"{label[1][:-1]}X_"', 1)
    target = re.search(r"(Items|Defs)::(\w+)", line)
    if target:
        other = {"Items": "NODE_GROUP", "Defs": "SMOOTH"}[target[1]]
        if target[2] != other:
            yield "target", line.replace(target[0], f"{target[1]}::{other}", 1)
    yield "absence", ""


def changes_of_file(path):
    lines = (ROOT / path).read_text(encoding="utf-8").splitlines(True)
    is_container = path == CONTAINER_TABLES
    for number, line in enumerate(lines):
        if is_container:
            forms = container_changes(line) if re.match(r'\s+\{"\w+_",', line) else ()
        elif re.match(r'\s*\{ key = "', line):
            forms = list(field_changes(line))
            if re.match(r'\s*\{ key = "', lines[number + 1]):
                forms.append(("order", None))
        else:
            forms = enumerator_changes(line) if re.match(r"\w+\s*=\s*\d+\s*(#.*)?$", line) and "log_line" not in line else ()
        for name, form in forms:
            changed = list(lines)
            if form is None:
                changed[number], changed[number + 1] = changed[number + 1], changed[number]
            else:
                changed[number] = form
            yield f"{Path(path).name}:{number + 1}: {name}", path, "".join(changed)


def run(*command, **options):
    return subprocess.run(command, cwd=COPY, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)


def prepare():
    shutil.rmtree(COPY, ignore_errors=True)
    names = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=True).stdout.split("\n")
    for name in filter(None, names):
        (COPY / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(ROOT / name, COPY / name)
    run("cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
        "-DORVEL_BUILD_TOOLS=OFF", "-DORVEL_BUILD_EXAMPLES=OFF", check=True)
    found = who_finds_it()
    if found:
        sys.exit(f"mutate: without any change, {found} fails already")


def who_finds_it():
    """The first of the generator, the compiler and the test programs that fails, none when no one does."""
    if run(sys.executable, "-B", f"{COMMANDS}/generator", "--write").returncode != 0:
        return "the generator"
    for program in TEST_PROGRAMS:
        if run("cmake", "--build", BUILD, "--target", program).returncode != 0:
            return f"the compiler of {program}"
        path = next(BUILD.rglob(program))
        try:
            if run(path, "--gtest_brief=1", "--gtest_fail_fast", timeout=300).returncode != 0:
                return program
        except subprocess.TimeoutExpired:
            return program
    return None


def main():
    parser = argparse.ArgumentParser(prog="mutate", description=__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, help="take so many changes, chosen at random but always the same")
    parser.add_argument("--afresh", action="store_true", help="forget what earlier runs found")
    options = parser.parse_args()

    changes = [change for path in (*TABLES, CONTAINER_TABLES) for change in changes_of_file(path)]
    total = len(changes)
    if options.sample:
        random.Random(0).shuffle(changes)
        changes = changes[:options.sample]
    if options.afresh:
        RESULTS.unlink(missing_ok=True)
    WORK.mkdir(parents=True, exist_ok=True)
    results = json.loads(RESULTS.read_text(encoding="utf-8")) if RESULTS.exists() else {}
    prepare()
    for name, path, text in changes:
        if name in results:
            continue
        sound = (COPY / path).read_text(encoding="utf-8")
        (COPY / path).write_text(text, encoding="utf-8")
        results[name] = who_finds_it()
        (COPY / path).write_text(sound, encoding="utf-8")
        RESULTS.write_text(json.dumps(results, indent=1), encoding="utf-8")
        print(f"{name}: {results[name] or 'SURVIVES'}", flush=True)
    survivors = [name for name, *_ in changes if results[name] is None]
    print(f"mutate: {len(changes)} of {total} changes made, {len(survivors)} survived")
    for name in survivors:
        print(f"  {name}")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
