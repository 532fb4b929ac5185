"""compare_abi in a repository of its own, with a cmake and an abidiff that only pretend."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parent / "compare_abi"

# Configures, builds and installs: a build has the version of its source, an installation one library.
CMAKE = """#!/bin/bash
case $1 in
  -S) mkdir -p "$4" && echo "CMAKE_PROJECT_VERSION:STATIC=$(cat "$2/version")" >"$4/CMakeCache.txt" ;;
  --install) mkdir -p "$4/lib" && touch "$4/lib/libOrvelCommands.so" ;;
esac
"""
ABIDIFF = "#!/bin/bash\nexit $STATUS\n"


class CompareAbi(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory(prefix="orvel-abi-")
        self.addCleanup(temporary.cleanup)
        self.tree = Path(temporary.name) / "tree"
        self.programs = Path(temporary.name) / "bin"
        (self.tree / "tests" / "symbols").mkdir(parents=True)
        shutil.copy(SCRIPT, self.tree / "tests" / "symbols")
        self.programs.mkdir()
        for name, text in (("cmake", CMAKE), ("abidiff", ABIDIFF)):
            (self.programs / name).write_text(text)
            (self.programs / name).chmod(0o755)
        self.git("init", "--quiet")

    def environment(self, **others):
        """Without what ties git to another repository or to the user's settings."""
        kept = {name: value for name, value in os.environ.items() if not name.startswith("GIT_")}
        return {**kept, "GIT_CONFIG_GLOBAL": os.devnull, "GIT_CONFIG_NOSYSTEM": "1", **others}

    def git(self, *words):
        subprocess.run(["git", "-c", "user.name=Somebody", "-c", "user.email=somebody@example.org", *words], cwd=self.tree,
                       check=True, env=self.environment())

    def set_version(self, version):
        (self.tree / "version").write_text(version)

    def tag(self, version):
        self.set_version(version)
        self.git("add", "version")
        self.git("commit", "--quiet", "--message", "Release")
        self.git("tag", f"v{version}")

    def compare(self, status):
        """How it ends and what it says when abidiff ends with a status."""
        ended = subprocess.run(
            ["tests/symbols/compare_abi"], cwd=self.tree, capture_output=True, text=True, check=False,
            env=self.environment(PATH=f"{self.programs}:{os.environ['PATH']}", STATUS=str(status)))
        return ended.returncode, (ended.stdout + ended.stderr).strip()

    def test_has_nothing_to_compare_before_the_first_tag(self):
        self.assertEqual(self.compare(0), (0, "abi: no version is tagged yet, so that there is nothing to compare with"))

    def test_takes_what_did_not_change(self):
        self.tag("0.1.0")
        self.set_version("0.1.1")
        self.assertEqual(self.compare(0), (0, "abi: what was built with v0.1.0 works with this version"))

    def test_refuses_any_change_within_a_promise(self):
        for before, now in (("0.1.0", "0.1.1"), ("1.0.0", "1.1.0"), ("2.3.4", "2.3.4")):
            self.tag(before)
            self.set_version(now)
            for status in (4, 12):
                with self.subTest(before, now=now, status=status):
                    self.assertEqual(self.compare(status), (
                        1, f"abi: libOrvelCommands.so: programs built with v{before} would break; docs/versions.md says which "
                           "version this needs"))

    def test_takes_a_change_that_the_version_tells(self):
        for before, now in (("0.1.0", "0.2.0"), ("0.9.0", "1.0.0"), ("1.2.0", "2.0.0")):
            with self.subTest(before, now=now):
                self.tag(before)
                self.set_version(now)
                self.assertEqual(self.compare(4), (
                    0, f"abi: libOrvelCommands.so: programs built with v{before} would break, as version {now} says"))

    def test_fails_when_abidiff_does(self):
        self.tag("0.1.0")
        self.set_version("0.2.0")
        for status in (1, 2, 6):
            with self.subTest(status):
                self.assertEqual(self.compare(status), (1, ""))


if __name__ == "__main__":
    unittest.main()
