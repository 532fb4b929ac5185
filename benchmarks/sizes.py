"""The sizes that a user of the library pays for: of the command objects, of the library, of loading it, of including it."""

import os
import re
import shlex
import subprocess
import tempfile
from pathlib import Path



def output(*command, **options):
    return subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          check=True, **options).stdout


def stripped_bytes(library):
    with tempfile.TemporaryDirectory() as folder:
        stripped = Path(folder) / "stripped.so"
        output("strip", "--strip-unneeded", "-o", stripped, library)
        return stripped.stat().st_size


def exported_symbols(library):
    return len(output("nm", "--dynamic", "--defined-only", library).splitlines())


def relocations(library):
    counts = re.findall(r"Relocation section .* contains (\d+) entr", output("readelf", "--relocs", "--wide", library))
    return sum(map(int, counts))


def load_time(program):
    """Microseconds of the dynamic linker, and its relocations, when a program of the library starts."""
    report = output(program, env=dict(os.environ, LD_DEBUG="statistics"))
    ticks = int(re.search(r"total startup time in dynamic loader: (\d+) cycles", report).group(1))
    part = float(re.search(r"time needed for relocation: \d+ cycles \(([\d.]+)%\)", report).group(1))
    relocated = int(re.search(r"number of relocations: (\d+)", report).group(1))
    return ticks, part, relocated


def compile_seconds(build):
    """Of a file that includes everything, with the flags of the benchmarks."""
    commands = output("ninja", "-C", build, "-t", "commands", "benchmarks/object_sizes").splitlines()
    command = shlex.split(next(line for line in commands if "object_sizes.cpp.o" in line))
    while not re.search(r"(g\+\+|clang\+\+|c\+\+)(-\d+)?$", command[0]):
        command.pop(0)  # a launcher such as ccache
    command[command.index("-o") + 1] = os.devnull
    command = [word for word in command if not word.startswith("-M")]
    for name in [word for word in command if word.endswith(".cpp.o") or word.endswith(".cpp.o.d")]:
        command.remove(name)
    before = os.times()
    output(*command, cwd=build)
    after = os.times()
    return after.children_user + after.children_system - before.children_user - before.children_system


def collect(build):
    library = (build / "src/OrvelCommands/libOrvelCommands.so").resolve()
    program = build / "benchmarks/object_sizes"
    ticks, part, relocated = load_time(program)
    sizes = {"library, stripped, bytes": stripped_bytes(library),
             "symbols exported": exported_symbols(library),
             "relocations of the library": relocations(library),
             "relocations when a program of it starts, all libraries": relocated,
             "dynamic loading, time stamp ticks": ticks,
             "share of relocation in dynamic loading, percent": part,
             "compiling a file that includes everything, seconds": round(compile_seconds(build), 2)}
    for line in output(program).splitlines():
        name, size = line.split()
        sizes[f"bytes of {name}"] = int(size)
    return sizes
