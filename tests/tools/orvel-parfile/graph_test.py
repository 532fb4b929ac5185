"""orvel-parfile graph: which command refers to which, as text for Graphviz and as a picture."""

import os
import pathlib
import re
import signal
import stat
import subprocess
import unittest
import xml.etree.ElementTree

import h5py

from support import (EXAMPLES, FAULTS, GOOD, UNUSABLE, ToolTest, names_in, references, write_parameter_file)

SVG = "{http://www.w3.org/2000/svg}"
RED = "#cc0000"

JOB = """
[ALGO_.run]
DV_ = "density"
CONSTRAINT_ = ["share", "lost"]
[DV_.density]
ELEMENT_GROUP_ = "space"
[CONSTRAINT_.share]
DRESP_ = "volume"
[DRESP_.volume]
[DRESP_.forgotten]
DV_CONSTRAINT_ = "also_forgotten"
[DV_CONSTRAINT_.also_forgotten]
[ELEMENT_GROUP_.space]
MERGE_ = ["pipes", "a_group_of_the_model"]
[ELEMENT_GROUP_.pipes]
[OUTPUT_.field]
ELEMENT_GROUP_ = "shown"
[ELEMENT_GROUP_.shown]
"""


class GraphTest(ToolTest):
    """With readers of the text."""

    def graph(self, *arguments):
        """The standard output of a run that must be good."""
        result = self.tool("graph", *arguments)
        self.assertEqual((GOOD, ""), (result.code, result.err))
        return result.out

    def edges(self, text):
        """The edges that are seen, as (from, to, attributes)."""
        found = re.findall(r'^"(.*)" -> "(.*?)"(?: \[(.*)\])?;$', text, re.MULTILINE)
        return [edge for edge in found if "style=invis" not in edge[2]]

    def nodes(self, text):
        """The attributes of the nodes by name."""
        return dict(re.findall(r'^"([^"]*)" \[(label=.*)\];$', text, re.MULTILINE))

    def part(self, text, name):
        """The names of the nodes of a group that stands apart."""
        found = re.search(rf"^subgraph cluster_{name} {{\n(.*?)^}}", text, re.MULTILINE | re.DOTALL)
        return sorted(self.nodes(found[1])) if found else []

    def plain(self, text):
        """What dot makes of a text: the place of each node from below, by name."""
        run = subprocess.run(["dot", "-Tplain"], input=text, capture_output=True, text=True, check=True)
        self.assertEqual("", run.stderr)
        return {name.strip('"'): float(y) for name, y in
                re.findall(r'^node ("[^"]*"|\S+) \S+ (\S+)', run.stdout, re.MULTILINE)}


