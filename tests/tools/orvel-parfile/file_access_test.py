"""Files that others hold, things that are no files, read-only places and full disks: a clear text at once, and nothing
is lost.
"""

import fcntl
import os
import resource
import signal
import subprocess
import sys
import textwrap
import unittest

import h5py

from support import (EXAMPLES, FILE_NAME, GOOD, UNUSABLE, ToolTest, give_up_privileges, minimal_job, names_in,
                     write_parameter_file)
from tree import tree_of

SET = ("set", "DV_", "porosity", "INITIAL_", "0.7")
IMPORT = ("import", EXAMPLES / "smooth" / "job.toml", "--force")
READ = (("check", "--ignore", "response-or-operator"), ("show",), ("export",))
GRAPH = (("graph", "-o", "job.dot"), ("graph", "-o", "job.svg"))
CHANGE = (SET, ("unset", "DV_", "porosity", "INITIAL_"), IMPORT, ("init", "--force"))


class LockTest(ToolTest):
    def setUp(self):
        super().setUp()
        self.file = write_parameter_file(self.folder, minimal_job())

    def hold(self, mode):
        """Lets a process of its own hold the file open until the test ends."""
        script = textwrap.dedent(f"""
            import h5py, sys
            file = h5py.File({str(self.file)!r}, {mode!r})
            print("open", flush=True)
            sys.stdin.read()
            """)
        process = subprocess.Popen([sys.executable, "-c", script], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   env={**os.environ, "HDF5_USE_FILE_LOCKING": "TRUE"})
        self.addCleanup(process.wait)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stdin.close)
        self.assertEqual(b"open\n", process.stdout.readline())

    def assert_refused(self, arguments, says, **options):
        before = names_in(self.folder)
        content = self.file.read_bytes() if self.file.is_file() else None
        result = self.tool(*arguments, **options)
        self.assertEqual((UNUSABLE, "", says), result)
        self.assertEqual(before, names_in(self.folder))
        if content is not None:
            self.assertEqual(content, self.file.read_bytes())


class HeldFiles(LockTest):
    def test_that_are_written_are_refused(self):
        self.hold("r+")
        for arguments in READ + CHANGE:
            with self.subTest(arguments):
                self.assert_refused(arguments, f"{self.file}: another process holds the file open for writing; "
                                               "try again when it has ended\n")

    def test_that_are_read_may_be_read_and_replaced(self):
        self.hold("r")
        for arguments in READ + (SET,):
            with self.subTest(arguments):
                self.assertEqual(GOOD, self.tool(*arguments).code)
        with h5py.File(self.file, "r") as file:
            self.assertEqual([0.7], list(file["PARFILE/DV_/porosity/INITIAL_"]))
        self.assertEqual(GOOD, self.tool(*IMPORT).code)

    def lock(self, folder):
        """As an orvel-parfile does that changes a file of the folder."""
        descriptor = os.open(folder, os.O_RDONLY)
        fcntl.flock(descriptor, fcntl.LOCK_EX)
        return descriptor

    def test_that_are_being_replaced_are_refused(self):
        self.addCleanup(os.close, self.lock(self.folder))
        for arguments in CHANGE:
            with self.subTest(arguments):
                self.assert_refused(arguments, f"{self.folder}: another orvel-parfile is changing a parameter file of "
                                               "this folder; try again when it has ended\n")
        for arguments in READ:
            with self.subTest(arguments):
                self.assertEqual(GOOD, self.tool(*arguments).code)

    def test_behind_a_link_are_being_replaced_where_they_are(self):
        store = self.folder / "store"
        store.mkdir()
        self.file.rename(store / "job.hdf5")
        self.file.symlink_to("store/job.hdf5")
        held = self.lock(store)
        for arguments in CHANGE:
            with self.subTest(arguments):
                self.assert_refused(arguments, f"{store}: another orvel-parfile is changing a parameter file of this "
                                               "folder; try again when it has ended\n")
        os.close(held)
        self.addCleanup(os.close, self.lock(self.folder))
        for arguments in CHANGE:
            with self.subTest(arguments, lock="of the link"):
                self.assertEqual(GOOD, self.tool(*arguments).code)


