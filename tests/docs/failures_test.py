"""docs/failures.md has every text and code that the sources raise, and none that they no longer raise."""

import re
import unittest

from pages import DOCS, REPOSITORY

LITERAL = r'"(?:[^"\\]|\\.)*"'
LITERALS = rf"(?:{LITERAL}\s*)+"
FAILURE_TEXT = re.compile(r"\bconstexpr FailureText \w+\{(.*?)\};", re.DOTALL)
NAMED_TEXT = re.compile(rf"\bconstexpr const char\* (\w+)\s*=\s*({LITERALS});")
# Where a text is put together from pieces.
STATEMENT = re.compile(r"(?:\b(?:ThrowFailure|Fail|throw \w+(?:::\w+)*|m_problems\.emplace_back)\(|std::string text = |"
                       r"m_message \+= )(.*?);\n", re.DOTALL)
COMMENT = re.compile(r"^\s*//.*$", re.MULTILINE)
ENTRY = re.compile(r"^```text\n(.*?)\n```\n\n- \*\*Code\*\*: (\d{12}|none)(?: \(`[\w:]+`\))?\n- \*\*Cause\*\*: \S.*?\n"
                   r"- \*\*What to do\*\*: \S", re.MULTILINE | re.DOTALL)
DETAIL = re.compile(r"^\| `(.+?)` \| .+ \|$", re.MULTILINE)
DETAIL_SOURCE = "hdf5_failures.h"


def text_of(literals):
    joined = "".join(literal[1:-1] for literal in re.findall(LITERAL, literals))
    return joined.replace('\\"', '"').replace("\\n", "\n")


def lines_of(text):
    return "\n".join(line.rstrip() for line in text.rstrip().split("\n"))


class Sources:
    """The texts of the sources: whole ones with their codes, pieces of others, and details."""

    def __init__(self):
        self.entries = set()
        self.pieces = set()
        self.details = set()
        self.files = set()
        for folder in ("OrvelCommands", "platform"):
            for suffix in ("*.h", "*.cpp"):
                for path in sorted((REPOSITORY / "src" / folder).rglob(suffix)):
                    self.read(path)

    def read(self, path):
        source = COMMENT.sub("", path.read_text(encoding="utf-8"))
        named = {name: text_of(literals) for name, literals in NAMED_TEXT.findall(source)}
        used = set()
        for body in FAILURE_TEXT.findall(source):
            parts = [part for part in re.split(rf"({LITERALS}|\bk\w+)", body) if re.match(r'"|k[A-Z]', part)]
            used.update(part for part in parts if part in named)
            values = [named[part] if part in named else text_of(part) for part in parts]
            self.entries.add((lines_of(values[0]), values[1] if len(values) > 1 else "none"))
            self.files.add(path.name)
        for statement in STATEMENT.findall(source):
            pieces = {text_of(literals) for literals in re.findall(LITERALS, statement)}
            pieces = {piece.strip("\n") for piece in pieces if re.search(r"\w \w", piece)}
            self.pieces |= pieces
            if pieces:
                self.files.add(path.name)
        if path.name == DETAIL_SOURCE:
            self.details = {text for name, text in named.items() if name not in used}


class Failures(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.sources = Sources()
        page = (DOCS / "failures.md").read_text(encoding="utf-8")
        cls.entries = ENTRY.findall(page)
        cls.blocks = page.count("```text\n")
        cls.details = set(DETAIL.findall(page))

    def with_a_piece(self):
        return {entry for entry in self.entries if entry[1] == "none" and
                any(lines_of(piece) in entry[0] for piece in self.sources.pieces)}

    def test_are_collected_from_every_file_that_is_known_to_raise_some(self):
        self.assertEqual(self.sources.files,
                         {"hdf5_failures.h", "command_list.cpp", "reference_at.cpp", "model_id_steps.cpp",
                          "KLV_ParfileException.cpp", "OrvelCmd.cpp", "OrvelCmdContainer.cpp", "OrvelCmdItem.cpp",
                          "KLV_MESSAGE.cpp"})

    def test_have_a_code_a_cause_and_a_remedy_each_and_stand_once(self):
        self.assertEqual(len(self.entries), self.blocks)
        self.assertEqual(len(self.entries), len(set(self.entries)))

    def test_that_the_sources_raise_are_all_on_the_page(self):
        self.assertEqual(sorted(self.sources.entries - set(self.entries)), [])
        texts = [text for text, _ in self.entries]
        self.assertEqual([piece for piece in sorted(self.sources.pieces)
                          if not any(lines_of(piece) in text for text in texts)], [])

    def test_on_the_page_are_all_raised_by_the_sources(self):
        self.assertEqual(sorted(set(self.entries) - self.sources.entries - self.with_a_piece()), [])

    def test_name_the_details_that_the_library_words_itself(self):
        self.assertEqual(sorted(self.details), sorted(self.sources.details))


if __name__ == "__main__":
    unittest.main()