class Text(GraphTest):
    def setUp(self):
        super().setUp()
        self.write("job.toml", JOB)

    def test_has_an_edge_for_each_reference(self):
        self.assertEqual(
            [("ALGO_/run", "CONSTRAINT_/lost"), ("ALGO_/run", "CONSTRAINT_/share"), ("ALGO_/run", "DV_/density"),
             ("CONSTRAINT_/share", "DRESP_/volume"), ("DRESP_/forgotten", "DV_CONSTRAINT_/also_forgotten")],
            sorted((source, target) for source, target, look in self.edges(self.graph("job.toml"))
                   if "dashed" not in look))

    def test_has_a_dashed_edge_for_each_group_that_the_job_defines(self):
        dashed = [edge for edge in self.edges(self.graph("job.toml")) if "style=dashed" in edge[2]]
        self.assertEqual(
            [("DV_/density", "ELEMENT_GROUP_/space"), ("ELEMENT_GROUP_/space", "ELEMENT_GROUP_/pipes"),
             ("OUTPUT_/field", "ELEMENT_GROUP_/shown")], sorted(edge[:2] for edge in dashed))
        self.assertNotIn("style=dashed", self.graph("job.toml", "--no-groups"))

    def test_names_the_key_of_an_edge_where_the_kind_of_its_target_does_not(self):
        labels = {edge[:2]: edge[2] for edge in self.edges(self.graph("job.toml"))}
        self.assertIn("label=<MERGE_>", labels["ELEMENT_GROUP_/space", "ELEMENT_GROUP_/pipes"])
        self.assertEqual(1, sum("label" in look for look in labels.values()))

    def test_shows_a_reference_that_leads_nowhere_in_red(self):
        text = self.graph("job.toml")
        self.assertIn(RED, self.nodes(text)["CONSTRAINT_/lost"])
        self.assertIn("there is none", self.nodes(text)["CONSTRAINT_/lost"])
        red = [edge[:2] for edge in self.edges(text) if RED in edge[2]]
        self.assertEqual([("ALGO_/run", "CONSTRAINT_/lost")], red)
        self.assertNotIn(RED, self.graph(EXAMPLES / "bent_duct" / "job.toml"))

    def test_shows_a_reference_to_nothing_in_red(self):
        path = write_parameter_file(self.folder, {"DV_": {"d": {"FILTER_": references("DV_/d")}}})
        with h5py.File(path, "a") as file:
            file["PARFILE/DV_/d/FILTER_"][0] = h5py.Reference()
        text = self.graph()
        self.assertIn("<b>nothing</b>", self.nodes(text)["/"])
        self.assertEqual([("DV_/d", "/")], [edge[:2] for edge in self.edges(text) if RED in edge[2]])

    def test_sets_apart_what_nothing_leads_to(self):
        text = self.graph("job.toml")
        self.assertEqual(["DRESP_/forgotten", "DV_CONSTRAINT_/also_forgotten"], self.part(text, "unused"))
        self.assertEqual(["ELEMENT_GROUP_/shown", "OUTPUT_/field"], self.part(text, "standalone"))

    def test_has_nothing_apart_where_all_is_reached(self):
        self.write("job.toml", '[ALGO_.run]\nDV_ = "d"\n[DV_.d]\n')
        self.assertNotIn("cluster", self.graph("job.toml"))

    def test_gives_each_kind_its_color(self):
        colors = {}
        for name, look in self.nodes(self.graph(EXAMPLES / "bent_duct" / "job.toml")).items():
            colors.setdefault(name.split("/")[0], set()).add(re.search('fillcolor="(.*?)"', look)[1])
        self.assertEqual(25, len(colors))
        self.assertEqual(25, len(set.union(*colors.values())), "one for each kind, and no two the same")

    def test_is_the_same_for_a_file_and_its_description(self):
        self.tool("import", EXAMPLES / "bent_duct" / "job.toml")
        body = self.graph().split("\nnode [", 1)[1]
        self.assertEqual(body, self.graph(EXAMPLES / "bent_duct" / "job.toml").split("\nnode [", 1)[1])

    def test_of_an_empty_file(self):
        self.tool("init")
        self.assertEqual({}, self.plain(self.graph()))

    def test_a_cycle_ends(self):
        self.write("job.toml", '[ALGO_.run]\nDV_ = "a"\n[DV_.a]\nDV_ = ["b", "a"]\n[DV_.b]\nDV_ = ["a"]\n')
        self.assertEqual(
            [("ALGO_/run", "DV_/a"), ("DV_/a", "DV_/a"), ("DV_/a", "DV_/b"), ("DV_/b", "DV_/a")],
            sorted(edge[:2] for edge in self.edges(self.graph("job.toml"))))

    def test_faults_of_a_description_are_told_instead(self):
        self.write("job.toml", '[DV_.d]\nTYPE_ = "DENSTY"\n')
        result = self.tool("graph", "job.toml", "-o", "job.svg")
        self.assertEqual((FAULTS, ""), (result.code, result.out))
        self.assertIn("job.toml:2:9: ", result.err)
        self.assertEqual(["job.toml"], names_in(self.folder))