class SetsAtOnce(LockTest):
    KEYS = ("VISCOSITY_", "RESIDUAL_")

    def start(self, key, value):
        run = subprocess.Popen([os.environ["ORVEL_PARFILE"], "set", "PRE_PARAM_", "open_box", key, str(value)],
                               cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        self.addCleanup(run.stderr.close)
        return run

    def values(self):
        with h5py.File(self.file, "r") as file:
            return [file[f"PARFILE/PRE_PARAM_/open_box/{key}"][0] for key in self.KEYS]

    def test_lose_nothing_without_a_word(self):
        expected = self.values()
        for turn in range(10, 20):
            runs = [self.start(key, turn) for key in self.KEYS]
            texts = [run.communicate()[1].decode() for run in runs]
            self.assertIn(GOOD, [run.returncode for run in runs])
            for place, (run, text) in enumerate(zip(runs, texts)):
                if run.returncode == GOOD:
                    expected[place] = turn
                else:
                    self.assertEqual(UNUSABLE, run.returncode)
                    self.assertIn("another orvel-parfile is changing", text)
            self.assertEqual(expected, self.values())
        self.assertEqual([FILE_NAME], names_in(self.folder))

    def start_and_stop(self, key, value):
        """A run that is stopped while it has a folder for its copy."""
        while True:
            run = self.start(key, value)
            while run.poll() is None and names_in(self.folder) == [FILE_NAME]:
                pass
            run.send_signal(signal.SIGSTOP)
            if run.returncode is None:
                _, status = os.waitpid(run.pid, os.WUNTRACED)
                if os.WIFSTOPPED(status) and len(names_in(self.folder)) == 2:
                    return run
                run.send_signal(signal.SIGCONT)
                run.wait()

    def test_are_refused_until_the_first_has_put_its_file_in_place(self):
        first = self.start_and_stop(self.KEYS[0], 10)
        second = self.start(self.KEYS[1], 20)
        says = second.communicate()[1].decode()
        first.send_signal(signal.SIGCONT)
        self.assertEqual(GOOD, first.wait(120))
        self.assertEqual((UNUSABLE, f"{self.folder}: another orvel-parfile is changing a parameter file of this folder; "
                                    "try again when it has ended\n"), (second.returncode, says))
        self.assertEqual([10, 1e-4], self.values())


class NoFiles(LockTest):
    def test_are_refused_at_once(self):
        def pipe():
            os.mkfifo(self.file)

        def device():
            self.file.symlink_to("/dev/zero")

        for make in (pipe, device, self.file.mkdir):
            with self.subTest(make.__name__):
                self.remove()
                make()
                for arguments in READ + CHANGE:
                    self.assert_refused(arguments, f"{self.file}: this is no file\n")

    def remove(self):
        if self.file.is_dir():
            self.file.rmdir()
        else:
            self.file.unlink()

    def test_a_link_to_nothing_is_refused(self):
        self.file.unlink()
        self.file.symlink_to("gone.hdf5")
        self.assert_refused(SET, f"{self.file}: this link leads to no file\n")
        self.assert_refused(IMPORT, f"{self.file}: this link leads to no file\n")
        self.assertTrue(self.file.is_symlink())


class ReadOnlyPlaces(LockTest):
    def protect(self, path, rights):
        path.chmod(rights)
        self.addCleanup(lambda: path.exists() and path.chmod(0o755))

    def test_that_are_folders_are_refused_by_every_change(self):
        self.protect(self.folder, 0o555)
        for arguments in CHANGE + GRAPH:
            with self.subTest(arguments):
                self.assert_refused(arguments, f"nothing can be written in {self.folder}: Permission denied\n",
                                    preexec_fn=give_up_privileges)

    def test_that_are_files_are_refused_by_every_change(self):
        self.protect(self.file, 0o444)
        for arguments in CHANGE:
            with self.subTest(arguments):
                self.assert_refused(arguments, f"{self.file}: the file is write-protected\n",
                                    preexec_fn=give_up_privileges)

    def test_can_be_read(self):
        self.protect(self.file, 0o444)
        self.protect(self.folder, 0o555)
        for arguments in READ:
            with self.subTest(arguments):
                self.assertEqual(GOOD, self.tool(*arguments, preexec_fn=give_up_privileges).code)

    def test_that_nobody_may_read_are_refused(self):
        self.protect(self.file, 0o000)
        for arguments in READ:
            with self.subTest(arguments):
                self.assertEqual((UNUSABLE, "", f"{self.file}: the file cannot be read: Permission denied\n"),
                                 self.tool(*arguments, preexec_fn=give_up_privileges))


class FullDisks(LockTest):
    def limit(self, size):
        """The signal that tells of the limit would end the tool, so Python, which ignores it, must not hand that down."""
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_DFL)
            resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
        return limit

    def test_leave_the_old_file(self):
        self.tool("set", "DV_", "porosity", "ELEMENT_GROUP_", "box")
        before = tree_of(self.file)
        size = self.file.stat().st_size
        limits = {"init": (0, 100), "import": (0, 100, 2000)}  # of others than the size of the file that is there
        for arguments in CHANGE:
            for limit in limits.get(arguments[0], (0, 100, 2000, size // 2, size - 100)):
                with self.subTest(arguments[0], limit=limit):
                    self.assertEqual(
                        (UNUSABLE, "", f"a parameter file cannot be written in {self.folder}: is the disk full?\n"),
                        self.tool(*arguments, preexec_fn=self.limit(limit)))
                    self.assertEqual(before, tree_of(self.file))
                    self.assertEqual([FILE_NAME], names_in(self.folder))

    def test_are_noticed_when_only_the_change_does_not_fit(self):
        before = self.file.read_bytes()
        self.assertEqual(
            (UNUSABLE, "", f"a parameter file cannot be written in {self.folder}: is the disk full?\n"),
            self.tool("set", "MODEL_", "duct", "FILE_", "x" * 100_000, preexec_fn=self.limit(len(before) + 1000)))
        self.assertEqual(before, self.file.read_bytes())
        self.assertEqual([FILE_NAME], names_in(self.folder))

    def test_leave_the_old_graph(self):
        for arguments, subject in zip(GRAPH, ("job.dot", "a temporary file")):  # which holds the text for dot
            with self.subTest(arguments):
                graph = self.write(arguments[-1], "what was there")
                self.assert_refused(arguments, f"{subject} cannot be written: File too large\n",
                                    preexec_fn=self.limit(100))
                self.assertEqual("what was there", graph.read_text())

    def test_during_import_at_any_place(self):
        self.assertEqual(GOOD, self.tool(*IMPORT).code)
        size = self.file.stat().st_size
        before = self.file.read_bytes()
        for part in range(10):
            with self.subTest(part):
                self.assert_refused(IMPORT, f"a parameter file cannot be written in {self.folder}: is the disk full?\n",
                                    preexec_fn=self.limit(size * part // 10))
        self.assertEqual(before, self.file.read_bytes())


if __name__ == "__main__":
    unittest.main()
