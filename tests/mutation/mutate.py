"""Changes the command tables and the container tables row by row and looks whether a test fails.

Each change is made alone, in a copy of the sources, from which the generated files are written anew. Then test programs are built
and run one after the other until one fails; a change that the generator or the compiler refuses counts as found. What is
done is kept in build/mutation/results.json, and a run that is started again on the same sources goes on from there.
"""

import argparse
import hashlib
import json
import os
import queue
import random
import shutil
import subprocess
import sys
import threading
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from changes import COMMANDS, TABLES, all_changes

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
RESULTS = WORK / "results.json"

# Test programs and which of their tests, those that are the quickest to build and the likeliest to fail first.
TESTS = (
    ("command_schema_rows_test", "*"),
    ("storage_test", "OrvelParfileStorageCmdContainer*"),
    ("command_classes_test", "*"),
    ("storage_test", "-OrvelParfileStorageCmdContainer*"),
    ("parfile_test", "*"),
)


class Workshop:
    """A copy of the sources with a build of its own."""

    def __init__(self, number, tests):
        self.tree = WORK / f"tree_{number}"
        self.build = WORK / f"build_{number}"
        self.tests = tests

    def run(self, *command, **options):
        return subprocess.run(command, cwd=self.tree, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)

    def copy_sources(self):
        """Leaves alone what is the same, and gives what is not a new time: the build may stem from a change to it."""
        names = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, text=True, check=True).stdout
        wanted = {self.tree / name: ROOT / name for name in filter(None, names.split("\0"))}
        for path in self.tree.rglob("*"):
            if path.is_file() and path not in wanted:
                path.unlink()
        for path, source in wanted.items():
            if not path.exists() or path.read_bytes() != source.read_bytes():
                path.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, path)

    def prepare(self):
        self.copy_sources()
        self.run("cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                 "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DORVEL_BUILD_TOOLS=OFF",
                 "-DORVEL_BUILD_EXAMPLES=OFF", check=True)
        finder = self.who_finds_it()
        if finder:
            sys.exit(f"mutate: without any change, {finder} fails already")

    def who_finds_it(self):
        """The first of the generator, the compiler and the test programs that fails, none when no one does."""
        if self.run(sys.executable, "-B", f"{COMMANDS}/generator", "--write").returncode != 0:
            return "the generator"
        for program, tests in self.tests:
            if self.run("cmake", "--build", self.build, "--target", program).returncode != 0:
                return f"the compiler of {program}"
            path = next(path for path in self.build.rglob(program) if path.is_file())
            try:
                found = self.run(path, f"--gtest_filter={tests}", "--gtest_brief=1", "--gtest_fail_fast", timeout=300)
            except subprocess.TimeoutExpired:
                return f"the patience with {program}"
            if found.returncode != 0:
                return program
        return None

    def try_out(self, change):
        path = self.tree / change.path
        sound = path.read_text(encoding="utf-8")
        path.write_text(change.text, encoding="utf-8")
        finder = self.who_finds_it()
        path.write_text(sound, encoding="utf-8")
        return finder


def digest(*texts):
    return hashlib.sha256("\0".join(texts).encode()).hexdigest()[:16]


def digest_of_sources():
    """What is found holds for these sources alone."""
    folders = [ROOT / name for name in ("src", "tests/OrvelCommands", "tests/support", "tests/mutation", "cmake")]
    paths = sorted(path for folder in folders for path in folder.rglob("*") if path.is_file() and path.suffix != ".pyc")
    return digest(*(path.read_text(encoding="utf-8") for path in paths))


def try_all(changes, results, keys, tests, jobs):
    workshops = queue.SimpleQueue()
    writing = threading.Lock()
    for number in range(jobs):
        workshop = Workshop(number, tests)
        workshop.prepare()
        workshops.put(workshop)

    def try_one(change):
        workshop = workshops.get()
        try:
            finder = workshop.try_out(change)
        finally:
            workshops.put(workshop)
        print(": ".join((change.name, finder or "SURVIVES")), flush=True)
        with writing:
            results[keys[change]] = [change.name, finder]
            written = RESULTS.with_suffix(".tmp")
            written.write_text(json.dumps(results, indent=1), encoding="utf-8")
            written.replace(RESULTS)

    with ThreadPoolExecutor(jobs) as pool:
        for done in [pool.submit(try_one, change) for change in changes]:
            done.result()


def report(changes, total, results, keys):
    finders = [results[keys[change]][1] for change in changes]
    survivors = [change.name for change, finder in zip(changes, finders) if finder is None]
    print(f"mutate: {len(changes)} of {total} changes made, {len(survivors)} survived")
    for finder in sorted(set(filter(None, finders))):
        print(f"  {finders.count(finder)} found by {finder}")
    for name in survivors:
        print(f"  SURVIVES: {name}")
    return 1 if survivors else 0


def main():
    parser = argparse.ArgumentParser(prog="mutate", description=__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, help="take so many changes, chosen at random but always the same")
    parser.add_argument("--table", choices=[Path(table).name for table in TABLES], help="take the changes of one table")
    parser.add_argument("--without", action="append", default=[], metavar="PROGRAM",
                        choices=sorted({program for program, _ in TESTS}), help="leave a test program out")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="copies to work in beside each other")
    parser.add_argument("--afresh", action="store_true", help="forget what earlier runs found")
    options = parser.parse_args()

    tests = tuple(test for test in TESTS if test[0] not in options.without)
    changes = [change for change in all_changes(ROOT) if options.table in (None, Path(change.path).name)]
    total = len(changes)
    if options.sample:
        random.Random(0).shuffle(changes)
        changes = changes[:options.sample]
    sources = digest_of_sources()
    keys = {change: digest(sources, str(tests), change.name, change.text) for change in changes}
    if options.afresh:
        RESULTS.unlink(missing_ok=True)
    WORK.mkdir(parents=True, exist_ok=True)
    results = json.loads(RESULTS.read_text(encoding="utf-8")) if RESULTS.exists() else {}
    left = [change for change in changes if keys[change] not in results]
    if left:
        try_all(left, results, keys, tests, min(options.jobs, len(left)))
    return report(changes, total, results, keys)


if __name__ == "__main__":
    sys.exit(main())
