"""The completions of bash and zsh: what they offer at each place of a command line."""

import os
import subprocess
import textwrap
import unittest

from check_support import ALL_RULES
from support import FILE_NAME, GOOD, ROOT, TOOL, ToolTest, minimal_job, references, texts, write_parameter_file

COMPLETIONS = ROOT / "tools" / "orvel-parfile" / "completions"
SUBCOMMANDS = ["init", "import", "export", "check", "show", "diff", "graph", "set", "unset", "schema"]


class CompletionTest(ToolTest):
    def setUp(self):
        super().setUp()
        job = minimal_job()
        job["FILTER_"] = {"smooth": {"PATCH_ID_": texts("default")}, "my filter": {"PATCH_ID_": texts("other")}}
        job["DV_"]["porosity"]["FILTER_"] = references("FILTER_/smooth")
        write_parameter_file(self.folder, job)
        (self.folder / "run").mkdir()
        (self.folder / "other run").mkdir()
        self.write("job.toml", "")
        self.write("notes.txt", "")
        write_parameter_file(self.folder / "run", {"EXTRA_": {"thing": {"OWN_": texts("x")}}})
        programs = self.folder.parent / "bin"
        programs.mkdir()
        (programs / "orvel-parfile").symlink_to(TOOL)
        self.path = f"{programs}:{os.environ['PATH']}"

    def run_shell(self, *command):
        run = subprocess.run(command, cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True, timeout=120,
                             env={"PATH": self.path, "HOME": str(self.folder), "TERM": "dumb", "LC_ALL": "C.UTF-8",
                                  "LD_LIBRARY_PATH": os.environ.get("LD_LIBRARY_PATH", "")}, check=False)
        self.assertEqual((GOOD, ""), (run.returncode, run.stderr.decode()))
        return sorted(run.stdout.decode().splitlines())

    def assert_offered(self, expected):
        for words, names in expected:
            with self.subTest(words):
                self.assertEqual(sorted(names), self.offered(words))


class Bash(CompletionTest):
    def offered(self, words):
        """What the function leaves for the last of the words, as a shell would write them."""
        script = textwrap.dedent("""
            source "$1"; shift
            COMP_WORDS=(orvel-parfile "$@")
            COMP_CWORD=$#
            $(complete -p orvel-parfile | sed 's/.*-F \\([^ ]*\\).*/\\1/')
            [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' "${COMPREPLY[@]}"
            """)
        return self.run_shell("bash", "--norc", "-c", script, "bash", COMPLETIONS / "orvel-parfile.bash", *words)

    def test_offers_subcommands_and_options(self):
        self.assert_offered([
            (("",), SUBCOMMANDS), (("uns",), ["unset"]), (("imp",), ["import"]), (("--ver",), ["--version"]), (("frob", ""), []),
            (("import", "--"), ["--force", "--help"]), (("set", "--n"), ["--new"]),
            (("unset", "-"), ["--attributes", "--force", "--help", "-h"]), (("check", "--model"), ["--model-ids"]),
        ])

    def test_offers_the_values_of_options(self):
        self.assert_offered([
            (("check", "--job", ""), ["gyre", "smooth"]), (("show", "--job", "s"), ["smooth"]),
            (("check", "--model-ids", ""), ["job.toml", "other\\ run/", "run/"]),
            (("set", "--type", "numb"), ["number", "numbers"]), (("set", "DV_", "x", "--type", "utf"), ["utf8_string"]),
            (("schema", "DV_C"), ["DV_CONSTRAINT_"]),
        ])

    def test_offers_files_where_they_fit(self):
        self.assert_offered([
            (("import", ""), ["job.toml", "other\\ run/", "run/"]), (("import", "job.toml", ""), ["other\\ run/", "run/"]),
            (("init", "r"), ["run/"]), (("export", ""), ["other\\ run/", FILE_NAME, "run/"]),
            (("check", ""), ["job.toml", "other\\ run/", FILE_NAME, "run/"]), (("export", "run/"), [f"run/{FILE_NAME}"]),
            (("export", "other\\ r"), ["other\\ run/"]),
        ])

    def test_offers_kinds_ids_and_keys_of_the_file(self):
        self.assert_offered([
            (("set", "DV_"), ["DV_", "DV_CONSTRAINT_"]), (("unset", "DV"), ["DV_"]), (("show", "FILT"), ["FILTER_"]),
            (("set", "DV_", ""), ["porosity"]), (("set", ".", "DV_", "po"), ["porosity"]),
            (("unset", "FILTER_", ""), ["my\\ filter", "smooth"]), (("unset", "FILTER_", "my\\ f"), ["my\\ filter"]),
            (("set", "FILTER_", "my\\ filter", "PATCH"), ["PATCH_ID_"]),
            (("set", "DV_", "porosity", "INITIAL_D"), ["INITIAL_DV_FIELD_"]),
            (("unset", "DV_", "porosity", ""), ["FILTER_", "INITIAL_", "TYPE_"]),
            (("set", "run", "EX"), ["EXTRA_"]), (("unset", "run/", ""), ["EXTRA_"]),
            (("unset", "run/", "EXTRA_", "thing", ""), ["OWN_"]), (("show", "run", "EXTRA_", "t"), ["thing"]),
        ])

    def test_offers_enumerators_and_targets(self):
        self.assert_offered([
            (("set", "DV_", "porosity", "TYPE_", ""), ["AUTO", "DENSITY", "DETACHED", "NODAL", "NODAL_VECTOR"]),
            (("set", "DV_", "porosity", "TYPE_", "DEN"), ["DENSITY"]),
            (("set", "DV_", "porosity", "FILTER_", "s"), ["smooth"]),
            (("set", "DV_", "porosity", "FILTER_", "smooth", ""), ["my\\ filter", "smooth"]),
            (("set", "DV_", "porosity", "INITIAL_", ""), []),
        ])

    def test_offers_the_rules_to_ignore(self):
        self.assert_offered([(("check", "--ignore", ""), ALL_RULES)])

    def test_is_found_by_the_loader_of_bash_where_it_is_installed(self):
        place = self.folder / "share" / "bash-completion" / "completions"
        place.mkdir(parents=True)
        (place / "orvel-parfile").symlink_to(COMPLETIONS / "orvel-parfile.bash")
        script = f"""
            XDG_DATA_HOME={self.folder}/share
            source /usr/share/bash-completion/bash_completion
            _completion_loader orvel-parfile
            complete -p orvel-parfile"""
        self.assertEqual(["complete -F _orvel_parfile orvel-parfile"],
                         self.run_shell("bash", "--norc", "-c", script))

    def test_is_quiet_about_what_cannot_be_read(self):
        self.write(f"run/{FILE_NAME}", b"no HDF5")
        self.assert_offered([(("unset", "run", ""), []), (("set", "gone/", "DV_", ""), []), (("show", "gone/", ""), [])])


