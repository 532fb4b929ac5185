"""Generates the command classes and all else that follows from the command tables."""

import argparse
import difflib
import sys
from pathlib import Path

from outputs import COMMAND_LINE, GENERATED, GENERATOR, make_outputs
from plain_outputs import make_plain_outputs
from python_outputs import make_python_outputs
from table import TableError, read_tables
from template_text import TemplateError

LIBRARY = Path(__file__).resolve().parents[2]
TABLES = ("gyre_commands", "smooth_commands")


def folder_beside(library, name, part):
    """The folder of this name, known by a part of it, beside a library in the sources; None where there is none."""
    folder = library.resolve().parents[1] / name
    return folder if (folder / part).is_dir() else None


def stale_files(folder, texts):
    """Names of files in the generated folder or with our banner that no table gives any more."""
    names = (path.relative_to(folder).as_posix() for path in sorted(folder.rglob("*"))
             if path.suffix in (".h", ".cpp", ".pyi"))
    return [name for name in names if name not in texts and (
        name.startswith(GENERATED) or f"by {GENERATOR}." in (folder / name).read_text(encoding="utf-8"))]


def write(folder, texts):
    for name, text in texts.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            path.write_text(text, encoding="utf-8")
            print(f"written: {name}")
    for name in stale_files(folder, texts):
        (folder / name).unlink()
        print(f"removed: {name}")


def differs(folder, texts):
    """Prints how the files of a folder differ from the tables; gives whether they do."""
    found = False
    for name, text in texts.items():
        path = folder / name
        present = path.read_text(encoding="utf-8") if path.exists() else ""
        diff = list(difflib.unified_diff(present.splitlines(True), text.splitlines(True), name, "from the tables"))
        sys.stdout.writelines(diff)
        found = found or bool(diff)
    for name in stale_files(folder, texts):
        print(f"{name} follows from no table")
        found = True
    return found


def check(outputs):
    """Prints how the files differ from the tables and what mends it; gives whether they do."""
    found = [folder for folder, texts in outputs.items() if differs(folder, texts)]
    if found:
        print(f"The generated files do not follow from the tables. Mend with: {COMMAND_LINE}")
    return bool(found)


def carry_out(options):
    tables = read_tables([options.library / "commands" / f"{name}.toml" for name in TABLES])
    outputs = {options.library: make_outputs(tables)}
    python = options.python or folder_beside(options.library, "python", "orvelcommands")
    if python:
        outputs[python] = make_python_outputs(tables)
    benchmarks = options.benchmarks or folder_beside(options.library, "benchmarks", "peers")
    if benchmarks:
        outputs[benchmarks] = make_plain_outputs(tables)
    if options.check:
        return 1 if check(outputs) else 0
    for folder, texts in outputs.items():
        write(folder, texts)
    return 0


def main():
    parser = argparse.ArgumentParser(prog="generator", description=__doc__)
    parser.add_argument("--library", type=Path, default=LIBRARY, help="the folder src/OrvelCommands")
    parser.add_argument("--python", type=Path, help="the folder python, by default the one beside src if there is one")
    parser.add_argument("--benchmarks", type=Path, help="the folder benchmarks, by default likewise")
    mode = parser.add_mutually_exclusive_group(required=True)
    mode.add_argument("--write", action="store_true", help="write the files that differ")
    mode.add_argument("--check", action="store_true", help="show what differs and fail if anything does")
    try:
        return carry_out(parser.parse_args())
    except (TableError, TemplateError, OSError) as error:
        print(error, file=sys.stderr)
        return 2


if __name__ == "__main__":
    sys.exit(main())
