"""Compares what the shared libraries export with the lists in the tree, or writes these lists.

    exported_symbols.py [--write] <list>=<library> ...

A list holds the demangled names of the functions, data, vtables and type information of ours, sorted. Weak functions are left
out: they are instantiations of templates, which come and go with the compiler and its options.
"""

import difflib
import re
import subprocess
import sys
from pathlib import Path

MENDING = "./run symbols"
# Our classes stand in the global namespace; those of libraries that a header brought along do not.
OURS = re.compile(r"(vtable|VTT|typeinfo|typeinfo name) for (?![a-z_]\w*::)")


def is_listed(kind, name):
    """Whether a symbol of this kind, a letter of nm, belongs in the list."""
    if name.startswith("__odr_asan"):  # what the address sanitizer adds for each datum
        return False
    return kind in "TDBR" or (kind == "V" and OURS.match(name) is not None)


def exported_by(library):
    """The lines that the list of a library should have."""
    listing = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", library], capture_output=True, text=True,
                             check=True).stdout
    symbols = (line.split(maxsplit=2)[1:] for line in listing.splitlines())
    return sorted({name for kind, name in symbols if is_listed(kind, name)})


def difference(listed, exported):
    """How the lines of a list differ from what its library exports; nothing where they agree."""
    wanted = listed.read_text().splitlines() if listed.exists() else []
    return list(difflib.unified_diff(wanted, exported, f"{listed} (listed)", f"{listed} (exported)", lineterm="", n=0))


def main(arguments):
    write = "--write" in arguments
    pairs = [argument.split("=", 1) for argument in arguments if argument != "--write"]
    if not pairs:
        raise SystemExit(__doc__)
    differences = []
    for listed, library in pairs:
        exported = exported_by(library)
        if write:
            Path(listed).write_text("".join(f"{name}\n" for name in exported))
        else:
            differences += difference(Path(listed), exported)
    if differences:
        print("\n".join(differences))
        raise SystemExit("The exported symbols are not those that are listed. docs/versions.md tells what may change; if this "
                         f"change is meant, {MENDING} writes the lists again.")


if __name__ == "__main__":
    main(sys.argv[1:])