class Zsh(CompletionTest):
    def offered(self, words):
        """What the function gives to the builtins of completion, which note it here."""
        script = textwrap.dedent("""
            compadd() { [[ $1 == -a ]] && print -rl -- ${(P)2} || print -rl -- "$@" }
            _files() { print -r -- "_files $*" }
            function=$1; shift
            words=(orvel-parfile "$@")
            CURRENT=$#words
            source $function || true  # it tells whether it offered anything
            """)
        return self.run_shell("zsh", "-f", "-c", script, "zsh", COMPLETIONS / "_orvel-parfile", *words)

    def test_offers_what_the_tool_tells(self):
        self.assert_offered([
            (("",), SUBCOMMANDS), (("check", "--job", ""), ["gyre", "smooth"]), (("set", "DV_", ""), ["porosity"]),
            (("unset", "FILTER_", ""), ["my filter", "smooth"]),
            (("unset", "FILTER_", "my\\ filter", ""), ["PATCH_ID_"]),
            (("set", "DV_", "porosity", "TYPE_", ""), ["AUTO", "DENSITY", "DETACHED", "NODAL", "NODAL_VECTOR"]),
            (("set", "DV_", "porosity", "INITIAL_", ""), []),
            (("import", ""), ["_files -g *.toml(-.)"]), (("init", ""), ["_files -/"]),
            (("check", ""), ["_files -g *.hdf5(-.)", "_files -g *.toml(-.)"]), (("unset", "gone/", ""), []),
        ])

    def test_in_a_session(self):
        """Types a word and a tab into a shell that has the completion in its path."""
        script = textwrap.dedent("""
            zmodload zsh/zpty
            zpty shell zsh -f -i
            send() { zpty -w -n shell "$1" }
            send $'PS1=; fpath=('${(q)1}$' $fpath); autoload -Uz compinit; compinit -u -D; print REA\\DY\\n'
            zpty -r -m shell answer '*READY*'
            send $'orvel-parfile set DV_ por\\tTYPE_ DEN\\t\\n'
            zpty -r -m shell answer '*DV_ porosity: TYPE_ DENSITY -> DENSITY*'
            print -r -- reached
            zpty -d shell
            """)
        self.assertEqual(["reached"], self.run_shell("zsh", "-f", "-c", script, "zsh", COMPLETIONS))


class Candidates(CompletionTest):
    def test_are_told_by_a_subcommand_that_no_help_names(self):
        self.assertNotIn("complete", self.tool("--help").out)
        result = self.tool("complete", "--", "set", "DV_", "")
        self.assertEqual((GOOD, "porosity\n", ""), result)

    def test_are_the_subcommands_for_no_words(self):
        for words in ((), ("",)):
            self.assertEqual((GOOD, "".join(f"{name}\n" for name in SUBCOMMANDS), ""), self.tool("complete", "--", *words))

    def test_are_none_of_what_cannot_be_read(self):
        self.write(f"run/{FILE_NAME}", b"no HDF5")
        for words in (("unset", "run", ""), ("set", "gone/", "DV_", ""), ("show", "gone/", "")):
            with self.subTest(words):
                self.assertEqual((GOOD, "", ""), self.tool("complete", "--", *words))

    def test_of_the_schema_are_there_without_a_file(self):
        result = self.tool("complete", "--", "set", "gone/", "")
        self.assertEqual((GOOD, ""), (result.code, result.err))
        self.assertIn("DV_CONSTRAINT_", result.out.splitlines())


if __name__ == "__main__":
    unittest.main()
