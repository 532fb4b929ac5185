"""What the tests of the documentation share: the repository, the pages and the blocks of code in them."""

import re
import subprocess
import typing
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
DOCS = REPOSITORY / "docs"
FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


class Block(typing.NamedTuple):
    """A fenced block of a page: the word behind its fence, its text, and the line before it."""

    language: str
    text: str
    lead: str


def blocks(page, language=None):
    """The blocks of a page in order, all or those of one language."""
    text = Path(page).read_text(encoding="utf-8")
    found = []
    for match in FENCE.finditer(text):
        before = text[:match.start()].rstrip().splitlines()
        found.append(Block(match[1], match[2], before[-1] if before else ""))
    return [block for block in found if language in (None, block.language)]


def run(*command, folder=None, environment=None):
    """The standard output of a command, which must succeed."""
    ended = subprocess.run([str(word) for word in command], cwd=folder, env=environment, capture_output=True, text=True,
                           check=False)
    if ended.returncode != 0:
        raise AssertionError(f"{command} ended with {ended.returncode}\n{ended.stdout}\n{ended.stderr}")
    return ended.stdout
