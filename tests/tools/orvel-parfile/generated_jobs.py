"""Jobs of any size for tests: every kind and key of the schema with values of their type, and what no command reads.

The schema only tells what is worth generating. What a test expects is the generated job itself.
"""

import json
import math
import random
import struct

from support import doubles, integer_lists, integers, references, texts

EDGES = [0.0, -0.0, 0.1, 1 / 3, 5e-324, 2.2250738585072014e-308, 1.7976931348623157e308, -math.inf, math.inf,
         math.nan]
TEXTS = ["", "default", "mesh/bent duct.cgns", 'quote " and \\ and \t and \n', "100%s %d %%", "Überströmkanal", "#[x]=1",
         "\x01\x1f\x7f", "'''", "日本", "true"]
IDS = ["{}", "part {}", "Größe-{}", "a.b.{}", "{}#x", '"{}"', "-{}", "\t{}"]


def bits_to_double(bits):
    """The double with these bits."""
    return struct.unpack("<d", bits.to_bytes(8, "little"))[0]


class Generator:
    """Makes the same job from the same number."""

    def __init__(self, schema_text, number):
        self.kinds = json.loads(schema_text)["properties"]
        self.random = random.Random(number)
        self.ids = {}

    def job(self, commands, keys_of_each=3):
        """Kind -> id -> key -> values, with this many commands, for support.write_parameter_file."""
        names = sorted(set(self.kinds) - {"extra_kinds"}) + ["REPORT_", "other kind"]
        job = {}
        self.ids = {}
        for position in range(commands):
            kind = self.random.choice(names)
            name = self.random.choice(IDS).format(position)
            job.setdefault(kind, {})[name] = {}
            self.ids.setdefault(kind, []).append(name)
        for kind, members in job.items():
            for keys in members.values():
                self._fill(kind, keys, keys_of_each)
        return job

    def _fill(self, kind, keys, count):
        rows = self.kinds.get(kind, {}).get("additionalProperties", {}).get("properties", {})
        for key in self.random.sample(sorted(rows), min(len(rows), count)):
            keys[key] = self._known(key, rows[key]["anyOf"][0])
        if self.random.random() < 0.3:
            keys["WEIGHT OF IT"] = self._any()

    def _known(self, key, row):
        if row.get("type") == "array" and key not in ("LIST_", "STORE_INT_", "ITERATION_", "CUTOFF_"):
            return self._values(key, row["items"], self.random.randint(0, 4))
        return self._values(key, row, 1)

    def _values(self, key, row, count):
        if "enum" in row:
            return integers(*(self.random.randint(65, 90) for _ in range(count)))
        if row.get("type") == "integer":
            return integers(*(self.random.randint(-2**31, 2**31 - 1) for _ in range(count)))
        if row.get("type") == "number":
            return doubles(*(self._double() for _ in range(count)))
        if row.get("type") == "array":
            return integer_lists(*([self.random.randint(-5, 10**6) for _ in range(self.random.randint(0, 30))]
                                   for _ in range(count)))
        if key in self.ids and self.random.random() < 0.8:
            return references(*(f"{key}/{self.random.choice(self.ids[key])}" for _ in range(count)))
        return texts(*(self.random.choice(TEXTS) for _ in range(count)))

    def _any(self):
        count = self.random.randint(0, 3)
        return self.random.choice([
            lambda: integers(*range(count)), lambda: doubles(*(self._double() for _ in range(count))),
            lambda: texts(*(self.random.choice(TEXTS) for _ in range(count))),
            lambda: integer_lists(*([1, 2, 3] for _ in range(count)))])()

    def _double(self):
        if self.random.random() < 0.3:
            return self.random.choice(EDGES)
        return bits_to_double(self.random.getrandbits(64))
