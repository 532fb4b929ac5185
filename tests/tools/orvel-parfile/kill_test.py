"""Kills and signals at any moment leave the old file or the new one, and no scratch folder for good."""

import os
import random
import signal
import subprocess
import time
import unittest

from support import FILE_NAME, GOOD, TOOL, ToolTest, names_in
from tree import tree_of

KILLS = 100
# The delays follow from this number; ORVEL_KILL_NUMBER repeats a case with another one.
NUMBER = int(os.environ.get("ORVEL_KILL_NUMBER", "20240607"))


def job_with(value, commands=12):
    """A job description of which every command has a value of its own."""
    return "".join(
        f'[DV_.dv_{number}]\nTYPE_ = "AUTO"\nINITIAL_ = {value + number}\nELEMENT_GROUP_ = "group {value} {number}"\n'
        for number in range(commands))


class KillTest(ToolTest):
    def setUp(self):
        super().setUp()
        self.file = self.folder / FILE_NAME

    def start(self, *arguments):
        return subprocess.Popen([TOOL, *arguments], cwd=self.folder, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def time_of(self, *arguments):
        """How long a run takes here, in seconds."""
        start = time.monotonic()
        self.assertEqual(GOOD, self.start(*arguments).wait())
        return time.monotonic() - start

    def kill_often(self, runs):
        """Each of the two runs makes a file of its own; they are killed in turn. Which one the file is must be clear."""
        trees = []
        for run in runs:
            self.assertEqual(GOOD, self.tool(*run).code)
            trees.append(tree_of(self.file))
        self.assertNotEqual(*trees)
        longest = 1.2 * max(self.time_of(*runs[0]), self.time_of(*runs[1]))
        delays = random.Random(NUMBER)
        killed = 0
        current = 1
        for kill in range(KILLS):
            before = self.file.read_bytes()
            delay = delays.uniform(0, longest)
            process = self.start(*runs[kill % 2])
            time.sleep(delay)
            process.kill()
            killed += process.wait() == -signal.SIGKILL
            if self.file.read_bytes() != before:
                current = kill % 2
                self.assertEqual(trees[current], tree_of(self.file),
                                 f"kill {kill} of number {NUMBER}, after {delay} s of {longest}")
        self.assertEqual(trees[current], tree_of(self.file))
        self.assertGreater(killed, 0)
        self.assertEqual(GOOD, self.tool(*runs[0]).code)
        self.assertEqual(trees[0], tree_of(self.file))


class Kills(KillTest):
    def test_during_import(self):
        self.write("a.toml", job_with(0))
        self.write("b.toml", job_with(0.5))
        self.kill_often([("import", "a.toml", "--force"), ("import", "b.toml", "--force")])
        self.assertEqual(["a.toml", "b.toml", FILE_NAME], names_in(self.folder))

    def test_during_set(self):
        self.tool("import", self.write("a.toml", job_with(0)))
        self.kill_often([("set", "DV_", "dv_7", "INITIAL_", "-1.5"),
                         ("set", "DV_", "dv_7", "INITIAL_", "3.25")])
        self.assertEqual(["a.toml", FILE_NAME], names_in(self.folder))


class Signals(KillTest):
    def interrupt(self, number, commands):
        """Sends a signal as soon as there is a scratch folder. Returns how the run ended."""
        self.write("new.toml", job_with(0.5, commands))
        process = self.start("import", "new.toml", "--force")
        while process.poll() is None and len(names_in(self.folder)) == 2:
            time.sleep(0.001)
        process.send_signal(number)
        return process.wait()

    def test_that_end_the_tool_leave_the_old_file_alone(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                self.tool("import", self.write("new.toml", job_with(0)), "--force")
                before = self.file.read_bytes()
                commands = 200
                while (ended := self.interrupt(number, commands)) == GOOD:  # the signal came too late
                    commands *= 4
                    self.tool("import", self.write("new.toml", job_with(0)), "--force")
                    before = self.file.read_bytes()
                self.assertEqual(-number, ended)
                self.assertEqual(before, self.file.read_bytes())
                self.assertEqual(["new.toml", FILE_NAME], names_in(self.folder))


if __name__ == "__main__":
    unittest.main()
