"""What the fuzzer of job descriptions starts from: the words of the schema, and the descriptions that are there already.

    job_description_fuzz_start.py <orvel-parfile> <dictionary> <corpus>
"""

import ast
import re
import subprocess
import sys
import tomllib
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[2]


def words(tool):
    """The kinds, keys, enumerators and members, as the tool's own schema has them."""
    schema = subprocess.run([tool, "schema", "--json-schema"], capture_output=True, text=True, check=True).stdout
    return sorted(set(re.findall(r'"(\w+)"', schema)))


def is_description(text):
    try:
        return bool(tomllib.loads(text))
    except tomllib.TOMLDecodeError:
        return False


def texts_of_tests():
    """The texts within the tests that are TOML."""
    for path in sorted(HERE.glob("*_test.py")):
        for node in ast.walk(ast.parse(path.read_text(encoding="utf-8"))):
            if isinstance(node, ast.Constant) and isinstance(node.value, str) and is_description(node.value):
                yield node.value


def descriptions():
    """Small ones: a job is divided into its commands."""
    for path in sorted([*ROOT.glob("examples/*/job.toml"), *HERE.glob("golden/*.toml")]):
        yield from path.read_text(encoding="utf-8").split("\n\n")
    yield from re.findall(r"```toml\n(.*?)```", (ROOT / "docs" / "rules.md").read_text(encoding="utf-8"), re.DOTALL)
    yield from texts_of_tests()


def main():
    tool, dictionary, corpus = sys.argv[1:]
    Path(dictionary).write_text("".join(f'"{word}"\n' for word in words(tool)), encoding="utf-8")
    for number, text in enumerate(dict.fromkeys(descriptions())):
        (Path(corpus) / f"start_{number}").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
