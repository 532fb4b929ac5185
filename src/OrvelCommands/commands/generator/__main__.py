"""Generates the command classes and all else that follows from the command tables."""

import argparse
import difflib
import sys
from pathlib import Path

from outputs import COMMAND_LINE, GENERATED, GENERATOR, make_outputs
from table import TableError, read_tables
from template_text import TemplateError

LIBRARY = Path(__file__).resolve().parents[2]
TABLES = ("gyre_commands", "smooth_commands")


def stale_files(library, outputs):
    """Names of files in the generated folder or with our banner that no table gives any more."""
    names = (path.relative_to(library).as_posix() for path in sorted(library.rglob("*")) if path.suffix in (".h", ".cpp"))
    return [name for name in names if name not in outputs and (
        name.startswith(GENERATED) or f"by {GENERATOR}." in (library / name).read_text(encoding="utf-8"))]


def write(library, outputs):
    for name, text in outputs.items():
        path = library / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            path.write_text(text, encoding="utf-8")
            print(f"written: {name}")
    for name in stale_files(library, outputs):
        (library / name).unlink()
        print(f"removed: {name}")


def check(library, outputs):
    """Prints how the files differ from the tables; gives whether they do."""
    differs = False
    for name, text in outputs.items():
        path = library / name
        present = path.read_text(encoding="utf-8") if path.exists() else ""
        diff = list(difflib.unified_diff(present.splitlines(True), text.splitlines(True), name, "from the tables"))
        sys.stdout.writelines(diff)
        differs = differs or bool(diff)
    for name in stale_files(library, outputs):
        print(f"{name} follows from no table")
        differs = True
    if differs:
        print(f"The generated files do not follow from the tables. Mend with: {COMMAND_LINE}")
    return differs


def main():
    parser = argparse.ArgumentParser(prog="generator", description=__doc__)
    parser.add_argument("--library", type=Path, default=LIBRARY, help="the folder src/OrvelCommands")
    mode = parser.add_mutually_exclusive_group(required=True)
    mode.add_argument("--write", action="store_true", help="write the files that differ")
    mode.add_argument("--check", action="store_true", help="show what differs and fail if anything does")
    options = parser.parse_args()
    try:
        tables = read_tables([options.library / "commands" / f"{name}.toml" for name in TABLES])
        outputs = make_outputs(tables)
    except (TableError, TemplateError, OSError) as error:
        print(error, file=sys.stderr)
        return 2
    if options.check:
        return 1 if check(options.library, outputs) else 0
    write(options.library, outputs)
    return 0


if __name__ == "__main__":
    sys.exit(main())
