"""The code of docs/python.md does what the page says: each block runs, and prints what its comments tell."""

import re
import shutil

import pytest
from conftest import EXAMPLES, ROOT

BLOCKS = re.findall(r"```python\n(.*?)```", (ROOT / "docs" / "python.md").read_text(encoding="utf-8"), re.DOTALL)


def test_the_page_has_code():
    assert len(BLOCKS) >= 5


@pytest.mark.parametrize("block", BLOCKS, ids=range(1, len(BLOCKS) + 1))
def test_a_block_prints_what_its_comments_say(block, bent_duct, tmp_path, monkeypatch, capsys):
    shutil.copytree(bent_duct, tmp_path / "run")
    (tmp_path / "new").mkdir()
    shutil.copy(EXAMPLES / "bent_duct" / "model_ids.toml", tmp_path)
    monkeypatch.chdir(tmp_path)
    exec(compile(block, "docs/python.md", "exec"), {"__name__": "page"})
    expected = [line.partition("  # ")[2] for line in block.splitlines() if "print(" in line]
    assert capsys.readouterr().out.splitlines() == expected
