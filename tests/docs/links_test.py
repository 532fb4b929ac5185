"""The pages lead to each other: every relative link has its target, and every page can be found from the first ones."""

import os
import re
import unittest
import xml.etree.ElementTree
from pathlib import Path

from pages import DOCS, REPOSITORY, run

FENCED = re.compile(r"^```.*?^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)
SVG = "{http://www.w3.org/2000/svg}"


def pages():
    folders = ("docs", "examples", "src", "tests", "tools")
    return sorted([*REPOSITORY.glob("*.md"), *(page for name in folders for page in (REPOSITORY / name).rglob("*.md"))])


def links(page):
    return LINK.findall(FENCED.sub("", page.read_text(encoding="utf-8")))


def anchors(page):
    headings = HEADING.findall(FENCED.sub("", page.read_text(encoding="utf-8")))
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


class Links(unittest.TestCase):
    def test_lead_to_files_and_headings_that_exist(self):
        for page in pages():
            for link in links(page):
                if re.match(r"\w+:", link):
                    continue
                path, _, anchor = link.partition("#")
                target = (page.parent / path).resolve() if path else page
                with self.subTest(page=page.relative_to(REPOSITORY).as_posix(), link=link):
                    self.assertTrue(target.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(target))

    def test_reach_every_page_of_the_documentation_from_the_readme_and_from_the_index(self):
        names = {page.name for page in DOCS.glob("*.md")}
        from_index = {link.partition("#")[0] for link in links(DOCS / "README.md")} | {"README.md"}
        self.assertEqual(from_index & names, names)
        from_readme = {Path(link.partition("#")[0]) for link in links(REPOSITORY / "README.md")}
        self.assertEqual({path.name for path in from_readme if path.parent == Path("docs")}, names)

    def test_of_the_documentation_stay_within_it_so_that_they_hold_where_it_is_installed(self):
        for page in DOCS.glob("*.md"):
            self.assertEqual([link for link in links(page) if link.startswith("..")], [], page.name)


class Picture(unittest.TestCase):
    def shape(self, svg):
        """Nodes, edges and texts. Their places depend on the fonts of the machine."""
        found = []
        for element in xml.etree.ElementTree.fromstring(svg).iter():
            if element.tag in (SVG + "title", SVG + "text"):
                found.append(element.text)
        return sorted(found)

    def test_of_the_architecture_follows_from_its_source(self):
        drawn = run(os.environ["ORVEL_DOT"], "-Tsvg", DOCS / "architecture.dot")
        kept = (DOCS / "architecture.svg").read_text(encoding="utf-8")
        self.assertEqual(self.shape(kept), self.shape(drawn),
                         "to mend it: dot -Tsvg docs/architecture.dot -o docs/architecture.svg")


class Changes(unittest.TestCase):
    VERSION = re.compile(r"^## \[?(\d+\.\d+\.\d+)\]?(?: - (\d{4}-\d{2}-\d{2}))?$", re.MULTILINE)
    SORTS = {"Added", "Changed", "Deprecated", "Removed", "Fixed", "Security"}

    def test_are_kept_by_version_and_sort(self):
        text = (REPOSITORY / "CHANGELOG.md").read_text(encoding="utf-8")
        project = re.search(r"project\(OrvelCommands VERSION ([\d.]+)",
                            (REPOSITORY / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
        versions = [tuple(int(part) for part in version.split(".")) for version, _ in self.VERSION.findall(text)]
        self.assertIn(tuple(int(part) for part in project.split(".")), versions)
        self.assertEqual(versions, sorted(set(versions), reverse=True))
        self.assertLessEqual(set(re.findall(r"^### (.+)$", text, re.MULTILINE)), self.SORTS)


if __name__ == "__main__":
    unittest.main()