class Layout(GraphTest):
    def test_the_algorithm_stands_on_top_and_what_is_apart_below(self):
        text = self.graph(EXAMPLES / "bent_duct" / "job.toml")
        heights = self.plain(text)
        self.assertEqual(55, len(heights))
        apart = self.part(text, "standalone")
        self.assertEqual(
            ["ELEMENT_GROUP_/flow_domain", "FLOWPATHS_/through_the_bend", "MODEL_/bent_duct", "OUTPUT_/convergence",
             "OUTPUT_/density", "OUTPUT_/tracks", "SMOOTH_/first_look"], apart)
        reached = [height for name, height in heights.items() if name not in apart]
        self.assertEqual(heights["ALGO_/bend_optimization"], max(heights.values()))
        self.assertEqual(1, reached.count(max(reached)))
        self.assertLess(max(heights[name] for name in apart), min(reached))

    def test_names_that_mean_something_to_dot(self):
        names = ['a"b', "back\\slash\\", "<b>&amp;", "a->b;", "per%cent", "Löser", "line\nfeed", "]"]
        write_parameter_file(self.folder, {
            "DV_": {name: {} for name in names}, "ALGO_": {"run": {"DV_": references("DV_/a->b;")}},
            "A\"B": {"\\": {"K\"<": references("DV_/]")}}})
        self.assertEqual(len(names) + 2, len(self.plain(self.graph())))
        self.tool("graph", "-o", "job.svg")
        shown = "\n".join(xml.etree.ElementTree.parse(self.folder / "job.svg").getroot().itertext())
        for name in ('"a\\"b"', "back\\slash\\", "<b>&amp;", "a->b;", "per%cent", "Löser", '"line\\nfeed"', "]"):
            self.assertIn(f"\n{name}\n", shown)


class Pictures(GraphTest):
    def setUp(self):
        super().setUp()
        self.write("job.toml", JOB)

    def test_have_the_form_that_their_ending_tells(self):
        for ending, begin in ((".svg", b"<?xml"), (".png", b"\x89PNG"), (".pdf", b"%PDF"), (".dot", b"digraph job {")):
            with self.subTest(ending):
                place = self.folder / f"job{ending}"
                self.assertEqual(
                    f"drew job.toml as {place}: 7 kinds, 10 commands, 4 values (4 of them model ids), 5 references\n",
                    self.graph("job.toml", "-o", place))
                self.assertTrue(place.read_bytes().startswith(begin))
        self.assertEqual(self.graph("job.toml"), (self.folder / "job.dot").read_text())
        self.assertEqual(
            ["job.dot", "job.pdf", "job.png", "job.svg", "job.toml"], names_in(self.folder))

    def test_show_every_command_and_every_arrow(self):
        self.graph("job.toml", "-o", "job.svg")
        picture = xml.etree.ElementTree.parse(self.folder / "job.svg")
        groups = [group.get("class") for group in picture.iter(f"{SVG}g")]
        self.assertEqual(11, groups.count("node"), "10 commands and the one that is not there")
        self.assertEqual(8, groups.count("edge"))
        self.assertEqual(2, groups.count("cluster"))

    def test_replace_a_former_one(self):
        self.write("job.svg", "former")
        self.graph("job.toml", "-o", "job.svg")
        self.assertIn("<svg", (self.folder / "job.svg").read_text())

    def test_keep_the_rights_of_a_former_one_and_a_link_to_it(self):
        picture = self.write("kept.svg", "former")
        picture.chmod(0o640)
        (self.folder / "link.svg").symlink_to("kept.svg")
        self.assertEqual(GOOD, self.tool("graph", "job.toml", "-o", "link.svg", umask=0o022).code)
        self.assertEqual("kept.svg", os.readlink(self.folder / "link.svg"))
        self.assertIn("<svg", picture.read_text())
        self.assertEqual(0o640, picture.stat().st_mode & 0o7777)

    def test_another_ending_is_refused(self):
        for name in ("job.gif", "job", ".svg"):
            with self.subTest(name):
                self.assertEqual(
                    (UNUSABLE, "", f"{name}: a picture is a file that ends with .svg, .png, .pdf, or .dot for its text\n"),
                    self.tool("graph", "job.toml", "-o", name))

    def test_a_folder_that_is_not_there(self):
        result = self.tool("graph", "job.toml", "-o", "nowhere/job.svg")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertIn("nowhere", result.err)


