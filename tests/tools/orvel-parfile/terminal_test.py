"""orvel-parfile at the end of a pipe that nobody reads, and on a terminal: broken pipes are quiet, long work shows how
far it is."""

import os
import pathlib
import pty
import signal
import subprocess
import time
import unittest

from support import EXAMPLES, GOOD, TOOL, UNUSABLE, ToolTest, doubles, write_parameter_file


class BrokenPipe(ToolTest):
    def run_into_broken_pipe(self, *arguments, **options):
        """The exit code and the messages of a run whose standard output nobody reads."""
        reading, writing = os.pipe()
        os.close(reading)
        try:
            run = subprocess.run([TOOL, *arguments], cwd=self.folder, stdout=writing, stderr=subprocess.PIPE,
                                 timeout=120, check=False, **options)
            return run.returncode, run.stderr.decode()
        finally:
            os.close(writing)

    def test_ends_the_tool_without_a_word(self):
        job = EXAMPLES / "bent_duct" / "job.toml"
        for arguments in (("show", job), ("graph", job), ("show", job, "--json"), ("schema",), ("diff", job, job)):
            with self.subTest(arguments):
                self.assertEqual((-signal.SIGPIPE, ""), self.run_into_broken_pipe(*arguments))

    def test_is_quiet_where_the_parent_ignores_the_signal(self):
        self.assertEqual(
            (-signal.SIGPIPE, ""),
            self.run_into_broken_pipe("schema", restore_signals=False,
                                      preexec_fn=lambda: signal.signal(signal.SIGPIPE, signal.SIG_IGN)))

    def test_is_quiet_where_the_parent_blocks_the_signal(self):
        self.assertEqual(
            (UNUSABLE, ""),
            self.run_into_broken_pipe("schema", restore_signals=False, preexec_fn=lambda: signal.pthread_sigmask(
                signal.SIG_BLOCK, [signal.SIGPIPE])))

    def test_of_which_the_begin_was_read(self):
        names = "\n".join(f"[CS_.c{number}]" for number in range(20000))
        self.write("job.toml", names)
        head = subprocess.Popen(["head", "-1"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        run = subprocess.run([TOOL, "show", "job.toml"], cwd=self.folder, stdout=head.stdin, stderr=subprocess.PIPE,
                             timeout=120, check=False)
        self.assertEqual(b"CS_ c0\n", head.communicate()[0])
        self.assertEqual(b"", run.stderr)


class Progress(ToolTest):
    """A run is halted for more than a second in the midst of its work, so that even the quickest machine takes long."""

    def setUp(self):
        super().setUp()
        command = {"INITIAL_": doubles(1.0)}
        self.size = write_parameter_file(
            self.folder, {"DV_": {f"d{number}": command for number in range(1500)}}).stat().st_size

    def has_read(self, run):
        """What share of the file a run has read. Raises OSError when it has ended."""
        return int(pathlib.Path(f"/proc/{run.pid}/io").read_text().split()[1]) / self.size

    def state(self, run):
        """The letter of the state of a run, "T" for a halted one, "Z" for one that has ended."""
        return pathlib.Path(f"/proc/{run.pid}/stat").read_text().rsplit(")", 1)[1].split()[0]

    def halted(self, stderr):
        """Halts a run in the midst of reading and lets it go on. False when it was quicker than the test."""
        with subprocess.Popen([TOOL, "show"], cwd=self.folder, stdout=subprocess.DEVNULL, stderr=stderr) as run:
            while self.has_read(run) < 0.2 and self.state(run) != "Z":
                pass
            run.send_signal(signal.SIGSTOP)
            while self.state(run) not in "TZ":
                pass
            in_time = self.state(run) == "T" and self.has_read(run) < 0.8
            if in_time:
                time.sleep(1.2)
            run.send_signal(signal.SIGCONT)
            return run.wait() == GOOD and in_time

    def messages(self):
        """What a halted run writes to a terminal."""
        ours, theirs = pty.openpty()
        text = b""
        try:
            self.assertTrue(any(self.halted(theirs) for attempt in range(20)))
            os.set_blocking(ours, False)
            try:
                text = os.read(ours, 100000)
            except BlockingIOError:
                pass
        finally:
            os.close(ours)
            os.close(theirs)
        return text.decode()

    def test_is_shown_on_a_terminal_and_taken_away(self):
        text = self.messages()
        self.assertRegex(text, r"^\r\x1b\[Kreading: [0-9]+%")
        self.assertTrue(text.endswith("\r\x1b[K"), repr(text))

    def test_is_not_shown_without_one(self):
        path = self.folder / "messages"
        with open(path, "wb") as file:
            self.assertTrue(any(self.halted(file) for attempt in range(20)))
        self.assertEqual(b"", path.read_bytes())

    def test_is_shown_while_a_picture_is_drawn(self):
        programs = self.folder.parent / "programs"
        programs.mkdir()
        (programs / "dot").write_text("#!/bin/sh\nexec /bin/sleep 1.3\n")
        (programs / "dot").chmod(0o755)
        self.write("job.toml", "[CS_.c]\n")
        ours, theirs = pty.openpty()
        try:
            run = subprocess.run([TOOL, "graph", "job.toml", "-o", "job.svg"], cwd=self.folder, stderr=theirs,
                                 stdout=subprocess.DEVNULL, env={**os.environ, "PATH": str(programs)}, check=False)
            self.assertEqual(GOOD, run.returncode)
            self.assertRegex(os.read(ours, 10000).decode(), r"^(\r\x1b\[Kdrawing: [0-9]+ s)+\r\x1b\[K$")
        finally:
            os.close(ours)
            os.close(theirs)


if __name__ == "__main__":
    unittest.main()