class WithAnotherDot(GraphTest):
    """What happens depends on the program of this name that is found first."""

    def setUp(self):
        super().setUp()
        self.write("job.toml", JOB)
        self.programs = self.folder.parent / "programs"
        self.programs.mkdir()

    def draw(self, name):
        """Draws with the programs of the test alone."""
        return self.tool("graph", "job.toml", "-o", name, environment={"PATH": str(self.programs)})

    def write_dot(self, text):
        """Makes a program dot that is a shell script."""
        path = pathlib.Path(self.programs / "dot")
        path.write_text(f"#!/bin/sh\n{text}\n")
        path.chmod(path.stat().st_mode | stat.S_IXUSR)

    def test_without_it_a_picture_is_refused_with_a_remedy(self):
        result = self.draw("job.svg")
        self.assertEqual((UNUSABLE, ""), (result.code, result.out))
        self.assertEqual(
            "the program dot, which draws the picture, is not installed; install Graphviz (apt-get install graphviz), "
            "or name a file that ends with .dot, which needs no dot\n", result.err)
        self.assertEqual(["job.toml"], names_in(self.folder))

    def test_without_it_the_text_can_be_had(self):
        self.assertEqual(GOOD, self.draw("job.dot").code)
        self.assertTrue((self.folder / "job.dot").read_text().startswith("digraph job {"))

    def test_one_that_fails_leaves_the_former_picture(self):
        self.write("job.svg", "former")
        self.write_dot("echo half a picture; echo it does not work >&2; exit 3")
        self.assertEqual(
            (UNUSABLE, "", "the program dot cannot draw the picture: it does not work\n"), self.draw("job.svg"))
        self.assertEqual("former", (self.folder / "job.svg").read_text())
        self.assertEqual(["job.svg", "job.toml"], names_in(self.folder))

    def test_one_that_reads_nothing(self):
        self.write_dot("exec /bin/echo picture")
        self.assertEqual(GOOD, self.draw("job.svg").code)
        self.assertEqual("picture\n", (self.folder / "job.svg").read_text())

    def test_a_signal_takes_the_half_picture_away(self):
        self.write_dot("echo half a picture; kill -TERM $PPID; exec /bin/sleep 10")
        self.assertEqual(-signal.SIGTERM, self.draw("job.svg").code)
        self.assertEqual(["job.toml"], names_in(self.folder))

    def test_a_signal_that_the_parent_ignores_stays_ignored(self):
        self.write_dot("kill -HUP $PPID; exec /bin/echo picture")
        former = signal.signal(signal.SIGHUP, signal.SIG_IGN)
        try:
            self.assertEqual(GOOD, self.draw("job.svg").code)
        finally:
            signal.signal(signal.SIGHUP, former)

    def test_it_is_waited_for_also_where_the_parent_ignores_the_end_of_programs(self):
        self.write_dot("exec /bin/echo picture")
        result = self.tool("graph", "job.toml", "-o", "job.svg", environment={"PATH": str(self.programs)},
                           preexec_fn=lambda: signal.signal(signal.SIGCHLD, signal.SIG_IGN))
        self.assertEqual((GOOD, ""), (result.code, result.err))
        self.assertEqual("picture\n", (self.folder / "job.svg").read_text())

    def test_no_shell_stands_between(self):
        self.write_dot('exec /bin/echo "$@" | /bin/cat')
        name = "$(touch broken);'\".svg"
        self.assertEqual(GOOD, self.draw(name).code)
        self.assertEqual("-Tsvg\n", (self.folder / name).read_text())
        self.assertEqual(sorted(["job.toml", name]), names_in(self.folder))


if __name__ == "__main__":
    unittest.main()
